#include "snapshot/condition.h"

#include <algorithm>
#include <tuple>

#include "snapshot/ranking.h"
#include "words/labels.h"
#include "words/phrases.h"

namespace stmon {
namespace {

Condition Like(uint32_t code) {
  Condition condition;
  condition.reason = &ReasonOf(code);
  condition.severity = condition.reason->severity;
  condition.known = condition.reason->code != kOtherCode;
  AskRow(condition.reason->code, condition.row);
  return condition;
}

// The number of the code's group, counted from 1. A code without a group gets the number after the
// last.
uint32_t PlaceOf(uint32_t code, const std::vector<std::vector<uint32_t>>& groups) {
  const auto group = std::find_if(groups.begin(), groups.end(), [&](const auto& codes) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
  });
  return static_cast<uint32_t>(group - groups.begin()) + 1;
}

// What sorts first comes first; conditions that agree in it share a rank.
using Importance = std::tuple<bool, int, bool, uint32_t>;

Importance ImportanceOf(const Condition& condition,
                        const std::vector<std::vector<uint32_t>>& groups) {
  const uint32_t code = condition.reason->code;
  const bool error = condition.severity == Severity::Error;
  uint32_t place = PlaceOf(code, groups);
  if (code == StatusPrinting) place = 0;  // more than being ready or about to be
  return {!IsNoAnswer(condition), -static_cast<int>(condition.severity),
          (code == kOfflineCode) == error, place};
}

}  // namespace

std::vector<Condition> ReportedConditions(const std::vector<uint32_t>& codes) {
  std::vector<Condition> conditions;
  for (const uint32_t code : codes) {  // a printer may list one twice
    const bool listed =
        std::any_of(conditions.begin(), conditions.end(),
                    [&](const Condition& condition) { return condition.code == code; });
    if (listed || code == 0) continue;
    conditions.push_back(Like(code));
    conditions.back().code = code;
  }
  return conditions;
}

Condition OfflineCondition(Severity severity) {
  Condition condition = Like(kOfflineCode);
  condition.severity = severity;
  return condition;
}

Condition TrayCondition(uint32_t code, uint32_t tray) {
  Condition condition = Like(code);
  condition.tray = tray;
  return condition;
}

Condition NoAnswerCondition() {
  return Like(StatusNoResponse);
}

bool IsNoAnswer(const Condition& condition) {
  return !condition.code && condition.reason->code == StatusNoResponse;
}

void RankConditions(std::vector<Condition>& conditions) {
  std::vector<uint32_t> codes;
  for (const Condition& condition : conditions) {
    const uint32_t code = condition.reason->code;
    if (std::find(codes.begin(), codes.end(), code) == codes.end()) codes.push_back(code);
  }
  const auto groups = RankCodes(codes);
  std::stable_sort(conditions.begin(), conditions.end(),
                   [&](const Condition& left, const Condition& right) {
                     return ImportanceOf(left, groups) < ImportanceOf(right, groups);
                   });
  for (size_t i = 0; i < conditions.size(); ++i) {
    const bool shared =
        i > 0 && ImportanceOf(conditions[i - 1], groups) == ImportanceOf(conditions[i], groups);
    conditions[i].rank = shared ? conditions[i - 1].rank : i > 0 ? conditions[i - 1].rank + 1 : 1;
    conditions[i].dominant = conditions[i].rank == 1;
  }
}

std::vector<uint32_t> DominantCodes(const std::vector<Condition>& conditions) {
  std::vector<uint32_t> codes;
  for (const Condition& condition : conditions) {
    if (condition.dominant && condition.code) codes.push_back(*condition.code);
  }
  std::sort(codes.begin(), codes.end());
  return codes;
}

// The short texts of mild conditions all read "ready"; what to do about them says more.
std::string ConditionText(const Condition& condition, const Language& language) {
  if (!condition.known) {
    return Say(Phrase::UnknownCondition, language, {std::to_string(condition.code.value_or(0))});
  }
  const bool mild = condition.reason->severity < Severity::Unknown;
  const Texts& texts = condition.texts;
  std::string text = mild && !texts.detail.empty() ? texts.detail : texts.brief;
  std::replace(text.begin(), text.end(), '\n', ' ');
  if (text.empty()) text = Keyword(*condition.reason, condition.severity);
  const std::string colour = ColourLabel(condition.reason->code, language);
  if (!mild && !colour.empty()) text += " (" + colour + ")";
  if (condition.tray) text += " (" + TrayLabel(*condition.tray, language) + ")";
  return text;
}

}  // namespace stmon
