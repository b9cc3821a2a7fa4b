#include "print_manager.h"

#include <algorithm>
#include <iterator>

#include "describe.h"
#include "describe_flat.h"
#include "doctest/doctest.h"

namespace {

using test::kAbsentText;
using test::PrintManager;
using test::Tray;

constexpr uint32_t kNone = STM_ABSENT;
constexpr uint32_t kAllGroups = 0xFFFFFFFF;

std::string Converted(test::Record& record, const PrintManager& manager, uint32_t groups) {
  CHECK(PatSetPMPrnInfoToPrnInfo(&record, &manager.record, groups) == 1);
  return test::Describe(record);
}

}  // namespace

TEST_CASE("a print manager's tray gets its id, paper and level in both records") {
  struct Row {
    const char* why;
    PMInputTray tray;
    uint32_t id, paper, level;
  };
  const uint32_t earlier = 77;
  const Row rows[] = {
      {"english name", Tray("Tray 1", "A4 ", 0), 3, 8, 100},
      {"japanese name", Tray("\x8E\xE8\x8D\xB7\x82\xB5\xC4\xDA\xB2", "A4", 0), 1, 8, 100},
      {"half-width kana and a digit", Tray("\xC4\xDA\xB2 4", "A4R", 0), 6, 9, 100},
      {"last tray row", Tray("MultiA4", "\x8A\xAF\x90\xBB\x82\xCD\x82\xAA\x82\xABR", 0), 10, 34,
       100},
      {"unknown name, alternative not tried",
       {"Tray9", 0, 0, "A4", "Tray2", kNone, kNone},
       0,
       8,
       100},
      {"alternative name", {nullptr, 0, 0, "A4", "Tray2", kNone, kNone}, 4, 8, 100},
      {"all-ones name", {kAbsentText, 0, 0, "A4", "LCT", kNone, kNone}, 7, 8, 100},
      {"no name at all", {kAbsentText, 0, 0, kAbsentText, kAbsentText, kNone, kNone}, 0, 41, 100},
      {"empty names", Tray("", "", 0), 0, 2, 100},
      {"size before name", Tray("Tray1", "A3", 0, 210, 297), 3, 8, 100},
      {"size lying", Tray("Tray1", "A3", 0, 297, 210), 3, 9, 100},
      {"second legal size", Tray("Tray1", "A3", 0, 215, 355), 3, 20, 100},
      {"unknown size keeps the paper", Tray("Tray1", "A3", 0, 211, 297), 3, earlier, 100},
      {"no size is a size", Tray("Tray1", "A3", 0, 0, 0), 3, earlier, 100},
      {"width alone", Tray("Tray1", "LGR", 0, 210, kNone), 3, 21, 100},
      {"length alone", Tray("Tray1", "???", 0, kNone, 297), 3, 54, 100},
      {"unknown paper", Tray("Tray1", "A9", 0), 3, 2, 100},
      {"paper known to be unknown", Tray("Tray1", "\x95\x73\x96\xBE", 0), 3, 41, 100},
      {"absent paper", Tray("Tray1", nullptr, 0), 3, 41, 100},
      {"level absent", Tray("Tray1", "A4", kNone), 3, 8, 100},
      {"no paper", Tray("Tray1", "A4", 0x110), 3, 8, 0},
      {"no paper, other bit", Tray("Tray1", "A4", 0xF02), 3, 8, 0},
      {"10 before 25", Tray("Tray1", "A4", 0x300), 3, 8, 10},
      {"25 before 50", Tray("Tray1", "A4", 0x600), 3, 8, 25},
      {"50 before 75", Tray("Tray1", "A4", 0xC00), 3, 8, 50},
      {"75", Tray("Tray1", "A4", 0x1800), 3, 8, 75},
      {"level bits without a meaning", Tray("Tray1", "A4", 0xFFFFF0ED), 3, 8, 100},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    PrintManager manager;
    manager.AddTrays({row.tray});

    test::Record record;
    record.trayList = static_cast<TrayNode*>(GlobalAlloc(GPTR, sizeof(TrayNode)));
    record.trayList->nodeSize = sizeof(TrayNode);
    record.trayList->paperCode = earlier;
    record.trayCount = 1;
    REQUIRE(PatSetPMPrnInfoToPrnInfo(&record, &manager.record, GroupTrays) == 1);
    CHECK(record.trayList->trayId == row.id);
    CHECK(record.trayList->paperCode == row.paper);
    CHECK(record.trayList->paperLevel == row.level);

    PrnInfo flat = test::PoisonedPrnInfo();
    flat.trayList[0].paperCode = earlier;
    REQUIRE(PatSetPMPrnInfoToPrnInfo_0(&flat, &manager.record, GroupTrays) == 1);
    CHECK(flat.trayList[0].trayId == row.id);
    CHECK(flat.trayList[0].paperCode == row.paper);
    CHECK(flat.trayLevelList[0].trayId == row.id);
    CHECK(flat.trayLevelList[0].paperLevel == row.level);
  }
}

