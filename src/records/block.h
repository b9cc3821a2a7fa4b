// A block of the reply and its fields, which are read where they stand in it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "records/scanners.h"

namespace stm {

// The head of a block is ESC, its letter and CR.
constexpr uint32_t kLetterEnd = 2;
constexpr uint32_t kHeadLength = 3;

// The end marker of a reply: ESC and a blank.
constexpr char kEndLetter = ' ';
constexpr uint32_t kEndLength = 2;

// Limits of a block. A longer one is cut there.
constexpr uint32_t kMostOfStatus = 256;
constexpr uint32_t kMostOfOthers = 255;

// A head; then fields separated by CR; then LF.
struct Block {
  const char* text;
  const char* end;  // behind the LF, which a cut block lacks; of a status block before what ends it
  // Not of a status block:
  uint32_t crCount;                      // the head's among them
  const char* stops[kMostOfOthers + 1];  // where the CRs stand, then the LF, or the end without one
};

// Both scans read the block at the position, whose ESC and letter are known to be there. Result:
// how many bytes of the reply it takes. A block that the reply cuts off says nothing reliable: it
// takes none, and `block` is not to be read.

// A status block ends with its LF or with the reply's end marker.
inline uint32_t ScanStatusBlock(const Input& rest, Block& block) {
  const uint32_t most = std::min(Left(rest), kMostOfStatus);
  block.text = rest.position;
  block.end = rest.position + most;
  for (const char* at = block.text + kLetterEnd; at != block.end; ++at) {
    if (*at != kLineFeed && *at != kEscape) continue;
    const bool closed = *at == kLineFeed;
    if (!closed && BlockLetter({at, rest.end}) != kEndLetter) continue;
    block.end = at;
    return static_cast<uint32_t>(at - block.text) + (closed ? 1 : kEndLength);
  }
  return most == kMostOfStatus ? most : 0;
}

// All others end with their LF.
inline uint32_t ScanBlock(const Input& rest, Block& block) {
  const uint32_t most = std::min(Left(rest), kMostOfOthers);
  const char* end = rest.position + most;
  const char* at = rest.position + kLetterEnd;
  const char** stop = block.stops;
  bool closed = false;
  for (; at != end; ++at) {
    const auto byte = static_cast<uint8_t>(*at);
    if (byte > kCarriageReturn) continue;
    if (byte == kCarriageReturn) *stop++ = at;
    if (byte == kLineFeed) {
      closed = true;
      break;
    }
  }
  if (!closed && most < kMostOfOthers) return 0;
  *stop = at;
  block.text = rest.position;
  block.end = at + closed;
  block.crCount = static_cast<uint32_t>(stop - block.stops);
  return static_cast<uint32_t>(block.end - block.text);
}

// What follows a block's head.
inline Input BodyOf(const Block& block) {
  Input body{block.text, block.end};
  Skip(body, kHeadLength);
  return body;
}

// What is left of a block's fields. They are read without a look at each byte: the scan found where
// they stop. Not of a status block.
struct Fields {
  const char* position;
  const char* end;
  const char* const* stop;  // where the field at the position stops; anything at the end
};

inline Fields FieldsOf(const Block& block) {
  const Input body = BodyOf(block);
  const bool crInHead = block.stops[0] < body.position;
  return {body.position, body.end, block.stops + crInHead};
}

// A zero byte at a field's start ends the fields as well. A CR right before the LF does not: an
// empty field follows it.
inline bool AtEnd(const Fields& fields) {
  return fields.position == fields.end || *fields.position == '\0';
}

// Steps over the next field and its delimiter; empty at the end. A field of more than `limit` - 2
// characters gives as many, loses the next one, and leaves the rest as the next field.
inline std::string_view NextField(Fields& fields, uint32_t limit) {
  const char* start = fields.position;
  if (start == fields.end) return {start, 0};
  const auto size = static_cast<uint32_t>(*fields.stop - start);
  if (size > limit - 2) {
    fields.position += limit - 1;
    return {start, limit - 2};
  }
  fields.position = *fields.stop == fields.end ? fields.end : *fields.stop + 1;
  ++fields.stop;
  return {start, size};
}

// The rest of the block up to its LF, CRs included, cut at `limit` - 2 characters.
inline std::string_view ReadRest(const Fields& fields, uint32_t limit) {
  if (fields.position == fields.end) return {fields.end, 0};
  const char* last = fields.end[-1] == kLineFeed ? fields.end - 1 : fields.end;
  const auto size = static_cast<uint32_t>(last - fields.position);
  return {fields.position, size < limit - 2 ? size : limit - 2};
}

}  // namespace stm
