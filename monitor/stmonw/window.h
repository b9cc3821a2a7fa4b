// The monitor's window.
#pragma once

#include <windows.h>

#include <chrono>
#include <string>

#include "words/user_language.h"

namespace stmonw {

struct Settings {
  std::string printer;             // HOST[:PORT]; empty: the built-in simulated printer
  std::string scenario = "ready";  // of the simulated printer
  const stmon::Language* language = nullptr;
  std::chrono::seconds interval{5};
};

constexpr int kShortestInterval = 1;  // seconds
constexpr int kLongestInterval = 3600;

// Shows the window until it is closed. Result: false when it cannot be made.
bool RunWindow(HINSTANCE instance, int show, const Settings& settings);

// Tells trouble in a box of its own.
void Complain(HWND owner, const std::string& message);

}  // namespace stmonw
