// What a printer reports of itself, one status code at a time.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "stmdata/stmdata.h"
#include "words/reasons.h"
#include "words/texts.h"

namespace stmon {

struct Condition {
  uint32_t code = 0;
  bool known = false;     // has a row in the library's table
  bool dominant = false;  // decides, perhaps with others of its rank
  uint32_t rank = 0;      // 1 decides; the others in the order in which they would
  StatusRow row{};
  const Reason* reason = nullptr;  // never null once read
  Texts texts;                     // of this code alone
};

// One condition a code, without repetitions, the most important first; `texts` are empty. A code
// that the library has no priority for comes after those that have one; the first of them stands
// for the printer when there is no other.
std::vector<Condition> ListConditions(const std::vector<uint32_t>& codes);

// The codes that decide, in ascending order; several for toners of one kind.
std::vector<uint32_t> DominantCodes(const std::vector<Condition>& conditions);

// In one line for people: the library's words, or the keyword where it has none.
std::string ConditionText(const Condition& condition);

}  // namespace stmon
