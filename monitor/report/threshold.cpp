#include "report/threshold.h"

#include <charconv>

namespace stmon {
namespace {

bool ParseNumber(std::string_view text, double& value) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  constexpr double kMost = 1e9;  // neither infinite nor no number
  return error == std::errc() && end == text.data() + text.size() && value >= -kMost &&
         value <= kMost;
}

}  // namespace

bool ParseThreshold(std::string_view text, Threshold& threshold) {
  threshold = Threshold{};
  threshold.text = text;
  threshold.inside = text.starts_with('@');
  if (threshold.inside) text.remove_prefix(1);
  const size_t colon = text.find(':');
  const std::string_view start = text.substr(0, colon);
  const std::string_view end = colon == std::string_view::npos ? "" : text.substr(colon + 1);
  if (start != "~" && !ParseNumber(start, threshold.start)) return false;
  if (!end.empty() && !ParseNumber(end, threshold.end)) return false;
  return start.size() + end.size() > 0 && threshold.start <= threshold.end;
}

bool Alerts(const Threshold& threshold, double level) {
  if (threshold.text.empty()) return false;
  const bool within = level >= threshold.start && level <= threshold.end;
  return within == threshold.inside;
}

}  // namespace stmon
