// What there is to say of a printer, one thing at a time: what it reports, and what follows from
// the rest of its answer or from its silence.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "stmdata/stmdata.h"
#include "words/reasons.h"
#include "words/texts.h"

namespace stmon {

struct Condition {
  std::optional<uint32_t> code;    // as the printer reported it; empty: a finding of the monitor
  const Reason* reason = nullptr;  // never null; its code is the one whose words and icon are meant
  Severity severity = Severity::Report;
  std::optional<uint32_t> tray;  // id of the tray that is meant
  uint32_t rank = 0;             // 1 decides; the others in the order in which they would
  bool dominant = false;         // of rank 1, perhaps with others
  bool known = false;            // false for a code that nobody knows
  StatusRow row{};               // the library's, zero without one
  Texts texts;                   // of this condition alone
};

// One condition a code, without repetitions; none for code 0, which says that all is well. A code
// that the library has no row for asks for attention: something is the matter, nobody knows what.
std::vector<Condition> ReportedConditions(const std::vector<uint32_t>& codes);

// Those of the monitor.
Condition OfflineCondition(Severity severity);
Condition TrayCondition(uint32_t code, uint32_t tray);  // told like that status code
Condition NoAnswerCondition();                          // the poll brought no whole answer
bool IsNoAnswer(const Condition& condition);

// Sorts by importance and numbers the ranks: without a whole answer nothing else counts; then the
// worst severity, and within it what the library takes for more important. A code that it has no
// priority for comes after those that have one. What keeps an offline printer from printing beside
// that comes before its being offline; what is mild after it, because its words are "ready".
void RankConditions(std::vector<Condition>& conditions);

// The codes that decide, in ascending order; several for toners of one kind, none for a finding of
// the monitor.
std::vector<uint32_t> DominantCodes(const std::vector<Condition>& conditions);

// In one line for people: the words that its texts have, or the keyword where there are none.
// `language` is that of the texts.
std::string ConditionText(const Condition& condition, const Language& language);

}  // namespace stmon
