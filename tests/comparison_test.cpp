#include "doctest/doctest.h"
#include "print_manager.h"

namespace {

using test::PrintManager;
using test::Record;
using test::Tray;

// A record with something in every field that is compared.
void Fill(Record& record) {
  PrintManager manager;
  manager.SetStatus(0);
  manager.SetModel("ZENTA C210", "1.0", 7);
  manager.AddTrays({Tray("Tray1", "A4"), Tray("Tray2", "A3"), Tray("Tray3", "B5")}, 1);
  manager.AddBins({{"Tray1", 0, nullptr}, {"Finisher", 0, nullptr}}, 1);
  manager.AddEmulations({{"WXDL-C", "2.0", nullptr}, {"OrlexScript2", "3.0", nullptr}}, 0);
  manager.AddFonts({{"GOTHIC"}, {"KAISHO"}});
  manager.AddOptions({163, 164});
  manager.AddStatuses({17});
  REQUIRE(PatSetPMPrnInfoToPrnInfo(&record, &manager.record, 0xFFFFFFFF) == 1);
  manager.SetModel("text", nullptr, STM_ABSENT);
  Record other;
  REQUIRE(PatSetPMPrnInfoToPrnInfo(&other, &manager.record, GroupModelInfo) == 1);
  record.description = other.modelName;
  other.modelName = nullptr;
}

void Drop(char*& text) {
  GlobalFree(text);
  text = nullptr;
}

template <class Node>
void DropLast(Node*& head) {
  Node** link = &head;
  while ((*link)->next)
    link = &(*link)->next;
  GlobalFree(*link);
  *link = nullptr;
}

void Prepend(Record& record, uint16_t code) {
  auto* node = static_cast<StatusNode*>(GlobalAlloc(GPTR, sizeof(StatusNode)));
  node->code = code;
  node->next = record.statusList;
  record.statusList = node;
  ++record.statusCount;
}

constexpr uint32_t kGroups[] = {GroupStatus, GroupModelInfo, GroupTrays,     GroupBins,
                                GroupDuplex, GroupEmulation, GroupFonts,     GroupDeviceId,
                                0x1,         GroupOptions,   GroupStatusList};
constexpr uint32_t kEvery = 0xFFFFFFFF;

struct Row {
  const char* why;
  void (*change)(Record& record);
  uint32_t seenBy;  // the groups in which the change makes a difference
};

const Row kRows[] = {
    {"nothing", [](Record&) {}, 0},
    {"offline", [](Record& r) { r.offline ^= 1; }, GroupStatus},
    {"model code", [](Record& r) { r.modelCode = 104; }, GroupStatus},
    {"online", [](Record& r) { r.online ^= 1; }, GroupStatus},
    {"error", [](Record& r) { r.hasError ^= 1; }, GroupStatus},
    {"printing, which covers warming up", [](Record& r) { r.printing = 1; },
     GroupStatus | GroupStatusList},
    {"a strange response flag", [](Record& r) { r.noResponse = 2; }, GroupStatus | GroupStatusList},
    {"a less urgent status", [](Record& r) { Prepend(r, 81); }, 0},
    {"a more urgent status", [](Record& r) { Prepend(r, 36); }, GroupStatusList},
    {"the same status twice", [](Record& r) { Prepend(r, 17); }, GroupStatusList},
    {"no status", [](Record& r) { r.statusCount = 0; }, GroupStatusList},
    {"status chain too short", [](Record& r) { r.statusCount = 9; }, 0},
    {"tray in use", [](Record& r) { r.currentTray = 9; }, GroupTrays},
    {"tray in use not known", [](Record& r) { r.currentTray = STM_ABSENT; }, 0},
    {"tray count", [](Record& r) { r.trayCount = 2; }, GroupTrays},
    {"tray id", [](Record& r) { r.trayList->trayId = 9; }, GroupTrays},
    {"paper of the last tray", [](Record& r) { r.trayList->next->next->paperCode = 9; },
     GroupTrays},
    {"paper level", [](Record& r) { r.trayList->next->paperLevel = 9; }, GroupTrays},
    {"tray chain too short", [](Record& r) { DropLast(r.trayList); }, GroupTrays},
    {"no trays, but counted",
     [](Record& r) {
       while (r.trayList)
         DropLast(r.trayList);
     },
     GroupTrays},
    {"bin in use", [](Record& r) { r.currentBin = 9; }, GroupBins},
    {"bin in use not known", [](Record& r) { r.currentBin = STM_ABSENT; }, 0},
    {"bin id", [](Record& r) { r.binList->next->binId = 9; }, GroupBins},
    {"bin state", [](Record& r) { r.binList->binState = 9; }, GroupBins},
    {"bin count", [](Record& r) { ++r.binCount; }, GroupBins},
    {"language in use", [](Record& r) { r.emulationCode = 9; }, GroupEmulation},
    {"language in use not known", [](Record& r) { r.emulationCode = STM_ABSENT; }, 0},
    {"language", [](Record& r) { r.emulationList->next->emulationCode = 9; }, GroupEmulation},
    {"language count", [](Record& r) { r.emulationCount = 1; }, GroupEmulation},
    {"second version", [](Record& r) { r.versionText2[2] = '1'; }, GroupEmulation},
    {"third version", [](Record& r) { r.versionText3[0] = '\0'; }, GroupEmulation},
    {"no second version", [](Record& r) { Drop(r.versionText2); }, 0},
    {"no third version", [](Record& r) { Drop(r.versionText3); }, 0},
    {"option", [](Record& r) { r.optionList->next->optionCode = 2; }, GroupOptions},
    {"option value", [](Record& r) { r.optionList->optionValue = 2; }, GroupOptions},
    {"any option value", [](Record& r) { r.optionList->optionValue = 0xFFFF; }, 0},
    {"option count", [](Record& r) { r.optionCount = 0; }, GroupOptions},
    {"font", [](Record& r) { r.fontList->next->fontCode = 2; }, GroupFonts},
    {"font count", [](Record& r) { r.fontCount = 3; }, GroupFonts},
    {"tag", [](Record& r) { r.recordTag = 0; }, GroupModelInfo},
    {"size", [](Record& r) { r.structSize = 0; }, GroupModelInfo},
    {"model name by case", [](Record& r) { r.modelName[0] = 'z'; }, GroupModelInfo},
    {"no model name", [](Record& r) { Drop(r.modelName); }, GroupModelInfo},
    {"maker", [](Record& r) { r.manufacturer[4] = '\0'; }, GroupModelInfo},
    {"no maker", [](Record& r) { Drop(r.manufacturer); }, GroupModelInfo},
    {"description", [](Record& r) { r.description[0] = 'T'; }, GroupModelInfo},
    {"no description", [](Record& r) { Drop(r.description); }, 0},
    {"first version", [](Record& r) { r.versionText1[0] = '2'; }, GroupModelInfo},
    {"no first version", [](Record& r) { Drop(r.versionText1); }, 0},
    {"number", [](Record& r) { r.modelInfoNumber = 8; }, GroupModelInfo},
};

uint32_t Equal(const PrnInfoEx& first, const PrnInfoEx& second, uint32_t groups) {
  uint32_t equal = 0xA5A5A5A5;
  CHECK(PatCmpPrnInfoEX(&first, &second, groups, &equal) == 1);
  return equal;
}

}  // namespace

