// Replies and Device IDs on their way into the flat record.
#include "doctest/doctest.h"
#include "support.h"

using namespace std::string_literals;

namespace {

struct FlatCase {
  const char* why;
  std::string input;
  void (*change)(PrnInfo& record);  // what becomes different
};

const FlatCase kReplies[] = {
    {"one status stands in the code alone", "\033S\r4\r1\r2\r3\n",
     [](PrnInfo& to) {
       to.statusCode = 4, to.statusCount = 1;
       to.online = to.hasError = to.printing = 0, to.offline = 1;
       to.currentTray = 4, to.currentBin = 3;
     }},
    {"several statuses stand in the list", "\033S\r4,5,25\r0\r2\n",
     [](PrnInfo& to) {
       to.statusCode = 34u << 16 | 107, to.statusCount = 3;
       to.statusList[0] = 4, to.statusList[1] = 5, to.statusList[2] = 25;
       to.online = to.hasError = 1, to.printing = 0, to.offline = 0;
       to.currentTray = 4, to.currentBin = 0;
     }},
    {"the sum keeps 16 bits", "\033S\r65535,9\r0\r2\n",
     [](PrnInfo& to) {
       to.statusCode = 8u << 16 | 107, to.statusCount = 2;
       to.statusList[0] = 65535, to.statusList[1] = 9;
       to.online = to.hasError = 1, to.printing = 0, to.offline = 0;
       to.currentTray = 4, to.currentBin = 0;
     }},
    {"no status leaves the code", "\033S\n",
     [](PrnInfo& to) {
       to.statusCount = 0;
       to.online = 1, to.hasError = to.printing = 0, to.offline = 0;
       to.currentTray = to.currentBin = 0;
     }},
    {"model information", "\033V\rA\r1.01\rB\r123456\rC\r3\n\033M\r64\n",
     [](PrnInfo& to) {
       to.modelInfoNumber = 64;
       std::strcpy(to.versionText1, "1.01"), std::strcpy(to.versionText2, "123456");
       std::strcpy(to.versionText3, "3");
     }},
    {"language and fonts", "\033\x45\rNWC\n\033\x46\rKAISHO\rGOTHIC\n",
     [](PrnInfo& to) {
       to.emulationCode = 14;
       to.fontCount = 2, to.fontList[0] = 19, to.fontList[1] = 13;
     }},
    {"no fonts change nothing", "\033\x46\rSERIF\n", [](PrnInfo&) {}},
    {"trays and bins", "\033T\rT\r6\r1\r-1\n\033Z\rT\r50\r1\r0\n\033L\r2\r9\n",
     [](PrnInfo& to) {
       to.trayCount = to.trayLevelCount = 2, to.binCount = 1;
       to.trayList[0] = {1, 8}, to.trayList[1] = {3, 1};
       to.trayLevelList[0] = {1, 50}, to.trayLevelList[1] = {3, 0};
       to.binList[0] = {2, 9};
     }},
    {"no trays change nothing", "\033T\r\n", [](PrnInfo&) {}},
    {"the duplex unit alone changes nothing", "\033\x43\r1\n", [](PrnInfo&) {}},
    {"the duplex unit beside an option", "\033\x41\r1\n\033\x43\r1\n",
     [](PrnInfo& to) {
       to.hasDuplex = to.duplexFlag = to.option4Present = to.option4Flag = 1;
       to.option2Flag = to.option3Flag = to.optionBits1 = to.optionBits2 = to.finisherBits = 0;
     }},
    {"options by their bits", "\033\x44\rO:\x1F\rB:\x07\rF:\x02\rH:1\n",
     [](PrnInfo& to) {
       to.option5Present = to.option6Present = 1, to.optionBits1 = 0xF, to.optionBits2 = 0x7;
       to.finisherBits = 0x2, to.option2Flag = 1;
       to.duplexFlag = to.option3Flag = to.option4Flag = 0;
     }},
    {"no options change nothing", "\033\x44\r\n", [](PrnInfo&) {}},
    {"a block that is cut off changes nothing", "\033L\r2\r9", [](PrnInfo&) {}},
};

const FlatCase kDeviceIds[] = {
    {"all keys", "MFG:ORLEX;CMD:NDL,X,NPS;MDL:ZENTA C210;DES:ZENTA C250;",
     [](PrnInfo& to) {
       std::strcpy(to.modelName, "ZENTA C210"), std::strcpy(to.manufacturer, "ORLEX");
       std::strcpy(to.description, "ZENTA C250"), to.modelCode = 104;
       to.emulationCount = 3;
       to.emulationList[0] = 1, to.emulationList[1] = 0, to.emulationList[2] = 2;
     }},
    {"no key writes the model code only", "SN:1;", [](PrnInfo& to) { to.modelCode = 0; }},
    {"nothing writes the model code only", "", [](PrnInfo& to) { to.modelCode = 0; }},
    {"a maker of sixteen characters loses one", "MFG:ABCDEFGHIJKLMNOP;",
     [](PrnInfo& to) { std::strcpy(to.manufacturer, "ABCDEFGHIJKLMNO"), to.modelCode = 0; }},
    {"a double-byte character has no room", "MFG:ABCDEFGHIJKLMN\xE0\x40;",
     [](PrnInfo& to) { std::strcpy(to.manufacturer, "ABCDEFGHIJKLMN"), to.modelCode = 0; }},
    {"bytes that begin no double-byte character", "MFG:ABCDEFGHIJKL\x80\xB1\xFD\x40;",
     [](PrnInfo& to) {
       std::strcpy(to.manufacturer, "ABCDEFGHIJKL\x80\xB1\xFD"), to.modelCode = 0;
     }},
    {"more languages than places", "CMD:" + std::string(83, ',') + ";",
     [](PrnInfo& to) {
       to.emulationCount = 84, to.modelCode = 0;
       std::memset(to.emulationList, 0, sizeof to.emulationList);
     }},
    {"the longest field", "DES:" + std::string(260, 'x') + ";",
     [](PrnInfo& to) {
       std::memset(to.description, 'x', 250), to.description[250] = '\0', to.modelCode = 255;
     }},
};

PrnInfo Poisoned() {
  PrnInfo record;
  std::memset(&record, test::kPoison, sizeof record);
  return record;
}

// The first byte at which two records differ, 2400 when they are equal.
size_t Difference(const PrnInfo& left, const PrnInfo& right) {
  const auto* a = reinterpret_cast<const uint8_t*>(&left);
  const auto* b = reinterpret_cast<const uint8_t*>(&right);
  size_t at = 0;
  while (at < sizeof left && a[at] == b[at])
    ++at;
  return at;
}

uint32_t FromDeviceId(PrnInfo* record, const char* bytes, int32_t length) {
  return SetModelInfoFromDeviceID(record, bytes, static_cast<uint32_t>(length));
}

}  // namespace

