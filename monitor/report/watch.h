// A printer over time: what changed from one poll to the next, and when to ask again.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "report/reports.h"
#include "snapshot/snapshot.h"

namespace stmon {

using SteadyTime = std::chrono::steady_clock::time_point;

enum class EventKind { First, Changed, Came, Went, Lost, Back };

struct Event {
  EventKind kind = EventKind::Changed;
  std::string group;             // "printer", "status", "conditions", "trays", ...
  std::string from;              // for people; empty for what came
  std::string to;                // for people; empty for what went
  std::optional<uint32_t> code;  // of a condition
  // Of a printer that fell silent or is back: when the last whole answer came, if one did.
  LastAnswer lastAnswer = {};
};

// What the next poll is compared with. A failed poll says nothing about the printer's state, so the
// last good answer stays.
struct Watch {
  std::optional<Snapshot> good;  // the last whole answer
  SteadyTime goodAt;             // when it came
  uint32_t failures = 0;         // polls without one, in a row
  Outcome failing = Outcome::NotAsked;
};

// What the new poll changed. The watch keeps the snapshot when it is a whole answer.
std::vector<Event> Observe(Watch& watch, const Snapshot& latest, SteadyTime now);

LastAnswer LastAnswerOf(const Watch& watch);

// How long to wait before the next poll, after so many in a row without an answer: the interval
// while the printer answers; twice as long with every poll that it does not, up to a minute or the
// interval, whichever is longer.
std::chrono::milliseconds NextWait(uint32_t failures, std::chrono::milliseconds interval);

// One line each, with its line feed.
std::string EventText(const Event& event, const Snapshot& latest);
std::string EventJson(const Event& event, const Snapshot& latest);

}  // namespace stmon
