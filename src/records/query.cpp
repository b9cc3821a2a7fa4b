// The readback query: which blocks the printer is asked for.
#include <cstring>
#include <string_view>

#include "platform/system_error.h"
#include "stmdata/stmdata.h"

namespace {

struct QueryRow {
  uint32_t groups;  // any of these bits
  std::string_view requests;
};

// A request is ESC, a block's letter and LF. ESC is written in octal: in hexadecimal the letters A
// to F would be read as digits of it.
constexpr std::string_view kPrefix = "\022\024\022";
constexpr QueryRow kRequests[] = {
    {GroupModelInfo, "\033V\n"},                                          // versions
    {GroupTrays, "\033T\n\033Z\n"},                                       // sizes, levels
    {GroupBins, "\033H\n\033L\n"},                                        // output bins
    {GroupDuplex | GroupOptions, "\033A\n\033B\n\033C\n\033D\n\033M\n"},  // options
    {GroupEmulation, "\033E\n"},                                          // language in use
    {GroupFonts, "\033F\n"},                                              // fonts
};
constexpr std::string_view kSuffix = "\033 ";

constexpr size_t kLongestQuery = [] {
  size_t length = kPrefix.size() + kSuffix.size();
  for (const QueryRow& row : kRequests)
    length += row.requests.size();
  return length;
}();

struct Query {
  char text[kLongestQuery];
  uint32_t length;
};

void Append(Query& query, std::string_view bytes) {
  std::memcpy(query.text + query.length, bytes.data(), bytes.size());
  query.length += static_cast<uint32_t>(bytes.size());
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
