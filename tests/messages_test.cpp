#include <algorithm>
#include <functional>

#include "both_records.h"
#include "doctest/doctest.h"
#include "stmdata/languages.h"
#include "thread_language.h"

namespace {

const std::string kTrayText = "Tray is not placed properly, or the tray is empty.";
const std::string kOffline = "Press the Online button on the operation panel to print.";
const std::string kTonerEmpty = "Toner is empty. \nAdd Toner.\n";
const std::string kCyan = "\xBC\xB1\xDD  ";
const std::string kMagenta = "\xCF\xBE\xDE\xDD\xC0  ";
const std::string kBlack = "\xCC\xDE\xD7\xAF\xB8  ";
// A call that fails with "text not loadable".
const std::string kNoText = "(none)";

void Select(const char* name) {
  std::string writable = name;
  PatSetLocale(writable.data());
}

// The text, or kNoText; never the bytes of an earlier one.
template <class Question, class Info>
std::string Ask(Question question, Info* info) {
  test::GuardedBytes buffer(std::string(400, 'x'));
  const uint32_t result = question(info, buffer.data(), 400);
  if (result == 1) return buffer.data();
  CHECK(result == 0);
  CHECK(PatGetError() == PatErrorText);
  CHECK(buffer.data()[0] == '\0');
  return kNoText;
}

struct MessageCase {
  const char* why;
  test::Said said;
  std::string flatShort, flatDetail, listShort, listDetail;
};

const MessageCase kMessages[] = {
    {"energy saver, offline",
     {.statuses = {18}, .online = false},
     "Offline",
     kOffline,
     "Offline",
     kOffline},
    {"cover open, offline: the flat record looks at the code, the other at the error flag",
     {.statuses = {36}, .online = false},
     "Cover Open",
     "Close the indicated cover.",
     "Offline",
     kOffline},
    {"offline with an error",
     {.statuses = {36}, .online = false, .hasError = true},
     "Cover Open",
     "Close the indicated cover.",
     "Cover Open",
     "Close the indicated cover."},
    {"no response",
     {.statuses = {102}, .noResponse = true},
     "No Response From Printer",
     "Check the printer cable, AC power cord and main SW.",
     "No Response From Printer",
     "Check the printer cable, AC power cord and main SW."},
    {"printing with a reminder",
     {.statuses = {5}, .printing = true},
     "Online/Ready",
     "Printing...",
     "Online/Ready",
     "Printing..."},
    {"printing, no paper: only a choice among several hides it",
     {.statuses = {32}, .printing = true},
     "No Paper",
     "Add paper in the indicated tray.",
     "Online/Ready",
     "Printing..."},
    {"a service call is known when it was chosen",
     {.statuses = {52}},
     kNoText,
     kNoText,
     "Call Service Center",
     "Mechanical problem ocurred.\nPlease call your service center."},
    {"the gravest of several",
     {.statuses = {5, 60, 36}},
     "Call Service Center",
     "Mechanical problem ocurred.\nPlease call your service center.",
     "Call Service Center",
     "Mechanical problem ocurred.\nPlease call your service center."},
    {"colours in table order, doubled only in the flat record",
     {.statuses = {72, 69, 72}},
     "No Toner",
     kTonerEmpty + "\n" + kCyan + kBlack + kBlack,
     "No Toner",
     kTonerEmpty + "Cyan  Black  "},
    {"the colours of the gravest group alone",
     {.statuses = {65, 74}},
     "Improper Toner Placement",
     "Toner is not placed properly.\nCheck the indicated unit.\n\n" + kMagenta,
     "Improper Toner Placement",
     "Toner is not placed properly.\nCheck the indicated unit.\nMagenta  "},
    {"a colour of an offline printer without an error",
     {.statuses = {66}, .online = false},
     "Online/Ready",
     "Toner is almost empty.\nAdd Toner.\n\n" + kMagenta,
     "Offline",
     kOffline},
    {"one colour",
     {.statuses = {66}},
     "Online/Ready",
     "Toner is almost empty.\nAdd Toner.\n\n" + kMagenta,
     "Online/Ready",
     "Toner is almost empty.\nAdd Toner.\nMagenta  "},
    {"sixteen reports fill the flat record's line with whole names",
     {.statuses = std::vector<uint32_t>(16, 70)},
     "No Toner",
     kTonerEmpty + "\n" + kMagenta + kMagenta + kMagenta + kMagenta + kMagenta + kMagenta +
         kMagenta,
     "No Toner",
     kTonerEmpty + "Magenta  "},
    {"texts that only Japanese has", {.statuses = {34}}, kNoText, kNoText, "", ""},
    {"codes without a row", {.statuses = {1}}, kNoText, kNoText, "Online/Ready", ""},
    {"several without a row", {.statuses = {7, 11}}, "Online/Ready", kNoText, "Online/Ready", ""},
    {"the duplex unit in the way",
     {.statuses = {45}, .duplex = true},
     "Paper Misfeed",
     "Open Rear Cover to Tray or Top Cover then remove jammed paper.",
     "Paper Misfeed",
     "Open Top Cover or Rear Cover inside the indicated area then remove jammed paper."},
    {"the duplex unit not in the way",
     {.statuses = {44}, .duplex = true},
     "Paper Misfeed",
     "Open the indicated area or Rear Cover to Tray then remove jammed paper.",
     "Paper Misfeed",
     "Open the indicated area or Rear Cover to Tray then remove jammed paper."},
    {"the duplex unit and a text that only Japanese has",
     {.statuses = {89}, .duplex = true},
     "Cover Open",
     kNoText,
     "Cover Open",
     ""},
};

struct TrayCase {
  const char* why;
  test::Said said;
  std::string flat, list;
};

const TrayCase kTrays[] = {
    {"a tray that is not in place", {.statuses = {0}, .trays = {{3, 41}}}, kTrayText, kTrayText},
    {"the same, offline",
     {.statuses = {0}, .online = false, .trays = {{3, 41}}},
     kTrayText,
     kOffline},
    {"a tray without paper", {.statuses = {0}, .trays = {{4, 8}, {5, 1}}}, kTrayText, kTrayText},
    {"the bypass tray without paper", {.statuses = {0}, .trays = {{1, 1}}}, kNoText, kTrayText},
    {"the bypass tray missing", {.statuses = {0}, .trays = {{1, 41}}}, kTrayText, kTrayText},
    {"the bypass tray run down", {.statuses = {0}, .trays = {{1, 8, 0}}}, kNoText, kTrayText},
    {"a level of 1", {.statuses = {0}, .trays = {{3, 8, 1}}}, kTrayText, kTrayText},
    {"the second tray run down",
     {.statuses = {0}, .trays = {{3, 8, 100}, {4, 8, 0}}},
     kTrayText,
     kTrayText},
    {"a level of 2", {.statuses = {0}, .trays = {{3, 8, 2}}}, kNoText, ""},
    {"not ready: the trays do not count",
     {.statuses = {36}, .trays = {{3, 41}}},
     "Close the indicated cover.",
     "Close the indicated cover."},
    {"printing: only the flat record looks at its own code",
     {.statuses = {0}, .printing = true, .trays = {{3, 1}}},
     kTrayText,
     "Printing..."},
    {"several without a row: only the other looks at the chosen code",
     {.statuses = {7, 11}, .trays = {{3, 1}}},
     kNoText,
     kTrayText},
};

}  // namespace

