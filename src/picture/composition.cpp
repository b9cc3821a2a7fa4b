// Part lists of the printer picture. A list reads: base picture, the overlays that the rules below
// add for the record, the overlays of the status's own row.
#include <algorithm>
#include <cstring>

#include "picture/composition_tables.h"
#include "picture/latest_list.h"
#include "records/item_list.h"
#include "records/row_index.h"
#include "status/dominant_status.h"
#include "status/last_error.h"
#include "status/status_codes.h"
#include "status/trays.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

constexpr uint32_t kLargestList = 64;
constexpr uint32_t kComposed = 64;  // the result of a success, whatever the list's size

// ---- The list that is written -------------------------------------------------------------------

// The caller's list, which ends at `capacity`: what does not fit is dropped.
struct PartCodes {
  uint8_t* codes;
  uint32_t capacity;
  uint32_t count;
};

void Append(PartCodes& parts, uint8_t code) {
  if (code != 0 && parts.count < parts.capacity) parts.codes[parts.count++] = code;
}

void Append(PartCodes& parts, const Overlay& overlay) {
  Append(parts, overlay.mask);
  Append(parts, overlay.image);
}

template <size_t Count>
void Append(PartCodes& parts, const Overlay (&overlays)[Count]) {
  for (const Overlay& overlay : overlays)
    Append(parts, overlay);
}

// Result: whether the code has an overlay, even when the list was full.
template <const auto& kTable>
bool Mark(PartCodes& parts, uint32_t code) {
  const Overlay& overlay = RowOf<kTable, &OverlayRow::code>(code).overlay;
  Append(parts, overlay);
  return overlay.image != 0;
}

// ---- Rules of both records ----------------------------------------------------------------------

void AppendTonerArea(PartCodes& parts, uint32_t picture) {
  if (RowOf<kTonerOverlays, &OverlayRow::code>(picture).overlay.image != 0)
    Append(parts, kTonerArea);
}

// Marks the trays that say to have this paper, then those that have run down. Result: whether the
// picture shows any of them.
bool MarkTraysOf(PartCodes& parts, uint32_t paperCode, TrayView trays, LevelView levels) {
  bool marked = false;
  TrayView left = trays;
  for (TrayPaper tray; TakeNext(&left, &tray);) {
    if (tray.paperCode == paperCode) marked |= Mark<kTrayOverlays>(parts, tray.trayId);
  }
  for (TrayLevel tray; TakeNext(&levels, &tray);) {
    if (HasRunDown(tray, trays)) marked |= Mark<kTrayOverlays>(parts, tray.trayId);
  }
  return marked;
}

// ---- Rules of the flat record -------------------------------------------------------------------

bool MarkStatus(PartCodes& parts, const PrnInfo& info, uint32_t code) {
  if (code == StatusTrayMisfeed) return Mark<kTrayOverlays>(parts, info.currentTray);
  return Mark<kTonerOverlays>(parts, code);
}

bool MarkStatuses(PartCodes& parts, const PrnInfo& info, const DominantStatuses& statuses) {
  bool marked = false;
  for (uint32_t i = 0; i < statuses.count; ++i)
    marked |= MarkStatus(parts, info, statuses.codes[i]);
  return marked;
}

bool MarkTrays(PartCodes& parts, const PrnInfo& info, uint32_t picture) {
  for (const TrayRule& rule : kTrayRules) {
    if (picture == rule.status) return Mark<kTrayOverlays>(parts, info.currentTray);
    const LevelView levels = rule.flatLevels ? ViewLevels(info) : LevelView{};
    if (picture == StatusReady && MarkTraysOf(parts, rule.paperCode, ViewTrays(info), levels))
      return true;
  }
  return false;
}

void ApplyRules(PartCodes& parts, const PrnInfo& info, const DominantStatuses& statuses) {
  const uint32_t picture = statuses.codes[0];
  const TrayView trays = ViewTrays(info);
  const FlatUnitsRow& units = RowOf<kFlatUnits, &FlatUnitsRow::status>(picture);
  if (IsTrayListed(trays, Tray2)) Append(parts, units.tray2);
  if (IsTrayListed(trays, Tray3)) Append(parts, units.tray3);
  AppendTonerArea(parts, picture);
  if (HasSeveralStatuses(info) && MarkStatuses(parts, info, statuses)) return;
  if (MarkTrays(parts, info, picture)) return;
  // The record's own code, even where the picture is of "no response".
  MarkStatus(parts, info, info.statusCode);
}

// ---- Rules of the list-based record -------------------------------------------------------------

void MarkStatuses(PartCodes& parts, const DominantStatuses& statuses) {
  for (uint32_t i = 0; i < statuses.count; ++i) {
    Mark<kTonerOverlays>(parts, statuses.codes[i]);
    Mark<kDuplexOverlays>(parts, statuses.codes[i]);
  }
}

// Without a tray in use the picture of a rule's status marks what a ready printer's does.
void MarkTrays(PartCodes& parts, const PrnInfoEx& info, uint32_t picture) {
  for (const TrayRule& rule : kTrayRules) {
    if (picture == rule.status && info.currentTray != 0) {
      Mark<kTrayOverlays>(parts, info.currentTray);
      return;
    }
    const bool asksAll = picture == rule.status || (picture == StatusReady && info.online);
    if (asksAll && MarkTraysOf(parts, rule.paperCode, ViewTrays(info), ViewLevels(info))) return;
  }
}

void ApplyRules(PartCodes& parts, const PrnInfoEx& info, const DominantStatuses& statuses) {
  const uint32_t picture = statuses.codes[0];
  const bool hasTray2 = IsTrayListed(ViewTrays(info), Tray2);
  const bool hasDuplexUnit = FindItem(info.optionList, OptionDuplex);
  const ListUnitsRow& units = RowOf<kListUnits, &ListUnitsRow::status>(picture);
  if (hasTray2) Append(parts, units.tray2);
  if (hasDuplexUnit) Append(parts, units.duplexUnit);
  AppendTonerArea(parts, picture);
  MarkStatuses(parts, statuses);
  MarkTrays(parts, info, picture);
  if (hasDuplexUnit) {
    const RearViewRow& rear = RowOf<kRearWithDuplexUnit, &RearViewRow::status>(picture);
    if (IsTrayListed(ViewTrays(info), Tray3)) Append(parts, rear.before);
    Append(parts, rear.after);
  } else {
    const RearViewRow& rear = RowOf<kRearWithoutDuplexUnit, &RearViewRow::status>(picture);
    Append(parts, rear.before);
    if (hasTray2) Append(parts, rear.after);
  }
}

// ---- Both ---------------------------------------------------------------------------------------

// Null lists fail like a list that is too short: nowhere to put a picture.
template <class Record>
uint32_t Compose(const Record* info, uint8_t* partCodes, uint8_t* extraPartCodes, int32_t size) {
  if (!info) return FailWith(PatErrorNotFound);
  if (size < static_cast<int32_t>(kPartListSize) || !partCodes || !extraPartCodes)
    return FailWith(PatErrorPicture);
  const uint32_t capacity = std::min(static_cast<uint32_t>(size), kLargestList);
  std::memset(partCodes, 0, capacity);
  std::memset(extraPartCodes, 0, capacity);

  const DominantStatuses statuses = StatusesOf(*info);
  const PictureRow& row = RowOf<kPictureTable, &PictureRow::status>(statuses.codes[0]);
  PartCodes parts{partCodes, capacity, 0};
  Append(parts, row.base);
  ApplyRules(parts, *info, statuses);
  Append(parts, row.overlays);

  PartList list;
  std::copy_n(partCodes, list.size(), list.begin());
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
