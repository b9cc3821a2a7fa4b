// Indexes of tables whose rows have a code or a letter. A question asks for several codes, and the
// tables are long: an index, made while compiling, leads to a code's row without a walk. The last
// row closes its table and answers for every code that no other row has.
#pragma once

#include <array>
#include <cstdint>
#include <iterator>
#include <type_traits>

namespace stm {

// The numbers of the rows by their keys. Keys are below 256; another one does not compile. Of two
// rows with a key the first counts.
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
