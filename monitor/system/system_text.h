// Error numbers of the system in words.
#pragma once

#include <string>

namespace stmon {

// `error` as errno has it; 0 for a failure without a number.
std::string SystemText(int error);

}  // namespace stmon
