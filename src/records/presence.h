// What a caller's record marks as absent.
#pragma once

#include <cstdint>

#include "stmdata/records.h"

namespace stm {

// Absent is null or all-ones for pointers, all-ones for numbers.
inline bool IsPresent(const void* pointer) {
  return pointer && reinterpret_cast<uintptr_t>(pointer) != STM_ABSENT_POINTER;
}

inline bool IsPresent(uint32_t number) {
  return number != STM_ABSENT;
}

}  // namespace stm
