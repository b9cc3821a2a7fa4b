#include "records/scanners.h"

namespace stm {

uint32_t ParseDecimal(std::string_view text) {
  uint32_t value = 0;
  for (char digit : text) {
    if (digit < '0' || digit > '9') break;
    value = value * 10 + static_cast<uint32_t>(digit - '0');
  }
  return value;
}

}  // namespace stm
