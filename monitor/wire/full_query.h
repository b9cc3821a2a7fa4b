// The question to a printer.
#pragma once

#include <string>

namespace stmon {

// The query for all that the monitors show.
std::string BuildQuery();

}  // namespace stmon
