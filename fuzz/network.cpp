// The network layer's name lists into a flat record of any contents.
#include "source.h"

namespace {

using fuzz::Require;
using fuzz::Source;

const char* const kNames[] = {
    "HandTray", "Tray1", "Tray4",      "LCT",          "Multi",          "Ext.Tray",
    "Finisher", "A4",    "128",        "-1",           "PrintPostBin1",  "PrintPostBin9",
    "80",       "",      "DuplexUnit", "HardDiskUnit", "ElectronicSort",
};

const char* Name(Source& source) {
  return source.Text(kNames, nullptr);
}

const void* DrawEntry(Source& source, uint32_t mode) {
  if (source.Below(16) == 0) return nullptr;
  const uint32_t flags = source.Below(2) ? 1u << source.Below(13) : source.Number();
  switch (mode) {
    case NetModeTrays:
      return source.Keep(NetTrayEntry{Name(source), flags, Name(source)});
    case NetModeBins:
      return source.Keep(NetBinEntry{Name(source), flags});
    default:
      return source.Keep(NetOptionEntry{Name(source)});
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Source source(data, size);
  const uint32_t mode = source.Below(8) ? source.Below(3) + 1 : source.Number();
  std::vector<const void*> entries(source.Below(4) ? source.Below(6) : source.Below(70));
  for (const void*& entry : entries)
    entry = DrawEntry(source, mode);
  const void* const array = source.Keep(entries.data(), entries.size() * sizeof(void*));
  NetInfoList list = {static_cast<int32_t>(entries.size()), static_cast<int32_t>(source.Number()),
                      nullptr, nullptr};
  if (mode == NetModeOptions) {
    list.optionEntries = static_cast<const NetOptionEntry* const*>(array);
  } else {
    list.entries = static_cast<const void* const*>(array);
  }

  PrnInfo before;
  fuzz::DrawFlat(source, before);
  PrnInfo info = before;
  const bool known = mode >= 1 && mode <= 3;
  Require(PatGetInfoFromNet(&info, mode, &list) == known);
  if (mode == NetModeTrays) {
    Require(info.trayCount <= 16 && info.trayLevelCount == info.trayCount);
    for (uint32_t i = 16; i < 64; ++i)
      Require(info.trayList[i].trayId == 0 && info.trayList[i].paperCode == 0);
    std::memcpy(info.trayList, before.trayList, sizeof info.trayList);
    std::memcpy(info.trayLevelList, before.trayLevelList, sizeof info.trayLevelList);
    info.trayCount = before.trayCount;
    info.trayLevelCount = before.trayLevelCount;
    info.currentTray = before.currentTray;
  } else if (mode == NetModeBins) {
    Require(info.binCount <= 16 && info.optionBits1 <= 7 && info.optionBits2 <= 3);
    std::memcpy(info.binList, before.binList, sizeof info.binList);
    info.binCount = before.binCount;
    info.currentBin = before.currentBin;
    info.optionBits1 = before.optionBits1;
    info.optionBits2 = before.optionBits2;
  } else if (mode == NetModeOptions) {
    Require(info.hasDuplex <= 1 && info.option2Flag <= 1 && info.option3Flag <= 1);
    info.hasDuplex = before.hasDuplex;
    info.option2Flag = before.option2Flag;
    info.option3Flag = before.option3Flag;
  }
  // Nothing else is written.
  Require(std::memcmp(&info, &before, sizeof info) == 0);
  return 0;
}
