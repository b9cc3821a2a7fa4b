#include <memory>

#include "doctest/doctest.h"
#include "support.h"

namespace {

using Codes = std::vector<uint8_t>;

constexpr uint32_t kSeveral = StatusSeveralMarker + (142u << 16);

// What `compose` writes into lists of `size` bytes, without the zeros at the end. Both lists stand
// in poison that must survive.
template <class Record>
Codes Compose(uint32_t(STM_CALL* compose)(const Record*, uint8_t*, uint8_t*, int32_t),
              const Record* record, int32_t size = 16) {
  uint8_t lists[2][202];
  std::memset(lists, test::kPoison, sizeof lists);
  CHECK(compose(record, lists[0] + 1, lists[1] + 1, size) == 64);
  const int32_t written = size < 64 ? size : 64;
  for (const auto& list : lists) {
    CHECK(list[0] == test::kPoison);
    CHECK(list[1 + written] == test::kPoison);
  }
  CHECK(Codes(lists[1] + 1, lists[1] + 1 + written) == Codes(static_cast<size_t>(written), 0));
  Codes codes(lists[0] + 1, lists[0] + 1 + written);
  while (!codes.empty() && codes.back() == 0)
    codes.pop_back();
  return codes;
}

struct FlatCase {
  const char* why;
  uint32_t statusCode = 0;
  std::vector<uint32_t> statuses = {};
  uint8_t printing = 0;
  uint32_t noResponse = 0;
  uint32_t currentTray = 0;
  std::vector<TrayPaper> trays = {};
  std::vector<TrayLevel> levels = {};
  Codes expected;
};

const FlatCase kFlatCases[] = {
    {.why = "ready, no trays", .expected = {1}},
    {.why = "a code without a row", .statusCode = 76543, .expected = {1}},
    {.why = "the row's overlays come after the tray units",
     .statusCode = 25,
     .trays = {{4, 8}},
     .expected = {1, 43, 3, 31, 12, 26, 7}},
    {.why = "both tray units from the front",
     .statusCode = 8,
     .trays = {{5, 8}, {4, 8}},
     .expected = {1, 43, 3, 55, 54}},
    {.why = "both tray units from the back",
     .statusCode = 45,
     .trays = {{4, 8}, {5, 8}},
     .expected = {44, 4, 57, 56}},
    {.why = "back cover open without tray units", .statusCode = 39, .expected = {}},
    {.why = "no response hides the status",
     .statusCode = 25,
     .noResponse = 1,
     .trays = {{4, 8}},
     .expected = {1, 43, 3, 42, 23}},
    {.why = "no response still marks the status's toner",
     .statusCode = 74,
     .noResponse = 2,
     .expected = {1, 36, 17, 42, 23}},
    {.why = "printing wins over ready: the trays are not asked",
     .statusCode = 0,
     .printing = 1,
     .trays = {{3, 41}},
     .expected = {1}},
    {.why = "printing does not win from code 24 on",
     .statusCode = 25,
     .printing = 1,
     .expected = {1, 31, 12, 26, 7}},
    {.why = "cyan empty", .statusCode = 69, .expected = {1, 31, 12, 37, 18}},
    {.why = "cyan not placed looks the same", .statusCode = 73, .expected = {1, 31, 12, 37, 18}},
    {.why = "black, which has no row of its own",
     .statusCode = 76,
     .expected = {1, 31, 12, 34, 15}},
    {.why = "a nearly empty toner is not marked", .statusCode = 65, .expected = {1}},
    {.why = "misfeed at tray 2",
     .statusCode = 44,
     .currentTray = 4,
     .trays = {{4, 8}},
     .expected = {1, 43, 3, 25, 6, 24, 5}},
    {.why = "misfeed at the bypass tray",
     .statusCode = 44,
     .currentTray = 1,
     .expected = {1, 24, 5}},
    {.why = "several: two toners empty",
     .statusCode = kSeveral,
     .statuses = {71, 69},
     .expected = {1, 31, 12, 37, 18, 35, 16}},
    {.why = "several: a misfeed twice marks its tray twice",
     .statusCode = kSeveral,
     .statuses = {44, 44},
     .currentTray = 5,
     .expected = {1, 59, 58, 59, 58, 24, 5}},
    {.why = "several: nothing to mark, so the trays are asked",
     .statusCode = kSeveral,
     .statuses = {33, 32},
     .currentTray = 3,
     .expected = {1, 24, 5}},
    {.why = "several: no listed code has a row",
     .statusCode = kSeveral,
     .statuses = {1, 7},
     .trays = {{3, 41}},
     .expected = {1, 24, 5}},
    {.why = "several: more ties than are told apart",
     .statusCode = kSeveral,
     .statuses = std::vector<uint32_t>(17, 69),
     .expected = {1}},
    {.why = "the marker without a list is a code without a row",
     .statusCode = kSeveral,
     .expected = {1}},
    {.why = "a list without the marker is not read",
     .statusCode = 0,
     .statuses = {69},
     .expected = {1}},
    {.why = "ready: trays not placed come before empty ones",
     .trays = {{5, 41}, {3, 1}, {1, 41}, {4, 41}},
     .expected = {1, 43, 3, 55, 54, 59, 58, 25, 6}},
    {.why = "ready: tray 1 not placed comes before empty ones",
     .trays = {{3, 41}, {1, 41}, {4, 1}},
     .expected = {1, 43, 3, 24, 5}},
    {.why = "ready: tray 2 not placed comes before empty ones",
     .trays = {{4, 41}, {3, 1}},
     .expected = {1, 43, 3, 25, 6}},
    {.why = "ready: tray 3 not placed comes before empty ones",
     .trays = {{5, 41}, {3, 1}},
     .expected = {1, 55, 54, 59, 58}},
    {.why = "ready: empty by code, then by level, but not the bypass nor a missing one",
     .trays = {{1, 1}, {3, 1}, {4, 8}, {2, 41}},
     .levels = {{1, 0}, {4, 1}, {2, 0}, {5, 0}, {3, 2}},
     .expected = {1, 43, 3, 24, 5, 25, 6}},
    {.why = "tray not placed: the one in use",
     .statusCode = 33,
     .currentTray = 3,
     .trays = {{4, 41}},
     .expected = {1, 43, 3, 24, 5}},
    {.why = "tray not placed, but none that is in the picture: paper is not asked",
     .statusCode = 33,
     .currentTray = 6,
     .trays = {{3, 1}},
     .expected = {1}},
    {.why = "no paper, no tray in use: none is marked",
     .statusCode = 32,
     .trays = {{3, 1}, {4, 1}},
     .levels = {{3, 0}},
     .expected = {1, 43, 3}},
};

PrnInfo FlatRecord(const FlatCase& row) {
  PrnInfo info{};
  info.statusCode = row.statusCode;
  info.statusCount = static_cast<uint32_t>(row.statuses.size());
  std::copy(row.statuses.begin(), row.statuses.end(), info.statusList);
  info.printing = row.printing;
  info.noResponse = row.noResponse;
  info.currentTray = row.currentTray;
  info.trayCount = static_cast<uint32_t>(row.trays.size());
  std::copy(row.trays.begin(), row.trays.end(), info.trayList);
  info.trayLevelCount = static_cast<uint32_t>(row.levels.size());
  std::copy(row.levels.begin(), row.levels.end(), info.trayLevelList);
  return info;
}

struct Tray {
  uint16_t id;
  uint16_t paperCode;
  uint16_t level;
};

struct ListCase {
  const char* why;
  std::vector<uint16_t> statuses = {};
  uint8_t online = 1;
  uint8_t printing = 0;
  uint8_t noResponse = 0;
  uint32_t currentTray = 0;
  std::vector<Tray> trays = {};
  std::vector<uint16_t> options = {};
  uint32_t trayCount = 0xFFFF;  // the chain is what ends the walk
  Codes expected;
};

const ListCase kListCases[] = {
    {.why = "nothing reported", .expected = {1}},
    {.why = "no response", .statuses = {25}, .noResponse = 1, .expected = {1, 42, 23}},
    {.why = "printing hides a mild status",
     .statuses = {25},
     .printing = 1,
     .trays = {{3, 41, 0}},
     .expected = {1}},
    {.why = "tray 2 is drawn from the front, tray 3 is not",
     .statuses = {25},
     .trays = {{4, 8, 5}, {5, 8, 5}},
     .expected = {1, 43, 3, 31, 12, 26, 7}},
    {.why = "service calls share a row", .statuses = {52}, .expected = {1, 41, 22}},
    {.why = "toners in the order of urgency",
     .statuses = {72, 70, 4},
     .expected = {1, 31, 12, 36, 17, 34, 15}},
    {.why = "ready: not placed by code, then what is empty",
     .statuses = {0},
     .trays = {{3, 41, 0}, {4, 8, 1}, {5, 1, 9}},
     .expected = {1, 43, 3, 24, 5, 25, 6}},
    {.why = "ready: one not placed that is in the picture comes before empty ones",
     .statuses = {0},
     .trays = {{3, 41, 9}, {1, 41, 9}, {4, 1, 9}},
     .expected = {1, 43, 3, 24, 5}},
    {.why = "ready: empty by code, and again by level",
     .statuses = {0},
     .trays = {{3, 1, 9}, {5, 1, 9}},
     .expected = {1, 24, 5, 59, 58}},
    {.why = "ready: an empty level alone already matches the first rule",
     .statuses = {0},
     .trays = {{3, 1, 9}, {5, 8, 0}},
     .expected = {1, 59, 58}},
    {.why = "ready but offline: the trays are not asked",
     .statuses = {0},
     .online = 0,
     .trays = {{3, 1, 0}},
     .expected = {1}},
    {.why = "the walk ends at the count",
     .statuses = {0},
     .trays = {{3, 1, 9}, {5, 1, 9}},
     .trayCount = 1,
     .expected = {1, 24, 5}},
    {.why = "no paper at the tray in use",
     .statuses = {32},
     .currentTray = 3,
     .trays = {{3, 1, 0}, {5, 1, 0}},
     .expected = {1, 24, 5}},
    {.why = "no paper, no tray in use: every empty tray, once by code and once by level",
     .statuses = {32},
     .trays = {{3, 1, 0}, {5, 8, 1}, {4, 41, 0}},
     .expected = {1, 43, 3, 24, 5, 24, 5, 59, 58}},
    {.why = "not placed at the bypass tray: it is not in the picture",
     .statuses = {33},
     .currentTray = 1,
     .trays = {{3, 41, 0}},
     .expected = {1}},
    {.why = "misfeed marks tray 2 when it is there",
     .statuses = {44},
     .currentTray = 3,
     .trays = {{4, 8, 5}},
     .expected = {1, 43, 3, 25, 6, 24, 5}},
    {.why = "misfeed without tray 2", .statuses = {44}, .currentTray = 3, .expected = {1, 24, 5}},
    {.why = "back cover open: duplex unit and tray 3, a mask first",
     .statuses = {39},
     .trays = {{4, 8, 5}, {5, 8, 5}},
     .options = {2, 1},
     .expected = {57, 56, 67, 66, 52, 48}},
    {.why = "back cover open: no duplex unit, tray 2",
     .statuses = {39},
     .trays = {{4, 8, 5}, {5, 8, 5}},
     .options = {2},
     .expected = {2, 38, 19, 44, 4}},
    {.why = "cover behind a tray: with tray 2",
     .statuses = {90},
     .trays = {{4, 8, 5}},
     .expected = {2, 44, 4, 61, 60}},
    {.why = "duplex cover open without a duplex unit: the row alone",
     .statuses = {91},
     .trays = {{5, 8, 5}},
     .expected = {67, 66, 51, 47, 52, 48}},
    {.why = "duplex cover open with the unit: the row again after the rear view",
     .statuses = {91},
     .options = {1},
     .expected = {67, 66, 51, 47, 52, 48, 67, 66, 51, 47, 52, 48}},
    {.why = "tray connector: tray 2 with or without the duplex unit",
     .statuses = {93},
     .options = {1},
     .expected = {1, 43, 3, 25, 6}},
    {.why = "tray connector without the duplex unit: only an installed tray 2",
     .statuses = {93},
     .expected = {1}},
    {.why = "misfeeds of both duplex units: 97 leads",
     .statuses = {96, 97},
     .options = {1},
     .expected = {67, 66, 52, 48, 51, 47, 67, 66, 52, 48}},
    {.why = "misfeed in the duplex unit that is not listed",
     .statuses = {96},
     .expected = {51, 47, 67, 66, 51, 47}},
};

template <class Node>
Node* Chain(size_t count) {
  Node* head = nullptr;
  for (; count > 0; --count) {
    auto* node = static_cast<Node*>(GlobalAlloc(GPTR, sizeof(Node)));
    node->next = head;
    head = node;
  }
  return head;
}

void FillRecord(const ListCase& row, test::Record& info) {
  info.statusCount = static_cast<uint32_t>(row.statuses.size());
  info.statusList = Chain<StatusNode>(row.statuses.size());
  StatusNode* status = info.statusList;
  for (uint16_t code : row.statuses) {
    status->code = code;
    status = status->next;
  }
  info.trayCount = row.trayCount;
  info.trayList = Chain<TrayNode>(row.trays.size());
  TrayNode* tray = info.trayList;
  for (const Tray& told : row.trays) {
    tray->trayId = told.id;
    tray->paperCode = told.paperCode;
    tray->paperLevel = told.level;
    tray = tray->next;
  }
  info.optionList = Chain<OptionNode>(row.options.size());
  OptionNode* option = info.optionList;
  for (uint16_t code : row.options) {
    option->optionCode = code;
    option = option->next;
  }
  info.online = row.online;
  info.printing = row.printing;
  info.noResponse = row.noResponse;
  info.currentTray = row.currentTray;
}

}  // namespace

