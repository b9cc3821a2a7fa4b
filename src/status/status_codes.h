// The status codes that code names; rows of tables have their numbers. What each one says stands in
// the status table.
#pragma once

#include <cstdint>

namespace stm {

enum : uint32_t {
  StatusReady = 0,
  StatusPaperTypeError = 31,
  StatusTrayMisfeed = 44,
  StatusServiceCall = 48,  // printers tell service calls as 48 to 64; the tables know 48
  StatusLastServiceCall = 64,
  StatusFirstToner = 65,  // three groups of four colours: nearly empty, empty, not placed properly
  StatusLastToner = 76,
};

}  // namespace stm
