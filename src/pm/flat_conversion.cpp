// The print manager's record into the flat one. The tray, bin and language in use are stored by the
// numbers that the print manager gives them. Each group tells whether its source was there, which
// makes the call's result.
#include <algorithm>
#include <iterator>

#include "names/device_table.h"
#include "platform/system_error.h"
#include "pm/derivation.h"
#include "pm/name_tables.h"
#include "records/fixed_text.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// How many of `count` items an array takes: what exceeds it is neither stored nor counted, so that
// no reader is led past the array.
template <class Entry, size_t Capacity>
uint32_t Fitting(uint32_t count, const Entry (&)[Capacity]) {
  return std::min<uint32_t>(count, Capacity);
}

bool ConvertState(PrnInfo* info, const PMPrnInfo& pm) {
  if (!IsPresent(pm.statusInfo)) return false;
  if (!IsPresent(pm.statusInfo->statusBits)) return true;
  const PrinterState state = StateOf(pm.statusInfo->statusBits);
  info->offline = state.offline;
  info->online = state.online;
  info->hasError = state.hasError;
  info->printing = state.printing;
  info->noResponse = state.noResponse;
  if (state.noResponse) info->statusCode = StatusNoResponse;
  return true;
}

bool ConvertModel(PrnInfo* info, const PMPrnInfo& pm) {
  if (!IsPresent(pm.modelInfo)) return false;
  const PMModelInfo& model = *pm.modelInfo;
  if (IsPresent(model.modelName)) {
    info->modelCode = ModelCode(model.modelName);
    CopyText(info->modelName, model.modelName);
  }
  if (IsPresent(model.versionText)) CopyText(info->versionText1, model.versionText);
  if (IsPresent(model.number)) info->modelInfoNumber = model.number;
  CopyText(info->manufacturer, kMaker);
  CopyText(info->description, "");
  return true;
}

bool ConvertTrays(PrnInfo* info, const PMPrnInfo& pm) {
  if (!HasItems(pm.inputTrayInfo)) return false;
  const PMItemGroup& group = *pm.inputTrayInfo;
  info->trayCount = Fitting(group.count, info->trayList);
  info->trayLevelCount = Fitting(group.count, info->trayLevelList);
  info->currentTray = IsPresent(group.current) ? group.current : 0;
  for (uint32_t i = 0; i < info->trayCount; ++i) {
    const auto tray = ItemOf<PMInputTray>(group, i);
    const uint32_t code = TrayCode(tray);
    info->trayList[i] = {code, PaperCode(tray, info->trayList[i].paperCode)};
    if (i < info->trayLevelCount) info->trayLevelList[i] = {code, PaperLevel(tray)};
  }
  return true;
}

bool ConvertBins(PrnInfo* info, const PMPrnInfo& pm) {
  if (!HasItems(pm.outputBinInfo)) return false;
  const PMItemGroup& group = *pm.outputBinInfo;
  info->binCount = Fitting(group.count, info->binList);
  info->currentBin = IsPresent(group.current) ? group.current : uint32_t{BinUnknown};
  for (uint32_t i = 0; i < info->binCount; ++i) {
    const auto bin = ItemOf<PMOutputBin>(group, i);
    // Absent flags are no flags here; in the list-based record their bit 0 counts.
    const uint32_t flags = IsPresent(bin.stateFlags) ? bin.stateFlags : 0;
    info->binList[i] = {BinCode(bin), BinState(flags)};
  }
  return true;
}

// Languages beyond the array still deliver their version text.
bool ConvertEmulations(PrnInfo* info, const PMPrnInfo& pm) {
  if (!HasItems(pm.emulationInfo) || pm.emulationInfo->count == 0) return false;
  const PMItemGroup& group = *pm.emulationInfo;
  info->emulationCount = Fitting(group.count, info->emulationList);
  info->emulationCode = IsPresent(group.current) ? group.current : 0;
  for (uint32_t i = 0; i < group.count; ++i) {
    const auto emulation = ItemOf<PMEmulation>(group, i);
    const uint32_t code = EmulationCode(emulation);
    if (i < info->emulationCount) info->emulationList[i] = code;
    if (!IsPresent(emulation.versionText)) continue;
    if (code == kEmulationWxdlC) CopyText(info->versionText2, emulation.versionText);
    if (code == kEmulationOrlexScript2) CopyText(info->versionText3, emulation.versionText);
  }
  return true;
}