TEST_CASE("the flat record changes where the input says something, and nowhere else") {
  const auto check = [](const FlatCase& row, auto* call) {
    CAPTURE(row.why);
    test::GuardedBytes input(row.input);
    PrnInfo record = Poisoned();
    PrnInfo expected = Poisoned();
    row.change(expected);
    CHECK(call(&record, input.data(), input.size()) == 1);
    CHECK(Difference(record, expected) == sizeof record);
  };
  for (const FlatCase& row : kReplies)
    check(
        row, +[](PrnInfo* to, const char* bytes, int32_t length) {
          return SetPrnInfoFromReadbackCmd(to, bytes, length);
        });
  for (const FlatCase& row : kDeviceIds)
    check(row, FromDeviceId);
}

TEST_CASE("a reply that is cut off tells the flat record what its whole blocks say") {
  for (const FlatCase& row : kReplies) {
    CAPTURE(row.why);
    test::ForEveryCut(row.input, [](test::GuardedBytes& cut) {
      if (cut.size() == 0) return;  // a reply has a readable byte
      CAPTURE(cut.size());
      const std::string_view whole = test::WholeBlocks({cut.data(), size_t(cut.size())});
      PrnInfo record = Poisoned();
      PrnInfo expected = Poisoned();
      CHECK(SetPrnInfoFromReadbackCmd(&record, cut.data(), cut.size()) == 1);
      SetPrnInfoFromReadbackCmd(&expected, whole.data(), static_cast<int32_t>(whole.size()));
      CHECK(Difference(record, expected) == sizeof record);
    });
  }
}