TEST_CASE("a difference is seen by its group alone, from either side") {
  for (const Row& row : kRows) {
    CAPTURE(row.why);
    Record first, second;
    Fill(first);
    Fill(second);
    row.change(second);
    for (const uint32_t group : kGroups) {
      CAPTURE(group);
      const uint32_t expected = (row.seenBy & group) == 0;
      CHECK(Equal(first, second, group) == expected);
      CHECK(Equal(second, first, group) == expected);
    }
    CHECK(Equal(first, second, kEvery) == (row.seenBy == 0));
    CHECK(Equal(second, second, kEvery) == 1);
    CHECK(Equal(first, second, 0) == 1);
  }
}

TEST_CASE("a silent printer differs from any other, and agrees with a silent one") {
  Record full, empty;
  Fill(full);
  for (const uint32_t groups : {0u, kEvery}) {
    full.noResponse = empty.noResponse = 1;
    CHECK(Equal(full, empty, groups) == 1);
    empty.noResponse = 0;
    CHECK(Equal(full, empty, groups) == 0);
    CHECK(Equal(empty, full, groups) == 0);
  }
}

TEST_CASE("records without anything agree") {
  Record first, second;
  CHECK(Equal(first, second, kEvery) == 1);
  // Lists that stop at once, whatever they claim.
  for (PrnInfoEx* record : {&first, &second})
    record->statusCount = record->trayCount = record->binCount = record->emulationCount =
        record->optionCount = record->fontCount = STM_ABSENT;
  CHECK(Equal(first, second, kEvery) == 1);
}

TEST_CASE("a comparison without records or a place for the verdict is refused") {
  Record record;
  uint32_t equal = test::kMarker;
  SetLastError(test::kMarker);
  CHECK(PatCmpPrnInfoEX(nullptr, &record, 0, &equal) == 0);
  CHECK(GetLastError() == ERROR_INVALID_HANDLE);
  SetLastError(test::kMarker);
  CHECK(PatCmpPrnInfoEX(&record, nullptr, 0, nullptr) == 0);
  CHECK(GetLastError() == ERROR_INVALID_HANDLE);
  CHECK(PatCmpPrnInfoEX(&record, &record, 0, nullptr) == 0);
  CHECK(GetLastError() == ERROR_INVALID_ADDRESS);
  CHECK(equal == test::kMarker);
}
