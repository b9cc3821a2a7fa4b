// Text primitives of the reply and Device ID parsers. Input is always a position and an end; bytes
// are checked before the position moves, and bytes at or past the end read as nothing.
#pragma once

#include <cstdint>
#include <string_view>

namespace stm {

struct Input {
  const char* position;
  const char* end;
};

inline uint32_t Left(const Input& input) {
  return static_cast<uint32_t>(input.end - input.position);
}

// The byte at the position, 0 at the end.
inline char Peek(const Input& input) {
  return Left(input) > 0 ? *input.position : '\0';
}

inline void Skip(Input& input, uint32_t count) {
  input.position += count < Left(input) ? count : Left(input);
}

constexpr char kEscape = 0x1B;
constexpr char kCarriageReturn = 0x0D;
constexpr char kLineFeed = 0x0A;

// A piece of the input, where it stands, up to its delimiter. A zero byte does not end it; the
// look-up of a name takes what comes before one.
struct Field {
  std::string_view text;  // without the delimiter
  char delimiter;         // 0 when none ended the field
};

// Steps over the next field and its delimiter. A field takes at most `most` bytes of the input, its
// delimiter among them; what follows is left for the next field.
inline Field ScanField(Input& input, uint32_t most, char delimiter1, char delimiter2) {
  const char* start = input.position;
  const char* stop = start + (Left(input) < most ? Left(input) : most);
  const char* at = start;
  while (at < stop && *at != delimiter1 && *at != delimiter2)
    ++at;
  const bool ended = at < stop;
  input.position = at + ended;
  return {{start, static_cast<size_t>(at - start)}, ended ? *at : '\0'};
}

inline Field ScanField(Input& input, uint32_t most, char delimiter) {
  return ScanField(input, most, delimiter, delimiter);
}

// The value of the decimal digits at the start of `text`, modulo 2^32; 0 without a leading digit.
inline uint32_t ParseDecimal(std::string_view text) {
  uint32_t value = 0;
  for (char digit : text) {
    if (digit < '0' || digit > '9') break;
    value = value * 10 + static_cast<uint32_t>(digit - '0');
  }
  return value;
}

// The letter of the block that begins at the position: -1 when no ESC stands there, 0 when the
// input ends right after the ESC.
inline int8_t BlockLetter(const Input& input) {
  if (Peek(input) != kEscape) return -1;
  return Left(input) > 1 ? static_cast<int8_t>(input.position[1]) : 0;
}

}  // namespace stm
