// One printer, many outputs: whatever it reports, they tell one verdict.
#include "snapshot/verdict.h"

#include <algorithm>

#include "doctest/doctest.h"
#include "report/reports.h"
#include "snapshot/snapshot.h"

namespace {

struct TrayCase {
  const char* why;
  const char* paper;
  const char* levels;
  uint32_t code;  // that the tray in use is told like, 0 none
};

constexpr TrayCase kTrayCases[] = {
    {"full", "1\r6\r2\r4", "1\r75\r2\r50", 0},
    {"in use: no paper left", "1\r6\r2\r4", "1\r0\r2\r50", 32},
    {"in use: not in place", "1\r128\r2\r4", "1\r75\r2\r50", 33},
    {"another one empty", "1\r6\r2\r-1", "1\r75\r2\r0", 0},
};

struct Case {
  std::vector<uint32_t> codes;
  bool online;
  const TrayCase* tray;
  stmon::RecordKind record = stmon::RecordKind::List;
  stmon::Severity offlineAs = stmon::Severity::Error;
};

stmon::Snapshot Read(const Case& input) {
  std::string reply = "\033S\r";
  for (const uint32_t code : input.codes)
    reply += (reply.back() == '\r' ? "" : ",") + std::to_string(code);
  reply += std::string(input.online ? "\r0" : "\r1") + "\r1\r1\n\033T\r" + input.tray->paper +
           "\n\033Z\r" + input.tray->levels + "\n\033 ";
  stmon::Source source{"test", "", "", input.record};
  source.offlineAs = input.offlineAs;
  return stmon::ReadExchange(std::move(source), stmon::JudgeReply(reply));
}

// What must come out, from the rows of the reasons alone.
stmon::Severity WorstOf(const Case& input) {
  auto worst = input.online ? stmon::Severity::Report : input.offlineAs;
  const auto add = [&](uint32_t code) { worst = std::max(worst, stmon::ReasonOf(code).severity); };
  std::for_each(input.codes.begin(), input.codes.end(), add);
  add(input.tray->code);
  return worst;
}

struct Expected {
  stmon::Severity severity;
  int status;
  const char* word;
  const char* state;   // while it does not print
  const char* ending;  // of such a reason in JSON
};

constexpr Expected kExpected[] = {
    {stmon::Severity::Report, 0, "fine", "idle", "-report\""},
    {stmon::Severity::Warning, 1, "attention", "idle", "-warning\""},
    {stmon::Severity::Unknown, 3, "unknown", "unknown", nullptr},
    {stmon::Severity::Error, 2, "cannot-print", "stopped", "-error\""},
};

bool Tells(const std::string& text, const std::string& what) {
  return text.find(what) != std::string::npos;
}

// Empty, or which outputs contradict what must come out. A single check a case: there are many.
std::string Contradiction(const Case& input, const stmon::Snapshot& snapshot) {
  const auto worst = WorstOf(input);
  const Expected& expected = kExpected[static_cast<size_t>(worst)];
  const bool printing = std::count(input.codes.begin(), input.codes.end(), 100u) > 0;
  const std::string state =
      printing && expected.status < 2 ? "processing" : std::string(expected.state);
  const std::string status = std::to_string(expected.status);
  const std::string json = stmon::JsonReport(snapshot);
  const std::string metrics = stmon::MetricsReport(snapshot, {});
  const std::string text = stmon::TextReport(snapshot);
  const auto& conditions = snapshot.conditions;
  std::string faults;
  const auto expect = [&](const char* output, bool agrees) {
    if (!agrees) faults += std::string(faults.empty() ? "" : ", ") + output;
  };
  expect("verdict", static_cast<int>(snapshot.verdict) == expected.status);
  expect("exit status", Tells(json, "\"exit_status\":" + status + ","));
  expect("printer_state", Tells(json, "\"printer_state\":\"" + state + "\""));
  expect("metrics", Tells(metrics, std::string(",verdict=\"") + expected.word + "\"} 1\n"));
  expect("order", std::is_sorted(conditions.begin(), conditions.end(),
                                 [](const auto& left, const auto& right) {
                                   return left.severity > right.severity;
                                 }));
  // The reasons tell each severity that is listed, and none beyond the worst.
  const std::string reasons = json.substr(json.find("_reasons\":"), json.find("],\"language\""));
  for (const Expected& row : kExpected) {
    const bool told = row.ending ? Tells(reasons, row.ending)
                                 : Tells(reasons, "offline\"") || Tells(reasons, "timed-out\"");
    const bool listed =
        std::any_of(conditions.begin(), conditions.end(), [&](const stmon::Condition& condition) {
          return condition.severity == row.severity &&
                 condition.reason->keyword != std::string("none");
        });
    expect("reasons", told == listed && (!told || row.severity <= worst));
  }
  // Words and icon are those of the first condition; a printer that cannot print is not "ready".
  const std::string ready = "Online/Ready";
  const uint32_t code = conditions.empty() ? 0 : conditions[0].reason->code;
  const std::string icon = code == stmon::kOtherCode
                               ? "BMP_ERR_CAUTION"
                               : stmon::AskIcon(stmon::StatusSample(code, false).list);
  expect("icon", Tells(json, "\"icon\":\"" + icon + "\""));
  expect("headline",
         snapshot.headline != "" && (expected.status < 2 || snapshot.headline != ready));
  expect("headline of offline",
         input.online || expected.status >= 2 || snapshot.headline == "Offline");
  expect("detail", conditions.empty() ? snapshot.texts.detail == ""
                                      : snapshot.texts.detail.starts_with(
                                            conditions[0].texts.detail.substr(0, 12)));
  expect("text", Tells(text, "Status        " + snapshot.headline + "\n"));
  // Each condition in text and metrics with the severity of the list; offline and tray among them.
  bool offline = false, tray = input.tray->code == 0;
  for (const stmon::Condition& condition : conditions) {
    const std::string severity = stmon::SeverityWord(condition.severity);
    offline |= condition.reason->code == stmon::kOfflineCode;
    tray |= condition.tray && condition.reason->code == input.tray->code;
    expect("condition's metric",
           Tells(metrics, std::string("reason=\"") + condition.reason->keyword + "\",severity=\"" +
                              severity + "\""));
    expect("condition's text", conditions.size() == 1 || Tells(text, severity));
  }
  expect("offline", offline != input.online);
  expect("tray", tray);
  return faults;
}

}  // namespace

TEST_CASE("no two outputs contradict each other, whatever a printer reports") {
  std::vector<uint32_t> codes = {49, 64, 7, 777, 65535};
  for (const stmon::Reason* row = stmon::AllReasons(); row->code < 1000; ++row)
    codes.push_back(row->code);
  size_t pairs = 0, cases = 0;
  for (size_t i = 0; i < codes.size(); ++i) {
    for (size_t j = i; j < codes.size(); ++j, ++pairs) {
      for (const TrayCase& tray : kTrayCases) {
        for (const int flags : {0, 1, 2, 3}) {
          Case input{{codes[i], codes[j]}, (flags & 1) != 0, &tray};
          if (flags & 2) input.codes.push_back(StatusPrinting);
          if (++cases % 2 == 0) input.record = stmon::RecordKind::Flat;
          input.offlineAs = static_cast<stmon::Severity>(cases / 16 % 4);
          const std::string faults = Contradiction(input, Read(input));
          if (faults.empty()) continue;
          INFO(codes[i], " and ", codes[j], ", ", std::string(tray.why), ", flags ", flags);
          CHECK(faults == "");
        }
      }
    }
  }
  MESSAGE(pairs, " pairs, ", cases, " cases");
  CHECK(pairs > 2000);
}
