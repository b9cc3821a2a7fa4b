// The three code pages of the library's texts, converted as Windows converts them: best fits and
// default characters included. Nothing of the host's own conversions is used.
#pragma once

#include <cstdint>

namespace stm {

// A code is a byte, or lead byte << 8 | trail byte.
struct CodePage {
  uint32_t number;
  const char16_t* single;          // unit of each byte
  const char16_t* doubles;         // units of trail bytes 40 to FC by lead byte; null: no lead byte
  const uint8_t* pages;            // row of `codes` by the high byte of a unit
  const uint16_t (*codes)[256];    // code by the low byte of a unit
  const struct CodeRun* capitals;  // codes that have a capital letter
  uint32_t capitalRuns;
};

// Null for any other number than 932, 1250 and 1252.
const CodePage* FindCodePage(uint32_t number);

bool IsLeadByte(const CodePage& page, uint8_t byte);

// The code of a UTF-16 unit; '?' when the page has nothing like it. Surrogates are units like any.
inline uint16_t EncodeUnit(const CodePage& page, uint16_t unit) {
  return page.codes[page.pages[unit >> 8]][unit & 0xFF];
}

// The unit at `bytes`, of which `left` (1 or more) may be read, and how many bytes it takes. A lead
// byte without a trail byte, or before a zero byte, stands alone.
struct Decoded {
  uint16_t unit;
  uint32_t length;
};
Decoded DecodeAt(const CodePage& page, const uint8_t* bytes, uint32_t left);

// The capital letter of a code, or the code itself.
uint16_t CapitalOf(const CodePage& page, uint16_t code);

}  // namespace stm
