#include "snapshot/verdict.h"

#include <algorithm>

namespace stmon {

const char* VerdictWord(Verdict verdict) {
  constexpr const char* kWords[] = {"fine", "attention", "cannot-print", "unknown"};
  return kWords[static_cast<size_t>(verdict)];
}

Verdict Judge(const std::vector<Condition>& conditions) {
  if (conditions.empty()) return Verdict::Fine;
  switch (conditions[0].severity) {
    case Severity::Report:
      return Verdict::Fine;
    case Severity::Warning:
      return Verdict::Attention;
    case Severity::Error:
      return Verdict::CannotPrint;
    case Severity::Unknown:
      break;
  }
  return Verdict::Unknown;
}

const char* StateWord(const std::vector<Condition>& conditions) {
  const Verdict verdict = Judge(conditions);
  if (verdict == Verdict::CannotPrint) return "stopped";
  if (verdict == Verdict::Unknown) return "unknown";
  const bool printing =
      std::any_of(conditions.begin(), conditions.end(),
                  [](const Condition& condition) { return condition.code == StatusPrinting; });
  return printing ? "processing" : "idle";
}

std::vector<std::string> StateReasons(const std::vector<Condition>& conditions) {
  std::vector<std::string> keywords;
  for (const Condition& condition : conditions) {
    const std::string keyword = Keyword(*condition.reason, condition.severity);
    if (keyword != "none" && std::find(keywords.begin(), keywords.end(), keyword) == keywords.end())
      keywords.push_back(keyword);
  }
  if (keywords.empty()) keywords.push_back("none");
  return keywords;
}

const char* WhyText(const std::vector<Condition>& conditions) {
  if (conditions.empty()) return "no condition is reported";
  if (IsNoAnswer(conditions[0])) return "without a whole answer nothing else counts";
  if (conditions.size() == 1) return "the only condition";
  if (conditions[1].dominant) return "these conditions share the most important rank";
  if (conditions[1].severity != conditions[0].severity) return "the worst condition";
  return "the most important of the worst conditions";
}

}  // namespace stmon
