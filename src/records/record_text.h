// The texts of a list-based record: a zero-terminated block each, or none.
#pragma once

#include <algorithm>
#include <cstring>
#include <string_view>

#include "records/presence.h"
#include "records/room.h"

namespace stm {

// A version text's block: six characters and the zero byte. Who fills such a text from elsewhere
// gives it this much at least, since a reply writes over what is there.
inline constexpr size_t kVersionBytes = 7;

inline void ReleaseText(char*& text, Room* room = nullptr) {
  if (IsPresent(text)) ReleaseBlock(room, text);
  text = nullptr;
}

// Gives the field a copy of `text`, of any length, in a block of at least `least` bytes; null
// without memory.
inline void ReplaceText(char*& field, std::string_view text, Room* room = nullptr,
                        size_t least = 0) {
  auto* block = static_cast<char*>(TakeBlock(room, std::max(text.size() + 1, least)));
  if (block) std::memcpy(block, text.data(), text.size());
  ReleaseText(field, room);
  field = block;
}

}  // namespace stm
