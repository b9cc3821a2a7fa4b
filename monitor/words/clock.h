// Times and spans of time for people and for programs.
#pragma once

#include <chrono>
#include <string>

#include "words/user_language.h"

namespace stmon {

std::string UtcText(std::chrono::system_clock::time_point when);    // "2001-02-03T04:05:06Z"
std::string LocalText(std::chrono::system_clock::time_point when);  // "2001-02-03 04:05:06"
// "5 s", "3 min", "2 h 5 min"
std::string AgeText(std::chrono::steady_clock::duration age, const Language& language);

}  // namespace stmon
