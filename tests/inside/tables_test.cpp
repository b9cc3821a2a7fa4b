// The tables that are asked by name, and those whose answers no call shows one by one. The names
// come from the tables, the answers from the look-up.
#include <algorithm>

#include "doctest/doctest.h"
#include "kept.h"
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

using test::Lines;

std::string InOneLine(Lines& lines) {
  std::string line = lines.Text();
  line.pop_back();
  std::replace(line.begin(), line.end(), '\n', ',');
  return line;
}

template <const auto& table>
void AddNames(Lines& lines) {
  for (const stm::NameCode& row : table) {
    const std::string name(row.name.data() ? row.name : "?");
    lines.Add(test::Quoted(name) + test::Listed(stm::LookupNameCode<table>(name)));
  }
}

// The codes that the network's names get; trays, bins and options each in a call of their own.
void AddNetworkNames(Lines& lines) {
  const auto ask = [&lines](uint32_t mode, const char* name, const char* mediaName) {
    PrnInfo info{};
    const NetTrayEntry tray{name, 0, mediaName};
    const NetBinEntry bin{name, 0};
    const NetOptionEntry option{name};
    const void* entry = mode == NetModeTrays ? static_cast<const void*>(&tray) : &bin;
    const NetOptionEntry* optionEntry = &option;
    const NetInfoList list{1, 0, &optionEntry, &entry};
    const uint32_t result = PatGetInfoFromNet(&info, mode, &list);
    lines.Add(test::Quoted(name) + ' ' + test::Quoted(mediaName) + test::Listed(result) + " tray" +
              test::Listed(info.trayList[0].trayId, info.trayList[0].paperCode) + " bin" +
              test::Listed(info.binList[0].binId) + " duplex" + test::Listed(info.hasDuplex) +
              " options" +
              test::Listed(info.option2Flag, info.option3Flag, info.optionBits1, info.optionBits2));
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

void AddDescriptionNames(Lines& lines) {
  for (const stm::DesName& row : stm::kDesNameTable) {
    char name[32] = "";
    uint8_t code = 0;
    const char* key = row.key ? row.key : "?";
    bGetDesName(key, name, &code);
    lines.Add(test::Quoted(key) + ' ' + test::Quoted(name) + test::Listed(code));
  }
}

// In millimetres: a line for widths that are alike.
void AddPaperSizes(Lines& lines) {
  for (uint32_t width = 0; width < 450; ++width) {
    Lines lengths;
    for (uint32_t length = 0; length < 450; ++length)
      lengths.Add(length,
                  std::to_string(stm::PaperCode(test::Tray("", nullptr, 0, width, length), 0)));
    lines.Add(width, InOneLine(lengths));
  }
}

void AddStatusClasses(Lines& lines) {
  for (uint32_t code = 0; code < 0x10000; ++code)
    lines.Add(code, std::to_string(stm::StatusClass(code)));
}

// Which of two statuses counts, "first", "second" or both, and after "printing" which one does
// then: a line for the first, in it the ranges of the second.
void AddPriorities(Lines& lines) {
  for (uint32_t first = 0; first < 112; ++first) {
    Lines seconds;
    for (uint32_t second = 0; second < 112; ++second) {
      const auto name = [=](uint32_t code) {
        return code == first    ? std::string("first")
               : code == second ? "second"
                                : std::to_string(code);
      };
      PrnInfo info{};
      info.statusList[0] = first;
      info.statusList[1] = second;
      info.statusCount = 2;
      const stm::DominantStatuses dominant = stm::GetDominantStatuses(info);
      std::string answer;
      for (uint32_t i = 0; i < dominant.count; ++i)
        answer += name(dominant.codes[i]) + ' ';
      info.printing = 1;
      seconds.Add(second, answer + "printing " + name(stm::GetDominantStatus(info)));
    }
    lines.Add(first, InOneLine(seconds));
  }
}

}  // namespace

TEST_CASE("every name has the code that was checked, and so has every pair of statuses") {
  struct Row {
    const char* name;
    void (*add)(Lines& lines);
  };
  for (const Row& row : {Row{"reply_languages", AddNames<stm::kEmulationCodeTable>},
                         {"fonts", AddNames<stm::kFontNameTable>},
                         {"models", AddNames<stm::kModelNameTable>},
                         {"description_names", AddDescriptionNames},
                         {"network_names", AddNetworkNames},
                         {"manager_trays", AddNames<stm::kInputTrayNameTable>},
                         {"manager_bins", AddNames<stm::kOutputBinNameTable>},
                         {"manager_languages", AddNames<stm::kEmulationNameTable>},
                         {"manager_paper", AddNames<stm::kPaperNameTable>},
                         {"manager_paper_sizes", AddPaperSizes},
                         {"status_classes", AddStatusClasses},
                         {"status_priorities", AddPriorities}}) {
    Lines lines;
    row.add(lines);
    test::CheckKept(row.name, lines.Text());
  }
}
