// What the two record kinds have in common, as small plain views: the status questions are asked of
// these, and where the kinds differ shows in how a view is filled.
#pragma once

#include <algorithm>
#include <cstdint>

#include "stmdata/records.h"

namespace stm {

// Codes up to this one are ready, near-end, maintenance and waiting states: an offline printer is
// said to be offline, a printing one to print.
inline constexpr uint32_t kLastMildCode = 23;

template <class Entry, size_t Capacity>
uint32_t CountWithin(const Entry (&)[Capacity], uint32_t count) {
  return std::min<uint32_t>(count, Capacity);
}

// The listed statuses of a record, as many as its count says but none past the array or the chain.
struct StatusView {
  const uint32_t* codes;    // of a flat record, else null
  const StatusNode* nodes;  // of a list-based record, else null
  uint32_t count;
  bool printing;
  bool noResponse;
};

inline StatusView ViewStatus(const PrnInfo& info) {
  const uint32_t count = CountWithin(info.statusList, info.statusCount);
  return {info.statusList, nullptr, count, info.printing != 0, info.noResponse != 0};
}
inline StatusView ViewStatus(const PrnInfoEx& info) {
  return {nullptr, info.statusList, info.statusCount, info.printing != 0, info.noResponse != 0};
}

// Takes the next listed code from the view; false at the end.
inline bool TakeCode(StatusView* view, uint32_t* code) {
  if (view->count == 0 || (!view->codes && !view->nodes)) return false;
  --view->count;
  if (view->codes) {
    *code = *view->codes++;
  } else {
    *code = view->nodes->code;
    view->nodes = view->nodes->next;
  }
  return true;
}

// Whether the flat record's one code stands for a list.
inline bool HasSeveralStatuses(const PrnInfo& info) {
  return (info.statusCode & 0xFF) == StatusSeveralMarker && info.statusCount != 0;
}

// The trays of a record with their paper.
struct TrayView {
  const TrayPaper* papers;  // of a flat record, else null
  const TrayNode* nodes;    // of a list-based record, else null
  uint32_t count;
};

struct Tray {
  uint32_t id;
  uint32_t paperCode;
};

inline TrayView ViewTrays(const PrnInfo& info) {
  return {info.trayList, nullptr, CountWithin(info.trayList, info.trayCount)};
}
inline TrayView ViewTrays(const PrnInfoEx& info) {
  return {nullptr, info.trayList, info.trayCount};
}

inline bool TakeTray(TrayView* view, Tray* tray) {
  if (view->count == 0 || (!view->papers && !view->nodes)) return false;
  --view->count;
  if (view->papers) {
    *tray = {view->papers->trayId, view->papers->paperCode};
    ++view->papers;
  } else {
    *tray = {view->nodes->trayId, view->nodes->paperCode};
    view->nodes = view->nodes->next;
  }
  return true;
}

// The paper levels of a record.
struct LevelView {
  const TrayLevel* levels;  // of a flat record, else null
  const TrayNode* nodes;    // of a list-based record, else null
  uint32_t count;
};

inline LevelView ViewLevels(const PrnInfo& info) {
  return {info.trayLevelList, nullptr, CountWithin(info.trayLevelList, info.trayLevelCount)};
}
inline LevelView ViewLevels(const PrnInfoEx& info) {
  return {nullptr, info.trayList, info.trayCount};
}

inline bool TakeLevel(LevelView* view, TrayLevel* tray) {
  if (view->count == 0 || (!view->levels && !view->nodes)) return false;
  --view->count;
  if (view->levels) {
    *tray = *view->levels++;
  } else {
    *tray = {view->nodes->trayId, view->nodes->paperLevel};
    view->nodes = view->nodes->next;
  }
  return true;
}

}  // namespace stm
