#include "records/scanners.h"

namespace stm {

uint32_t ScanField2(const Input& input, char delimiter1, char delimiter2, uint16_t limit,
                    char* dst) {
  if (limit == 0) return 0;
  const uint32_t most = Left(input) < limit - 1u ? Left(input) : limit - 1u;
  uint32_t kept = 0;
  while (kept < most) {
    const char byte = input.position[kept];
    dst[kept++] = byte;
    if (byte == delimiter1 || byte == delimiter2) break;
  }
  dst[kept] = '\0';
  return kept;
}

uint32_t ScanField(const Input& input, char delimiter, uint16_t limit, char* dst) {
  return ScanField2(input, delimiter, delimiter, limit, dst);
}

uint32_t ParseDecimal(const char* text) {
  uint32_t value = 0;
  for (; *text >= '0' && *text <= '9'; ++text)
    value = value * 10 + static_cast<uint32_t>(*text - '0');
  return value;
}

int8_t BlockLetter(const Input& input) {
  if (Peek(input) != kEscape) return -1;
  return Left(input) > 1 ? static_cast<int8_t>(input.position[1]) : 0;
}

}  // namespace stm