TEST_CASE("a print manager's bins and languages get their codes in both records") {
  struct Row {
    const char* why;
    const char *name, *altName;
    uint32_t bin, language;
  };
  const Row rows[] = {
      {"a bin", "Tray 1", nullptr, 1, 0},
      {"japanese bin", "\x8F\xE3\xC4\xDA\xB2\x34", nullptr, 10, 0},
      {"last bin", "Print Post Bin9", nullptr, 15, 0},
      {"first language", "NVDL", "TIFF", 255, 1},
      {"last language", kAbsentText, "WXDL-C", 255, 14},
      {"unknown before known", "ESC/Q", "Finisher", 255, 0},
      {"neither", kAbsentText, nullptr, 255, 0},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    PrintManager manager;
    manager.AddBins({{row.name, 0, row.altName}});
    manager.AddEmulations({{row.name, nullptr, row.altName}});
    test::Record record;
    PrnInfo flat = test::PoisonedPrnInfo();
    REQUIRE(PatSetPMPrnInfoToPrnInfo(&record, &manager.record, GroupBins | GroupEmulation) == 1);
    REQUIRE(PatSetPMPrnInfoToPrnInfo_0(&flat, &manager.record, GroupBins | GroupEmulation) == 1);
    CHECK(record.binList->binId == row.bin);
    CHECK(flat.binList[0].binId == row.bin);
    CHECK(record.emulationList->emulationCode == row.language);
    CHECK(flat.emulationList[0] == row.language);
  }
}

