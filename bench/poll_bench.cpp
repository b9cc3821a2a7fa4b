// Everything between a printer's reply and what the user sees, at once and stage by stage. What the
// stages of the other areas measure (reply, texts, comparison) is not measured here again.
#include "bench.h"
#include "sample.h"
#include "stmdata/stmdata.h"

namespace {

constexpr uint32_t kTextBytes = 512;

struct Shown {
  char line[kTextBytes];
  char detail[kTextBytes];
  char icon[32];
  PrnBitmap parts;
};

void Ask(PrnInfoEx& record, Shown& shown) {
  PatGetSimpleString_Ex(&record, shown.line, kTextBytes);
  PatGetDetailString_Ex(&record, shown.detail, kTextBytes);
  PatGetErrParts_Ex(&record, shown.icon);
  PatGetPrnBitmap_Ex(&record, &shown.parts);
}

void Ask(PrnInfo& record, Shown& shown) {
  PatGetSimpleString(&record, shown.line, kTextBytes);
  PatGetDetailString(&record, shown.detail, kTextBytes);
  PatGetErrParts(&record, shown.icon);
  PatGetPrnBitmap(&record, &shown.parts);
}

// The floors of all stages, one after the other.
struct PollFloor {
  PollFloor(PrnInfoEx& record, std::string_view reply, const Shown& shown)
      : blocks(record, reply), line(shown.line), detail(shown.detail), icon(shown.icon), parts{} {}
  void operator()() {
    blocks();
    line();
    detail();
    icon();
    parts();
  }
  bench::RecordFloor blocks;
  bench::TextFloor line, detail, icon;
  bench::PartListFloor parts;
};

}  // namespace

void bench::BenchPoll() {
  char japanese[] = "JP";
  PatSetLocale(japanese);
  const std::string ready = FullReply("0");
  const std::string toner = FullReply("69,72");
  PrnInfoEx record{}, readyRecord{};
  PrnInfo flat{};
  Shown shown{}, readyShown{}, flatShown{};
  Parse(record, toner);
  Parse(flat, toner);
  Ask(record, shown);
  Ask(flat, flatShown);
  Parse(readyRecord, ready);
  Ask(readyRecord, readyShown);

  Header("Poll");
  Note(
      "(two toners empty, %zu bytes; the list-based record in Japanese, the flat one in the\n"
      "thread's language)\n",
      toner.size());
  Row(
      "icon name, list record", [&] { PatGetErrParts_Ex(&record, shown.icon); },
      TextFloor(shown.icon));
  Row(
      "icon name, flat record", [&] { PatGetErrParts(&flat, flatShown.icon); },
      TextFloor(flatShown.icon));
  Row(
      "part list, list record", [&] { PatGetPrnBitmap_Ex(&record, &shown.parts); },
      PartListFloor());
  Row(
      "part list, flat record", [&] { PatGetPrnBitmap(&flat, &flatShown.parts); }, PartListFloor());
  Row(
      "status line, flat record",
      [&] { PatGetSimpleString(&flat, flatShown.line, sizeof flatShown.line); },
      TextFloor(flatShown.line), 15.0);
  Row(
      "detail with two toner colours, flat record",
      [&] { PatGetDetailString(&flat, flatShown.detail, sizeof flatShown.detail); },
      TextFloor(flatShown.detail), 15.0);
  Row(
      "texts, icon and part list, list record", [&] { Ask(record, shown); },
      [line = TextFloor(shown.line), detail = TextFloor(shown.detail), icon = TextFloor(shown.icon),
       parts = PartListFloor()]() mutable {
        line();
        detail();
        icon();
        parts();
      });
  Row(
      "whole poll, list record",
      [&] {
        Parse(record, toner);
        Ask(record, shown);
      },
      PollFloor(record, toner, shown));
  Row(
      "whole poll, flat record",
      [&] {
        Parse(flat, toner);
        Ask(flat, flatShown);
      },
      PollFloor(record, toner, flatShown));
  Row(
      "whole poll of a ready printer, list record",
      [&] {
        Parse(readyRecord, ready);
        Ask(readyRecord, readyShown);
      },
      PollFloor(readyRecord, ready, readyShown));
  ReleasePrnInfoEx(&record);
  ReleasePrnInfoEx(&readyRecord);
}
