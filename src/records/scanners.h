// Text primitives of the reply and Device ID parsers. Input is always a position and an end; bytes
// are checked before the position moves, and bytes at or past the end read as nothing.
#pragma once

#include <cstdint>

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

// Keeps the bytes of `input` up to and including the first delimiter, at most `limit` - 1 of them,
// in `dst` (`limit` bytes), followed by a zero byte. Zero bytes do not stop the scan; `input` is
// not moved. Result: the number of bytes kept, by which the caller advances. A limit of 0 keeps and
// writes nothing.
uint32_t ScanField(const Input& input, char delimiter, uint16_t limit, char* dst);
uint32_t ScanField2(const Input& input, char delimiter1, char delimiter2, uint16_t limit,
                    char* dst);

// A field read up to its delimiter, without it.
template <uint16_t Limit>
struct Field {
  char text[Limit];  // terminated
  char delimiter;    // the byte that ended the field, 0 when none did
};

// Reads a field and steps over it and its delimiter. A field that fills the limit without a
// delimiter loses its last byte all the same: that is the delimiter's place, and text has at most
// `Limit` - 2 characters.
template <uint16_t Limit>
Field<Limit> ReadField(Input& input, char delimiter1, char delimiter2) {
  Field<Limit> field;
  field.delimiter = '\0';
  const uint32_t kept = ScanField2(input, delimiter1, delimiter2, Limit, field.text);
  Skip(input, kept);
  if (kept == 0) return field;
  char& last = field.text[kept - 1];
  if (last == delimiter1 || last == delimiter2) {
    field.delimiter = last;
    last = '\0';
  } else if (kept == Limit - 1) {
    last = '\0';
  }
  return field;
}

template <uint16_t Limit>
Field<Limit> ReadField(Input& input, char delimiter) {
  return ReadField<Limit>(input, delimiter, delimiter);
}

// The value of the decimal digits at the start of `text`, modulo 2^32; 0 without a leading digit.
uint32_t ParseDecimal(const char* text);

// The letter of the block that begins at the position: -1 when no ESC stands there, 0 when the
// input ends right after the ESC.
int8_t BlockLetter(const Input& input);

// A block's first 255 bytes including its LF, with a zero byte after them.
struct BlockCopy {
  char text[256];
  uint32_t length;  // without the zero byte: what the block takes of the reply
};

inline BlockCopy CopyBlock(const Input& block) {
  BlockCopy copy;
  copy.length = ScanField(block, kLineFeed, sizeof copy.text, copy.text);
  return copy;
}

// What follows ESC, the letter and the CR.
inline Input FieldsOf(const BlockCopy& copy) {
  Input fields{copy.text, copy.text + copy.length};
  Skip(fields, 3);
  return fields;
}

}  // namespace stm
