// Reads the command line.
#pragma once

#include <string>
#include <vector>

#include "stmon/check.h"
#include "stmon/options.h"

namespace stmon {

// Both empty: go on with the options.
struct Parsed {
  std::string output;     // help or version, for standard output
  std::string complaint;  // what is wrong, for standard error
};

// `arguments` begin with the first one after the program's name. Addresses, ports, languages and
// numbers have been looked at when the complaint is empty.
Parsed ParseCommandLine(std::vector<std::string> arguments, Options& options);

// The same for what follows "stmon check".
Parsed ParseCheckLine(std::vector<std::string> arguments, CheckOptions& options);

}  // namespace stmon
