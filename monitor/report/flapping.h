// What changes over and over is told once as flapping and once more when it is steady, so that a
// loose cable does not fill a log.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "report/event.h"

namespace stmon {

// Counted in polls, so that it means the same for every interval: five changes within twenty polls
// are flapping, twenty polls without a change are steady.
constexpr size_t kFlappingChanges = 5;
constexpr uint64_t kFlappingPolls = 20;

struct Changes {
  std::deque<uint64_t> polls;  // numbers of those that brought a change, at most kFlappingChanges
  bool flapping = false;
  Event last;
};

struct Flapping {
  uint64_t poll = 0;                       // number of the latest
  std::map<std::string, Changes> changes;  // by group and id; of late alone
};

// Counts a poll and what it changed. Result: what of that is to be told.
std::vector<Event> Settle(Flapping& flapping, std::vector<Event> events);

}  // namespace stmon