namespace {

struct GroupCase {
  const char* why;
  void (*set)(PrintManager& manager);
  uint32_t groups;
  const char* list;  // the list-based record, after "tag=404 sized"
  uint32_t result;   // of the flat conversion; the other always succeeds
  const char* flat;  // what changes beside structSize
};

const GroupCase kGroupCases[] = {
    {"nothing selected", [](PrintManager& m) { m.SetStatus(0x1); }, GroupDuplex | 0x1, "", 1, ""},
    {"nothing there: the status list and the options are written", [](PrintManager&) {}, kAllGroups,
     " status[0]", 0,
     "hasDuplex=0 option2Flag=0 option3Flag=0 option4Flag=0 optionBits1=0 optionBits2=0 "
     "statusList[0] statusCount=1"},
    {"every pointer all-ones",
     [](PrintManager& m) { std::memset(static_cast<void*>(&m.record), 0xFF, sizeof m.record); },
     kAllGroups, " status[0]", 0,
     "hasDuplex=0 option2Flag=0 option3Flag=0 option4Flag=0 optionBits1=0 optionBits2=0 "
     "statusList[0] statusCount=1"},
    {"state missing", [](PrintManager&) {}, GroupStatus, "", 0, ""},
    {"state absent", [](PrintManager& m) { m.SetStatus(kNone, 5); }, GroupStatus, "", 1, ""},
    {"state bits", [](PrintManager& m) { m.SetStatus(0x01020041); }, GroupStatus,
     " offline error printing silent", 1,
     "statusCode=102 offline=1 online=0 hasError=1 printing=1 noResponse=1"},
    {"state bits clear", [](PrintManager& m) { m.SetStatus(0xFEFDFF80); }, GroupStatus, " online",
     1, "offline=0 online=1 hasError=0 printing=0 noResponse=0"},
    {"model missing", [](PrintManager&) {}, GroupDeviceId, "", 0, ""},
    {"model without a field", [](PrintManager& m) { m.SetModel(nullptr, kAbsentText, kNone); },
     GroupModelInfo, " maker='ORLEX'", 1, "manufacturer='ORLEX' description=''"},
    {"unknown model", [](PrintManager& m) { m.SetModel("Nobody 1", "1.02", 7); }, GroupModelInfo,
     " model='Nobody 1' maker='ORLEX' version1='1.02' number=7 code=255", 1,
     "modelInfoNumber=7 versionText1='1.02' modelName='Nobody 1' manufacturer='ORLEX' "
     "description='' modelCode=255"},
    {"known model through the Device ID's bit",
     [](PrintManager& m) { m.SetModel("ZENTA C210", nullptr, 0); }, GroupDeviceId,
     " model='ZENTA C210' maker='ORLEX' code=103", 1,
     "modelInfoNumber=0 modelName='ZENTA C210' manufacturer='ORLEX' description='' modelCode=103"},
    {"trays missing, fonts there", [](PrintManager& m) { m.AddFonts({{"GOTHIC"}}); },
     GroupTrays | GroupFonts, " fonts[13]", 0, "fontList[13] fontCount=1"},
    {"tray count absent", [](PrintManager& m) { m.AddTrays({Tray("Tray1")}).count = STM_ABSENT; },
     GroupTrays, "", 0, ""},
    {"tray array absent", [](PrintManager& m) { m.AddTrays({Tray("Tray1")}).items = nullptr; },
     GroupTrays, "", 0, ""},
    {"no trays", [](PrintManager& m) { m.AddTrays({}, 3); }, GroupTrays, "", 1,
     "currentTray=3 trayCount=0 trayLevelCount=0"},
    {"tray in use counts from 1",
     [](PrintManager& m) {
       m.AddTrays({Tray("Tray1", "A4"), Tray("Tray2", "A3", 0x400)}, 2);
     },
     GroupTrays, " tray=4 trays[3:8:100 4:4:50]", 1,
     "currentTray=2 trayList[3 8 4 4] trayCount=2 trayLevelList[3 100 4 50] trayLevelCount=2"},
    {"tray in use past the list", [](PrintManager& m) { m.AddTrays({Tray("Tray1", "A4")}, 2); },
     GroupTrays, " trays[3:8:100]", 1,
     "currentTray=2 trayList[3 8] trayCount=1 trayLevelList[3 100] trayLevelCount=1"},
    {"tray 0 in use", [](PrintManager& m) { m.AddTrays({Tray("Tray1", "A4")}, 0); }, GroupTrays,
     " trays[3:8:100]", 1,
     "currentTray=0 trayList[3 8] trayCount=1 trayLevelList[3 100] trayLevelCount=1"},
    {"bin in use is a position, absent state flags differ",
     [](PrintManager& m) {
       m.AddBins({{"Tray1", 0, nullptr}, {"Finisher", 3, nullptr}, {nullptr, kNone, nullptr}}, 2);
     },
     GroupBins, " bin=1 bins[1:1 4:2 255:2]", 1, "binList[1 1 4 2 255 1] binCount=3 currentBin=2"},
    {"bin 0 in use",
     [](PrintManager& m) {
       m.AddBins({{"Tray1", 2, nullptr}}, 0);
     },
     GroupBins, " bin=4294967295 bins[1:1]", 1, "binList[1 1] binCount=1 currentBin=0"},
    {"no bin in use",
     [](PrintManager& m) {
       m.AddBins({{"Tray1", 2, nullptr}});
     },
     GroupBins, " bin=255 bins[1:1]", 1, "binList[1 1] binCount=1 currentBin=255"},
    {"no bins", [](PrintManager& m) { m.AddBins({}); }, GroupBins, "", 1,
     "binCount=0 currentBin=255"},
    {"no languages", [](PrintManager& m) { m.AddEmulations({}); }, GroupEmulation, "", 0, ""},
    {"language in use counts from 0, versions of two languages",
     [](PrintManager& m) {
       m.AddEmulations({{"WXDL-C", "2.0", nullptr},
                        {"OrlexScript2", "a long version text", nullptr},
                        {"NVDL", "1.0", nullptr},
                        {"WXDL-C", nullptr, nullptr}},
                       1);
     },
     GroupEmulation,
     " version2='2.0' version3='a long version text' language=2 languages[14 2 1 14]", 1,
     "versionText2='2.0' versionText3='a long version ' emulationCode=1 emulationList[14 2 1 14] "
     "emulationCount=4"},
    {"no language in use",
     [](PrintManager& m) {
       m.AddEmulations({{"NVDL", nullptr, nullptr}});
     },
     GroupEmulation, " languages[1]", 1, "emulationCode=0 emulationList[1] emulationCount=1"},
    {"language in use past the list",
     [](PrintManager& m) {
       m.AddEmulations({{"NVDL", nullptr, nullptr}}, 1);
     },
     GroupEmulation, " language=4294967295 languages[1]", 1,
     "emulationCode=1 emulationList[1] emulationCount=1"},
    {"no fonts", [](PrintManager& m) { m.AddFonts({}); }, GroupFonts, "", 0, ""},
    {"fonts",
     [](PrintManager& m) {
       m.AddFonts({{"GOTHIC"}, {"gothic"}, {nullptr}, {"KYOUKASHO"}});
     },
     GroupFonts, " fonts[13 0 0 20]", 1, "fontList[13 0 0 20] fontCount=4"},
    {"options",
     [](PrintManager& m) {
       m.AddOptions({163, 164, 165, 0, kNone});
     },
     GroupOptions, " options[105:0 1:0 0:0 0:0 0:0]", 1,
     "hasDuplex=1 duplexFlag=0 option2Flag=0 option3Flag=0 option4Flag=0 optionBits1=0 "
     "optionBits2=0"},
    {"option tray alone", [](PrintManager& m) { m.AddOptions({163}); }, GroupOptions,
     " options[105:0]", 1,
     "hasDuplex=0 option2Flag=0 option3Flag=0 option4Flag=0 optionBits1=0 optionBits2=0"},
    {"statuses seen are not added again",
     [](PrintManager& m) {
       m.AddStatuses({5, 17});
       m.SetStatus(0x80);
     },
     GroupStatusList, " status[5 17]", 1, "statusList[5 17] statusCount=2"},
    {"both states: one in the list-based record, two in the flat one",
     [](PrintManager& m) { m.SetStatus(0x00040080); }, GroupStatusList, " status[18]", 1,
     "statusList[18 17] statusCount=2"},
    {"energy saver seen: warming up is told in the flat record only",
     [](PrintManager& m) {
       m.AddStatuses({18});
       m.SetStatus(0x00040080);
     },
     GroupStatusList, " status[18]", 1, "statusList[18 17] statusCount=2"},
    {"an idle printer is ready as well in the list-based record only",
     [](PrintManager& m) {
       m.AddStatuses({4});
       m.SetStatus(0);
     },
     GroupStatusList, " status[4 0]", 1, "statusList[4] statusCount=1"},
    {"ready once",
     [](PrintManager& m) {
       m.AddStatuses({0});
       m.SetStatus(0);
     },
     GroupStatusList, " status[0]", 1, "statusList[0] statusCount=1"},
    {"offline or silent without a status", [](PrintManager& m) { m.SetStatus(0x01000001); },
     GroupStatusList, " status[0]", 1, "statusList[0] statusCount=1"},
    {"a state that tells nothing",
     [](PrintManager& m) {
       m.AddStatuses({5});
       m.SetStatus(kNone);
     },
     GroupStatusList, " status[5]", 1, "statusList[5] statusCount=1"},
    {"the network's status before the bits",
     [](PrintManager& m) {
       m.AddStatuses({36});
       m.SetStatus(0x80, 36);
     },
     GroupStatusList, " status[36 36]", 1, "statusList[36 36] statusCount=2"},
    {"a status without a code",
     [](PrintManager& m) {
       m.AddStatuses({kNone, 5, kNone});
     },
     GroupStatusList, " status[65535 5 65535]", 0, "statusList[5] statusCount=1"},
};

}  // namespace

