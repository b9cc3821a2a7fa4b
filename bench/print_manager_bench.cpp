// Both conversions of the print manager's record, and the comparison.
#include <cstring>
#include <iterator>

#include "bench.h"
#include "stmdata/stmdata.h"

namespace {

constexpr PMInputTray kTrays[] = {
    {"Bypass Tray", 0x100, 0, "A4R", nullptr, STM_ABSENT, STM_ABSENT},
    {"Tray 1", 0x400, 0, "A4", nullptr, 210, 297},
    {"Tray 2", 0x800, 0, "8 1/2 x 11 in", nullptr, STM_ABSENT, STM_ABSENT},
    {"\xC4\xDA\xB2\x20\x33", 0x010, 0, nullptr, nullptr, 297, 420},
};
constexpr PMOutputBin kBins[] = {{"Standard Tray", 0, nullptr}, {"Finisher", 1, nullptr}};
constexpr PMEmulation kLanguages[] = {
    {"NVDL", "1.00", nullptr}, {"OrlexScript2", "2.00", nullptr}, {"WXDL-C", "3.14", nullptr}};
constexpr PMFont kFonts[] = {{"CHUMINCYO"}, {"GOTHIC"}, {"MARUGOTHIC"}, {"KAISHO"}};
constexpr PMOption kOptions[] = {{163}, {164}};
constexpr PMStatusItem kStatuses[] = {{0, 4}, {0, 32}};

template <class Item, size_t Count>
struct Group : PMItemGroup {
  explicit Group(const Item (&source)[Count], uint32_t inUse) {
    for (size_t i = 0; i < Count; ++i)
      pointers[i] = &source[i];
    count = Count;
    items = pointers;
    current = inUse;
  }
  const void* pointers[Count];
};

}  // namespace

void bench::BenchPrintManager() {
  const Group trays(kTrays, 2);
  const Group bins(kBins, 1);
  const Group languages(kLanguages, 2);
  const Group fonts(kFonts, STM_ABSENT);
  const Group options(kOptions, STM_ABSENT);
  const Group statuses(kStatuses, STM_ABSENT);
  const PMStatusInfo state = {0x00020002, STM_ABSENT};
  const PMModelInfo model = {"ZENTA C210", "1.01", 64};
  PMPrnInfo manager{};
  manager.statusInfo = &state;
  manager.modelInfo = &model;
  manager.inputTrayInfo = &trays;
  manager.outputBinInfo = &bins;
  manager.emulationInfo = &languages;
  manager.fontInfo = &fonts;
  manager.optionInfo = &options;
  manager.statusListInfo = &statuses;

  PrnInfoEx record{}, same{};
  PrnInfo flat{}, copy{};
  PatSetPMPrnInfoToPrnInfo(&record, &manager, ~0u);
  PatSetPMPrnInfoToPrnInfo(&same, &manager, ~0u);
  Header("Print manager");

  // Each conversion replaces five texts and two status nodes.
  const uint32_t sizes[] = {11, 5, 6, 5, 5, sizeof(StatusNode), sizeof(StatusNode)};
  Row(
      "list-based record, all groups, repeated",
      [&] { PatSetPMPrnInfoToPrnInfo(&record, &manager, ~0u); },
      [&] {
        for (const uint32_t size : sizes) {
          void* block = GlobalAlloc(GPTR, size);
          Use(block);
          GlobalFree(block);
        }
      },
      4.0);
  Row(
      "flat record, all groups", [&] { PatSetPMPrnInfoToPrnInfo_0(&flat, &manager, ~0u); },
      [&] {
        std::memcpy(&copy, &flat, sizeof copy);
        Use(copy);
      },
      30.0);
  // The least: one look at each field of each node of both records.
  Row(
      "comparison of equal records, all groups",
      [&] {
        uint32_t equal = 0;
        PatCmpPrnInfoEX(&record, &same, ~0u, &equal);
        Use(equal);
      },
      [&] {
        uint32_t sum = 0;
        for (const PrnInfoEx* each : {&record, &same}) {
          for (const TrayNode* node = each->trayList; node; node = node->next)
            sum += node->trayId + node->paperCode + node->paperLevel;
          for (const BinNode* node = each->binList; node; node = node->next)
            sum += node->binId + node->binState;
          for (const EmulationNode* node = each->emulationList; node; node = node->next)
            sum += node->emulationCode;
          for (const OptionNode* node = each->optionList; node; node = node->next)
            sum += node->optionCode + node->optionValue;
          for (const FontNode* node = each->fontList; node; node = node->next)
            sum += node->fontCode;
          for (const StatusNode* node = each->statusList; node; node = node->next)
            sum += node->code;
        }
        Use(sum);
      },
      20.0);
}