TEST_CASE("what both records say in short and in detail") {
  test::SetThreadLanguage(1033);
  Select("EN");
  for (const MessageCase& row : kMessages) {
    CAPTURE(row.why);
    test::BothRecords records(row.said);
    CHECK(Ask(PatGetSimpleString, &records.flat) == row.flatShort);
    CHECK(Ask(PatGetSimpleString_Ex, &records.list) == row.listShort);
    CHECK(Ask(PatGetDetailString, &records.flat) == row.flatDetail);
    CHECK(Ask(PatGetDetailString_Ex, &records.list) == row.listDetail);
  }
}

TEST_CASE("a ready printer is told to have a missing or empty tray") {
  test::SetThreadLanguage(1033);
  Select("EN");
  for (const TrayCase& row : kTrays) {
    CAPTURE(row.why);
    test::BothRecords records(row.said);
    CHECK(Ask(PatGetDetailString, &records.flat) == row.flat);
    CHECK(Ask(PatGetDetailString_Ex, &records.list) == row.list);
  }
  // A level of a tray that is not there, and a count without trays.
  test::BothRecords records({.statuses = {0}});
  records.flat.trayLevelCount = records.list.trayCount = 1;
  records.flat.trayLevelList[0] = {3, 0};
  CHECK(Ask(PatGetDetailString, &records.flat) == kNoText);
  CHECK(Ask(PatGetDetailString_Ex, &records.list) == "");
}

TEST_CASE("the detail question leaves the chosen code in a flat record's only status") {
  const struct {
    test::Said said;
    uint32_t kept;
  } rows[] = {{{.statuses = {5}, .printing = true}, 100},
              {{.statuses = {36}, .noResponse = true}, 102},
              {{.statuses = {1}}, 1}};
  for (const auto& row : rows) {
    test::BothRecords records(row.said);
    Ask(PatGetDetailString, &records.flat);
    CHECK(records.flat.statusList[0] == row.kept);
  }
  test::BothRecords two({.statuses = {36, 48}});
  Ask(PatGetDetailString, &two.flat);
  CHECK(two.flat.statusList[0] == 36);
}

