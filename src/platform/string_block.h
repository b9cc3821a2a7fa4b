// The string-table format: a block holds sixteen strings, each as its length in UTF-16 units and
// the units, without terminators.
#pragma once

#include <cstdint>
#include <cstring>

namespace stm {

inline constexpr uint32_t kStringsPerBlock = 16;

// The number that names the block with a string.
constexpr uint16_t StringBlockOf(uint32_t id) {
  return static_cast<uint16_t>(id / kStringsPerBlock + 1);
}

struct StringEntry {
  const uint16_t* units;  // in the block; null when the block ends before the string does
  uint32_t length;
};

inline StringEntry FindStringEntry(const void* block, uint32_t blockBytes, uint32_t id) {
  const auto* unit = static_cast<const uint16_t*>(block);
  const uint16_t* end = unit + blockBytes / sizeof *unit;
  for (uint32_t skip = id % kStringsPerBlock; unit < end; --skip) {
    const uint32_t length = *unit++;
    if (length > static_cast<uint32_t>(end - unit)) break;
    if (skip == 0) return {unit, length};
    unit += length;
  }
  return {nullptr, 0};
}

}  // namespace stm
