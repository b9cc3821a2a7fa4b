// The print manager's record into the list-based one.
#include "platform/system_error.h"
#include "pm/derivation.h"
#include "pm/name_tables.h"
#include "records/item_list.h"
#include "records/record_text.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// A later reply writes its own version text over this one, into the same block.
void ReplaceVersionText(char*& field, const char* text) {
  ReplaceText(field, text, nullptr, kVersionBytes);
}

// Makes the list as long as the group and fills each node from its item; a node that was there
// keeps what `fill` does not write. Without memory the list stays shorter, and `count` is the
// length that it has. Result: whether there was anything to fill.
template <class Item, class Node, class Fill>
bool FillList(Node*& list, uint32_t& count, const PMItemGroup* group, Fill fill) {
  if (!HasItems(group) || group->count == 0) return false;
  ListWriter<Node> nodes = BeginList(list);
  for (uint32_t left = std::min(group->count, kLongestList); left > 0 && KeepItem(nodes); --left) {
  }
  EndList(nodes);
  if (!list) return false;
  count = 0;
  for (Node& node : Items(list))
    fill(node, ItemOf<Item>(*group, count++));
  return true;
}

void ConvertState(PrnInfoEx* info, const PMPrnInfo& pm) {
  if (!IsPresent(pm.statusInfo) || !IsPresent(pm.statusInfo->statusBits)) return;
  const PrinterState state = StateOf(pm.statusInfo->statusBits);
  info->offline = state.offline;
  info->online = state.online;
  info->hasError = state.hasError;
  info->printing = state.printing;
  info->noResponse = state.noResponse;
}

void ConvertModel(PrnInfoEx* info, const PMPrnInfo& pm) {
  if (!IsPresent(pm.modelInfo)) return;
  const PMModelInfo& model = *pm.modelInfo;
  if (IsPresent(model.modelName)) {
    info->modelCode = ModelCode(model.modelName);
    ReplaceText(info->modelName, model.modelName);
  }
  if (IsPresent(model.versionText)) ReplaceVersionText(info->versionText1, model.versionText);
  if (IsPresent(model.number)) info->modelInfoNumber = model.number;
  ReplaceText(info->manufacturer, kMaker);
  ReleaseText(info->description);
}

void ConvertTrays(PrnInfoEx* info, const PMPrnInfo& pm) {
  const auto fill = [](TrayNode& node, const PMInputTray& tray) {
    node.trayId = static_cast<uint16_t>(TrayCode(tray));
    node.paperCode = static_cast<uint16_t>(PaperCode(tray, node.paperCode));
    node.paperLevel = static_cast<uint16_t>(PaperLevel(tray));
  };
  if (!FillList<PMInputTray>(info->trayList, info->trayCount, pm.inputTrayInfo, fill)) return;
  // Counted from 1. A 0 gives a position that no list reaches.
  const uint32_t current = pm.inputTrayInfo->current;
  const TrayNode* node = IsPresent(current) ? ItemAt(info->trayList, current - 1) : nullptr;
  info->currentTray = node ? node->trayId : 0;
}

void ConvertEmulations(PrnInfoEx* info, const PMPrnInfo& pm) {
  const auto fill = [info](EmulationNode& node, const PMEmulation& emulation) {
    node.emulationCode = static_cast<uint16_t>(EmulationCode(emulation));
    if (!IsPresent(emulation.versionText)) return;
    if (node.emulationCode == kEmulationWxdlC) {
      ReplaceVersionText(info->versionText2, emulation.versionText);
    } else if (node.emulationCode == kEmulationOrlexScript2) {
      ReplaceVersionText(info->versionText3, emulation.versionText);
    }
  };
  if (!FillList<PMEmulation>(info->emulationList, info->emulationCount, pm.emulationInfo, fill))
    return;
  // Counted from 0, unlike the tray in use.
  const uint32_t current = pm.emulationInfo->current;
  const EmulationNode* node = ItemAt(info->emulationList, current);
  info->emulationCode = !IsPresent(current) ? 0 : node ? node->emulationCode : STM_ABSENT;
}

void ConvertFonts(PrnInfoEx* info, const PMPrnInfo& pm) {
  const auto fill = [](FontNode& node, const PMFont& font) {
    node.fontCode = static_cast<uint16_t>(FontCode(font));
  };
  FillList<PMFont>(info->fontList, info->fontCount, pm.fontInfo, fill);
}

