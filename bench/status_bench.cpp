// Texts of a record: what the resources, the languages and the code pages cost.
#include "bench.h"
#include "sample.h"
#include "stmdata/stmdata.h"

void bench::BenchStatus() {
  char japanese[] = "JP";
  PatSetLocale(japanese);
  StatusNode second{nullptr, sizeof second, 72, {}};
  StatusNode first{&second, sizeof first, 69, {}};
  PrnInfoEx toner{};
  toner.online = 1;
  toner.statusCount = 2;
  toner.statusList = &first;
  StatusNode only{nullptr, sizeof only, 46, {}};
  PrnInfoEx misfeed{};
  misfeed.online = 1;
  misfeed.statusCount = 1;
  misfeed.statusList = &only;

  Header("Texts in Japanese");
  char text[512];
  PatGetSimpleString_Ex(&misfeed, text, sizeof text);
  Row(
      "status line", [&] { PatGetSimpleString_Ex(&misfeed, text, sizeof text); }, TextFloor(text),
      15.0);
  PatGetDetailString_Ex(&misfeed, text, sizeof text);
  Row(
      "detail", [&] { PatGetDetailString_Ex(&misfeed, text, sizeof text); }, TextFloor(text), 15.0);
  PatGetDetailString_Ex(&toner, text, sizeof text);
  Row(
      "detail with two toner colours", [&] { PatGetDetailString_Ex(&toner, text, sizeof text); },
      TextFloor(text), 15.0);
}
