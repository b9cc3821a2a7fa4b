#include "snapshot/condition.h"

#include <algorithm>

#include "snapshot/ranking.h"

namespace stmon {
namespace {

bool Lists(const std::vector<Condition>& conditions, uint32_t code) {
  return std::any_of(conditions.begin(), conditions.end(),
                     [&](const Condition& condition) { return condition.code == code; });
}

Condition LookUp(uint32_t code) {
  Condition condition;
  condition.code = code;
  condition.known = AskRow(FoldServiceCalls(code), condition.row);
  condition.reason = &ReasonOf(code);
  return condition;
}

// The number of the code's group, counted from 1. A code without a group gets the number after the
// last.
uint32_t RankOf(uint32_t code, const std::vector<std::vector<uint32_t>>& groups) {
  const auto group = std::find_if(groups.begin(), groups.end(), [&](const auto& codes) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
  });
  return static_cast<uint32_t>(group - groups.begin()) + 1;
}

}  // namespace

std::vector<Condition> ListConditions(const std::vector<uint32_t>& codes) {
  std::vector<Condition> conditions;
  for (const uint32_t code : codes) {  // a printer may list one twice
    if (!Lists(conditions, code)) conditions.push_back(LookUp(code));
  }
  std::vector<uint32_t> distinct;
  for (const Condition& condition : conditions)
    distinct.push_back(condition.code);
  const auto groups = RankCodes(distinct);
  for (Condition& condition : conditions) {
    condition.rank = RankOf(condition.code, groups);
    condition.dominant = condition.rank == 1 && !groups.empty();
  }
  std::stable_sort(
      conditions.begin(), conditions.end(),
      [](const Condition& left, const Condition& right) { return left.rank < right.rank; });
  if (groups.empty() && !conditions.empty()) conditions[0].dominant = true;
  return conditions;
}

std::vector<uint32_t> DominantCodes(const std::vector<Condition>& conditions) {
  std::vector<uint32_t> codes;
  for (const Condition& condition : conditions) {
    if (condition.dominant) codes.push_back(condition.code);
  }
  std::sort(codes.begin(), codes.end());
  return codes;
}

// The short texts of mild conditions all read "ready"; what to do about them says more.
std::string ConditionText(const Condition& condition) {
  if (!condition.known) return "Unknown condition, code " + std::to_string(condition.code);
  const bool mild = condition.reason->severity != Severity::Error;
  const Texts& texts = condition.texts;
  std::string text = mild && !texts.detail.empty() ? texts.detail : texts.brief;
  std::replace(text.begin(), text.end(), '\n', ' ');
  if (text.empty()) text = Keyword(*condition.reason);
  const std::string colour = TonerColour(condition.code);
  return mild || colour.empty() ? text : text + " (" + colour + ")";
}

}  // namespace stmon
