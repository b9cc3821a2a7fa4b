#include "stmon/check.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "stmon/command_line.h"
#include "stmon/poll.h"
#include "system/streams.h"

namespace stmon {
namespace {

constexpr int kUnknown = static_cast<int>(Verdict::Unknown);

// The polls share the time: each has its part, and waits for the rest of it when it fails at once,
// so that a printer has time to come back.
Snapshot AskOften(const CheckOptions& options) {
  Options ask = options.ask;
  ask.timeout /= options.misses;
  const std::chrono::duration<double> share(ask.timeout);
  Target target;
  ParseTarget(ask.printer, target);
  for (int left = options.misses;; --left) {
    const auto next = std::chrono::steady_clock::now() + share;
    Snapshot snapshot = AskNetwork(ask, target, TargetText(target));
    if (IsGood(snapshot) || left <= 1) return snapshot;
    std::this_thread::sleep_until(next);
  }
}

}  // namespace

int Check(std::vector<std::string> arguments) {
  CheckOptions options;
  const Parsed parsed = ParseCheckLine(std::move(arguments), options);
  if (!parsed.output.empty() || !parsed.complaint.empty()) {
    Print(parsed.complaint.empty() ? parsed.output : UnknownLine(parsed.complaint));
    return kUnknown;
  }
  const Snapshot snapshot = AskOften(options);
  const CheckResult result = CheckReport(snapshot, options.rules);
  Print(result.line + (options.verbose ? CheckDetails(snapshot) : ""));
  return static_cast<int>(result.verdict);
}

}  // namespace stmon
