// Threshold ranges of monitoring plugins, for levels that run down.
#pragma once

#include <limits>
#include <string>
#include <string_view>

namespace stmon {

// "10:" is fine at 10 and above, "10:90" between both, "~:90" at 90 and below, "@0:10" everywhere
// but from 0 to 10. A single number is the least that is fine, since paper runs out downwards.
struct Threshold {
  double start = -std::numeric_limits<double>::infinity();
  double end = std::numeric_limits<double>::infinity();
  bool inside = false;  // alerts inside the range instead of outside
  std::string text;     // as it was given; empty: never alerts
};

// Result: false for anything else.
bool ParseThreshold(std::string_view text, Threshold& threshold);

bool Alerts(const Threshold& threshold, double level);

}  // namespace stmon
