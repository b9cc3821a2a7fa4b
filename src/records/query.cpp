// The readback query: which blocks the printer is asked for.
#include <cstring>

#include "platform/system_error.h"
#include "stmdata/stmdata.h"

namespace {

struct QueryRow {
  uint32_t groups;  // any of these bits
  const char* requests;
};

constexpr char kPrefix[] = "\x12\x14\x12";
constexpr QueryRow kRequests[] = {
    {GroupModelInfo, "\x1BV\n"},     // versions
    {GroupTrays, "\x1BT\n\x1BZ\n"},  // sizes, levels
    {GroupBins, "\x1BH\n\x1BL\n"},   // output bins
    {GroupDuplex | GroupOptions,
     "\x1B"
     "A\n\x1B"
     "B\n\x1B"
     "C\n\x1B"
     "D\n\x1BM\n"},  // options
    {GroupEmulation,
     "\x1B"
     "E\n"},  // language in use
    {GroupFonts,
     "\x1B"
     "F\n"},  // fonts
};
constexpr char kSuffix[] = "\x1B ";

constexpr size_t kLongestQuery = 41;

struct Query {
  char text[kLongestQuery];
  uint32_t length;
};

void Append(Query& query, const char* bytes) {
  const size_t length = std::strlen(bytes);
  std::memcpy(query.text + query.length, bytes, length);
  query.length += static_cast<uint32_t>(length);
}

Query BuildQuery(uint32_t groups) {
  Query query{};
  Append(query, kPrefix);
  for (const QueryRow& row : kRequests) {
    if (groups & row.groups) Append(query, row.requests);
  }
  Append(query, kSuffix);
  return query;
}

}  // namespace

uint32_t STM_CALL CreateQueryCommand(uint32_t groups, char* buffer, uint32_t* size) {
  if (!size) return stm::FailWithSystemError(ERROR_INVALID_ADDRESS);
  const Query query = BuildQuery(groups);
  const uint32_t capacity = *size;
  if (query.length > capacity) {
    *size = query.length;
    return stm::FailWithSystemError(ERROR_INSUFFICIENT_BUFFER);
  }
  if (!buffer) return stm::FailWithSystemError(ERROR_INVALID_ADDRESS);
  std::memcpy(buffer, query.text, query.length);
  if (capacity > query.length) buffer[query.length] = '\0';
  *size = query.length;
  return 1;
}