TEST_CASE("arrays take what fits, their counts tell what was reported") {
  struct {
    const char* why;
    std::string head;
    std::string entry;
    uint32_t entries;
    uint32_t PrnInfo::*count;
    size_t end;  // the first byte past the array
    uint32_t capacity;
    size_t entrySize;
  } const rows[] = {
      {"statuses", "\033S\r", "9,", 31, &PrnInfo::statusCount, offsetof(PrnInfo, statusCount), 32,
       4},
      {"trays", "\033T\r", "T\r6\r", 62, &PrnInfo::trayCount, offsetof(PrnInfo, trayCount), 64, 8},
      {"levels", "\033Z\r", "T\r6\r", 62, &PrnInfo::trayLevelCount,
       offsetof(PrnInfo, trayLevelCount), 16, 8},
      {"bins", "\033L\r", "1\r6\r", 62, &PrnInfo::binCount, offsetof(PrnInfo, binCount), 16, 8},
      {"fonts", "\033\x46\r", "GOTHIC\r", 35, &PrnInfo::fontCount, offsetof(PrnInfo, fontCount), 32,
       4},
  };
  for (const auto& row : rows) {
    CAPTURE(row.why);
    std::string reply = row.head;
    for (uint32_t i = 0; i < row.entries; ++i)
      reply += row.entry;
    reply.back() = row.head[1] == 'S' ? '\r' : '\n';
    if (row.head[1] == 'S') reply += "0\r1\n";
    PrnInfo record = Poisoned();
    CHECK(SetPrnInfoFromReadbackCmd(&record, reply.data(), static_cast<int32_t>(reply.size())) ==
          1);
    CHECK(record.*row.count == row.entries);
    // The last place of the array is taken exactly when there are entries enough.
    uint32_t last;
    std::memcpy(&last, reinterpret_cast<char*>(&record) + row.end - row.entrySize, sizeof last);
    CHECK((last == 0xA5A5A5A5) == (row.entries < row.capacity));
  }
}

TEST_CASE("a flat record is left alone by a call that fails") {
  PrnInfo record = Poisoned();
  const PrnInfo before = Poisoned();
  CHECK(SetPrnInfoFromReadbackCmd(&record, "x\033M\r1\n", 6) == 0);
  CHECK(SetPrnInfoFromReadbackCmd(&record, "M\r1\n", 0) == 0);
  CHECK(SetPrnInfoFromReadbackCmd(&record, "", 0) == 0);
  CHECK(SetPrnInfoFromReadbackCmd(&record, nullptr, 6) == 0);
  CHECK(SetPrnInfoFromReadbackCmd(&record, "\033M\r1\n", INT32_MIN) == 1);
  CHECK(Difference(record, before) == sizeof record);
  CHECK(SetPrnInfoFromReadbackCmd(nullptr, "\033M\r1\n", 5) == 0);
  CHECK(SetModelInfoFromDeviceID(nullptr, "MFG:A;", 6) == 0);
}

TEST_CASE("a missing Device ID counts as an empty one") {
  for (const char* deviceId : {static_cast<const char*>(nullptr), ""}) {
    PrnInfo record = Poisoned();
    PrnInfo expected = Poisoned();
    expected.modelCode = 0;
    CHECK(SetModelInfoFromDeviceID(&record, deviceId, deviceId ? 0 : 6) == 1);
    CHECK(Difference(record, expected) == sizeof record);
  }
}

TEST_CASE("options are not taken back from the fields that say so") {
  PrnInfo record{};
  const auto reply = "\033\x41\r1\n\033\x43\r1\n"s;
  const auto none = "\033\x44\rH:1\n"s;
  SetPrnInfoFromReadbackCmd(&record, reply.data(), static_cast<int32_t>(reply.size()));
  SetPrnInfoFromReadbackCmd(&record, none.data(), static_cast<int32_t>(none.size()));
  CHECK(record.hasDuplex == 1);
  CHECK(record.option4Present == 1);
  CHECK(record.duplexFlag == 0);
  CHECK(record.option4Flag == 0);
}
