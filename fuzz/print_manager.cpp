// Both conversions of the print manager's record: into fresh records, then into the same ones
// again.
#include <algorithm>
#include <iterator>

#include "source.h"

namespace {

const char* const kAllOnes = reinterpret_cast<const char*>(STM_ABSENT_POINTER);

const char* const kNames[] = {
    "HandTray",
    "Tray1",
    "Tray 2",
    "LCT",
    "MultiA4",
    "Finisher",
    "Print Post Bin9",
    "NVDL",
    "WXDL-C",
    "TIFF",
    "GOTHIC",
    "OrlexScript2",
    "A4",
    "A4 ",
    "???",
    "-1",
    "",
    "\x95\x73\x96\xBE",
    "ZENTA C210",
    "\x8A\xAF\x90\xBB",
};

using fuzz::Require;
using fuzz::Source;

const char* Name(Source& source) {
  return source.Text(kNames, kAllOnes);
}

uint32_t Size(Source& source) {
  static const uint32_t kSizes[] = {STM_ABSENT, 0, 100, 148, 210, 215, 297, 355, 420};
  return kSizes[source.Below(std::size(kSizes))];
}

PMInputTray Draw(Source& s, PMInputTray*) {
  return {Name(s), s.Below(2) ? s.Word() : s.Number(), 0, Name(s), Name(s), Size(s), Size(s)};
}
PMOutputBin Draw(Source& s, PMOutputBin*) {
  return {Name(s), s.Number(), Name(s)};
}
PMEmulation Draw(Source& s, PMEmulation*) {
  return {Name(s), Name(s), Name(s)};
}
PMFont Draw(Source& s, PMFont*) {
  return {Name(s)};
}
PMOption Draw(Source& s, PMOption*) {
  return {s.Number()};
}
PMStatusItem Draw(Source& s, PMStatusItem*) {
  return {0, s.Number()};
}

template <class Pointer>
const Pointer* Absent(Source& source) {
  return source.Below(2) ? nullptr : reinterpret_cast<const Pointer*>(kAllOnes);
}

template <class Item>
const PMItemGroup* DrawGroup(Source& source) {
  const uint32_t kind = source.Below(16);
  if (kind == 0) return Absent<PMItemGroup>(source);
  std::vector<const void*> items(kind == 1 ? source.Byte() : source.Below(5));
  for (const void*& item : items) {
    item = Absent<void>(source);
    if (source.Below(16)) item = source.Keep(Draw(source, static_cast<Item*>(nullptr)));
  }
  PMItemGroup group;
  group.count = kind == 2 ? STM_ABSENT : static_cast<uint32_t>(items.size());
  group.items = kind == 3 ? reinterpret_cast<const void* const*>(Absent<void>(source))
                          : static_cast<const void* const*>(
                                source.Keep(items.data(), items.size() * sizeof(void*)));
  group.current = source.Number();
  return source.Keep(group);
}

PMPrnInfo DrawManager(Source& source) {
  PMPrnInfo manager;
  std::memset(&manager, 0xA5, sizeof manager);
  const uint32_t bits = source.Below(2) ? source.Number() : 1u << source.Below(32);
  manager.statusInfo = source.Below(8) ? source.Keep(PMStatusInfo{bits, source.Number()})
                                       : Absent<PMStatusInfo>(source);
  manager.modelInfo = source.Below(8)
                          ? source.Keep(PMModelInfo{Name(source), Name(source), source.Number()})
                          : Absent<PMModelInfo>(source);
  manager.inputTrayInfo = DrawGroup<PMInputTray>(source);
  manager.outputBinInfo = DrawGroup<PMOutputBin>(source);
  manager.emulationInfo = DrawGroup<PMEmulation>(source);
  manager.fontInfo = DrawGroup<PMFont>(source);
  manager.optionInfo = DrawGroup<PMOption>(source);
  manager.statusListInfo = DrawGroup<PMStatusItem>(source);
  return manager;
}

void CheckList(const PrnInfoEx& record) {
  Require(record.trayCount == fuzz::Length(record.trayList));
  Require(record.binCount == fuzz::Length(record.binList));
  Require(record.emulationCount == fuzz::Length(record.emulationList));
  Require(record.fontCount == fuzz::Length(record.fontList));
  Require(record.optionCount == fuzz::Length(record.optionList));
  Require(record.statusCount == fuzz::Length(record.statusList));
  Require(record.recordTag == PrnInfoExTag && record.structSize == PrnInfoExSize);
}

template <size_t Width>
bool Terminated(const char (&field)[Width]) {
  return std::memchr(field, '\0', Width) != nullptr;
}

void CheckFlat(const PrnInfo& info) {
  Require(info.trayCount <= 64 && info.trayLevelCount <= 16 && info.binCount <= 16);
  Require(info.emulationCount <= 32 && info.fontCount <= 32 && info.statusCount <= 32);
  Require(Terminated(info.modelName) && Terminated(info.manufacturer) &&
          Terminated(info.description) && Terminated(info.versionText1) &&
          Terminated(info.versionText2) && Terminated(info.versionText3));
  Require(info.structSize == PrnInfoSize);
}

// From fresh records both conversions derive the same codes.
void CheckTwins(const PrnInfoEx& record, const PrnInfo& info) {
  uint32_t i = 0;
  for (const TrayNode* node = record.trayList; node && i < info.trayCount; node = node->next, ++i) {
    Require(info.trayList[i].trayId == node->trayId);
    Require(info.trayList[i].paperCode == node->paperCode);
    if (i < info.trayLevelCount) Require(info.trayLevelList[i].paperLevel == node->paperLevel);
  }
  i = 0;
  for (const BinNode* node = record.binList; node && i < info.binCount; node = node->next)
    Require(info.binList[i++].binId == node->binId);
  i = 0;
  for (const EmulationNode* node = record.emulationList; node && i < info.emulationCount;
       node = node->next)
    Require(info.emulationList[i++] == node->emulationCode);
  i = 0;
  for (const FontNode* node = record.fontList; node && i < info.fontCount; node = node->next)
    Require(info.fontList[i++] == node->fontCode);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Source source(data, size);
  fuzz::ListRecord record;
  PrnInfo info{};
  const PMPrnInfo first = DrawManager(source);
  Require(PatSetPMPrnInfoToPrnInfo(&record, &first, ~0u) == 1);
  PatSetPMPrnInfoToPrnInfo_0(&info, &first, ~0u);
  CheckList(record);
  CheckFlat(info);
  CheckTwins(record, info);

  const PMPrnInfo second = DrawManager(source);
  Require(PatSetPMPrnInfoToPrnInfo(&record, &second, source.Word()) == 1);
  PatSetPMPrnInfoToPrnInfo_0(&info, &second, source.Word());
  CheckList(record);
  CheckFlat(info);

  // A record of any state is mended as far as its groups are converted.
  fuzz::ListRecord any;
  any.Draw(source);
  Require(PatSetPMPrnInfoToPrnInfo(&any, &first, source.Word()) == 1);
  fuzz::DrawFlat(source, info);
  PatSetPMPrnInfoToPrnInfo_0(&info, &first, source.Word());
  return 0;
}
