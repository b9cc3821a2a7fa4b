// Where each status code stands in a table of rows, found while compiling: a question asks for
// several codes, and the tables are long.
#pragma once

#include <cstddef>
#include <cstdint>

namespace stm {

// Above the code of every row but the closing ones. A row with another does not compile: raise it.
inline constexpr uint32_t kIndexedCodes = 128;

struct CodeIndex {
  uint8_t rows[kIndexedCodes];
  uint8_t closingRow;
};

// Of two rows with a code the first counts. The last row closes the table and answers for every
// code that no row before it has.
template <class Row, size_t Rows>
consteval CodeIndex IndexByCode(const Row (&table)[Rows]) {
  static_assert(Rows <= 256);
  CodeIndex index{{}, Rows - 1};
  for (uint8_t& row : index.rows)
    row = index.closingRow;
  for (size_t row = Rows - 1; row-- > 0;)
    index.rows[table[row].code] = static_cast<uint8_t>(row);
  return index;
}

constexpr uint32_t RowOfCode(const CodeIndex& index, uint32_t code) {
  return code < kIndexedCodes ? index.rows[code] : index.closingRow;
}

}  // namespace stm
