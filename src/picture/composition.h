// The part list that is drawn.
#pragma once

#include <array>
#include <cstdint>

namespace stm {

constexpr uint32_t kPartListSize = 16;
using PartList = std::array<uint8_t, kPartListSize>;

// The first 16 codes of the latest successful composition in the process, all 0 until then.
PartList LastPartList();

}  // namespace stm
