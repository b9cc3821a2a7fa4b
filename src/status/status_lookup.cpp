// Status rows of a record, without a choice among several statuses.
#include "records/row_index.h"
#include "status/last_error.h"
#include "status/status_table.h"
#include "stmdata/stmdata.h"

namespace stm {

const StatusRow& FindStatusRow(uint32_t code) {
  return RowOf<kStatusTable, &StatusRow::code>(code);
}

namespace {

uint32_t CopyStatusRow(uint32_t code, StatusRow* target) {
  const StatusRow& row = FindStatusRow(code);
  if (row.code == kStatusTableEnd) return FailWith(PatErrorNotFound);
  *target = row;
  return 1;
}

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatGetPrinterStatus(const PrnInfo* info, StatusRow* row) {
  if (!info || !row) return stm::FailWith(PatErrorNullRecord);
  return stm::CopyStatusRow(info->statusCode, row);
}

uint32_t STM_CALL PatGetPrinterStatus_Ex(const PrnInfoEx* info, StatusRow* row) {
  if (!info || !row) return stm::FailWith(PatErrorNullRecord);
  if (!info->statusList) return stm::FailWith(PatErrorNotFound);
  return stm::CopyStatusRow(info->statusList->code, row);
}