TEST_CASE("a print manager's groups arrive in both records, and nothing else changes") {
  for (const GroupCase& row : kGroupCases) {
    CAPTURE(row.why);
    PrintManager manager;
    row.set(manager);
    const std::string expected = std::string("tag=404 sized") + row.list;
    test::Record record;
    CHECK(Converted(record, manager, row.groups) == expected);
    // A second time nothing changes: no node, no text is kept beside the new one.
    CHECK(Converted(record, manager, row.groups) == expected);

    PrnInfo before = test::PoisonedPrnInfo();
    PrnInfo info = before;
    before.structSize = PrnInfoSize;
    SetLastError(test::kMarker);
    CHECK(PatSetPMPrnInfoToPrnInfo_0(&info, &manager.record, row.groups) == row.result);
    CHECK(GetLastError() == test::kMarker);
    CHECK(info.structSize == PrnInfoSize);
    CHECK(test::Changes(before, info) == row.flat);
  }
}

TEST_CASE("lists are resized in place, whatever their counts said") {
  PrintManager three, two;
  three.AddTrays({Tray("Tray1", "A4"), Tray("Tray2", "A4"), Tray("Tray3", "A4")});
  three.AddOptions({163, 164, 7});
  two.AddTrays({Tray("LCT", "A5", kNone, 1, 1), Tray("Multi", "A5", kNone, 1, 1)});
  two.AddOptions({7, 163});
  const uint32_t groups = GroupTrays | GroupOptions;

  test::Record record;
  CHECK(Converted(record, three, groups) ==
        "tag=404 sized trays[3:8:100 4:8:100 5:8:100] options[105:0 1:0 0:0]");
  const TrayNode* const first = record.trayList;
  record.optionList->optionValue = 9;
  CHECK(Converted(record, two, groups) ==
        "tag=404 sized trays[7:8:100 2:8:100] options[105:9 105:0]");
  CHECK(record.trayList == first);
  CHECK(Converted(record, three, groups) ==
        "tag=404 sized trays[3:8:100 4:8:100 5:8:100] options[105:9 1:0 0:0]");
  CHECK(record.trayList == first);

  for (const uint32_t claimed : {0u, 1u, 2u, 40u, kNone}) {
    CAPTURE(claimed);
    record.trayCount = claimed;
    CHECK(Converted(record, two, GroupTrays) ==
          "tag=404 sized trays[7:8:100 2:8:100] options[105:9 1:0 0:0]");
    record.trayCount = claimed;
    CHECK(Converted(record, three, GroupTrays) ==
          "tag=404 sized trays[3:8:100 4:8:100 5:8:100] options[105:9 1:0 0:0]");
  }
}