TEST_CASE("a flat record's picture") {
  for (const FlatCase& row : kFlatCases) {
    CAPTURE(row.why);
    const PrnInfo info = FlatRecord(row);
    CHECK(Compose(PatGetPrnBitmapEx, &info) == row.expected);
  }
}

TEST_CASE("a list-based record's picture") {
  for (const ListCase& row : kListCases) {
    CAPTURE(row.why);
    test::Record info;
    FillRecord(row, info);
    CHECK(Compose<PrnInfoEx>(PatGetPrnBitmapEx_Ex, &info) == row.expected);
  }
}

TEST_CASE("a part list ends at the size that the caller gives") {
  PrnInfo info{};
  info.statusCode = 38;
  for (uint32_t i = 0; i < 64; ++i)
    info.trayList[i] = {3 + i % 3, PaperTrayMissing};
  info.trayCount = 0xFFFFFFFF;       // told by a broken printer: 64 are stored
  info.trayLevelCount = 0xFFFFFFFF;  // likewise, 16
  const Codes full = Compose(PatGetPrnBitmapEx, &info, 64);
  CHECK(full == Codes{1, 43, 3, 55, 54, 31, 12, 34, 15, 35, 16, 36, 17, 37, 18});

  info.statusCode = 0;
  const Codes crowded = Compose(PatGetPrnBitmapEx, &info, 64);
  CHECK(crowded.size() == 64);
  for (int32_t size : {16, 17, 63}) {
    CAPTURE(size);
    CHECK(Compose(PatGetPrnBitmapEx, &info, size) ==
          Codes(crowded.begin(), crowded.begin() + size));
  }
  CHECK(Compose(PatGetPrnBitmapEx, &info, 200) == crowded);
}

