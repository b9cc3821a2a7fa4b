// Something that changed from one poll to another, for people and for programs.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "report/json.h"
#include "report/reports.h"

namespace stmon {

enum class EventKind {
  First,    // the printer answers for the first time
  Changed,  //
  Came,     //
  Went,     //
  Lost,     // no usable answer for so many polls that it counts as silent
  Back      // answers again
};

enum class Rhythm {
  Once,      //
  Flapping,  // one change of many, which are not told of until it is steady
  Steady     // the latest of them, which has lasted
};

struct Event {
  EventKind kind = EventKind::Changed;
  std::string group;           // "printer", or the field of the report that changed
  std::optional<uint32_t> id;  // of the tray, bin, option or condition
  // The field's values as the report has them; null for what was not there, or is not any more.
  Json from, to;
  // The same for people; of a printer what happened to it.
  std::string fromText, toText;
  // Of a printer that fell silent or is back: when the last whole answer came, if one did.
  LastAnswer lastAnswer = {};
  Rhythm rhythm = Rhythm::Once;
};

// One line each, with its line feed. `latest` is the poll that brought the event.
std::string EventText(const Event& event, const Snapshot& latest);
std::string EventJson(const Event& event, const Snapshot& latest);

}  // namespace stmon
