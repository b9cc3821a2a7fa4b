#include "status/dominant_status.h"

#include "both_records.h"
#include "doctest/doctest.h"
#include "status/trays.h"

namespace {

using Codes = std::vector<uint32_t>;

Codes Repeat(uint32_t code, size_t count, Codes then = {}) {
  Codes codes(count, code);
  codes.insert(codes.end(), then.begin(), then.end());
  return codes;
}

struct DominantCase {
  const char* why;
  test::Said said;
  uint32_t one;
  Codes all;
};

const DominantCase kCases[] = {
    {"no response beats everything",
     {.statuses = {36}, .printing = true, .noResponse = true},
     102,
     {102}},
    {"nothing listed", {}, 0, {}},
    {"nothing listed, printing", {.printing = true}, 100, {100}},
    {"service calls are one status", {.statuses = {36, 52}}, 48, {48}},
    {"the ends of the service calls", {.statuses = {64, 48, 49}}, 48, {48, 48, 48}},
    {"65 is no service call", {.statuses = {65, 0}}, 65, {65}},
    {"47 is no status at all", {.statuses = {47, 0}}, 0, {0}},
    {"paper runs out while printing", {.statuses = {32}, .printing = true}, 100, {100}},
    {"a cover opens while printing", {.statuses = {91}, .printing = true}, 91, {91}},
    {"a full output tray while printing", {.statuses = {34}, .printing = true}, 100, {100}},
    {"two paper states while printing", {.statuses = {70, 69}, .printing = true}, 100, {100}},
    {"table order, not list order", {.statuses = {76, 73}}, 73, {73, 76}},
    {"97 stands before 96", {.statuses = {96, 97}}, 97, {97, 96}},
    {"a better one empties the group", {.statuses = {66, 68, 72}}, 72, {72}},
    {"a worse one does not join", {.statuses = {72, 68, 70}}, 70, {70, 72}},
    {"only codes without a row", {.statuses = {1, 7, 100, 102}}, 0, {}},
    {"only codes without a row, printing", {.statuses = {1, 7}, .printing = true}, 100, {100}},
    {"sixteen of a kind", {.statuses = Repeat(69, 16)}, 69, Repeat(69, 16)},
    {"seventeen of a kind", {.statuses = Repeat(69, 17)}, 69, {}},
    {"seventeen before a better one", {.statuses = Repeat(69, 17, {36})}, 36, {}},
};

void CheckAll(const Codes& expected, const stm::DominantStatuses& got) {
  CHECK(Codes(got.codes, got.codes + got.count) == expected);
  if (expected.empty()) CHECK(got.codes[0] == 0);
}

}  // namespace

TEST_CASE("several statuses are reduced to the gravest, the same from both records") {
  for (const DominantCase& row : kCases) {
    CAPTURE(row.why);
    test::BothRecords records(row.said);
    CHECK(stm::GetDominantStatus(records.flat) == row.one);
    CHECK(stm::GetDominantStatus(records.list) == row.one);
    CheckAll(row.all, stm::GetDominantStatuses(records.flat));
    CheckAll(row.all, stm::GetDominantStatuses(records.list));
  }
}

TEST_CASE("counts that promise more than there is end at the array and at the chain") {
  test::BothRecords records({.statuses = Repeat(0, 31, {72})});
  records.flat.statusCount = records.list.statusCount = 0xFFFFFFFF;
  records.flat.reserved2[0] = 48;
  CHECK(stm::GetDominantStatus(records.flat) == 72);
  CHECK(stm::GetDominantStatus(records.list) == 72);

  test::BothRecords trays({.trays = {{4, 8}}});
  trays.flat.trayCount = trays.list.trayCount = 0xFFFFFFFF;
  CHECK_FALSE(stm::IsTrayPresent(stm::ViewTrays(trays.flat), trays.flat.trayCount));
  CHECK_FALSE(stm::IsTrayListed(stm::ViewTrays(trays.list), 5));
  trays.flat.trayCount = trays.list.trayCount = 0;
  CHECK_FALSE(stm::IsTrayPresent(stm::ViewTrays(trays.flat), 4));
  CHECK_FALSE(stm::IsTrayListed(stm::ViewTrays(trays.list), 4));
}

TEST_CASE("a tray is listed, and present unless its paper code says that it is missing") {
  test::BothRecords records({.trays = {{3, PaperNone}, {4, PaperTrayMissing}, {4, 8}}});
  const struct {
    uint32_t tray;
    bool listed, present;
  } rows[] = {{3, true, true}, {4, true, false}, {5, false, false}, {0x10003, false, false}};
  for (const auto& row : rows) {
    CAPTURE(row.tray);
    for (const stm::TrayView& trays :
         {stm::ViewTrays(records.flat), stm::ViewTrays(records.list)}) {
      CHECK(stm::IsTrayListed(trays, row.tray) == row.listed);
      CHECK(stm::IsTrayPresent(trays, row.tray) == row.present);
    }
  }
}