TEST_CASE("every status has its texts in every language") {
  // Texts that Japanese alone has.
  const std::vector<uint32_t> japaneseOnly = {404, 434, 600, 604, 634, 682, 687, 689, 690};
  for (const LocaleRow& language : LocaleTable) {
    CAPTURE(language.code);
    Select(language.code);
    for (uint32_t code = 0; code < 1000; ++code) {
      PrnInfo asked{};
      asked.statusCode = code;
      StatusRow row;
      if (!PatGetPrinterStatus(&asked, &row)) continue;
      CAPTURE(code);
      test::BothRecords records({.statuses = {code}});
      if (code == StatusPrinting) records.list.printing = 1;
      if (code == StatusNoResponse) records.list.noResponse = 1;
      const auto isThere = [&](uint32_t id) {
        const bool special = std::count(japaneseOnly.begin(), japaneseOnly.end(), id) > 0;
        return !special || language.code == std::string("JP");
      };
      CHECK(!Ask(PatGetSimpleString_Ex, &records.list).empty() == isThere(row.simpleId));
      CHECK(!Ask(PatGetDetailString_Ex, &records.list).empty() == isThere(row.detailId));
    }
  }
}

TEST_CASE("texts and colour names are cut where the buffer ends, at every size") {
  Select("JP");
  test::BothRecords records({.statuses = {69, 71}});
  // A beginning of the whole, that lacks no more than a character of three bytes did not fit in.
  const auto checkCut = [](const std::string& whole, const std::string& cut, size_t room) {
    CHECK(whole.substr(0, cut.size()) == cut);
    CHECK(cut.size() + 2 >= std::min(whole.size(), room));
  };
  for (const LANGID language : {LANGID{1033}, LANGID{1041}}) {
    test::SetThreadLanguage(language);
    const std::string flat = Ask(PatGetDetailString, &records.flat);
    for (uint32_t size = 4; size <= flat.size() + 2; ++size) {
      CAPTURE(size);
      test::GuardedBytes buffer(std::string(size, 'x'));
      CHECK(PatGetDetailString(&records.flat, buffer.data(), size) == 1);
      checkCut(flat, buffer.data(), size - 1);
    }
  }
  test::SetThreadLanguage(0);
  // Japanese: the colours are single bytes, so that only the text can hold half a character.
  const std::string list = Ask(PatGetDetailString_Ex, &records.list);
  REQUIRE(list.size() > 20);
  const size_t colours = list.rfind('\n');
  for (int32_t size = 2; size <= static_cast<int32_t>(list.size()) + 2; ++size) {
    CAPTURE(size);
    const auto room = static_cast<size_t>(size) - 1;
    test::GuardedBytes buffer(std::string(static_cast<size_t>(size), 'x'));
    CHECK(PatGetDetailString_Ex(&records.list, buffer.data(), size) == 1);
    const std::string cut = buffer.data();
    checkCut(list, cut, room);
    if (room > colours) CHECK(cut == list.substr(0, room));
  }
}

TEST_CASE("a text question without a record or room fails and writes nothing it may not") {
  test::SetThreadLanguage(1033);
  Select("EN");
  test::BothRecords records({.statuses = {69}});
  const auto askAll = [&](bool withRecord, char* buffer, int32_t size) {
    PrnInfo* flat = withRecord ? &records.flat : nullptr;
    test::Record* list = withRecord ? &records.list : nullptr;
    const std::function<uint32_t()> calls[] = {
        [=] { return PatGetSimpleString(flat, buffer, size); },
        [=] { return PatGetSimpleString_Ex(list, buffer, size); },
        [=] {
          return PatGetDetailString(flat, buffer, size < 0 ? 0 : static_cast<uint32_t>(size));
        },
        [=] { return PatGetDetailString_Ex(list, buffer, size); },
        [=] { return PatGetRecoveryString(flat, buffer, size); },
        [=] { return PatGetRecoveryString_Ex(list, buffer, size); },
    };
    for (const auto& call : calls) {
      if (buffer) buffer[0] = 'x';
      PatGetHelpContext(0, 0, nullptr);
      CHECK(call() == 0);
      CHECK(PatGetError() == (withRecord ? PatErrorText : PatErrorNullRecord));
      if (buffer) CHECK(buffer[0] == (size > 0 ? '\0' : 'x'));
    }
  };
  char buffer[8];
  askAll(false, buffer, 8);
  askAll(false, buffer, 1);
  askAll(false, buffer, 0);
  askAll(true, buffer, 0);
  askAll(true, buffer, -5);
  askAll(true, nullptr, 8);
}

TEST_CASE("there is no recovery text and no help context") {
  test::SetThreadLanguage(1033);
  for (const char* language : {"EN", "JP"}) {
    Select(language);
    for (const test::Said& said : {test::Said{}, test::Said{.statuses = {0}, .printing = true},
                                   test::Said{.statuses = {50, 88}, .printing = true},
                                   test::Said{.statuses = {50, 88}, .noResponse = true}}) {
      test::BothRecords records(said);
      CHECK(Ask(PatGetRecoveryString, &records.flat) == kNoText);
      CHECK(Ask(PatGetRecoveryString_Ex, &records.list) == "");
    }
  }
  char context[] = "x";
  CHECK(PatGetHelpContext(1, 2, context) == 0);
  CHECK(PatGetError() == PatErrorNotFound);
  CHECK(context[0] == '\0');
  CHECK(PatGetHelpContext_Ex(1, 2, nullptr) == 0);
}
