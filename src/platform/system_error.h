// The system's last error, for the calls that report there and not in the library's own.
#pragma once

#include <cstdint>

#include "platform/windows_api.h"

namespace stm {

// Records the error. Result: 0, the result of a failing call.
inline uint32_t FailWithSystemError(DWORD error) {
  SetLastError(error);
  return 0;
}

}  // namespace stm