bool ConvertFonts(PrnInfo* info, const PMPrnInfo& pm) {
  if (!HasItems(pm.fontInfo) || pm.fontInfo->count == 0) return false;
  info->fontCount = Fitting(pm.fontInfo->count, info->fontList);
  for (uint32_t i = 0; i < info->fontCount; ++i)
    info->fontList[i] = FontCode(ItemOf<PMFont>(*pm.fontInfo, i));
  return true;
}

// The fields are cleared even when there is no source for them.
bool ConvertOptions(PrnInfo* info, const PMPrnInfo& pm) {
  info->hasDuplex = 0;
  info->option2Flag = 0;
  info->option3Flag = 0;
  info->option4Flag = 0;
  info->optionBits1 = 0;
  info->optionBits2 = 0;
  if (!HasItems(pm.optionInfo)) return false;
  for (uint32_t i = 0; i < pm.optionInfo->count; ++i) {
    if (ItemOf<PMOption>(*pm.optionInfo, i).deviceCode != kDeviceDuplexUnit) continue;
    info->hasDuplex = 1;
    info->duplexFlag = 0;
  }
  return true;
}

void Store(PrnInfo* info, uint32_t code) {
  if (info->statusCount < std::size(info->statusList)) info->statusList[info->statusCount++] = code;
}

void StoreOnce(PrnInfo* info, uint32_t code) {
  const uint32_t* end = info->statusList + info->statusCount;
  if (std::find(std::cbegin(info->statusList), end, code) == end) Store(info, code);
}

// Both states can be told at once, and an idle printer adds nothing to a list.
bool ConvertStatuses(PrnInfo* info, const PMPrnInfo& pm) {
  bool complete = true;
  info->statusCount = 0;
  if (HasItems(pm.statusListInfo)) {
    for (uint32_t i = 0; i < pm.statusListInfo->count; ++i) {
      const auto item = ItemOf<PMStatusItem>(*pm.statusListInfo, i);
      if (IsPresent(item.code)) {
        Store(info, item.code);
      } else {
        complete = false;
      }
    }
  }
  if (IsPresent(pm.statusInfo)) {
    const PMStatusInfo& status = *pm.statusInfo;
    if (IsPresent(status.netStatus)) {
      Store(info, PatGetStatusFromNet(status.netStatus));
    } else if (IsPresent(status.statusBits)) {
      if (status.statusBits & PMStatusEnergySaver) StoreOnce(info, kStatusEnergySaver);
      if (status.statusBits & PMStatusWarmingUp) StoreOnce(info, kStatusWarmingUp);
    }
  }
  if (info->statusCount == 0) Store(info, kStatusReady);
  return complete;
}

struct GroupRow {
  uint32_t group;
  bool (*convert)(PrnInfo* info, const PMPrnInfo& pm);
};

constexpr GroupRow kGroups[] = {
    {GroupStatus, ConvertState},          //
    {GroupModelInfo, ConvertModel},       //
    {GroupTrays, ConvertTrays},           //
    {GroupBins, ConvertBins},             //
    {GroupEmulation, ConvertEmulations},  //
    {GroupFonts, ConvertFonts},           //
    {GroupOptions, ConvertOptions},       //
    {GroupStatusList, ConvertStatuses},   //
};

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatSetPMPrnInfoToPrnInfo_0(PrnInfo* info, const PMPrnInfo* pm, uint32_t groups) {
  if (!info || !pm) return stm::FailWithSystemError(ERROR_INVALID_HANDLE);
  info->structSize = PrnInfoSize;
  groups = stm::EffectiveGroups(groups);
  uint32_t result = 1;
  for (const stm::GroupRow& row : stm::kGroups) {
    if ((groups & row.group) && !row.convert(info, *pm)) result = 0;
  }
  return result;
}
