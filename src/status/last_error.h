// The library's last error: one value for the process, 0 at load.
#pragma once

#include <cstdint>

namespace stm {

void SetPatError(uint32_t error);

// Records the error. Result: 0, the result of a failing call.
inline uint32_t FailWith(uint32_t error) {
  SetPatError(error);
  return 0;
}

}  // namespace stm
