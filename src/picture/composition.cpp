// Part lists of the printer picture. A list reads: base picture, the overlays in the order in which
// the rules below collect them, the overlays of the status's own row.
#include <algorithm>
#include <cstring>

#include "picture/composition_tables.h"
#include "picture/latest_list.h"
#include "records/item_list.h"
#include "status/dominant_status.h"
#include "status/last_error.h"
#include "status/trays.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

constexpr uint32_t kLargestList = 64;
constexpr uint32_t kMostStatuses = 16;
constexpr uint32_t kComposed = 64;  // the result of a success, whatever the list's size
constexpr uint32_t kTray2 = 4;
constexpr uint32_t kTray3 = 5;
constexpr uint32_t kEmptyLevel = 1;  // a tray with this paper level or less holds no paper

// ---- Overlays collected -----------------------------------------------------------------------

// `codes` ends at `capacity`; what does not fit is dropped.
struct WorkList {
  uint8_t codes[kLargestList];
  uint32_t count;
  uint32_t capacity;
};

void Append(WorkList& work, uint8_t code) {
  if (code != 0 && work.count < work.capacity) work.codes[work.count++] = code;
}

void Append(WorkList& work, const Overlay& overlay) {
  Append(work, overlay.mask);
  Append(work, overlay.image);
}

void AppendGroup(WorkList& work, const uint8_t (&group)[8]) {
  for (uint8_t code : group)
    Append(work, code);
}

// Result: whether the status is of a toner, even when the list was full.
bool ApplyTonerRule(WorkList& work, uint32_t status) {
  switch (status) {
    case 69:
    case 73:
      Append(work, kCyanToner);
      return true;
    case 70:
    case 74:
      Append(work, kMagentaToner);
      return true;
    case 71:
    case 75:
      Append(work, kYellowToner);
      return true;
    case 72:
    case 76:
      Append(work, kBlackToner);
      return true;
    default:
      return false;
  }
}

// Result: whether the tray is one of those in the picture, even when the list was full.
bool ApplyTrayRule(WorkList& work, uint32_t tray) {
  switch (tray) {
    case 3:
      Append(work, kTray1Paper);
      return true;
    case 4:
      Append(work, kTray2Paper);
      return true;
    case 5:
      Append(work, kTray3Paper);
      return true;
    default:
      return false;
  }
}

void AppendTonerArea(WorkList& work, uint32_t picture) {
  if (picture >= 69 && picture <= 76) Append(work, kTonerArea);
}

// ---- Statuses ---------------------------------------------------------------------------------

struct Statuses {
  uint32_t codes[kMostStatuses];
  uint32_t count;
  uint32_t picture;  // the status whose row is drawn
};

bool HasSeveralMarker(const PrnInfo& info) {
  return (info.statusCode & 0xFF) == StatusSeveralMarker;
}

Statuses StatusesOf(const PrnInfo& info) {
  Statuses statuses{};
  if (HasSeveralMarker(info) && info.statusCount != 0) {
    statuses.count = GetDominantStatusList(&info, statuses.codes, kMostStatuses);
  } else {
    statuses.count = 1;
    statuses.codes[0] = info.statusCode;
    if (info.noResponse) {
      statuses.codes[0] = StatusNoResponse;
    } else if (info.printing && info.statusCode <= 23) {
      statuses.codes[0] = StatusPrinting;
    }
  }
  statuses.picture = statuses.count ? statuses.codes[0] : 0;
  return statuses;
}

Statuses StatusesOf(const PrnInfoEx& info) {
  Statuses statuses{};
  statuses.count = GetDominantStatusList_Ex(&info, statuses.codes, kMostStatuses);
  statuses.picture = statuses.count ? statuses.codes[0] : 0;
  return statuses;
}

// ---- Rules of the flat record -----------------------------------------------------------------

bool MarkSeveral(WorkList& work, const PrnInfo& info, const Statuses& statuses) {
  bool marked = false;
  for (uint32_t i = 0; i < statuses.count; ++i) {
    marked |= ApplyTonerRule(work, statuses.codes[i]);
    if (statuses.codes[i] == 44) marked |= ApplyTrayRule(work, info.currentTray);
  }
  return marked;
}

bool MarkTraysNotPlaced(WorkList& work, const PrnInfo& info, uint32_t picture) {
  if (picture == 33) return ApplyTrayRule(work, info.currentTray);
  if (picture != 0) return false;
  bool marked = false;
  const uint32_t count = std::min<uint32_t>(info.trayCount, std::size(info.trayList));
  for (uint32_t i = 0; i < count; ++i) {
    const TrayPaper& tray = info.trayList[i];
    if (tray.paperCode == PaperTrayMissing) marked |= ApplyTrayRule(work, tray.trayId);
  }
  return marked;
}