void ConvertBins(PrnInfoEx* info, const PMPrnInfo& pm) {
  const auto fill = [](BinNode& node, const PMOutputBin& bin) {
    node.binId = static_cast<uint16_t>(BinCode(bin));
    node.binState = static_cast<uint16_t>(BinState(bin.stateFlags));
  };
  if (!FillList<PMOutputBin>(info->binList, info->binCount, pm.outputBinInfo, fill)) return;
  // A position counted from 0, not a bin id.
  const uint32_t current = pm.outputBinInfo->current;
  info->currentBin = IsPresent(current) ? current - 1 : uint32_t{BinUnknown};
}

// What cannot be allocated, or would make the list longer than one can be, is neither listed nor
// counted.
void Append(PrnInfoEx* info, ListWriter<StatusNode>& statuses, uint32_t code) {
  StatusNode* node = info->statusCount < kLongestList ? NextItem(statuses) : nullptr;
  if (!node) return;
  node->code = static_cast<uint16_t>(code);
  ++info->statusCount;
}

void AppendOnce(PrnInfoEx* info, ListWriter<StatusNode>& statuses, uint32_t code) {
  if (!FindItem(info->statusList, code)) Append(info, statuses, code);
}

// The state bits tell at most one code, and only when the network tells none.
void AppendState(PrnInfoEx* info, ListWriter<StatusNode>& statuses, const PMStatusInfo& status) {
  if (IsPresent(status.netStatus)) {
    Append(info, statuses, PatGetStatusFromNet(status.netStatus));
  } else if (!IsPresent(status.statusBits)) {
    return;
  } else if (status.statusBits & PMStatusEnergySaver) {
    AppendOnce(info, statuses, kStatusEnergySaver);
  } else if (status.statusBits & PMStatusWarmingUp) {
    AppendOnce(info, statuses, kStatusWarmingUp);
  } else if (status.statusBits == 0) {
    AppendOnce(info, statuses, kStatusReady);
  }
}

// Always built anew: a printer that tells nothing is ready.
void ConvertStatuses(PrnInfoEx* info, const PMPrnInfo& pm) {
  info->statusCount = 0;
  info->statusList = FreeItemList(info->statusList);
  ListWriter<StatusNode> statuses = BeginList(info->statusList);
  if (HasItems(pm.statusListInfo)) {
    for (uint32_t i = 0; i < pm.statusListInfo->count; ++i)
      Append(info, statuses, ItemOf<PMStatusItem>(*pm.statusListInfo, i).code);
  }
  if (IsPresent(pm.statusInfo)) AppendState(info, statuses, *pm.statusInfo);
  if (info->statusCount == 0) Append(info, statuses, kStatusReady);
}

void ConvertOptions(PrnInfoEx* info, const PMPrnInfo& pm) {
  const auto fill = [](OptionNode& node, const PMOption& option) {
    node.optionCode = static_cast<uint16_t>(OptionCode(option, node.optionCode));
  };
  FillList<PMOption>(info->optionList, info->optionCount, pm.optionInfo, fill);
}

struct GroupRow {
  uint32_t group;
  void (*convert)(PrnInfoEx* info, const PMPrnInfo& pm);
};

constexpr GroupRow kGroups[] = {
    {GroupStatus, ConvertState},          //
    {GroupModelInfo, ConvertModel},       //
    {GroupTrays, ConvertTrays},           //
    {GroupEmulation, ConvertEmulations},  //
    {GroupFonts, ConvertFonts},           //
    {GroupBins, ConvertBins},             //
    {GroupStatusList, ConvertStatuses},   //
    {GroupOptions, ConvertOptions},       //
};

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatSetPMPrnInfoToPrnInfo(PrnInfoEx* info, const PMPrnInfo* pm, uint32_t groups) {
  if (!info || !pm) return stm::FailWithSystemError(ERROR_INVALID_HANDLE);
  info->recordTag = PrnInfoExTag;
  info->structSize = PrnInfoExSize;
  groups = stm::EffectiveGroups(groups);
  for (const stm::GroupRow& row : stm::kGroups) {
    if (groups & row.group) row.convert(info, *pm);
  }
  return 1;
}
