// One snapshot as text, as JSON, as its bytes, or as metrics. All are UTF-8 and end with a line
// feed.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "snapshot/snapshot.h"

namespace stmon {

std::string TextReport(const Snapshot& snapshot);
std::string JsonReport(const Snapshot& snapshot, bool with_bytes = false);
std::string RawReport(const Snapshot& snapshot);

// When the printer last gave a good answer, if it ever did.
using LastAnswer = std::optional<std::chrono::system_clock::time_point>;

// Prometheus text; empty when nobody was asked. Nothing but the time of the last good answer is
// told of a printer that does not answer: a series that ends is better than one that is no longer
// true.
std::string MetricsReport(const Snapshot& snapshot, const LastAnswer& last_answer);

// The time of the last good answer as an earlier report on the same printer has it.
LastAnswer ReadLastAnswer(std::string_view metrics, const Snapshot& snapshot);

}  // namespace stmon