TEST_CASE("absent items are items that say nothing") {
  for (const void* const nothing :
       {static_cast<const void*>(nullptr), static_cast<const void*>(kAbsentText)}) {
    const void* const items[] = {nothing};
    const PMItemGroup group = {1, items, 1};
    PrintManager manager;
    manager.record.inputTrayInfo = manager.record.outputBinInfo = &group;
    manager.record.fontInfo = manager.record.emulationInfo = &group;
    manager.record.optionInfo = manager.record.statusListInfo = &group;
    test::Record record;
    CHECK(Converted(record, manager, kAllGroups) ==
          "tag=404 sized status[65535] language=4294967295 languages[0] fonts[0] "
          "trays[0:41:100] bins[255:2] options[0:0]");
    PrnInfo flat = test::PoisonedPrnInfo();
    CHECK(PatSetPMPrnInfoToPrnInfo_0(&flat, &manager.record, GroupBins | GroupFonts) == 1);
    CHECK(flat.binList[0].binId == 255);
    CHECK(flat.binList[0].binState == 1);
    CHECK(flat.fontList[0] == 0);
    CHECK(PatSetPMPrnInfoToPrnInfo_0(&flat, &manager.record, GroupStatusList) == 0);
  }
}

TEST_CASE("a flat record's own texts may come back to their fields") {
  PrintManager manager;
  manager.SetModel("Nobody 1", "1.02", kNone);
  PrnInfo flat = test::PoisonedPrnInfo();
  REQUIRE(PatSetPMPrnInfoToPrnInfo_0(&flat, &manager.record, GroupModelInfo) == 1);
  manager.SetModel(flat.modelName + 3, flat.versionText1, kNone);
  CHECK(PatSetPMPrnInfoToPrnInfo_0(&flat, &manager.record, GroupModelInfo) == 1);
  CHECK(std::string(flat.modelName) == "ody 1");
  CHECK(std::string(flat.versionText1) == "1.02");
}

