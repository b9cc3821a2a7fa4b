#include "both_records.h"
#include "doctest/doctest.h"

namespace {

struct StateCase {
  const char* why;
  test::Said said;
  std::string flat, list;
};

const StateCase kStates[] = {
    {"ready", {.statuses = {0}}, "ICO_ONLINE", "ICO_ONLINE"},
    {"energy saver, offline", {.statuses = {18}, .online = false}, "ICO_OFFLINE", "ICO_OFFLINE"},
    {"the mild codes end at 23",
     {.statuses = {25}, .online = false},
     "ICO_ERR_WASTONER",
     "ICO_ERR_WASTONER"},
    {"cover open, offline", {.statuses = {36}, .online = false}, "ICO_ERR_COVER", "ICO_ERR_COVER"},
    {"self check", {.statuses = {19}}, "ICO_WARMUP", "ICO_WARMUP"},
    {"no icon of its own", {.statuses = {31}}, "BMP_ERR_CAUTION", "BMP_ERR_CAUTION"},
    {"a service call is folded only when it is chosen",
     {.statuses = {52}},
     "BMP_ERR_CAUTION",
     "ICO_ERR_SERVICE"},
    {"the gravest of several", {.statuses = {0, 52, 36}}, "ICO_ERR_SERVICE", "ICO_ERR_SERVICE"},
    {"nothing listed, printing", {.printing = true}, "ICO_ONLINE", "ICO_ONLINE"},
    {"nothing listed, printing, offline",
     {.online = false, .printing = true},
     "ICO_OFFLINE",
     "ICO_OFFLINE"},
    {"printing hides the paper only when it is chosen",
     {.statuses = {32}, .printing = true},
     "ICO_ERR_PAPER",
     "ICO_ONLINE"},
    {"no response", {.statuses = {36}, .noResponse = true}, "ICO_ERR_COVER", "ICO_ERR_POWEROFF"},
    {"no response, offline, nothing listed",
     {.online = false, .noResponse = true},
     "ICO_OFFLINE",
     "ICO_ERR_POWEROFF"},
};

}  // namespace

TEST_CASE("the state icon of both records") {
  for (const StateCase& row : kStates) {
    CAPTURE(row.why);
    test::BothRecords records(row.said);
    test::GuardedBytes flat(std::string(17, 'x'));
    CHECK(PatGetErrParts(&records.flat, flat.data()) == 1);
    CHECK(flat.data() == row.flat);
    test::GuardedBytes list(std::string(17, 'x'));
    CHECK(PatGetErrParts_Ex(&records.list, list.data()) == 1);
    CHECK(list.data() == row.list);
  }
  // A list without a count, and the mark of several without a list.
  test::BothRecords records({.statuses = {36}});
  records.list.statusCount = records.flat.statusCount = 0;
  records.flat.statusCode = StatusSeveralMarker;
  char icon[17];
  CHECK(PatGetErrParts(&records.flat, icon) == 1);
  CHECK(icon == std::string("BMP_ERR_CAUTION"));
  CHECK(PatGetErrParts_Ex(&records.list, icon) == 1);
  CHECK(icon == std::string("ICO_ONLINE"));
}

TEST_CASE("the paper-level icon") {
  const struct {
    uint32_t amount;
    std::string icon;
  } rows[] = {{0, "ICO_PAP_0"},    {1, "ICO_PAP_25"},         {24, "ICO_PAP_25"},
              {25, "ICO_PAP_50"},  {50, "ICO_PAP_50"},        {51, "ICO_PAP_75"},
              {75, "ICO_PAP_75"},  {76, "ICO_PAP_100"},       {100, "ICO_PAP_100"},
              {101, "ICO_PAP_75"}, {0xFFFFFFFF, "ICO_PAP_75"}};
  for (const auto& row : rows) {
    CAPTURE(row.amount);
    PatGetErrParts(nullptr, nullptr);
    test::GuardedBytes buffer(std::string(12, 'x'));
    CHECK(PatGetIconName(1, row.amount, buffer.data(), 0) == 1);
    CHECK(buffer.data() == row.icon);
    CHECK(PatGetError() == PatErrorNone);
  }
  PatGetErrParts(nullptr, nullptr);
  char buffer[] = "x";
  CHECK(PatGetIconName(2, 50, buffer, sizeof buffer) == 0);
  CHECK(buffer[0] == '\0');
  CHECK(PatGetError() == PatErrorNullRecord);
}

TEST_CASE("an entry of the parts table, with and without a record") {
  const PrnInfo info{};
  PrnPart part{};
  CHECK(PatGetPrnParts(&info, 67, &part) == 1);
  CHECK(part.bitmapName == std::string("BMP_PB_DUP_BACK2"));
  CHECK(part.ropSet == 0x008800C6);
  CHECK(part.ropClear == 0x00BB0226);

  part = {};
  CHECK(PatGetPrnParts_Ex(nullptr, 5, &part) == 0);
  CHECK(PatGetError() == PatErrorNullRecord);
  CHECK(part.bitmapName == std::string("BMP_PR_P_TRAY1"));
  CHECK(part.ropSet == 0x00EE0086);

  part = {"untouched", 1, 2};
  CHECK(PatGetPrnParts(&info, 68, &part) == 0);
  CHECK(PatGetError() == PatErrorNotFound);
  CHECK(PatGetPrnParts(nullptr, 255, &part) == 0);
  CHECK(PatGetError() == PatErrorNullRecord);
  CHECK(part.bitmapName == std::string("untouched"));
}

TEST_CASE("every bitmap that the parts table names is in the library") {
  const PrnInfo info{};
  PrnPart part{};
  for (uint8_t index = 1; PatGetPrnParts(&info, index, &part); ++index) {
    CAPTURE(index);
    CHECK(PatFindResource(part.bitmapName));
  }
}

TEST_CASE("questions without a place for the answer are refused") {
  const PrnInfo info{};
  const test::Record list;
  char buffer[20] = "untouched";
  CHECK(PatGetErrParts(nullptr, buffer) == 0);
  CHECK(PatGetErrParts_Ex(nullptr, buffer) == 0);
  CHECK(std::string(buffer) == "untouched");
  CHECK(PatGetErrParts(&info, nullptr) == 0);
  CHECK(PatGetErrParts_Ex(&list, nullptr) == 0);
  CHECK(PatGetIconName(1, 1, nullptr, 0) == 0);
  CHECK(PatGetPrnParts(&info, 1, nullptr) == 0);
  CHECK(PatGetPaperName(&info, 4, nullptr) == 0);
  CHECK(PatGetPaperBitmap_Ex(&list, 4, nullptr) == 0);
  CHECK(PatGetTrayName(&info, 3, nullptr) == 0);
  CHECK(PatGetError() == PatErrorNullRecord);
}