TEST_CASE("a picture without a record or without room is refused") {
  const auto info = std::make_unique<PrnInfo>();
  const test::Record infoEx;
  const Codes untouched(16, test::kPoison);
  Codes list = untouched;
  Codes extra = untouched;
  for (int32_t size : {INT32_MIN, -1, 0, 15}) {
    CAPTURE(size);
    CHECK(PatGetPrnBitmapEx(nullptr, list.data(), extra.data(), size) == 0);
    CHECK(PatGetError() == PatErrorNotFound);
    CHECK(PatGetPrnBitmapEx(info.get(), list.data(), extra.data(), size) == 0);
    CHECK(PatGetError() == PatErrorPicture);
    CHECK(PatGetPrnBitmapEx_Ex(nullptr, list.data(), extra.data(), size) == 0);
    CHECK(PatGetError() == PatErrorNotFound);
    CHECK(PatGetPrnBitmapEx_Ex(&infoEx, list.data(), extra.data(), size) == 0);
    CHECK(PatGetError() == PatErrorPicture);
  }
  CHECK(PatGetPrnBitmapEx(info.get(), nullptr, extra.data(), 16) == 0);
  CHECK(PatGetPrnBitmapEx_Ex(&infoEx, list.data(), nullptr, 16) == 0);
  CHECK(list == untouched);
  CHECK(extra == untouched);

  PrnBitmap bitmap;
  std::memset(&bitmap, test::kPoison, sizeof bitmap);
  CHECK(PatGetPrnBitmap(nullptr, &bitmap) == 0);
  CHECK(PatGetError() == PatErrorNotFound);
  CHECK(PatGetPrnBitmap(info.get(), nullptr) == 0);
  CHECK(PatGetError() == PatErrorPicture);
  CHECK(PatGetPrnBitmap_Ex(nullptr, &bitmap) == 0);
  CHECK(PatGetPrnBitmap_Ex(&infoEx, nullptr) == 0);
  CHECK(bitmap.partCodes[0] == test::kPoison);
}

TEST_CASE("the fixed-size twins fill both lists of a PrnBitmap and leave its first field") {
  const FlatCase flat{.why = "", .statusCode = 37, .trays = {{5, 8}}, .expected = {}};
  const PrnInfo info = FlatRecord(flat);
  test::Record infoEx;
  FillRecord({.why = "", .statuses = {37}, .trays = {{4, 8, 5}}, .expected = {}}, infoEx);
  PrnBitmap bitmaps[2];
  std::memset(bitmaps, test::kPoison, sizeof bitmaps);
  CHECK(PatGetPrnBitmap(&info, &bitmaps[0]) == 1);
  CHECK(PatGetPrnBitmap_Ex(&infoEx, &bitmaps[1]) == 1);
  const uint8_t expected[2][8] = {{1, 55, 54, 32, 13, 0, 0, 0}, {1, 43, 3, 32, 13, 0, 0, 0}};
  for (int i : {0, 1}) {
    CHECK(std::memcmp(bitmaps[i].partCodes, expected[i], 8) == 0);
    CHECK(Codes(bitmaps[i].extraPartCodes, bitmaps[i].extraPartCodes + 16) == Codes(16, 0));
    CHECK(bitmaps[i].reserved[3] == test::kPoison);
  }
}
