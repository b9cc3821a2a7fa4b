// Texts of a record: what the resources, the languages and the code pages cost.
#include <cstring>
#include <iterator>
#include <string>

#include "bench.h"
#include "stmdata/stmdata.h"

namespace {

// A search through a table of the size of the status table, to its last row, and a copy of the
// bytes of the text.
struct Floor {
  explicit Floor(const char* text) : bytes(text) {
    for (uint32_t row = 0; row < std::size(table); ++row)
      table[row] = {row, row, 0, row};
  }
  void operator()() {
    const StatusRow* row = table;
    while (row->code != last)
      ++row;
    bench::Use(row);
    std::memcpy(copy, bytes.c_str(), bytes.size() + 1);
    bench::Use(copy);
  }
  StatusRow table[58];
  volatile uint32_t last = 57;
  std::string bytes;
  char copy[512];
};

}  // namespace

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
      "status line", [&] { PatGetSimpleString_Ex(&misfeed, text, sizeof text); }, Floor(text),
      15.0);
  PatGetDetailString_Ex(&misfeed, text, sizeof text);
  Row(
      "detail", [&] { PatGetDetailString_Ex(&misfeed, text, sizeof text); }, Floor(text), 15.0);
  PatGetDetailString_Ex(&toner, text, sizeof text);
  Row(
      "detail with two toner colours", [&] { PatGetDetailString_Ex(&toner, text, sizeof text); },
      Floor(text), 15.0);
}
