#include "pm/derivation.h"

#include "names/device_table.h"
#include "names/font_names.h"
#include "names/model_names.h"
#include "names/name_index.h"
#include "pm/name_tables.h"
#include "records/paper_levels.h"

namespace stm {
namespace {

constexpr PaperLevelRow kPaperLevels[] = {
    // flags  level
    {0x012, 0},   // no paper, or tray not usable
    {0x100, 10},  //
    {0x200, 25},  //
    {0x400, 50},  //
    {0x800, 75},  //
    {0, 100},     // closing row: nothing said against it
};

template <const auto& kTable>
uint32_t CodeOf(const char* name, const char* altName, uint32_t neither) {
  if (!IsPresent(name)) name = altName;
  return IsPresent(name) ? static_cast<uint32_t>(LookupNameCode<kTable>(name)) : neither;
}

}  // namespace

uint32_t EffectiveGroups(uint32_t groups) {
  if (groups & GroupDeviceId) groups = (groups & ~uint32_t{GroupDeviceId}) | GroupModelInfo;
  return groups;
}

PrinterState StateOf(uint32_t statusBits) {
  const auto flag = [statusBits](uint32_t mask) -> uint8_t { return (statusBits & mask) != 0; };
  return {
      .offline = flag(PMStatusOffline),
      .online = !flag(PMStatusOffline),
      .hasError = flag(PMStatusErrorMask),
      .printing = flag(PMStatusPrinting),
      .noResponse = flag(PMStatusNoResponse),
  };
}

uint32_t TrayCode(const PMInputTray& tray) {
  return CodeOf<kInputTrayNameTable>(tray.name, tray.altName, 0);
}

uint32_t BinCode(const PMOutputBin& bin) {
  return CodeOf<kOutputBinNameTable>(bin.name, bin.altName, BinUnknown);
}

uint32_t EmulationCode(const PMEmulation& emulation) {
  return CodeOf<kEmulationNameTable>(emulation.name, emulation.altName, 0);
}

uint32_t FontCode(const PMFont& font) {
  return CodeOf<kFontNameTable>(font.name, nullptr, 0);
}

uint8_t ModelCode(const char* modelName) {
  return static_cast<uint8_t>(LookupNameCode<kModelNameTable>(modelName));
}

uint32_t PaperCode(const PMInputTray& tray, uint32_t earlier) {
  if (IsPresent(tray.paperWidth) && IsPresent(tray.paperLength)) {
    const PaperSize* row = kPaperSizeTable;
    while (row->paperCode && (row->width != tray.paperWidth || row->length != tray.paperLength))
      ++row;
    return row->paperCode ? row->paperCode : earlier;
  }
  if (!IsPresent(tray.paperName)) return PaperTrayMissing;
  const auto code = static_cast<uint32_t>(LookupNameCode<kPaperNameTable>(tray.paperName));
  if (code) return code;
  const bool unknown = std::strcmp(tray.paperName, kUnknownPaperName) == 0;
  return unknown ? uint32_t{PaperTrayMissing} : kPaperFree;
}

uint32_t PaperLevel(const PMInputTray& tray) {
  return PaperLevelOf(IsPresent(tray.levelFlags) ? tray.levelFlags : 0, kPaperLevels);
}

uint32_t BinState(uint32_t stateFlags) {
  return stateFlags & 0x1 ? 2 : 1;
}

uint32_t OptionCode(const PMOption& option, uint32_t earlier) {
  if (!IsPresent(option.deviceCode)) return 0;
  const DeviceRow* row = FindDevice(option.deviceCode);
  return row ? row->optionCode : earlier;
}

}  // namespace stm