TEST_CASE("arrays of the flat record hold what fits and count what they hold") {
  for (const size_t length : {15u, 16u, 17u, 32u, 33u, 64u, 65u, 200u}) {
    CAPTURE(length);
    PrintManager manager;
    std::vector<PMEmulation> languages(length, {"TIFF", nullptr, nullptr});
    languages.back() = {"WXDL-C", "9", nullptr};
    manager.AddTrays(std::vector<PMInputTray>(length, Tray("Tray1", "A4")));
    manager.AddBins(std::vector<PMOutputBin>(length, {"Tray1", 0, nullptr}));
    manager.AddEmulations(languages);
    manager.AddFonts(std::vector<PMFont>(length, {"GOTHIC"}));
    std::vector<uint32_t> codes(length, 5);
    manager.AddStatuses(codes);
    manager.SetStatus(0x00040080);
    PrnInfo info = test::PoisonedPrnInfo();
    const uint32_t groups = GroupTrays | GroupBins | GroupEmulation | GroupFonts | GroupStatusList;
    CHECK(PatSetPMPrnInfoToPrnInfo_0(&info, &manager.record, groups) == 1);
    const auto stored = [length](size_t capacity) { return std::min(length, capacity); };
    CHECK(info.trayCount == stored(64));
    CHECK(info.trayLevelCount == stored(16));
    CHECK(info.binCount == stored(16));
    CHECK(info.emulationCount == stored(32));
    CHECK(info.fontCount == stored(32));
    CHECK(info.statusCount == std::min<size_t>(length + 2, 32));
    // The neighbours right after the full arrays.
    CHECK(info.emulationList[info.emulationCount - 1] == (length > 32 ? 13 : 14));
    CHECK(info.structSize == PrnInfoSize);
    CHECK(info.modelName[0] == test::PoisonedPrnInfo().modelName[0]);
    CHECK(info.duplexFlag == test::PoisonedPrnInfo().duplexFlag);
    CHECK(std::string(info.versionText2) == "9");
  }
}

TEST_CASE("a text too long for its field is cut between characters") {
  struct Row {
    const char* why;
    std::string text, expected;
  };
  const std::string kanji = "\x8A\xAF";
  const std::string fourteen(14, 'x');
  const Row rows[] = {
      {"fits", fourteen + "y", fourteen + "y"},
      {"one too many", fourteen + "yz", fourteen + "y"},
      {"a character fits", fourteen.substr(1) + kanji, fourteen.substr(1) + kanji},
      {"a character would be split", fourteen + kanji, fourteen},
      {"half-width kana are single", fourteen + "\xC4\xDA", fourteen + "\xC4"},
      {"half a character at the end", fourteen + "\x8A", fourteen + "\x8A"},
      {"a trail byte that looks like a lead byte", std::string(13, 'x') + "\x8A\x8A\x8A\x8A",
       std::string(13, 'x') + "\x8A\x8A"},
      {"empty", "", ""},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    // Both fields stand 15 and 255 bytes before their ends.
    const std::string lead(240, 'm');
    test::GuardedBytes version(row.text + '\0'), name(lead + row.text + '\0');
    PrintManager manager;
    manager.SetModel(name.data(), version.data(), kNone);
    PrnInfo info = test::PoisonedPrnInfo();
    CHECK(PatSetPMPrnInfoToPrnInfo_0(&info, &manager.record, GroupModelInfo) == 1);
    CHECK(std::string(info.versionText1) == row.expected);
    CHECK(std::string(info.modelName) == lead + row.expected);
    CHECK(info.versionText2[0] == test::PoisonedPrnInfo().versionText2[0]);
  }
}

TEST_CASE("conversions without a record are refused") {
  PrintManager manager;
  test::Record record;
  PrnInfo flat = test::PoisonedPrnInfo();
  const PrnInfo before = flat;
  const auto refused = [](uint32_t result) {
    CHECK(result == 0);
    CHECK(GetLastError() == ERROR_INVALID_HANDLE);
    SetLastError(test::kMarker);
  };
  SetLastError(test::kMarker);
  refused(PatSetPMPrnInfoToPrnInfo(nullptr, &manager.record, kAllGroups));
  refused(PatSetPMPrnInfoToPrnInfo(&record, nullptr, kAllGroups));
  refused(PatSetPMPrnInfoToPrnInfo_0(nullptr, &manager.record, kAllGroups));
  refused(PatSetPMPrnInfoToPrnInfo_0(&flat, nullptr, kAllGroups));
  CHECK(test::Describe(record) == "");
  CHECK(std::memcmp(&flat, &before, sizeof flat) == 0);
}

