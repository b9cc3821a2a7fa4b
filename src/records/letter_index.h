// Tables of rows with a letter, the last of which answers for every letter that no row has.
#pragma once

#include <array>
#include <cstdint>
#include <iterator>

namespace stm {

// Where each letter's row stands.
template <const auto& kTable>
inline constexpr auto kLetterIndex = [] {
  constexpr uint8_t kLast = std::size(kTable) - 1;
  std::array<uint8_t, 256> rows;
  rows.fill(kLast);
  for (uint8_t row = kLast; row-- > 0;)
    rows[static_cast<uint8_t>(kTable[row].letter)] = row;
  return rows;
}();

template <const auto& kTable>
constexpr const auto& RowOfLetter(char letter) {
  return kTable[kLetterIndex<kTable>[static_cast<uint8_t>(letter)]];
}

}  // namespace stm
