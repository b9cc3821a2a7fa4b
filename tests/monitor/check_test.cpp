// stmon check: thresholds, the line, what is ignored.
#include "doctest/doctest.h"
#include "report/check_report.h"
#include "simulator/scenario.h"
#include "simulator/simulated_reply.h"
#include "stmon/command_line.h"

using stmon::Verdict;

namespace {

using Arguments = std::vector<std::string>;

stmon::Snapshot Answer(std::string_view scenario_text) {
  stmon::Scenario scenario;
  REQUIRE(stmon::ReadScenario(scenario_text, scenario) == "");
  return stmon::ReadExchange(
      {"test", "?", "", stmon::RecordKind::List},
      stmon::JudgeReply(stmon::BuildReply(scenario.states[0], "VTZLACDMEF")));
}

stmon::CheckRules Rules(Arguments arguments) {
  stmon::CheckOptions options;
  arguments.push_back("printer");
  CHECK(stmon::ParseCheckLine(std::move(arguments), options).complaint == "");
  return options.rules;
}

}  // namespace

TEST_CASE("threshold ranges are those of plugins") {
  struct Row {
    const char* text;
    bool good;
    const char* alerts;  // at the levels 0, 10, 20, 90, 100
  };
  const Row rows[] = {
      {"10", true, "x...."},    {"10:", true, "x...."},    {"~:10", true, "..xxx"},
      {"10:90", true, "x...x"}, {"@10:20", true, ".xx.."}, {"@0:0", true, "x...."},
      {"12.5", true, "xx..."},  {"0:100", true, "....."},  {"", false, ""},
      {":", false, ""},         {"90:10", false, ""},      {"ten", false, ""},
      {"10%", false, ""},       {"nan", false, ""},        {"inf:", false, ""},
      {"10:20:30", false, ""},  {"@", false, ""},          {":10", false, ""},
  };
  for (const Row& row : rows) {
    CAPTURE(row.text);
    stmon::Threshold threshold;
    REQUIRE(stmon::ParseThreshold(row.text, threshold) == row.good);
    if (!row.good) continue;
    std::string alerts;
    for (const double level : {0, 10, 20, 90, 100})
      alerts += stmon::Alerts(threshold, level) ? 'x' : '.';
    CHECK(alerts == row.alerts);
  }
}

TEST_CASE("the line of a check tells what decides, what is ignored does not count") {
  struct Row {
    const char* why;
    const char* scenario;
    Arguments rules;
    const char* line;  // up to the performance data
  };
  const Row rows[] = {
      {"ready", "status 0", {}, "OK - Online/Ready"},
      {"toners of one kind",
       "status 66,69,71,68",
       {},
       "CRITICAL - No Toner (cyan, yellow); 2 more"},
      {"another alone",
       "status 69,68",
       {"--ignore", "toner-empty"},
       "WARNING - Toner is almost empty. Add Toner. Black"},
      {"all is ignored",
       "status 69,68",
       {"--ignore", "toner-empty-error", "--ignore", "toner-low"},
       "OK - only what is ignored"},
      {"a tray below the warning",
       "status 0\ntray 2 2 25",
       {"-w", "30"},
       "WARNING - level 25 % (Tray 2)"},
      {"two below",
       "status 0\ntray 2 2 25\ntray 3 2 4",
       {"-w", "30", "-c", "5"},
       "CRITICAL - level 4 % (Tray 3); 1 more"},
      {"its tray is ignored",
       "status 0\ntray T 2 25",
       {"-w", "30", "--ignore-tray", "bypass"},
       "OK - Online/Ready"},
      {"levels are ignored",
       "status 0\ntray T 2 25",
       {"-w", "30", "--ignore", "media-low"},
       "OK - Online/Ready"},
      {"an empty tray in use is told once",
       "status 32\ntray 1 -1 0",
       {"-w", "30", "-c", "5"},
       "CRITICAL - No Paper (Tray 1)"},
      {"an empty tray in use can be ignored",
       "status 32\ntray 1 -1 0",
       {"--ignore-tray", "1"},
       "OK - only what is ignored"},
      {"nobody knows it", "status 777", {"--ignore", "other"}, "OK - only what is ignored"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    const auto result = stmon::CheckReport(Answer(row.scenario), Rules(row.rules));
    CAPTURE(result.line);
    CHECK(result.line.starts_with(row.line));
    CHECK(result.line.find('\n') == result.line.size() - 1);
    CHECK(result.line.find('|') == result.line.rfind('|'));
    CHECK(result.line.find(" time=0.") != std::string::npos);
    const char first = std::string("OWCU")[static_cast<size_t>(result.verdict)];
    CHECK(result.line[0] == first);
  }
  const auto result = stmon::CheckReport(Answer("status 0\ntray 1 6 75\ntray T 6 20"),
                                         Rules({"-w", "10", "-c", "5"}));
  CHECK(result.line.find("| tray1=75%;10;5;0;100 bypass=20%;10;5;0;100 time=") !=
        std::string::npos);
  const auto silent = stmon::CheckReport(
      stmon::ReadExchange({"test", "?", "", stmon::RecordKind::List}, {}), Rules({}));
  CHECK(silent.verdict == Verdict::Unknown);
  CHECK(silent.line.starts_with("UNKNOWN - connected, but no answer"));
}

TEST_CASE("mistakes on the line of a check are named") {
  struct Row {
    Arguments arguments;
    const char* complaint;
  };
  const Row rows[] = {
      {{}, "PRINTER is required"},
      {{""}, "not a printer's address"},
      {{"a", "-w", "x"}, "no range"},
      {{"a", "-c", ""}, "no range"},
      {{"a", "--ignore", "toner-lo"}, "no reason"},
      {{"a", "--ignore-tray", "6"}, "no tray"},
      {{"a", "--misses", "0"}, "--misses"},
      {{"a", "--lang", "all"}, "not one of"},
      {{"a", "--json"}, "--json"},
      {{"a", "-w=", "5"}, "-w"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.complaint);
    stmon::CheckOptions options;
    const std::string complaint = stmon::ParseCheckLine(row.arguments, options).complaint;
    CHECK(complaint.find(row.complaint) != std::string::npos);
    CHECK(stmon::UnknownLine(complaint).find('\n') == stmon::UnknownLine(complaint).size() - 1);
  }
}
