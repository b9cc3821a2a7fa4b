// Records that no call of the library leaves behind: chains without an end, texts marked as absent.
#include <set>

#include "describe.h"
#include "doctest/doctest.h"
#include "print_manager.h"

namespace {

using test::kAbsentText;
using test::PrintManager;

// A reply with a block for each list.
const char kReply[] =
    "\033S\r17,69\r0\r1\r1\n\033T\r1\r5\r2\r-1\r3\r5\n\033Z\r1\r0\r2\r50\n\033L\r1\r0\r2\r1\n"
    "\033V\rA\r1\rB\r2\rC\r3\n\033F\rKAISHO\rGOTHIC\n\033A\r1\n\033C\r1\n\033D\rF:\x03\rD:1\rA:1\n";

// Every list leads from its third node back to its second. Who releases a node of such a chain
// releases it too early: the record does it itself.
struct EndlessRecord : PrnInfoEx {
  explicit EndlessRecord(uint32_t count) : PrnInfoEx{} {
    statusList = Endless(&StatusNode::code, {17, 69, 32});
    trayList = Endless(&TrayNode::trayId, {3, 4, 3});
    binList = Endless(&BinNode::binId, {1, 2, 3});
    optionList = Endless(&OptionNode::optionCode, {5, 6, 7});
    emulationList = Endless(&EmulationNode::emulationCode, {1, 2, 3});
    fontList = Endless(&FontNode::fontCode, {1, 2, 3});
    statusCount = trayCount = binCount = optionCount = emulationCount = fontCount = count;
    online = 1;
  }
  EndlessRecord(const EndlessRecord&) = delete;
  EndlessRecord& operator=(const EndlessRecord&) = delete;
  ~EndlessRecord() {
    Collect(statusList), Collect(trayList), Collect(binList);
    Collect(optionList), Collect(emulationList), Collect(fontList);
    for (void* node : nodes_)
      GlobalFree(node);
    statusList = nullptr, trayList = nullptr, binList = nullptr;
    optionList = nullptr, emulationList = nullptr, fontList = nullptr;
    ReleasePrnInfoEx(this);
  }

 private:
  template <class Node>
  Node* Endless(uint16_t Node::*key, const uint16_t (&keys)[3]) {
    Node* made[3];
    for (size_t i = 0; i < 3; ++i) {
      made[i] = static_cast<Node*>(GlobalAlloc(GPTR, sizeof(Node)));
      made[i]->nodeSize = sizeof(Node);
      made[i]->*key = keys[i];
      nodes_.insert(made[i]);
    }
    made[0]->next = made[1];
    made[1]->next = made[2];
    made[2]->next = made[1];
    return made[0];
  }

  template <class Node>
  void Collect(Node* node) {
    while (node && (nodes_.insert(node).second || seen_.insert(node).second))
      node = node->next;
  }

  std::set<void*> nodes_;  // the record's own, and at the end those of the library
  std::set<void*> seen_;
};

PrintManager ManagerWithTwoOfEach() {
  PrintManager manager;
  manager.SetStatus(0);
  manager.SetModel("ZENTA C210", "1.0", 7);
  manager.AddTrays({test::Tray("Tray1", "A4"), test::Tray("Tray2", "A3")}, 2);
  manager.AddBins({{"Tray1", 0, nullptr}, {"Finisher", 0, nullptr}}, 1);
  manager.AddEmulations({{"WXDL-C", "2.0", nullptr}, {"OrlexScript2", "3.0", nullptr}}, 1);
  manager.AddFonts({{"GOTHIC"}, {"KAISHO"}});
  manager.AddOptions({163, 164});
  manager.AddStatuses({17, 32});
  return manager;
}

}  // namespace

