// Text into the fixed fields of the flat record.
#pragma once

#include <cstdint>
#include <cstring>

namespace stm {

// Whether the byte begins a double-byte character of code page 932.
inline bool IsLeadByte932(char byte) {
  const auto value = static_cast<uint8_t>(byte);
  return (value >= 0x81 && value <= 0x9F) || (value >= 0xE0 && value <= 0xFC);
}

// How many bytes of `text` fit in `limit` without half a double-byte character. The caller's code
// page is unknown; bytes are taken as code page 932, the only one here with double-byte characters.
inline uint32_t FittingLength(const char* text, uint32_t limit) {
  uint32_t length = 0;
  while (text[length]) {
    const uint32_t width = IsLeadByte932(text[length]) && text[length + 1] ? 2 : 1;
    if (length + width > limit) break;
    length += width;
  }
  return length;
}

// Copies `text` into a fixed field, cut to its width and terminated; bytes after it stay. The text
// may lie in the field itself.
template <uint32_t Width>
void CopyText(char (&field)[Width], const char* text) {
  const uint32_t length = FittingLength(text, Width - 1);
  std::memmove(field, text, length);
  field[length] = '\0';
}

}  // namespace stm
