// Which icon shows a record's state, which one a paper level, and the entries of the parts table.
#include <cstring>

#include "records/row_index.h"
#include "status/dominant_status.h"
#include "status/icon_table.h"
#include "status/last_error.h"
#include "status/parts_table.h"
#include "status/record_view.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

const char* StateIcon(uint32_t code, bool online) {
  if (!online && code <= kLastMildCode) return kOfflineIcon;
  return RowOf<kErrPartsTable, &IconRow::code>(code).icon;
}

const char* PaperLevelIcon(uint32_t level) {
  const LevelIcon* row = kLevelIcons;
  while (level > row->highest)
    ++row;
  return row->icon;
}

uint32_t WriteName(const char* name, char* buffer) {
  std::memcpy(buffer, name, std::strlen(name) + 1);
  return 1;
}

// A single status shows as it is, even while the printer prints or does not respond. Of several the
// dominant one is chosen, which may be one of these two.
uint32_t IconCode(const PrnInfo& info) {
  return HasSeveralStatuses(info) ? GetDominantStatus(info) : info.statusCode;
}

uint32_t IconCode(const PrnInfoEx& info) {
  if (info.noResponse) return StatusNoResponse;
  const bool listsNothing = !info.statusList || info.statusCount == 0;
  return listsNothing ? 0 : GetDominantStatus(info);
}

// A call without a record fails and delivers the entry all the same: the drawing has no record.
uint32_t CopyPart(bool hasRecord, uint8_t index, PrnPart* part) {
  if (!part) return FailWith(PatErrorNullRecord);
  if (index < kPartCount) *part = kPartsTable[index];
  if (!hasRecord) return FailWith(PatErrorNullRecord);
  return index < kPartCount ? 1 : FailWith(PatErrorNotFound);
}

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatGetErrParts(const PrnInfo* info, char* buffer) {
  if (!info || !buffer) return stm::FailWith(PatErrorNullRecord);
  return stm::WriteName(stm::StateIcon(stm::IconCode(*info), info->online != 0), buffer);
}

uint32_t STM_CALL PatGetErrParts_Ex(const PrnInfoEx* info, char* buffer) {
  if (!info || !buffer) return stm::FailWith(PatErrorNullRecord);
  return stm::WriteName(stm::StateIcon(stm::IconCode(*info), info->online != 0), buffer);
}

uint32_t STM_CALL PatGetIconName(uint32_t kind, uint32_t amount, char* buffer, uint32_t) {
  constexpr uint32_t kPaperLevelIcons = 1;
  if (!buffer) return stm::FailWith(PatErrorNullRecord);
  buffer[0] = '\0';
  if (kind != kPaperLevelIcons) return 0;
  stm::SetPatError(PatErrorNone);
  return stm::WriteName(stm::PaperLevelIcon(amount), buffer);
}

uint32_t STM_CALL PatGetPrnParts(const PrnInfo* info, uint8_t index, PrnPart* part) {
  return stm::CopyPart(info != nullptr, index, part);
}

uint32_t STM_CALL PatGetPrnParts_Ex(const PrnInfoEx* info, uint8_t index, PrnPart* part) {
  return stm::CopyPart(info != nullptr, index, part);
}
