// Whole polls over a real loopback connection.
#include <chrono>

#include "doctest/doctest.h"
#include "report/reports.h"
#include "simulator/simulated_printer.h"
#include "snapshot/snapshot.h"
#include "wire/full_query.h"

using stmon::Outcome;
using stmon::Verdict;

namespace {

constexpr std::chrono::milliseconds kTimeout(1500);

stmon::Snapshot Poll(const std::string& name, std::chrono::milliseconds timeout = kTimeout) {
  stmon::Scenario scenario;
  REQUIRE(stmon::LoadScenario(name, scenario) == "");
  std::string trouble;
  const auto printer = stmon::StartPrinter(scenario, 0, trouble);
  REQUIRE(printer);
  const std::string query = stmon::BuildQuery();
  const stmon::Target target{"127.0.0.1", stmon::PrinterPort(*printer)};
  return stmon::ReadExchange({"test", query, "", stmon::RecordKind::List},
                             stmon::AskPrinter(target, query, timeout));
}

struct PollCase {
  const char* scenario;
  Outcome outcome;
  Verdict verdict;
};

const PollCase kPolls[] = {
    {"ready", Outcome::Answered, Verdict::Fine},
    {"no-paper", Outcome::Answered, Verdict::CannotPrint},
    {"offline", Outcome::Answered, Verdict::CannotPrint},
    {"service-call", Outcome::Answered, Verdict::CannotPrint},
    {"one-byte", Outcome::Answered, Verdict::Fine},
    {"two-replies", Outcome::Answered, Verdict::Fine},
    {"cut-off", Outcome::CutOff, Verdict::Unknown},
    {"stalls", Outcome::StillComing, Verdict::Unknown},
    {"silence", Outcome::Silent, Verdict::Unknown},
    {"close", Outcome::ClosedEarly, Verdict::Unknown},
    {"reset", Outcome::Reset, Verdict::Unknown},
    {"garbage", Outcome::NotAReply, Verdict::Unknown},
    {"flood", Outcome::TooLong, Verdict::Unknown},
};

}  // namespace

TEST_CASE("every kind of answer ends in time and says what it was") {
  for (const PollCase& row : kPolls) {
    CAPTURE(row.scenario);
    const auto begin = std::chrono::steady_clock::now();
    const bool waits = row.outcome == Outcome::Silent || row.outcome == Outcome::StillComing;
    const auto snapshot = Poll(row.scenario, waits ? std::chrono::milliseconds(200) : kTimeout);
    CHECK(std::chrono::steady_clock::now() - begin < std::chrono::seconds(3));
    // Some systems tell a reset once; where that was to the writing side, the reader sees a close.
    const bool closed =
        row.outcome == Outcome::Reset && snapshot.exchange.outcome == Outcome::ClosedEarly;
    if (!closed) CHECK(snapshot.exchange.outcome == row.outcome);
    CHECK(snapshot.verdict == row.verdict);
    CHECK(snapshot.exchange.reply.size() <= stmon::kLongestReply);
    CHECK(snapshot.trouble.empty() == (row.outcome == Outcome::Answered));
  }
}

TEST_CASE("a poll fills what the printer told, and only that") {
  const auto snapshot = Poll("no-paper");
  REQUIRE(snapshot.conditions.size() == 1);
  CHECK(snapshot.conditions[0].code == 32);
  CHECK(snapshot.currentTray == 3);
  REQUIRE(snapshot.trays.size() == 2);
  CHECK(snapshot.trays[0].paper == PaperNone);
  CHECK(snapshot.trays[1].level == 50);

  const std::string only_status = "\033S\r32\r0\r1\n\033 ";
  const auto short_reply = stmon::ReadExchange({"test", "", "", stmon::RecordKind::List},
                                               stmon::JudgeReply(only_status));
  CHECK(short_reply.told);
  CHECK(short_reply.trays.empty());
  CHECK_FALSE(short_reply.currentBin);
  const auto no_levels =
      stmon::ReadExchange({"test", "", "", stmon::RecordKind::List},
                          stmon::JudgeReply("\033S\r0\r0\r1\n\033T\r1\r6\n\033 "));
  REQUIRE(no_levels.trays.size() == 1);
  CHECK_FALSE(no_levels.trays[0].level);
}

TEST_CASE("an address where nobody listens is refused, a bad name is named so") {
  uint16_t port = 0;
  {
    stmon::Scenario scenario;
    scenario.states.emplace_back();
    std::string trouble;
    port = stmon::PrinterPort(*stmon::StartPrinter(scenario, 0, trouble));
  }
  CHECK(stmon::AskPrinter({"127.0.0.1", port}, "?", std::chrono::seconds(5)).outcome ==
        Outcome::Refused);
  CHECK(stmon::AskPrinter({"no.such.host.invalid", 9100}, "?", std::chrono::seconds(5)).outcome ==
        Outcome::NameUnknown);
}

TEST_CASE("reports of a hostile printer hold no control characters") {
  for (const char* name : {"garbage", "cut-off", "unknown-code", "flood"}) {
    CAPTURE(name);
    const auto snapshot = Poll(name);
    for (const std::string& report :
         {stmon::TextReport(snapshot), stmon::JsonReport(snapshot), stmon::RawReport(snapshot)}) {
      for (const char byte : report)
        REQUIRE((byte == '\n' || static_cast<unsigned char>(byte) >= 0x20));
    }
  }
}

TEST_CASE("what a saved reply lacks is told without a word of connections") {
  struct Row {
    std::string bytes;
    const char* trouble;  // a part of it
  };
  const Row rows[] = {
      {"", "not one byte"},
      {"hello", "not a readback reply"},
      {"\033S\r0\r0\r1", "stops before its end marker"},
      {"\033T\r1\r6\n\033 ", "no status block"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.bytes);
    const auto snapshot = stmon::ReadExchange({"file", "", "", stmon::RecordKind::List},
                                              stmon::JudgeReply(row.bytes));
    CHECK(snapshot.trouble.find(row.trouble) != std::string::npos);
    for (const char* word : {"connect", "try again", "answer"})
      CHECK(snapshot.trouble.find(word) == std::string::npos);
    CHECK(snapshot.verdict == Verdict::Unknown);
  }
  CHECK(Poll("stalls", std::chrono::milliseconds(100)).trouble.find("--timeout") !=
        std::string::npos);
}
