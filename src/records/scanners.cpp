#include "records/scanners.h"

namespace stm {

Field ScanField(Input& input, uint32_t limit, char delimiter1, char delimiter2) {
  const char* start = input.position;
  const uint32_t most = Left(input) < limit - 1 ? Left(input) : limit - 1;
  uint32_t length = 0;
  while (length < most && start[length] != delimiter1 && start[length] != delimiter2)
    ++length;
  const bool ended = length < most;
  Skip(input, length + ended);
  return {{start, length}, ended ? start[length] : '\0'};
}

Field ReadField(Input& input, uint32_t limit, char delimiter1, char delimiter2) {
  Field field = ScanField(input, limit, delimiter1, delimiter2);
  if (field.text.size() == limit - 1) field.text.remove_suffix(1);
  return field;
}

uint32_t ParseDecimal(std::string_view text) {
  uint32_t value = 0;
  for (char digit : text) {
    if (digit < '0' || digit > '9') break;
    value = value * 10 + static_cast<uint32_t>(digit - '0');
  }
  return value;
}

int8_t BlockLetter(const Input& input) {
  if (Peek(input) != kEscape) return -1;
  return Left(input) > 1 ? static_cast<int8_t>(input.position[1]) : 0;
}

}  // namespace stm
