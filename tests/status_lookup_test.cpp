#include "doctest/doctest.h"
#include "support.h"

namespace {

StatusRow Poisoned() {
  StatusRow row;
  std::memset(&row, test::kPoison, sizeof row);
  return row;
}

// Asks both records for the row of the code. A failing call before each question leaves another
// error behind, so that an error that stayed is told from one that was written.
void CheckBoth(uint32_t code, bool found, const StatusRow& expected) {
  CAPTURE(code);
  PrnInfo flat{};
  flat.statusCode = code;
  StatusNode later = {nullptr, sizeof later, 0, {}};
  StatusNode first = {&later, sizeof first, static_cast<uint16_t>(code), {}};
  PrnInfoEx list{};
  list.statusCount = 2;
  list.statusList = &first;

  StatusRow fromFlat = Poisoned();
  StatusRow fromList = Poisoned();
  PatGetPrinterStatus(nullptr, &fromFlat);
  CHECK(PatGetPrinterStatus(&flat, &fromFlat) == (found ? 1 : 0));
  CHECK(PatGetError() == (found ? PatErrorNullRecord : PatErrorNotFound));
  CHECK(std::memcmp(&fromFlat, &expected, sizeof expected) == 0);
  if (code > 0xFFFF) return;
  PatGetPrinterStatus(nullptr, &fromList);
  CHECK(PatGetPrinterStatus_Ex(&list, &fromList) == (found ? 1 : 0));
  CHECK(PatGetError() == (found ? PatErrorNullRecord : PatErrorNotFound));
  CHECK(std::memcmp(&fromList, &expected, sizeof expected) == 0);
}

}  // namespace

TEST_CASE("a status code that has a row gets it, whatever its place in the table") {
  for (const StatusRow& row : {StatusRow{0, 400, 1, 600},
                               {88, 488, 1, 688},
                               {48, 498, 3, 698},
                               {72, 500, 3, 700},
                               {100, 504, 3, 705},
                               {102, 506, 3, 707}})
    CheckBoth(row.code, true, row);
}

TEST_CASE("a status code without a row leaves the caller's row alone") {
  for (uint32_t code : {1u, 49u, 64u, 77u, 107u, 1000u, 65535u, (15u << 16) | 107, 0x10000u})
    CheckBoth(code, false, Poisoned());
}

TEST_CASE("a status question without a record, a status or a place for the row is refused") {
  StatusRow row = Poisoned();
  const PrnInfo flat{};
  PrnInfoEx list{};
  list.statusCount = 3;  // a count without a chain
  CHECK(PatGetPrinterStatus_Ex(&list, &row) == 0);
  CHECK(PatGetError() == PatErrorNotFound);
  CHECK(PatGetPrinterStatus(nullptr, &row) == 0);
  CHECK(PatGetError() == PatErrorNullRecord);
  PatGetPrinterStatus_Ex(&list, &row);
  CHECK(PatGetPrinterStatus_Ex(nullptr, &row) == 0);
  CHECK(PatGetError() == PatErrorNullRecord);
  PatGetPrinterStatus_Ex(&list, &row);
  CHECK(PatGetPrinterStatus(&flat, nullptr) == 0);
  CHECK(PatGetPrinterStatus_Ex(&list, nullptr) == 0);
  CHECK(PatGetError() == PatErrorNullRecord);
  const StatusRow untouched = Poisoned();
  CHECK(std::memcmp(&row, &untouched, sizeof row) == 0);
}
