#include "report/event.h"

#include <algorithm>

#include "snapshot/outcome.h"
#include "words/clock.h"
#include "words/phrases.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

const char* KindWord(const Event& event) {
  if (event.rhythm == Rhythm::Flapping) return "flapping";
  if (event.rhythm == Rhythm::Steady) return "steady";
  constexpr const char* kWords[] = {"first", "changed", "came", "went", "lost", "back"};
  return kWords[static_cast<size_t>(event.kind)];
}

std::string ChangeText(const Event& event, const Language& language) {
  switch (event.kind) {
    case EventKind::First:
      return Say(Phrase::FirstAnswer, language, {event.toText});
    case EventKind::Changed:
      return event.fromText + " -> " + event.toText;
    case EventKind::Came:
      return "+ " + event.toText;
    case EventKind::Went:
      return "- " + event.fromText;
    case EventKind::Lost:
      return Say(Phrase::Lost, language, {event.fromText, event.toText});
    case EventKind::Back:
      break;
  }
  return Say(Phrase::Back, language, {event.fromText, event.toText});
}

std::string WhatHappened(const Event& event, const Language& language) {
  const std::string text = ChangeText(event, language);
  if (event.rhythm == Rhythm::Flapping) return Say(Phrase::Flapping, language, {text});
  return event.rhythm == Rhythm::Steady ? Say(Phrase::Steady, language, {text}) : text;
}

struct GroupLabel {
  std::string_view group;
  Phrase label;
};

constexpr GroupLabel kGroupLabels[] = {
    {"printer", Phrase::Printer},
    {"status", Phrase::Status},
    {"conditions", Phrase::Conditions},
    {"tray_in_use", Phrase::Trays},
    {"trays", Phrase::Trays},
    {"bin_in_use", Phrase::Bins},
    {"bins", Phrase::Bins},
    {"options", Phrase::Options},
    {"printer_language", Phrase::PrinterLanguage},
    {"fonts", Phrase::Fonts},
    {"versions", Phrase::Model},
    {"number", Phrase::Model},
};

// The group's label, as wide as the widest of them and a gap.
std::string GroupColumn(std::string_view group, const Language& language) {
  size_t width = 0;
  std::string label;
  for (const GroupLabel& row : kGroupLabels) {
    const std::string text = Say(row.label, language);
    width = std::max(width, DisplayWidth(text));
    if (row.group == group) label = text;
  }
  return Padded(label, width + 2);
}

}  // namespace

std::string EventText(const Event& event, const Snapshot& latest) {
  const Language& language = *latest.source.language;
  return LocalText(latest.when) + "  " + GroupColumn(event.group, language) +
         WhatHappened(event, language) + "\n";
}

std::string EventJson(const Event& event, const Snapshot& latest) {
  Json json = NewDocument("event");
  json["source"] = CleanUtf8(latest.source.name);
  json["time"] = UtcText(latest.when);
  json["group"] = event.group;
  json["event"] = KindWord(event);
  json["id"] = OrNull(event.id);
  json["from"] = event.from;
  json["to"] = event.to;
  json["text"] = CleanUtf8(WhatHappened(event, *latest.source.language));
  json["status"] = latest.headline;
  json["outcome"] = OutcomeWord(latest.exchange.outcome);
  json["last_answer"] = event.lastAnswer ? Json(UtcText(*event.lastAnswer)) : Json();
  json["exit_status"] = static_cast<int>(latest.verdict);
  json["verdict"] = VerdictWord(latest.verdict);
  return json.dump() + "\n";
}

}  // namespace stmon
