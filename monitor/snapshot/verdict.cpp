#include "snapshot/verdict.h"

#include <algorithm>

namespace stmon {

// The dominant condition decides. A code that nobody knows counts as an error when it stands for
// the printer; beside a harmless dominant one it still asks for attention. An offline printer
// cannot print, whatever else it reports.
Verdict Judge(const std::vector<Condition>& conditions, bool online) {
  if (!online) return Verdict::CannotPrint;
  if (conditions.empty()) return Verdict::Fine;
  const Severity severity = conditions[0].reason->severity;
  if (severity == Severity::Error) return Verdict::CannotPrint;
  const bool all_known = std::all_of(conditions.begin(), conditions.end(),
                                     [](const Condition& condition) { return condition.known; });
  return severity == Severity::Report && all_known ? Verdict::Fine : Verdict::Attention;
}

std::vector<std::string> StateReasons(const std::vector<Condition>& conditions, bool online) {
  std::vector<std::string> keywords;
  const auto add = [&](const Reason& reason) {
    const std::string keyword = Keyword(reason);
    if (keyword == "none") return;
    if (std::find(keywords.begin(), keywords.end(), keyword) == keywords.end())
      keywords.push_back(keyword);
  };
  for (const Condition& condition : conditions)
    add(*condition.reason);
  if (!online) add(ReasonOf(kOfflineCode));
  if (keywords.empty()) keywords.push_back("none");
  return keywords;
}

const char* StateWord(const std::vector<Condition>& conditions, bool online) {
  const bool error = std::any_of(
      conditions.begin(), conditions.end(),
      [](const Condition& condition) { return condition.reason->severity == Severity::Error; });
  if (error || !online) return "stopped";
  return DominantCodes(conditions) == std::vector<uint32_t>{StatusPrinting} ? "processing" : "idle";
}

const char* WhyText(const std::vector<Condition>& conditions) {
  if (conditions.empty()) return "no condition is reported";
  if (!conditions[0].known)
    return "no reported code is known; the first one stands for the printer";
  if (conditions.size() == 1) return "the only reported code";
  return conditions[1].dominant ? "these codes share the most important rank"
                                : "the most important of the reported codes";
}

}  // namespace stmon
