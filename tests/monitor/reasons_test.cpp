#include "words/reasons.h"

#include <set>

#include "doctest/doctest.h"
#include "snapshot/snapshot.h"

TEST_CASE("every code of the library has a reason of its own, every other code is told as other") {
  for (uint32_t code = 0; code < 2000; ++code) {
    CAPTURE(code);
    PrnInfo info{};
    info.statusCode = code;
    StatusRow row{};
    const bool known = PatGetPrinterStatus(&info, &row) == 1;
    const bool service = code >= 48 && code <= 64;
    CHECK((stmon::ReasonOf(code).code != stmon::kOtherCode) == (known || service));
  }
  CHECK(stmon::Keyword(stmon::ReasonOf(7)) == "other-warning");
  CHECK(stmon::ReasonOf(53).code == 48);
}

TEST_CASE("the rows of the reasons are whole") {
  std::set<uint32_t> codes;
  for (const stmon::Reason* row = stmon::AllReasons(); row->code != stmon::kOtherCode; ++row) {
    CAPTURE(row->code);
    CHECK(codes.insert(row->code).second);
    CHECK((*stmon::AlertName(row->alert) != '\0') == (row->alert != 0));
    CHECK((row->alert == 0) == (row->group == 0));
    const bool supply = row->group == 11;
    CHECK(supply == (row->supply != 0));
    const bool toner = row->code >= 65 && row->code <= 76;
    CHECK(toner == (*stmon::TonerColour(row->code) != '\0'));
  }
}

TEST_CASE("the exit status follows the dominant condition") {
  struct Row {
    const char* why;
    std::string status;
    bool online;
    stmon::Verdict verdict;
    std::vector<std::string> reasons;
  };
  const Row rows[] = {
      {"ready", "0", true, stmon::Verdict::Fine, {"none"}},
      {"energy saver", "18", true, stmon::Verdict::Fine, {"subunit-power-saver-report"}},
      {"a reminder", "81", true, stmon::Verdict::Attention, {"marker-waste-almost-full-warning"}},
      {"two toners low are one reason",
       "65,68",
       true,
       stmon::Verdict::Attention,
       {"toner-low-warning"}},
      {"an error beside a warning",
       "65,32",
       true,
       stmon::Verdict::CannotPrint,
       {"media-empty-error", "toner-low-warning"}},
      {"a service call",
       "60",
       true,
       stmon::Verdict::CannotPrint,
       {"subunit-unrecoverable-failure-error"}},
      {"offline", "0", false, stmon::Verdict::CannotPrint, {"subunit-offline-error"}},
      {"an unknown code alone", "7", true, stmon::Verdict::Attention, {"other-warning"}},
      {"an unknown code beside ready", "0,7", true, stmon::Verdict::Attention, {"other-warning"}},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    const std::string reply =
        "\033S\r" + row.status + (row.online ? "\r0" : "\r1") + "\r1\r1\n\033 ";
    const auto snapshot =
        stmon::ReadExchange({"test", "", "", stmon::RecordKind::List}, stmon::JudgeReply(reply));
    CHECK(snapshot.verdict == row.verdict);
    CHECK(stmon::StateReasons(snapshot.conditions) == row.reasons);
  }
}
