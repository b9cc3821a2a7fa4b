// The one status, or the group of statuses, that stands for all that a record lists.
#pragma once

#include <cstdint>

#include "status/status_codes.h"
#include "stmdata/records.h"

namespace stm {

inline uint32_t FoldServiceCall(uint32_t code) {
  return code >= StatusServiceCall && code <= StatusLastServiceCall ? uint32_t{StatusServiceCall}
                                                                    : code;
}

// The status of the best priority; 102 when the printer does not respond, 100 when it prints and
// nothing worse than paper and consumables is listed, 0 when nothing is.
uint32_t GetDominantStatus(const PrnInfo& info);
uint32_t GetDominantStatus(const PrnInfoEx& info);

inline constexpr uint32_t kMostDominant = 16;

struct DominantStatuses {
  uint32_t codes[kMostDominant];  // as many as there are; the first is 0 where there is none
  uint32_t count;
};

// All statuses of the best priority, in table order; a code listed twice comes twice. None when
// nothing is listed, or more than kMostDominant share the best priority.
DominantStatuses GetDominantStatuses(const PrnInfo& info);
DominantStatuses GetDominantStatuses(const PrnInfoEx& info);

// What the one code of a flat record that lists no several means: 102 when the printer does not
// respond, 100 when it prints and the code is a mild one, else the code.
uint32_t OwnStatus(const PrnInfo& info);

// What a record's texts and picture are about: the dominant statuses, or the own one of a flat
// record that lists no several.
DominantStatuses StatusesOf(const PrnInfo& info);
DominantStatuses StatusesOf(const PrnInfoEx& info);

}  // namespace stm