TEST_CASE("questions about a chain without an end are answered") {
  for (uint32_t count : {1u, 4u, 0xFFFFFFFFu}) {
    CAPTURE(count);
    const EndlessRecord record(count);
    char text[256];
    PrnBitmap bitmap{};
    uint32_t equal = 0;
    CHECK(PatGetSimpleString_Ex(&record, text, sizeof text) == 1);
    CHECK(PatGetDetailString_Ex(&record, text, sizeof text) == 1);
    CHECK(PatGetRecoveryString_Ex(&record, text, sizeof text) == 1);
    CHECK(PatGetErrParts_Ex(&record, text) == 1);
    CHECK(PatGetPrnBitmap_Ex(&record, &bitmap) == 1);
    CHECK(PatCmpPrnInfoEX(&record, &record, 0xFFFFFFFF, &equal) == 1);
    CHECK(equal == 1);
  }
}

TEST_CASE("a chain without an end is written to, and given an end where it is rebuilt") {
  // Not the largest count: the first option makes 0 of it, and the next one releases the nodes.
  for (uint32_t count : {0u, 2u, 3u, 0xFFFFFFF0u}) {
    CAPTURE(count);
    EndlessRecord record(count);
    CHECK(SetPrnInfoExFromReadbackCmd(&record, kReply, sizeof kReply - 1) == 1);
    const char deviceId[] = "CMD:NDL,NPS,NWC,GL2;";
    CHECK(SetModelInfoExFromDeviceID(&record, deviceId, sizeof deviceId - 1) == 1);
  }
  const PrintManager manager = ManagerWithTwoOfEach();
  EndlessRecord record(3);
  CHECK(PatSetPMPrnInfoToPrnInfo(&record, &manager.record, 0xFFFFFFFF) == 1);
  CHECK(test::Describe(record) ==
        "tag=404 sized status[17 32 0] model='ZENTA C210' maker='ORLEX' version1='1.0' "
        "version2='2.0' version3='3.0' number=7 code=103 online language=2 languages[14 2] "
        "fonts[13 19] tray=4 trays[3:8:100 4:4:100] bins[1:1 4:1] options[105:0 1:0]");
}

TEST_CASE("no list of the print manager's becomes longer than a walk along it may be") {
  constexpr uint32_t kLongest = 65535;
  const std::vector<const void*> items(kLongest + 2, nullptr);
  const PMItemGroup group{kLongest + 2, items.data(), STM_ABSENT};
  PrintManager manager;
  manager.record.fontInfo = manager.record.statusListInfo = &group;
  test::Record record;
  CHECK(PatSetPMPrnInfoToPrnInfo(&record, &manager.record, GroupFonts | GroupStatusList) == 1);
  CHECK(record.fontCount == kLongest);
  CHECK(record.statusCount == kLongest);
  CHECK(test::Values(record.fontList, &FontNode::fontCode).size() == kLongest);
  CHECK(test::Values(record.statusList, &StatusNode::code).size() == kLongest);
}

TEST_CASE("a text that is marked as absent is no text to any call") {
  const auto absent = const_cast<char*>(kAbsentText);
  const auto markAll = [absent](test::Record& record) {
    for (char* PrnInfoEx::*text :
         {&PrnInfoEx::modelName, &PrnInfoEx::manufacturer, &PrnInfoEx::description,
          &PrnInfoEx::versionText1, &PrnInfoEx::versionText2, &PrnInfoEx::versionText3}) {
      GlobalFree(record.*text);
      record.*text = absent;
    }
  };
  const PrintManager manager = ManagerWithTwoOfEach();
  const std::string deviceId = "MFG:ORLEX;MDL:ZENTA C210;DES:ZENTA C250;";
  test::Record record;
  markAll(record);
  CHECK(SetPrnInfoExFromReadbackCmd(&record, kReply, sizeof kReply - 1) == 1);
  CHECK(record.versionText3 == std::string("3"));
  CHECK(SetModelInfoExFromDeviceID(&record, deviceId.data(), uint32_t(deviceId.size())) == 1);
  CHECK(record.description == std::string("ZENTA C250"));
  markAll(record);
  CHECK(PatSetPMPrnInfoToPrnInfo(&record, &manager.record, 0xFFFFFFFF) == 1);
  CHECK(record.versionText2 == std::string("2.0"));
  CHECK(record.description == nullptr);
  markAll(record);  // and the record's release takes them for none
}
