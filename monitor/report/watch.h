// A printer over time: what changed from one poll to the next, and when to ask again.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "report/event.h"
#include "report/flapping.h"
#include "snapshot/snapshot.h"

namespace stmon {

using SteadyTime = std::chrono::steady_clock::time_point;

// What the next poll is compared with. A failed poll says nothing about the printer's state, so the
// last good answer stays.
struct Watch {
  uint32_t misses = 1;           // so many polls without a whole answer in a row are silence
  std::optional<Snapshot> good;  // the last whole answer
  SteadyTime goodAt;             // when it came
  uint32_t failures = 0;         // polls without one, in a row
  Flapping flapping;
};

// What the new poll changed and is to be told. The watch keeps the snapshot when it is a whole
// answer.
std::vector<Event> Observe(Watch& watch, const Snapshot& latest, SteadyTime now);

// The printer counts as silent, which has been told.
bool IsSilent(const Watch& watch);

LastAnswer LastAnswerOf(const Watch& watch);

// How long to wait before the next poll: the interval while the printer does not count as silent;
// twice as long with every poll for which it does, up to a minute or the interval, whichever is
// longer.
std::chrono::milliseconds NextWait(const Watch& watch, std::chrono::milliseconds interval);

// The same after so many polls without an answer, of which the first counts.
std::chrono::milliseconds NextWait(uint32_t failures, std::chrono::milliseconds interval);

}  // namespace stmon
