// What a simulated printer answers: pure bytes, without a connection.
#pragma once

#include <string>
#include <string_view>

#include "simulator/scenario.h"

namespace stmon {

constexpr std::string_view kEndMarker = "\x1B ";  // of queries and replies

// The blocks that a query asks for, by letter, in its order.
std::string RequestedBlocks(std::string_view query);

// The reply of a printer in that state: the status block, the blocks asked for, the end marker.
std::string BuildReply(const PrinterState& state, std::string_view requested);

}  // namespace stmon
