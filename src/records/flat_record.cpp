// From the list-based record to the flat one.
#include <initializer_list>

#include "records/fixed_text.h"
#include "records/item_list.h"
#include "records/record.h"
#include "records/reply.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// A missing text leaves the field alone.
template <uint32_t Width>
void CopyTextIfHeld(char (&field)[Width], const char* text) {
  if (text) CopyText(field, text);
}

// Stores what `entryOf` makes of each node, as far as the array reaches. Result: the number stored.
template <class Node, class Entry, uint32_t Capacity, class EntryOf>
uint32_t CopyItems(const Node* head, Entry (&array)[Capacity], EntryOf entryOf) {
  uint32_t stored = 0;
  for (const Node& node : Items(head, Capacity))
    array[stored++] = entryOf(node);
  return stored;
}

template <class Node, uint32_t Capacity>
uint32_t CopyKeys(const Node* head, uint32_t (&array)[Capacity]) {
  return CopyItems(head, array, [](const Node& item) -> uint32_t { return KeyOf(item); });
}

void CopyDeviceId(const PrnInfoEx& source, PrnInfo* target) {
  CopyTextIfHeld(target->modelName, source.modelName);
  CopyTextIfHeld(target->manufacturer, source.manufacturer);
  CopyTextIfHeld(target->description, source.description);
  target->modelCode = source.modelCode;
  if (!source.emulationList) return;
  CopyKeys(source.emulationList, target->emulationList);
  target->emulationCount = source.emulationCount;
}

// One status stands in `statusCode` itself, several in the list with a marker and their sum.
void CopyStatus(const PrnInfoEx& source, PrnInfo* target) {
  target->statusCount = source.statusCount;
  if (source.statusCount == 1 && source.statusList) {
    target->statusCode = source.statusList->code;
  } else if (source.statusCount > 1) {
    const uint32_t stored = CopyKeys(source.statusList, target->statusList);
    uint32_t sum = 0;
    for (uint32_t i = 0; i < stored; ++i)
      sum += target->statusList[i];
    target->statusCode = sum << 16 | StatusSeveralMarker;
  }
  target->online = source.online;
  target->hasError = source.hasError;
  target->printing = source.printing;
  target->offline = source.online == 0;
  target->currentTray = source.currentTray;
  target->currentBin = source.currentBin;
}

void CopyModelInfo(const PrnInfoEx& source, PrnInfo* target) {
  target->modelInfoNumber = source.modelInfoNumber;
  CopyTextIfHeld(target->versionText1, source.versionText1);
  CopyTextIfHeld(target->versionText2, source.versionText2);
  CopyTextIfHeld(target->versionText3, source.versionText3);
}

void CopyFonts(const PrnInfoEx& source, PrnInfo* target) {
  if (!source.fontList) return;
  target->fontCount = source.fontCount;
  CopyKeys(source.fontList, target->fontList);
}

void CopyTrays(const PrnInfoEx& source, PrnInfo* target) {
  if (source.trayCount == 0) return;
  target->trayCount = source.trayCount;
  target->trayLevelCount = source.trayCount;
  CopyItems(source.trayList, target->trayList, [](const TrayNode& tray) {
    return TrayPaper{tray.trayId, tray.paperCode};
  });
  CopyItems(source.trayList, target->trayLevelList, [](const TrayNode& tray) {
    return TrayLevel{tray.trayId, tray.paperLevel};
  });
}

void CopyBins(const PrnInfoEx& source, PrnInfo* target) {
  if (!source.binList) return;
  target->binCount = source.binCount;
  CopyItems(source.binList, target->binList, [](const BinNode& bin) {
    return BinEntry{bin.binId, bin.binState};
  });
}

struct OptionFlag {
  uint32_t code;
  uint32_t PrnInfo::*field;
  uint32_t bits;
};

// Fields that show what this list holds.
constexpr OptionFlag kListedOptions[] = {
    {1, &PrnInfo::duplexFlag, 0x1},     // duplex unit
    {4, &PrnInfo::option4Flag, 0x1},    //
    {5, &PrnInfo::optionBits1, 0x1},    //
    {6, &PrnInfo::optionBits1, 0x2},    //
    {9, &PrnInfo::optionBits1, 0x4},    //
    {10, &PrnInfo::optionBits1, 0x8},   //
    {7, &PrnInfo::optionBits2, 0x1},    //
    {8, &PrnInfo::optionBits2, 0x2},    //
    {15, &PrnInfo::optionBits2, 0x2},   //
    {13, &PrnInfo::optionBits2, 0x4},   //
    {11, &PrnInfo::finisherBits, 0x1},  // stapler
    {12, &PrnInfo::finisherBits, 0x2},  // puncher
};

// Fields that become 1 and are never taken back.
constexpr OptionFlag kOptionsEverListed[] = {
    {1, &PrnInfo::hasDuplex, 1},
    {4, &PrnInfo::option4Present, 1},
    {5, &PrnInfo::option5Present, 1},
    {6, &PrnInfo::option6Present, 1},
};

void CopyOptions(const PrnInfoEx& source, PrnInfo* target) {
  if (!source.optionList) return;
  uint32_t listed = 0;  // a bit per option code
  for (const OptionNode& node : Items(source.optionList)) {
    if (node.optionCode < 32) listed |= 1u << node.optionCode;
  }
  const auto isListed = [listed](uint32_t code) { return (listed >> code & 1) != 0; };

  for (uint32_t PrnInfo::*field :
       {&PrnInfo::duplexFlag, &PrnInfo::option2Flag, &PrnInfo::option3Flag, &PrnInfo::option4Flag,
        &PrnInfo::optionBits1, &PrnInfo::optionBits2, &PrnInfo::finisherBits})
    target->*field = 0;
  for (const OptionFlag& flag : kListedOptions) {
    if (isListed(flag.code)) target->*flag.field |= flag.bits;
  }
  for (const OptionFlag& flag : kOptionsEverListed) {
    if (isListed(flag.code)) target->*flag.field = flag.bits;
  }
  if (isListed(2)) target->option2Flag = 3;
  if (isListed(3)) target->option2Flag = 1;
}

struct GroupRow {
  uint32_t groups;  // any of these bits
  void (*copy)(const PrnInfoEx& source, PrnInfo* target);
};

constexpr GroupRow kGroups[] = {
    {GroupDeviceId, CopyDeviceId},
    {GroupStatus | GroupStatusList, CopyStatus},
    {GroupModelInfo, CopyModelInfo},
    {GroupEmulation, [](const PrnInfoEx& source,
                        PrnInfo* target) { target->emulationCode = source.emulationCode; }},
    {GroupFonts, CopyFonts},
    {GroupTrays, CopyTrays},
    {GroupOptions, CopyOptions},
    {GroupBins, CopyBins},
};

}  // namespace

void ConvertToPrnInfo(const PrnInfoEx& source, PrnInfo* target, uint32_t groups) {
  for (const GroupRow& row : kGroups) {
    if (groups & row.groups) row.copy(source, target);
  }
}

}  // namespace stm

uint32_t STM_CALL SetPrnInfoFromReadbackCmd(PrnInfo* record, const char* reply, int32_t length) {
  if (!record) return 0;
  stm::TemporaryRecord* temporary = stm::NewPrnInfoEx();
  if (!temporary) return 0;
  const stm::ReplyResult result =
      stm::ReadReply({&temporary->record, &temporary->room}, reply, length);
  stm::ConvertToPrnInfo(temporary->record, record, result.parseFlags);
  stm::FreePrnInfoEx(temporary);
  return result.walked;
}