// The bypass tray needs no test of its own: the tray rule does not know it.
bool MarkTraysWithoutPaper(WorkList& work, const PrnInfo& info, uint32_t picture) {
  if (picture == 32) return ApplyTrayRule(work, info.currentTray);
  if (picture != 0) return false;
  bool marked = false;
  const uint32_t count = std::min<uint32_t>(info.trayCount, std::size(info.trayList));
  for (uint32_t i = 0; i < count; ++i) {
    const TrayPaper& tray = info.trayList[i];
    if (tray.paperCode == PaperNone) marked |= ApplyTrayRule(work, tray.trayId);
  }
  const uint32_t levels = std::min<uint32_t>(info.trayLevelCount, std::size(info.trayLevelList));
  for (uint32_t i = 0; i < levels; ++i) {
    const TrayLevel& tray = info.trayLevelList[i];
    if (tray.paperLevel <= kEmptyLevel && IsTrayPresent(&info, tray.trayId))
      marked |= ApplyTrayRule(work, tray.trayId);
  }
  return marked;
}

void CollectOverlays(WorkList& work, const PrnInfo& info, const Statuses& statuses) {
  const uint32_t picture = statuses.picture;
  const bool fromBack = picture == 39 || picture == 45;
  if (HasTray(&info, kTray2)) Append(work, fromBack ? kTray2Back : kTray2Front);
  if (HasTray(&info, kTray3)) Append(work, fromBack ? kTray3Back : kTray3Front);
  AppendTonerArea(work, picture);
  if (HasSeveralMarker(info) && MarkSeveral(work, info, statuses)) return;
  if (MarkTraysNotPlaced(work, info, picture)) return;
  if (MarkTraysWithoutPaper(work, info, picture)) return;
  // The record's own code from here on: it counts even when no response is what is shown.
  if (info.statusCode == 44) ApplyTrayRule(work, info.currentTray);
  ApplyTonerRule(work, info.statusCode);
}

// ---- Rules of the list-based record -----------------------------------------------------------

bool HasDuplexUnit(const PrnInfoEx& info) {
  return FindItem(info.optionList, OptionDuplex) != nullptr;
}

// Marks the tray in use when the picture is of `status`, else the trays whose paper code is
// `paperCode` and then those in place that are empty.
bool MarkTrays(WorkList& work, const PrnInfoEx& info, uint32_t picture, uint32_t status,
               uint32_t paperCode) {
  if (picture == status && info.currentTray != 0) return ApplyTrayRule(work, info.currentTray);
  bool marked = false;
  const Items trays(info.trayList, info.trayCount);
  for (const TrayNode& tray : trays) {
    if (tray.paperCode == paperCode) marked |= ApplyTrayRule(work, tray.trayId);
  }
  for (const TrayNode& tray : trays) {
    if (tray.paperLevel <= kEmptyLevel && IsTrayPresent_Ex(&info, tray.trayId))
      marked |= ApplyTrayRule(work, tray.trayId);
  }
  return marked;
}

bool MarkTraysNotPlaced(WorkList& work, const PrnInfoEx& info, uint32_t picture) {
  return MarkTrays(work, info, picture, 33, PaperTrayMissing);
}

bool MarkTraysWithoutPaper(WorkList& work, const PrnInfoEx& info, uint32_t picture) {
  return MarkTrays(work, info, picture, 32, PaperNone);
}

void MarkStatuses(WorkList& work, const Statuses& statuses) {
  for (uint32_t i = 0; i < statuses.count; ++i) {
    ApplyTonerRule(work, statuses.codes[i]);
    if (statuses.codes[i] == 96) Append(work, kDuplexUnit1);
    if (statuses.codes[i] == 97) Append(work, kDuplexUnit2);
  }
}

void AppendRearView(WorkList& work, const PrnInfoEx& info, uint32_t picture) {
  const RearViewRow* row = kRearViewTable;
  while (row->status != picture && row->status != kPictureTableEnd)
    ++row;
  if (HasDuplexUnit(info)) {
    if (picture == 93) {
      AppendGroup(work, row->tray2);
    } else {
      if (HasTray_Ex(&info, kTray3)) AppendGroup(work, row->tray3);
      AppendGroup(work, row->duplexUnit);
    }
  } else if (picture != 91) {
    AppendGroup(work, row->noDuplex);
    if (HasTray_Ex(&info, kTray2)) AppendGroup(work, row->tray2);
  }
}

