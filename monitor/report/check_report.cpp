#include "report/check_report.h"

#include <algorithm>
#include <cstdio>

#include "report/reports.h"
#include "words/phrases.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

struct TrayName {
  uint32_t id;
  const char* name;   // as an argument
  const char* label;  // of its performance data
};

constexpr TrayName kTrayNames[] = {
    {3, "1", "tray1"}, {4, "2", "tray2"},       {5, "3", "tray3"},     {6, "4", "tray4"},
    {7, "5", "tray5"}, {1, "bypass", "bypass"}, {2, "multi", "multi"},
};

// A level that alerts; no printer sends it.
constexpr Reason kLowMedia = {kOtherCode, "media-low", Severity::Warning, 0, 0, 0, 0};

// What stands between the words and the performance data may stand nowhere else.
std::string OneLine(std::string_view text) {
  std::string line = CleanUtf8(text);
  std::replace(line.begin(), line.end(), '|', '/');
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line;
}

template <class List, class Item>
bool Has(const List& list, const Item& item) {
  return std::find(list.begin(), list.end(), item) != list.end();
}

bool IsIgnored(const Condition& condition, const CheckRules& rules) {
  if (IsNoAnswer(condition)) return false;
  return (condition.tray && Has(rules.ignoredTrays, *condition.tray)) ||
         Has(rules.ignoredReasons, condition.reason->keyword) ||
         Has(rules.ignoredReasons, Keyword(*condition.reason, condition.severity));
}

Condition LowTray(const Tray& tray, Severity severity, const Language& language) {
  Condition condition;
  condition.reason = &kLowMedia;
  condition.severity = severity;
  condition.tray = tray.id;
  condition.known = true;
  condition.texts.brief = Say(Phrase::Level, language,
                              {Say(Phrase::Percent, language, {std::to_string(*tray.percent)})});
  return condition;
}

// A tray that the printer or the monitor speaks of needs no second condition.
void AddLowTrays(std::vector<Condition>& conditions, const Snapshot& snapshot,
                 const CheckRules& rules) {
  for (const Tray& tray : snapshot.trays) {
    const bool told =
        std::any_of(conditions.begin(), conditions.end(),
                    [&](const Condition& condition) { return condition.tray == tray.id; });
    if (!tray.percent || told) continue;
    const bool critical = Alerts(rules.critical, *tray.percent);
    if (critical || Alerts(rules.warning, *tray.percent))
      conditions.push_back(
          LowTray(tray, critical ? Severity::Error : Severity::Warning, *snapshot.source.language));
  }
}

// Conditions that differ in what stands between brackets alone are told as one: toners, trays.
std::string Words(const std::vector<Condition>& conditions, const Language& language) {
  std::string words;
  std::string brackets;
  size_t told = 0;
  size_t grave = 0;
  for (const Condition& condition : conditions) {
    const std::string text = ConditionText(condition, language);
    const size_t open = text.ends_with(')') ? text.rfind(" (") : std::string::npos;
    const std::string plain = text.substr(0, open);
    if (told == 0) words = plain;
    grave += condition.severity != Severity::Report;
    const bool same =
        told == grave - 1 && plain == words && condition.severity == conditions[0].severity;
    if (told > 0 && !same) continue;
    ++told;
    if (open != std::string::npos)
      brackets += (brackets.empty() ? "" : ", ") + text.substr(open + 2, text.size() - open - 3);
  }
  if (!brackets.empty()) words += " (" + brackets + ")";
  if (grave > told) words += "; " + std::to_string(grave - told) + " more";
  return words;
}

std::string Summary(const Snapshot& snapshot, const std::vector<Condition>& conditions) {
  if (!IsGood(snapshot)) return snapshot.trouble;
  if (!conditions.empty()) return Words(conditions, *snapshot.source.language);
  return snapshot.conditions.empty() ? snapshot.headline : "only what is ignored";
}

std::string PerformanceData(const Snapshot& snapshot, const CheckRules& rules) {
  std::string data;
  for (const Tray& tray : snapshot.trays) {
    const auto name = std::find_if(std::begin(kTrayNames), std::end(kTrayNames),
                                   [&](const TrayName& row) { return row.id == tray.id; });
    if (!tray.percent || name == std::end(kTrayNames)) continue;
    data += std::string(name->label) + "=" + std::to_string(*tray.percent) + "%;" +
            rules.warning.text + ";" + rules.critical.text + ";0;100 ";
  }
  char time[32];
  std::snprintf(time, sizeof time, "time=%.3fs",
                std::chrono::duration<double>(snapshot.took).count());
  return data + time;
}

const char* StatusWord(Verdict verdict) {
  constexpr const char* kWords[] = {"OK", "WARNING", "CRITICAL", "UNKNOWN"};
  return kWords[static_cast<int>(verdict)];
}

}  // namespace

uint32_t TrayNamed(std::string_view name) {
  for (const TrayName& row : kTrayNames) {
    if (name == row.name) return row.id;
  }
  return 0;
}

bool IsReasonKeyword(std::string_view word) {
  if (word == kLowMedia.keyword) return true;
  for (const Reason* row = AllReasons();; ++row) {
    if (word == row->keyword || word == Keyword(*row, row->severity)) return true;
    if (row->code == kOtherCode) return false;
  }
}

CheckResult CheckReport(const Snapshot& snapshot, const CheckRules& rules) {
  std::vector<Condition> conditions = snapshot.conditions;
  if (IsGood(snapshot)) AddLowTrays(conditions, snapshot, rules);
  std::erase_if(conditions,
                [&](const Condition& condition) { return IsIgnored(condition, rules); });
  RankConditions(conditions);
  const Verdict verdict = Judge(conditions);
  return {verdict, StatusWord(verdict) + (" - " + OneLine(Summary(snapshot, conditions))) + " | " +
                       PerformanceData(snapshot, rules) + "\n"};
}

std::string UnknownLine(const std::string& trouble) {
  return "UNKNOWN - " + OneLine(trouble) + "\n";
}

std::string CheckDetails(const Snapshot& snapshot) {
  std::string details = TextReport(snapshot);
  std::replace(details.begin(), details.end(), '|', '/');
  return details;
}

}  // namespace stmon
