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

// What ends a block, and how many bytes are read of one that goes on without its end.
enum class BlockEnd : uint32_t {
  Line = 255,          // its LF
  LineOrMarker = 256,  // its LF, or the reply's end marker
};

// A head; then fields separated by CR; then the end.
struct Block {
  const char* text;
  const char* end;         // where its end stands, or what is not read begins
  const char* after;       // after its end; the same as `end` for a block without one
  const char* stops[257];  // where the CRs stand, the head's among them, then `end`
  const char** lastStop;
};

inline uint32_t CountCrs(const Block& block) {
  return static_cast<uint32_t>(block.lastStop - block.stops);
}

// Finds the end and the fields of the block at the position, whose ESC and letter are known to be
// there. False when the reply cuts the block off: it says nothing reliable then.
inline bool ScanBlock(const Input& rest, BlockEnd kind, Block& block) {
  const auto limit = static_cast<uint32_t>(kind);
  const uint32_t most = std::min(Left(rest), limit);
  const char* const end = rest.position + most;
  const char* at = rest.position + kLetterEnd;
  const char** stop = block.stops;
  uint32_t endLength = 0;
  for (; at != end; ++at) {
    const char byte = *at;
    if (static_cast<uint8_t>(byte) > kEscape) continue;
    if (byte == kCarriageReturn) *stop++ = at;
    if (byte == kLineFeed) {
      endLength = 1;
      break;
    }
    if (byte == kEscape && kind == BlockEnd::LineOrMarker &&
        BlockLetter({at, rest.end}) == kEndLetter) {
      endLength = kEndLength;
      break;
    }
  }
  if (endLength == 0 && most < limit) return false;
  block.text = rest.position;
  block.end = at;
  block.after = at + endLength;
  block.lastStop = stop;
  *stop = at;
  return true;
}

// What stands between a block's head and its end.
inline Input BodyOf(const Block& block) {
  Input body{block.text, block.end};
  Skip(body, kHeadLength);
  return body;
}

// What is left of a block's fields. They are read without a look at each byte: the scan found where
// they stop.
struct Fields {
  const char* position;
  const char* end;          // after the block's end
  const char* const* stop;  // where the field at the position stops; anything at the end
};

inline Fields FieldsOf(const Block& block) {
  const char* position = block.text + kHeadLength;
  const bool crInHead = block.stops[0] < position;
  return {position, block.after, block.stops + crInHead};
}

// A zero byte at a field's start ends the fields as well. A CR right before the block's end does
// not: an empty field follows it.
inline bool AtEnd(const Fields& fields) {
  return fields.position == fields.end || *fields.position == '\0';
}

// Steps over the next field and its delimiter; empty at the end. A field takes at most `most` bytes
// of the block, its delimiter among them. Of a longer one the last of these bytes is lost, in the
// delimiter's place, and what follows is the next field.
inline std::string_view NextField(Fields& fields, uint32_t most) {
  const char* start = fields.position;
  if (start == fields.end) return {start, 0};
  const auto size = static_cast<uint32_t>(*fields.stop - start);
  if (size >= most) {
    fields.position += most;
    return {start, most - 1};
  }
  fields.position = *fields.stop == fields.end ? fields.end : *fields.stop + 1;
  ++fields.stop;
  return {start, size};
}

// The rest of the block up to its end, CRs included, cut at `most` - 1 characters.
inline std::string_view ReadRest(const Block& block, const Fields& fields, uint32_t most) {
  if (fields.position >= block.end) return {block.end, 0};
  return {fields.position, std::min(static_cast<uint32_t>(block.end - fields.position), most - 1)};
}

}  // namespace stm
