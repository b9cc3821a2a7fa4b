// What follows from a printer's conditions. It is concluded here, from the one list of them, so
// that exit status, words, JSON and metrics cannot contradict each other.
#pragma once

#include <string>
#include <vector>

#include "snapshot/condition.h"

namespace stmon {

// The exit status, by the convention of monitoring plug-ins.
enum class Verdict { Fine = 0, Attention = 1, CannotPrint = 2, Unknown = 3 };

const char* VerdictWord(Verdict verdict);  // "cannot-print"

// The functions below take conditions sorted by importance, of which the first one decides.

Verdict Judge(const std::vector<Condition>& conditions);

// As printer-state has it: "stopped" when something keeps the printer from printing, "processing"
// while it prints, "idle", or "unknown".
const char* StateWord(const std::vector<Condition>& conditions);

// The keywords of all conditions, "none" when there is none: printer-state-reasons.
std::vector<std::string> StateReasons(const std::vector<Condition>& conditions);

// Why the deciding condition is the one that decides, for people.
const char* WhyText(const std::vector<Condition>& conditions);

}  // namespace stmon