bool IsSeenFromFront(uint32_t picture) {
  constexpr uint32_t kOthers[] = {39, 45, 89, 90, 91, 94, 96, 97};
  return std::find(std::begin(kOthers), std::end(kOthers), picture) == std::end(kOthers);
}

void CollectOverlays(WorkList& work, const PrnInfoEx& info, const Statuses& statuses) {
  const uint32_t picture = statuses.picture;
  if (IsSeenFromFront(picture) && HasTray_Ex(&info, kTray2)) Append(work, kTray2Front);
  AppendTonerArea(work, picture);
  switch (picture) {
    case 0:
      if (!info.online) {
        MarkStatuses(work, statuses);
      } else if (!MarkTraysNotPlaced(work, info, picture)) {
        MarkTraysWithoutPaper(work, info, picture);
      }
      break;
    case 33:
      MarkTraysNotPlaced(work, info, picture);
      break;
    case 32:
      MarkTraysWithoutPaper(work, info, picture);
      break;
    case 44:
      if (HasTray_Ex(&info, kTray2)) Append(work, kTray2Paper);
      break;
    case 96:
    case 97:
      if (HasDuplexUnit(info)) Append(work, kDuplexBack);
      MarkStatuses(work, statuses);
      break;
    default:
      MarkStatuses(work, statuses);
      break;
  }
  AppendRearView(work, info, picture);
}

// ---- Both -------------------------------------------------------------------------------------

const PictureRow& FindPictureRow(uint32_t status) {
  const PictureRow* row = kPictureTable;
  while (row->status != status && row->status != kPictureTableEnd)
    ++row;
  return *row;
}

void Merge(const PictureRow& row, const WorkList& work, uint8_t* partCodes) {
  uint32_t count = 0;
  const auto add = [&](uint8_t code) {
    if (count < work.capacity) partCodes[count++] = code;
  };
  const uint8_t* rest = row.codes;
  if (*rest == kBaseFront || *rest == kBaseBack || *rest == kBaseDuplexBack) add(*rest++);
  for (uint32_t i = 0; i < work.count; ++i)
    add(work.codes[i]);
  while (*rest != 0)
    add(*rest++);
}

// Null lists fail like a list that is too short: nowhere to put a picture.
template <class Record>
uint32_t Compose(const Record* info, uint8_t* partCodes, uint8_t* extraPartCodes, int32_t size) {
  if (!info) return FailWith(PatErrorNotFound);
  if (size < static_cast<int32_t>(kPartListSize) || !partCodes || !extraPartCodes)
    return FailWith(PatErrorPicture);
  WorkList work{};
  work.capacity = std::min(static_cast<uint32_t>(size), kLargestList);
  std::memset(partCodes, 0, work.capacity);
  std::memset(extraPartCodes, 0, work.capacity);
  const Statuses statuses = StatusesOf(*info);
  CollectOverlays(work, *info, statuses);
  Merge(FindPictureRow(statuses.picture), work, partCodes);
  PartList list;
  std::memcpy(list.data(), partCodes, list.size());
  StoreLatestList(list);
  return kComposed;
}

template <class Record>
uint32_t ComposeBitmap(const Record* info, PrnBitmap* bitmap) {
  uint8_t* codes = bitmap ? bitmap->partCodes : nullptr;
  uint8_t* extraCodes = bitmap ? bitmap->extraPartCodes : nullptr;
  return Compose(info, codes, extraCodes, kPartListSize) != 0;
}

}  // namespace

}  // namespace stm

uint32_t STM_CALL PatGetPrnBitmapEx(const PrnInfo* info, uint8_t* partCodes,
                                    uint8_t* extraPartCodes, int32_t size) {
  return stm::Compose(info, partCodes, extraPartCodes, size);
}

uint32_t STM_CALL PatGetPrnBitmapEx_Ex(const PrnInfoEx* info, uint8_t* partCodes,
                                       uint8_t* extraPartCodes, int32_t size) {
  return stm::Compose(info, partCodes, extraPartCodes, size);
}

uint32_t STM_CALL PatGetPrnBitmap(const PrnInfo* info, PrnBitmap* bitmap) {
  return stm::ComposeBitmap(info, bitmap);
}

uint32_t STM_CALL PatGetPrnBitmap_Ex(const PrnInfoEx* info, PrnBitmap* bitmap) {
  return stm::ComposeBitmap(info, bitmap);
}
