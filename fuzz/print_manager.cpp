// Both conversions of the print manager's record: into fresh records, then into the same ones
// again.
#include <algorithm>

#include "manager_source.h"

namespace {

using fuzz::DrawManager;
using fuzz::Require;
using fuzz::Source;

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