namespace {

// What a user sees of a record.
struct Shown {
  std::string shortText, detail, icon;
  std::vector<uint8_t> parts;
  bool operator==(const Shown&) const = default;
};

Shown Show(PrnInfo info) {
  char text[512] = "", detail[512] = "", icon[32] = "";
  PrnBitmap bitmap{};
  CHECK(PatGetSimpleString(&info, text, sizeof text) == 1);
  CHECK(PatGetDetailString(&info, detail, sizeof detail) == 1);
  CHECK(PatGetErrParts(&info, icon) == 1);
  CHECK(PatGetPrnBitmap(&info, &bitmap) == 1);
  return {text, detail, icon, {std::begin(bitmap.partCodes), std::end(bitmap.partCodes)}};
}

Shown Show(const PrnInfoEx& record) {
  char text[512] = "", detail[512] = "", icon[32] = "";
  PrnBitmap bitmap{};
  CHECK(PatGetSimpleString_Ex(&record, text, sizeof text) == 1);
  CHECK(PatGetDetailString_Ex(&record, detail, sizeof detail) == 1);
  CHECK(PatGetErrParts_Ex(&record, icon) == 1);
  CHECK(PatGetPrnBitmap_Ex(&record, &bitmap) == 1);
  return {text, detail, icon, {std::begin(bitmap.partCodes), std::end(bitmap.partCodes)}};
}

// A printer with an open cover and little toner, two trays and a duplex unit: as the print manager
// and as the printer itself tell it.
void TellOpenCover(PrintManager& manager) {
  manager.SetStatus(0x2);
  manager.AddStatuses({4, 36});
  manager.AddTrays({Tray("Tray 1", "A4", 0x400), Tray("Tray 2", "A3", 0x100)}, 1);
  manager.AddOptions({164});
}

constexpr std::string_view kOpenCover =
    "\033S\r4,36\r0\r1\r1\n\033T\r1\r6\r2\r2\n\033Z\r1\r50\r2\r10\n\033\x43\r1\n\033 ";

}  // namespace

TEST_CASE("by the print manager's road a list-based record shows what a reply shows") {
  char english[] = "EN";
  PatSetLocale(english);
  PrintManager manager;
  TellOpenCover(manager);
  test::Record told, parsed;
  REQUIRE(PatSetPMPrnInfoToPrnInfo(&told, &manager.record, kAllGroups) == 1);
  REQUIRE(test::Parse(parsed, kOpenCover) == 1);
  const Shown shown = Show(told);
  CHECK(shown.shortText == "Cover Open");
  CHECK(shown.icon == "ICO_ERR_COVER");
  CHECK(shown.parts[0] != 0);
  CHECK(shown == Show(parsed));
}

TEST_CASE("by the print manager's road a flat record shows what a reply shows") {
  PrintManager manager;
  TellOpenCover(manager);
  PrnInfo told{}, parsed{};
  const uint32_t groups = GroupStatus | GroupStatusList | GroupTrays | GroupOptions;
  REQUIRE(PatSetPMPrnInfoToPrnInfo_0(&told, &manager.record, groups) == 1);
  told.statusCode = StatusSeveralMarker;  // the caller's to set: the conversion lists only
  test::GuardedBytes reply(kOpenCover);
  REQUIRE(SetPrnInfoFromReadbackCmd(&parsed, reply.data(), reply.size()) == 1);
  const Shown shown = Show(told);
  CHECK(shown.icon == "ICO_ERR_COVER");
  CHECK(shown.parts[0] != 0);
  CHECK(shown == Show(parsed));

  // A printer that does not respond needs no list.
  manager.SetStatus(0x01000000);
  PrnInfo silent{};
  REQUIRE(PatSetPMPrnInfoToPrnInfo_0(&silent, &manager.record, GroupStatus) == 1);
  PrnInfo noResponse{};
  noResponse.statusCode = StatusNoResponse;
  noResponse.noResponse = noResponse.online = 1;
  CHECK(Show(silent) == Show(noResponse));
}
