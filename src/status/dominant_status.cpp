#include "status/dominant_status.h"

#include "records/row_index.h"
#include "status/priority_table.h"
#include "status/record_view.h"

namespace stm {
namespace {

// The row of a listed code, or the closing row.
uint32_t FindPriorityRow(uint32_t code) {
  return RowNumber<kPriorityTable, &PriorityRow::code>(FoldServiceCall(code));
}

bool ShowsPrinting(const StatusView& view, uint32_t priority) {
  return view.printing && priority >= kFirstPriorityWhilePrinting;
}

uint32_t ChooseOne(StatusView view) {
  if (view.noResponse) return StatusNoResponse;
  uint32_t best = kPriorityRows;
  for (uint32_t code; best > 0 && TakeNext(&view.codes, &code);)
    best = std::min(best, FindPriorityRow(code));
  if (ShowsPrinting(view, kPriorityTable[best].priority)) return StatusPrinting;
  return kPriorityTable[best].code;
}

// Puts the row at its place; false when there is no room.
bool AddRow(DominantStatuses* rows, uint32_t row) {
  if (rows->count == kMostDominant) return false;
  uint32_t place = rows->count++;
  for (; place > 0 && rows->codes[place - 1] > row; --place)
    rows->codes[place] = rows->codes[place - 1];
  rows->codes[place] = row;
  return true;
}

// Collects the rows that share the best priority seen so far, then puts their codes in their
// places.
DominantStatuses ChooseAll(StatusView view) {
  if (view.noResponse) return {{StatusNoResponse}, 1};
  DominantStatuses best;
  best.codes[0] = 0;
  best.count = 0;
  uint32_t bestPriority = kNoPriority;
  for (uint32_t code; TakeNext(&view.codes, &code);) {
    const uint32_t row = FindPriorityRow(code);
    const uint32_t priority = kPriorityTable[row].priority;
    if (row == kPriorityRows || priority > bestPriority) continue;
    if (priority < bestPriority) best.count = 0;
    bestPriority = priority;
    if (!AddRow(&best, row)) return {};
  }
  if (ShowsPrinting(view, bestPriority)) return {{StatusPrinting}, 1};
  for (uint32_t i = 0; i < best.count; ++i)
    best.codes[i] = kPriorityTable[best.codes[i]].code;
  return best;
}

}  // namespace

uint32_t GetDominantStatus(const PrnInfo& info) {
  return ChooseOne(ViewStatus(info));
}

uint32_t GetDominantStatus(const PrnInfoEx& info) {
  return ChooseOne(ViewStatus(info));
}

DominantStatuses GetDominantStatuses(const PrnInfo& info) {
  return ChooseAll(ViewStatus(info));
}

DominantStatuses GetDominantStatuses(const PrnInfoEx& info) {
  return ChooseAll(ViewStatus(info));
}

uint32_t OwnStatus(const PrnInfo& info) {
  if (info.noResponse) return StatusNoResponse;
  const bool isMild = info.statusCode <= kLastMildCode;
  return info.printing && isMild ? uint32_t{StatusPrinting} : info.statusCode;
}

DominantStatuses StatusesOf(const PrnInfo& info) {
  if (HasSeveralStatuses(info)) return GetDominantStatuses(info);
  return {{OwnStatus(info)}, 1};
}

DominantStatuses StatusesOf(const PrnInfoEx& info) {
  return GetDominantStatuses(info);
}

}  // namespace stm
