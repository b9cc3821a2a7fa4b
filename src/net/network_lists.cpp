// Trays, bins and options of a flat record from the name lists of the network layer.
#include <algorithm>
#include <span>
#include <type_traits>

#include "net/network_tables.h"
#include "platform/windows_api.h"
#include "records/paper_levels.h"
#include "status/last_error.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// The smallest array that takes part; what a longer list holds beyond it is dropped.
constexpr uint32_t kStoredEntries = 16;
static_assert(kStoredEntries == std::extent_v<decltype(PrnInfo::trayLevelList)> &&
              kStoredEntries == std::extent_v<decltype(PrnInfo::binList)>);

constexpr uint32_t kTrayMissingFlag = 0x4;

// Two of the levels are no percentages but marks: 1 and 41 mean what they mean as paper codes.
constexpr PaperLevelRow kNetPaperLevels[] = {
    // flags  level
    {0x002, PaperNone},                    // no paper
    {kTrayMissingFlag, PaperTrayMissing},  // tray not in place
    {0x100, 25},                           // nearly empty
    {0x200, 25},                           // a quarter
    {0x400, 50},                           // a half
    {0x800, 75},                           // three quarters
    {0, 100},                              // closing row: full
};

// The code of the first row with this name, else `otherwise`, also for a null name.
uint32_t LookupNetName(const char* name, const NetName* row, uint32_t otherwise) {
  if (!name) return otherwise;
  while (row->name[0] && lstrcmpA(name, row->name) != 0)
    ++row;
  return row->name[0] ? row->code : otherwise;
}

// The entries that are walked; without an array there are none.
template <class Pointer>
std::span<const Pointer> EntriesOf(const NetInfoList& list, const Pointer* entries) {
  if (list.entryCount <= 0 || !entries) return {};
  return {entries, static_cast<size_t>(list.entryCount)};
}

template <class Pointer>
std::span<const Pointer> StoredEntriesOf(const NetInfoList& list, const Pointer* entries) {
  const auto all = EntriesOf(list, entries);
  return all.first(std::min<size_t>(all.size(), kStoredEntries));
}

bool IsCurrent(const NetInfoList& list, size_t index) {
  return list.currentIndex > 0 && static_cast<size_t>(list.currentIndex) == index + 1;
}

// Each entry is stored at its own index. The place of an absent one is left as it is, and the
// counts are of those that are there.
void SetTrays(PrnInfo* info, const NetInfoList& list) {
  const auto entries = StoredEntriesOf(list, list.entries);
  info->trayCount = 0;
  for (size_t i = 0; i < entries.size(); ++i) {
    const auto* entry = static_cast<const NetTrayEntry*>(entries[i]);
    if (!entry) continue;
    const uint32_t unknown = entry->flags & kTrayMissingFlag ? PaperTrayMissing : 0;
    const uint32_t tray = LookupNetName(entry->name, kNetInputTrayTable, unknown);
    info->trayList[i] = {tray, LookupNetName(entry->mediaName, kNetMediaTable, 0)};
    info->trayLevelList[i] = {tray, PaperLevelOf(entry->flags, kNetPaperLevels)};
    if (IsCurrent(list, i)) info->currentTray = tray;
    ++info->trayCount;
  }
  info->trayLevelCount = info->trayCount;
  std::fill(std::begin(info->trayList) + entries.size(), std::end(info->trayList), TrayPaper{});
  std::fill(std::begin(info->trayLevelList) + entries.size(), std::end(info->trayLevelList),
            TrayLevel{});
}

uint32_t BinState(uint32_t flags) {
  if (flags & 0x1) return 2;
  return flags & 0x2 ? 1 : 0;
}

// Which bins stand for which option; the walk ends at the first pair without an id.
void SetBinOptions(PrnInfo* info) {
  bool finisher = false;
  bool otherFinisher = false;
  info->optionBits1 = 0;
  info->optionBits2 = 0;
  for (const BinEntry& bin : info->binList) {
    if (bin.binId == 0) break;
    if (bin.binId == 1) info->optionBits1 |= 0x1;
    if (bin.binId == 3) info->optionBits1 |= 0x2;
    if (bin.binId == 2) info->optionBits2 |= 0x1;
    if (bin.binId == 7) info->optionBits2 |= 0x2;
    if (bin.binId == 4) finisher = true;
    if (bin.binId == 5) otherFinisher = true;
  }
  if (finisher && !otherFinisher) info->optionBits1 |= 0x4;
}

void SetBins(PrnInfo* info, const NetInfoList& list) {
  const auto entries = StoredEntriesOf(list, list.entries);
  info->binCount = 0;
  for (size_t i = 0; i < entries.size(); ++i) {
    const auto* entry = static_cast<const NetBinEntry*>(entries[i]);
    if (!entry) continue;
    const uint32_t bin = LookupNetName(entry->name, kNetOutputBinTable, 0);
    info->binList[i] = {bin, BinState(entry->flags)};
    if (IsCurrent(list, i)) info->currentBin = bin;
    ++info->binCount;
  }
  std::fill(std::begin(info->binList) + entries.size(), std::end(info->binList), BinEntry{});
  SetBinOptions(info);
}

void SetOptions(PrnInfo* info, const NetInfoList& list) {
  info->hasDuplex = 0;
  info->option2Flag = 0;
  info->option3Flag = 0;
  for (const NetOptionEntry* entry : EntriesOf(list, list.optionEntries)) {
    if (!entry) continue;
    const uint32_t option = LookupNetName(entry->name, kNetOptionTable, 0);
    if (option == kNetDuplexUnit) info->hasDuplex = 1;
    if (option == kNetHardDisk) info->option2Flag = 1;
    if (option == kNetElectronicSort) info->option3Flag = 1;
  }
}

struct ModeRow {
  uint32_t mode;
  void (*set)(PrnInfo* info, const NetInfoList& list);
};

constexpr ModeRow kModes[] = {
    {NetModeTrays, SetTrays},
    {NetModeBins, SetBins},
    {NetModeOptions, SetOptions},
};

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatGetInfoFromNet(PrnInfo* info, uint32_t mode, const NetInfoList* list) {
  if (!info) return stm::FailWith(PatErrorNullRecord);
  for (const stm::ModeRow& row : stm::kModes) {
    if (row.mode != mode) continue;
    // A missing list is the caller's mistake, not an empty one: nothing is cleared.
    if (!list) return stm::FailWith(PatErrorNullRecord);
    row.set(info, *list);
    return 1;
  }
  return 0;
}

uint32_t STM_CALL PatGetStatusFromNet(uint32_t status) {
  return status;
}
