// Tables of rows with a small code or a letter, the last of which answers for all that no other row
// has: where the row of each one stands, found while compiling. A question asks for several codes,
// and the tables are long.
#pragma once

#include <array>
#include <cstdint>
#include <iterator>
#include <type_traits>

namespace stm {

// The rows' places by their keys, which are below 256; another key does not compile. Of two rows
// with a key the first counts.
template <const auto& kTable, auto kKey>
inline constexpr auto kRowIndex = [] {
  constexpr uint8_t kClosingRow = std::size(kTable) - 1;
  std::array<uint8_t, 256> rows;
  rows.fill(kClosingRow);
  for (uint8_t row = kClosingRow; row-- > 0;) {
    const auto key = kTable[row].*kKey;
    rows[static_cast<std::make_unsigned_t<decltype(key)>>(key)] = row;
  }
  return rows;
}();

template <const auto& kTable, auto kKey>
constexpr uint32_t RowNumber(uint32_t key) {
  constexpr const auto& kRows = kRowIndex<kTable, kKey>;
  return key < kRows.size() ? kRows[key] : std::size(kTable) - 1;
}

template <const auto& kTable, auto kKey>
constexpr const auto& RowOf(uint32_t key) {
  return kTable[RowNumber<kTable, kKey>(key)];
}

}  // namespace stm
