// stmon check: a monitoring plugin.
#pragma once

#include <string>
#include <vector>

#include "report/check_report.h"
#include "stmon/options.h"

namespace stmon {

struct CheckOptions {
  Options ask;  // printer, language, time-out, what offline is
  CheckRules rules;
  int misses = 1;  // polls without an answer before that is told
  bool verbose = false;
};

// `arguments` begin with the first one after "check". Prints one line whatever happens, unless
// help or the version is asked for. Result: the exit status of a plugin.
int Check(std::vector<std::string> arguments);

}  // namespace stmon
