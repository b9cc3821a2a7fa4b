// The part list that is drawn. Drawing has no argument for one, so the latest composition of the
// process provides it.
#pragma once

#include <array>
#include <cstdint>

namespace stm {

constexpr uint32_t kPartListSize = 16;
using PartList = std::array<uint8_t, kPartListSize>;

// Lists are stored and taken as a whole, however many threads compose and draw.
void StoreLatestList(const PartList& list);

// All 0 until one is stored.
PartList LatestList();

}  // namespace stm
