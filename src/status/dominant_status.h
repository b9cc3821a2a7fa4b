// The one status, or the group of statuses, that stands for all that a record lists.
#pragma once

#include <cstdint>

#include "stmdata/records.h"

namespace stm {

inline constexpr uint32_t kMostDominant = 16;
inline constexpr uint32_t kServiceCall = 48;

// Service calls come as 48 to 64; the tables know 48.
inline uint32_t FoldServiceCall(uint32_t code) {
  return code >= 48 && code <= 64 ? kServiceCall : code;
}

// The status of the best priority; 102 when the printer does not respond, 100 when it prints and
// nothing worse than paper and consumables is listed, 0 when nothing is.
uint32_t GetDominantStatus(const PrnInfo* info);
uint32_t GetDominantStatus_Ex(const PrnInfoEx* info);

// All statuses of the best priority, in table order; a code listed twice comes twice.
//   codes     at least kMostDominant entries, which every caller has; `capacity` is not looked at
//   Result    number of codes; 0 when nothing is listed, or more than kMostDominant share the best
//             priority, and `codes` is not written
uint32_t GetDominantStatusList(const PrnInfo* info, uint32_t* codes, uint32_t capacity);
uint32_t GetDominantStatusList_Ex(const PrnInfoEx* info, uint32_t* codes, uint32_t capacity);

}  // namespace stm
