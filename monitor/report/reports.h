// One snapshot as text, as JSON, as its bytes, or as metrics. All are UTF-8 and end with a line
// feed.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "snapshot/snapshot.h"

namespace stmon {

// `all_languages`: the state's texts in every language of the library as well.
std::string TextReport(const Snapshot& snapshot, bool all_languages = false);
std::string JsonReport(const Snapshot& snapshot, bool all_languages = false);
std::string RawReport(const Snapshot& snapshot);

// Prometheus text. Nothing but the time of the last good answer is told of a printer that does not
// answer: a series that ends is better than one that is no longer true.
std::string MetricsReport(const Snapshot& snapshot,
                          std::optional<std::chrono::system_clock::time_point> last_answer);

}  // namespace stmon
