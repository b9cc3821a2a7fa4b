// The walk over a readback reply.
#pragma once

#include <cstdint>

namespace stm {

// Group bits of the blocks that the most recent call of SetPrnInfoExFromReadbackCmd dispatched; one
// value for the process.
uint32_t LastParseFlags();

}  // namespace stm
