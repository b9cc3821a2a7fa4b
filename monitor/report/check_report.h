// A snapshot as the output of a monitoring plugin.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "report/threshold.h"
#include "snapshot/snapshot.h"

namespace stmon {

struct CheckRules {
  Threshold warning;  // of the level of paper in each tray
  Threshold critical;
  std::vector<std::string> ignoredReasons;  // keywords, with or without their severity
  std::vector<uint32_t> ignoredTrays;       // ids
};

struct CheckResult {
  Verdict verdict = Verdict::Unknown;
  std::string line;  // with its line feed
};

// The id of "1" to "5", "bypass" or "multi", as performance data name trays; 0 for anything else.
uint32_t TrayNamed(std::string_view name);

// A keyword of a condition, with its severity or without: what can be ignored.
bool IsReasonKeyword(std::string_view word);

// "CRITICAL - No Toner (cyan, yellow); 2 more | tray1=75%;10;5;0;100 time=0.012s"
// What is ignored does not count, a level that alerts counts like a condition of the printer.
CheckResult CheckReport(const Snapshot& snapshot, const CheckRules& rules);

// The line for what is wrong before anything was asked.
std::string UnknownLine(const std::string& trouble);

// What follows that line: everything that the text report has.
std::string CheckDetails(const Snapshot& snapshot);

}  // namespace stmon
