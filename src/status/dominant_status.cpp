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

// Rows that share the best priority seen so far, ascending.
struct TieSet {
  uint32_t rows[kMostDominant];
  uint32_t count;
  uint32_t priority;
};

// False when the set is full.
bool AddRow(TieSet* ties, uint32_t row) {
  if (ties->count == kMostDominant) return false;
  uint32_t place = ties->count++;
  for (; place > 0 && ties->rows[place - 1] > row; --place)
    ties->rows[place] = ties->rows[place - 1];
  ties->rows[place] = row;
  return true;
}

uint32_t ChooseAll(StatusView view, uint32_t* codes) {
  if (view.noResponse) {
    codes[0] = StatusNoResponse;
    return 1;
  }
  TieSet ties{{}, 0, kNoPriority};
  for (uint32_t code; TakeNext(&view.codes, &code);) {
    const uint32_t row = FindPriorityRow(code);
    const uint32_t priority = kPriorityTable[row].priority;
    if (row == kPriorityRows || priority > ties.priority) continue;
    if (priority < ties.priority) {
      ties.priority = priority;
      ties.count = 0;
    }
    if (!AddRow(&ties, row)) return 0;
  }
  for (uint32_t tie = 0; tie < ties.count; ++tie)
    codes[tie] = kPriorityTable[ties.rows[tie]].code;
  if (ShowsPrinting(view, ties.priority)) {
    codes[0] = StatusPrinting;
    return 1;
  }
  return ties.count;
}

}  // namespace

uint32_t GetDominantStatus(const PrnInfo* info) {
  return ChooseOne(ViewStatus(*info));
}

uint32_t GetDominantStatus_Ex(const PrnInfoEx* info) {
  return ChooseOne(ViewStatus(*info));
}

uint32_t GetDominantStatusList(const PrnInfo* info, uint32_t* codes, uint32_t) {
  return ChooseAll(ViewStatus(*info), codes);
}

uint32_t GetDominantStatusList_Ex(const PrnInfoEx* info, uint32_t* codes, uint32_t) {
  return ChooseAll(ViewStatus(*info), codes);
}

}  // namespace stm
