// One snapshot as text, as JSON, or as its bytes. All are UTF-8 and end with a line feed.
#pragma once

#include <string>

#include "snapshot.h"

namespace stmon {

std::string TextReport(const Snapshot& snapshot);
std::string JsonReport(const Snapshot& snapshot);
std::string RawReport(const Snapshot& snapshot);

}  // namespace stmon
