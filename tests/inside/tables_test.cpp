// The tables that are asked by name, and those whose answers no call shows one by one. Checksums as
// in tables_test.cpp: the names come from the tables, the answers from the look-up.
#include <algorithm>

#include "checksum.h"
#include "doctest/doctest.h"
#include "names/description_names.h"
#include "names/emulation_codes.h"
#include "names/font_names.h"
#include "names/model_names.h"
#include "names/name_index.h"
#include "net/network_tables.h"
#include "pm/derivation.h"
#include "pm/name_tables.h"
#include "print_manager.h"
#include "records/status_classes.h"
#include "status/dominant_status.h"

namespace {

using test::Checksum;

void Add(Checksum& sum, const char* text) {
  sum.Add(text, std::strlen(text) + 1);
}

template <const auto& table>
void AddNames(Checksum& sum) {
  for (const stm::NameCode& row : table) {
    if (row.name.data()) Add(sum, row.name.data());
    sum.Add(static_cast<uint32_t>(stm::LookupNameCode<table>(row.name.data() ? row.name : "?")));
  }
}

// The codes that the network's names get; trays, bins and options each in a call of their own.
void AddNetworkNames(Checksum& sum) {
  const auto ask = [&sum](uint32_t mode, const char* name, const char* mediaName) {
    PrnInfo info{};
    const NetTrayEntry tray{name, 0, mediaName};
    const NetBinEntry bin{name, 0};
    const NetOptionEntry option{name};
    const void* entry = mode == NetModeTrays ? static_cast<const void*>(&tray) : &bin;
    const NetOptionEntry* optionEntry = &option;
    const NetInfoList list{1, 0, &optionEntry, &entry};
    Add(sum, name);
    Add(sum, mediaName);
    sum.Add(PatGetInfoFromNet(&info, mode, &list));
    for (const uint32_t word :
         {info.trayList[0].trayId, info.trayList[0].paperCode, info.binList[0].binId,
          info.hasDuplex, info.option2Flag, info.option3Flag, info.optionBits1, info.optionBits2})
      sum.Add(word);
  };
  for (const stm::NetName& row : stm::kNetInputTrayTable)
    ask(NetModeTrays, row.name, "");
  for (const stm::NetName& row : stm::kNetMediaTable)
    ask(NetModeTrays, "", row.name);
  for (const stm::NetName& row : stm::kNetOutputBinTable)
    ask(NetModeBins, row.name, "");
  for (const stm::NetName& row : stm::kNetOptionTable)
    ask(NetModeOptions, row.name, "");
}

void AddDescriptionNames(Checksum& sum) {
  for (const stm::DesName& row : stm::kDesNameTable) {
    char name[32] = "";
    uint8_t code = 0;
    if (row.key) Add(sum, row.key);
    bGetDesName(row.key ? row.key : "?", name, &code);
    Add(sum, name);
    sum.Add(code);
  }
}

void AddPaperSizes(Checksum& sum) {
  for (uint32_t width = 0; width < 450; ++width) {
    for (uint32_t length = 0; length < 450; ++length)
      sum.Add(stm::PaperCode(test::Tray("", nullptr, 0, width, length), 0));
  }
}

void AddStatusClasses(Checksum& sum) {
  for (uint32_t code = 0; code < 0x10000; ++code)
    sum.Add(stm::StatusClass(code));
}

// Which of two statuses counts, and which share a place, while printing and not.
void AddPriorities(Checksum& sum) {
  for (uint32_t first = 0; first < 112; ++first) {
    for (uint32_t second = 0; second < 112; ++second) {
      PrnInfo info{};
      info.statusList[0] = first;
      info.statusList[1] = second;
      info.statusCount = 2;
      const stm::DominantStatuses dominant = stm::GetDominantStatuses(info);
      uint32_t codes[stm::kMostDominant] = {};
      std::copy_n(dominant.codes, dominant.count, codes);
      sum.Add(dominant.count);
      sum.Add(codes, sizeof codes);
      info.printing = 1;
      sum.Add(stm::GetDominantStatus(info));
    }
  }
}

}  // namespace

TEST_CASE("every name has the code that was checked, and so has every pair of statuses") {
  const test::RecordedSum rows[] = {
      {"printer languages of a reply", AddNames<stm::kEmulationCodeTable>, 0x8E1A6A55},
      {"fonts", AddNames<stm::kFontNameTable>, 0xCD064F2D},
      {"models", AddNames<stm::kModelNameTable>, 0x79A1AC82},
      {"description names", AddDescriptionNames, 0x67F883F3},
      {"the network's names", AddNetworkNames, 0x7E497615},
      {"the print manager's trays", AddNames<stm::kInputTrayNameTable>, 0xA671FD83},
      {"the print manager's bins", AddNames<stm::kOutputBinNameTable>, 0xA48C50C8},
      {"the print manager's languages", AddNames<stm::kEmulationNameTable>, 0xBABF4CA4},
      {"the print manager's paper", AddNames<stm::kPaperNameTable>, 0x7E87C1FF},
      {"the print manager's paper sizes", AddPaperSizes, 0x8FACC256},
      {"classes of the statuses", AddStatusClasses, 0xE195BFC7},
      {"priorities of the statuses", AddPriorities, 0x890CBAFA},
  };
  test::CheckRecorded(rows);
}
