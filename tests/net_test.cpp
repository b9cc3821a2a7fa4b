#include <algorithm>
#include <iterator>

#include "describe_flat.h"
#include "doctest/doctest.h"
#include "support.h"

namespace {

using test::PoisonedPrnInfo;

bool Same(const PrnInfo& a, const PrnInfo& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

// Asks with a list whose array of pointers ends where readable memory ends. The list's entries may
// be null pointers.
template <class Entry>
uint32_t Fill(PrnInfo& info, uint32_t mode, const std::vector<const Entry*>& entries,
              int32_t current) {
  test::GuardedBytes array(
      {reinterpret_cast<const char*>(entries.data()), entries.size() * sizeof(Entry*)});
  NetInfoList list{static_cast<int32_t>(entries.size()), current, nullptr, nullptr};
  if (mode == NetModeOptions) {
    list.optionEntries = reinterpret_cast<const NetOptionEntry* const*>(array.data());
  } else {
    list.entries = reinterpret_cast<const void* const*>(array.data());
  }
  return PatGetInfoFromNet(&info, mode, &list);
}

void Clear(PrnInfo& info, size_t firstPair) {
  for (size_t i = firstPair; i < std::size(info.trayList); ++i)
    info.trayList[i] = {};
  for (size_t i = firstPair; i < std::size(info.trayLevelList); ++i)
    info.trayLevelList[i] = {};
}

}  // namespace

TEST_CASE("a network tray gets its id, paper and level") {
  struct Row {
    const char* why;
    NetTrayEntry entry;
    uint32_t tray, paper, level;
  };
  const Row rows[] = {
      {"plain", {"Tray2", 0, "A4R"}, 4, 9, 100},
      {"two names of the bypass tray", {"BypassTray", 0, "A4"}, 1, 8, 100},
      {"last row of both tables", {"Multi", 0, "128"}, 2, 41, 100},
      {"first row of both tables", {"HandTray", 0, "-1"}, 1, 1, 100},
      {"a number that shares its code", {"LCT", 0, "80"}, 7, 2, 100},
      {"case counts", {"tray1", 0, "a4"}, 0, 0, 100},
      {"names are compared whole", {"Tray", 0, "A4 "}, 0, 0, 100},
      {"empty names", {"", 0, ""}, 0, 0, 100},
      {"null names", {nullptr, 0, nullptr}, 0, 0, 100},
      {"unknown and missing", {"Tray9", 0x4, "A4"}, 41, 8, 41},
      {"known and missing", {"Tray1", 0x4, "A4"}, 3, 8, 41},
      {"no paper before missing", {"Tray1", 0x6, "A4"}, 3, 8, 1},
      {"missing before amounts", {"Tray1", 0xF04, "A4"}, 3, 8, 41},
      {"first quarter", {"Tray1", 0x100, "A4"}, 3, 8, 25},
      {"second quarter", {"Tray1", 0x200, "A4"}, 3, 8, 25},
      {"half before three quarters", {"Tray1", 0xC00, "A4"}, 3, 8, 50},
      {"three quarters", {"Tray1", 0x800, "A4"}, 3, 8, 75},
      {"flags without a meaning", {"Tray1", 0xFFFFF0F9, "A4"}, 3, 8, 100},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    PrnInfo expected = PoisonedPrnInfo();
    Clear(expected, 1);
    expected.trayList[0] = {row.tray, row.paper};
    expected.trayLevelList[0] = {row.tray, row.level};
    expected.trayCount = expected.trayLevelCount = 1;
    expected.currentTray = row.tray;
    PrnInfo info = PoisonedPrnInfo();
    CHECK(Fill<NetTrayEntry>(info, NetModeTrays, {&row.entry}, 1) == 1);
    CHECK(info.trayList[0].trayId == row.tray);
    CHECK(info.trayList[0].paperCode == row.paper);
    CHECK(info.trayLevelList[0].paperLevel == row.level);
    CHECK(Same(info, expected));
  }
}

TEST_CASE("network trays keep their index and never pass the arrays") {
  const NetTrayEntry entry = {"Tray1", 0x400, "A4"};
  for (const size_t length : {0u, 1u, 15u, 16u, 17u, 64u, 100u}) {
    for (const bool gap : {false, true}) {
      for (const int32_t current : {INT32_MIN, -1, 0, 2, 16, 17, INT32_MAX}) {
        CAPTURE(length);
        CAPTURE(gap);
        CAPTURE(current);
        std::vector<const NetTrayEntry*> entries(length, &entry);
        if (gap && length > 0) entries[length / 2] = nullptr;
        const size_t stored = length < 16 ? length : 16;
        PrnInfo expected = PoisonedPrnInfo();
        Clear(expected, stored);
        expected.trayCount = 0;
        for (size_t i = 0; i < stored; ++i) {
          if (!entries[i]) continue;
          expected.trayList[i] = {3, 8};
          expected.trayLevelList[i] = {3, 50};
          if (current == static_cast<int32_t>(i) + 1) expected.currentTray = 3;
          ++expected.trayCount;
        }
        expected.trayLevelCount = expected.trayCount;
        PrnInfo info = PoisonedPrnInfo();
        CHECK(Fill(info, NetModeTrays, entries, current) == 1);
        CHECK(Same(info, expected));
      }
    }
  }
}

TEST_CASE("network bins give ids, states and option bits") {
  struct Row {
    const char* why;
    std::vector<NetBinEntry> entries;
    std::vector<BinEntry> bins;
    uint32_t bits1, bits2;
  };
  const Row rows[] = {
      {"none", {}, {}, 0, 0},
      {"a finisher and a tray", {{"Finisher", 0}, {"Tray1", 0}}, {{4, 0}, {1, 0}}, 0x5, 0},
      {"the walk ends at an unknown bin",
       {{"Tray1", 1}, {"Tray 1", 2}, {"Ext.Tray", 3}},
       {{1, 2}, {0, 1}, {3, 2}},
       0x1,
       0},
      {"null name", {{nullptr, 0}}, {{0, 0}}, 0, 0},
      {"only the low byte",
       {{"PrintPostBin1", 0xFFFFFF00}, {"Ext.Tray", 0xFFFFFFFC}},
       {{7, 0}, {3, 0}},
       0x2,
       0x2},
      {"last bin", {{"PrintPostBin9", 0}, {"PrintPostProof", 0}}, {{15, 0}, {6, 0}}, 0, 0},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    std::vector<const NetBinEntry*> entries;
    for (const NetBinEntry& entry : row.entries)
      entries.push_back(&entry);
    PrnInfo expected = PoisonedPrnInfo();
    std::memset(expected.binList, 0, sizeof expected.binList);
    std::copy(row.bins.begin(), row.bins.end(), expected.binList);
    expected.binCount = static_cast<uint32_t>(row.bins.size());
    expected.optionBits1 = row.bits1;
    expected.optionBits2 = row.bits2;
    if (row.bins.size() > 1) expected.currentBin = row.bins[1].binId;
    PrnInfo info = PoisonedPrnInfo();
    CHECK(Fill(info, NetModeBins, entries, 2) == 1);
    CHECK(info.optionBits1 == row.bits1);
    CHECK(info.optionBits2 == row.bits2);
    CHECK(Same(info, expected));
  }
}

TEST_CASE("a gap among network bins keeps what the record held there") {
  // Id 5 comes from elsewhere: it takes the finisher's bit away, as id 2 sets a bit of its own.
  const NetBinEntry finisher = {"Finisher", 0};
  std::vector<const NetBinEntry*> entries(20, &finisher);
  entries[1] = entries[2] = nullptr;
  PrnInfo info = PoisonedPrnInfo();
  info.binList[1] = {5, 1};
  info.binList[2] = {2, 1};
  CHECK(Fill(info, NetModeBins, entries, 20) == 1);
  CHECK(info.binCount == 14);
  CHECK(info.binList[1].binId == 5);
  CHECK(info.binList[15].binId == 4);
  CHECK(info.optionBits1 == 0);
  CHECK(info.optionBits2 == 0x1);
  CHECK(info.currentBin == PoisonedPrnInfo().currentBin);
}

TEST_CASE("network options set their flags") {
  const NetOptionEntry duplex = {"DuplexUnit"}, disk = {"HardDiskUnit"};
  const NetOptionEntry sort = {"ElectronicSort"}, other = {"Duplex"}, null = {nullptr};
  struct Row {
    std::vector<const NetOptionEntry*> entries;
    uint32_t duplex, disk, sort;
  };
  std::vector<const NetOptionEntry*> many(40, &other);
  many.push_back(&duplex);
  const Row rows[] = {
      {{}, 0, 0, 0},
      {{&disk, nullptr, &null, &sort}, 0, 1, 1},
      {{&duplex, &other}, 1, 0, 0},
      {many, 1, 0, 0},
  };
  for (const Row& row : rows) {
    PrnInfo expected = PoisonedPrnInfo();
    expected.hasDuplex = row.duplex;
    expected.option2Flag = row.disk;
    expected.option3Flag = row.sort;
    PrnInfo info = PoisonedPrnInfo();
    CHECK(Fill(info, NetModeOptions, row.entries, 1) == 1);
    CHECK(Same(info, expected));
  }
}

TEST_CASE("network lists without a place or a meaning are refused") {
  struct Row {
    const char* why;
    bool record, list;
    uint32_t mode;
    uint32_t result, error;
  };
  const Row rows[] = {
      {"no record", false, true, NetModeTrays, 0, PatErrorNullRecord},
      {"no record, unknown mode", false, true, 7, 0, PatErrorNullRecord},
      {"no list", true, false, NetModeBins, 0, PatErrorNullRecord},
      {"mode 0", true, true, 0, 0, PatErrorNotFound},
      {"mode 4, no list", true, false, 4, 0, PatErrorNotFound},
  };
  const NetTrayEntry entry = {"Tray1", 0, "A4"};
  const void* entries[] = {&entry};
  const NetInfoList list = {1, 1, nullptr, entries};
  for (const Row& row : rows) {
    CAPTURE(row.why);
    StatusRow status;
    PrnInfo unknown = PoisonedPrnInfo();
    PatGetPrinterStatus(&unknown, &status);
    REQUIRE(PatGetError() == PatErrorNotFound);
    PrnInfo info = PoisonedPrnInfo();
    CHECK(PatGetInfoFromNet(row.record ? &info : nullptr, row.mode, row.list ? &list : nullptr) ==
          row.result);
    CHECK(PatGetError() == row.error);
    CHECK(Same(info, PoisonedPrnInfo()));
  }
}

TEST_CASE("a network list without its array is empty") {
  for (const int32_t count : {INT32_MIN, 0, 3}) {
    const NetInfoList list = {count, 1, nullptr, nullptr};
    PrnInfo expected = PoisonedPrnInfo();
    Clear(expected, 0);
    expected.trayCount = expected.trayLevelCount = 0;
    PrnInfo info = PoisonedPrnInfo();
    CHECK(PatGetInfoFromNet(&info, NetModeTrays, &list) == 1);
    CHECK(Same(info, expected));
    CHECK(PatGetInfoFromNet(&info, NetModeOptions, &list) == 1);
    CHECK(info.hasDuplex == 0);
  }
}

TEST_CASE("a network status is a status code") {
  for (const uint32_t status : {0u, 36u, 0xFFFFFFFFu})
    CHECK(PatGetStatusFromNet(status) == status);
}
