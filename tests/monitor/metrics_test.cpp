// The state as Prometheus text; whether Prometheus takes it is tried with the program itself.
#include <chrono>

#include "doctest/doctest.h"
#include "report/reports.h"

using namespace std::chrono_literals;

namespace {

stmon::Snapshot Told(const std::string& blocks) {
  return stmon::ReadExchange({"test", "query", ""},
                             stmon::JudgeReply("\033S\r" + blocks + "\033 "));
}

stmon::Snapshot Silent(const std::string& name) {
  return stmon::ReadExchange({name, "query", ""}, {});
}

}  // namespace

TEST_CASE("metrics have a sample for what is known and none for what is not") {
  struct Row {
    const char* why;
    std::string blocks;
    const char* told;  // a sample without name and printer; not told when it begins with "!"
  };
  const Row rows[] = {
      {"a verdict, and no other", "32\r0\r1\r1\n", "verdict{*,verdict=\"cannot-print\"} 1"},
      {"the other verdicts", "32\r0\r1\r1\n", "verdict{*,verdict=\"fine\"} 0"},
      {"a code", "37\r0\r1\r1\n",
       "condition{*,code=\"37\",reason=\"cover-open\",severity=\"error\"} 1"},
      {"nothing the matter", "0\r0\r1\r1\n", "!condition"},
      {"a toner's colour", "72\r0\r1\r1\n",
       "condition{*,code=\"72\",reason=\"toner-empty\",severity=\"error\",colour=\"black\"} 1"},
      {"offline has no code", "0\r1\r1\r1\n",
       "condition{*,reason=\"subunit-offline\",severity=\"error\"} 1"},
      {"a code that nobody knows", "777\r0\r1\r1\n",
       "condition{*,code=\"777\",reason=\"other\",severity=\"warning\"} 1"},
      {"the tray in use", "0\r0\r1\r1\n\033T\r1\r-1\n",
       "condition{*,reason=\"media-empty\",severity=\"error\",tray=\"Tray 1\"} 1"},
      {"a level", "0\r0\r1\r1\n\033Z\r2\r75\n", "tray_paper_ratio{*,tray=\"Tray 2\"} 0.75"},
      {"no paper, whatever the level", "0\r0\r2\r1\n\033T\r1\r-1\n\033Z\r1\r50\n",
       "tray_paper_ratio{*,tray=\"Tray 1\"} 0.00"},
      {"a level that is none", "0\r0\r2\r1\n\033Z\r1\r101\n", "!tray_paper_ratio"},
      {"the tray is there all the same", "0\r0\r2\r1\n\033Z\r1\r101\n",
       "tray_state{*,tray=\"Tray 1\",state=\"paper\"} 1"},
      {"a tray that is out", "0\r0\r2\r1\n\033T\r1\r128\n\033Z\r1\r50\n",
       "tray_state{*,tray=\"Tray 1\",state=\"not-in-place\"} 1"},
      {"its level", "0\r0\r2\r1\n\033T\r1\r128\n\033Z\r1\r50\n", "!tray_paper_ratio"},
      {"a tray of which nothing is known", "0\r0\r2\r1\n\033T\r1\r9999\n",
       "tray_state{*,tray=\"Tray 1\",state=\"unknown\"} 1"},
      {"trays that were not told", "0\r0\r1\r1\n", "!tray"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    std::string sample = row.told;
    const bool absent = sample.starts_with("!");
    if (absent) sample.erase(0, 1);
    if (const size_t star = sample.find('*'); star != std::string::npos)
      sample.replace(star, 1, "printer=\"test\"");
    const std::string text = stmon::MetricsReport(Told(row.blocks), {});
    CHECK((text.find("\nstmon_" + sample + (absent ? "" : "\n")) == std::string::npos) == absent);
  }
}

TEST_CASE("of a silent printer metrics tell since when, and an earlier run's text is enough") {
  const auto answered = Told("0\r0\r1\r1\n");
  const std::string good = stmon::MetricsReport(answered, answered.when);
  auto silent = Silent("test");
  const auto last = stmon::ReadLastAnswer(good, silent);
  REQUIRE(last);
  CHECK(std::chrono::abs(*last - answered.when) <= 1ms);
  const std::string quiet = stmon::MetricsReport(silent, last);
  CHECK(quiet.find("stmon_up{printer=\"test\"} 0\n") != std::string::npos);
  CHECK(stmon::ReadLastAnswer(quiet, silent) == last);
  for (const char* absent : {"stmon_condition", "stmon_online", "stmon_tray"})
    CHECK(quiet.find(absent) == std::string::npos);
  CHECK(stmon::MetricsReport(silent, {}).find("stmon_last_answer") == std::string::npos);

  CHECK_FALSE(stmon::ReadLastAnswer(good, Silent("another")));
  const std::string series = "\nstmon_last_answer_timestamp_seconds{printer=\"test\"} ";
  for (const char* value : {"", "soon", "-1", "99999999999", "inf", "nan"})
    CHECK_FALSE(stmon::ReadLastAnswer(series + value, silent));
}

TEST_CASE("a printer's name does not break out of its label, and nobody asked is nothing told") {
  const std::string text = stmon::MetricsReport(Silent("a \"quoted\\name\"\n\033"), {});
  CHECK(text.find("stmon_up{printer=\"a \\\"quoted\\\\name\\\"\\n\xEF\xBF\xBD\"} 0\n") !=
        std::string::npos);
  CHECK(stmon::MetricsReport(stmon::ReadIdentity({"", "", "MFG:A;"}), {}) == "");
}
