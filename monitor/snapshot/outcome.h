// How an exchange ended, in words.
#pragma once

#include <string>

#include "wire/transport.h"

namespace stmon {

const char* OutcomeWord(Outcome outcome);  // a word for programs: "answered", "refused", ...

// For people: what happened and what to do; empty when all is well. `saved`: the reply was not
// asked for but read from a file.
std::string TroubleText(const Exchange& exchange, bool saved);

}  // namespace stmon
