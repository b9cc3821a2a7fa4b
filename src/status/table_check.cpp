// A status that a table does not know is answered for by its closing row: the compiler tells which
// tables lack a status, or have a row of a code that is none.
#include <algorithm>
#include <iterator>

#include "records/row_index.h"
#include "records/status_classes.h"
#include "status/icon_table.h"
#include "status/priority_table.h"
#include "status/status_codes.h"
#include "status/status_table.h"

namespace stm {
namespace {

template <const auto& kTable, auto kKey>
constexpr bool Has(uint32_t code) {
  return RowNumber<kTable, kKey>(code) != std::size(kTable) - 1;
}

constexpr bool IsStatus(uint32_t code) {
  return Has<kStatusTable, &StatusRow::code>(code);
}

// The library's own codes are chosen without a priority. The paper type error shows the icon of the
// closing row.
constexpr bool HasItsRows(uint32_t code) {
  const bool own = code == StatusPrinting || code == StatusNoResponse;
  return Has<kPriorityTable, &PriorityRow::code>(code) != own &&
         Has<kErrPartsTable, &IconRow::code>(code) == (code != StatusPaperTypeError);
}

constexpr bool TablesAgree() {
  const auto everyRow = [](const auto& table, auto holds) {
    return std::all_of(std::begin(table), std::end(table) - 1,
                       [&](const auto& row) { return holds(static_cast<uint32_t>(row.code)); });
  };
  return everyRow(kStatusTable, HasItsRows) && everyRow(kPriorityTable, IsStatus) &&
         everyRow(kErrPartsTable, IsStatus) && everyRow(kStatusClasses, IsStatus);
}
static_assert(TablesAgree());

}  // namespace
}  // namespace stm
