#include "report/watch.h"

#include <algorithm>
#include <map>

#include "report/json.h"
#include "snapshot/outcome.h"
#include "words/clock.h"
#include "words/labels.h"
#include "words/phrases.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

// The parts of a group by name or number, each as a text for people.
using Parts = std::map<std::string, std::string>;

// The headline alone; reminders under the same headline are told as conditions.
Parts StatusParts(const Snapshot& snapshot) {
  return {{"", snapshot.headline}};
}

std::string InUse(const std::string& name, const Language& language) {
  return name + " (" + Say(Phrase::InUse, language) + ")";
}

Parts TrayParts(const Snapshot& snapshot) {
  const Language& language = *snapshot.source.language;
  Parts parts;
  for (const Tray& tray : snapshot.trays) {
    const std::string paper = PaperLabel(tray.paper, language);
    const std::string level = LevelLabel(tray.paper, tray.level, language);
    std::string text = TrayLabel(tray.id, language);
    if (!paper.empty()) text += ", " + paper;
    if (!level.empty()) text += ", " + Say(Phrase::Level, language, {level});
    parts[std::to_string(tray.id)] = text;
  }
  if (snapshot.currentTray)
    parts["in use"] = InUse(TrayLabel(*snapshot.currentTray, language), language);
  return parts;
}

Parts BinParts(const Snapshot& snapshot) {
  const Language& language = *snapshot.source.language;
  Parts parts;
  for (const Bin& bin : snapshot.bins) {
    parts[std::to_string(bin.id)] =
        BinLabel(bin.id, language) + ", " + BinStateLabel(bin.state, language);
  }
  if (snapshot.currentBin)
    parts["in use"] = InUse(BinLabel(*snapshot.currentBin, language), language);
  return parts;
}

Parts OptionParts(const Snapshot& snapshot) {
  Parts parts;
  if (!snapshot.options) return parts;
  for (const Option& option : *snapshot.options)
    parts[std::to_string(option.code)] = OptionLabel(option.code, *snapshot.source.language);
  return parts;
}

Parts LanguageParts(const Snapshot& snapshot) {
  if (!snapshot.language) return {};
  return {{"", LanguageLabel(*snapshot.language, *snapshot.source.language)}};
}

Parts FontParts(const Snapshot& snapshot) {
  Parts parts;
  for (const std::string& name : snapshot.fontNames)
    parts[name] = EscapeBytes(name);
  return parts;
}

Parts ModelParts(const Snapshot& snapshot) {
  const Language& language = *snapshot.source.language;
  Parts parts;
  for (size_t i = 0; i < snapshot.versions.size(); ++i) {
    parts["version" + std::to_string(i)] =
        Say(Phrase::VersionIs, language, {EscapeBytes(snapshot.versions[i])});
  }
  if (snapshot.number)
    parts["number"] = Say(Phrase::NumberIs, language, {std::to_string(*snapshot.number)});
  return parts;
}

struct Group {
  const char* name;
  uint32_t bits;  // what the library compares
  Parts (*parts)(const Snapshot& snapshot);
};

constexpr Group kGroups[] = {
    //  name   the library's group bits  parts
    {"status", 0, StatusParts},                              // the monitor's own
    {"trays", GroupTrays, TrayParts},                        //
    {"bins", GroupBins, BinParts},                           //
    {"options", GroupOptions, OptionParts},                  //
    {"language", GroupEmulation, LanguageParts},             //
    {"fonts", GroupFonts, FontParts},                        //
    {"model", GroupModelInfo | GroupEmulation, ModelParts},  // versions are in both groups
};

bool Agree(const Snapshot& before, const Snapshot& after, uint32_t groups) {
  uint32_t equal = 0;
  PatCmpPrnInfoEX(before.record.get(), after.record.get(), groups, &equal);
  return equal == 1;
}

// The library says whether the group changed, the parts say what.
void AddGroup(std::vector<Event>& events, const Group& group, const Snapshot& before,
              const Snapshot& after) {
  if (group.bits != 0 && Agree(before, after, group.bits)) return;
  const Parts old_parts = group.parts(before);
  const Parts new_parts = group.parts(after);
  for (const auto& [key, text] : old_parts) {
    const auto now = new_parts.find(key);
    if (now == new_parts.end()) {
      events.push_back({EventKind::Went, group.name, text, "", {}});
    } else if (now->second != text) {
      events.push_back({EventKind::Changed, group.name, text, now->second, {}});
    }
  }
  for (const auto& [key, text] : new_parts) {
    if (!old_parts.contains(key)) events.push_back({EventKind::Came, group.name, "", text, {}});
  }
}

bool Lists(const Snapshot& snapshot, const Condition& sought) {
  return std::any_of(snapshot.conditions.begin(), snapshot.conditions.end(),
                     [&](const Condition& condition) {
                       return condition.code == sought.code && condition.reason == sought.reason;
                     });
}

// Conditions are told one by one, since the library's comparison sees the deciding ones only.
void AddConditions(std::vector<Event>& events, const Snapshot& before, const Snapshot& after) {
  for (const Condition& condition : before.conditions) {
    if (!Lists(after, condition))
      events.push_back({EventKind::Went, "conditions",
                        ConditionText(condition, *before.source.language), "", condition.code});
  }
  for (const Condition& condition : after.conditions) {
    if (!Lists(before, condition))
      events.push_back({EventKind::Came, "conditions", "",
                        ConditionText(condition, *after.source.language), condition.code});
  }
}

struct GroupLabel {
  std::string_view group;
  Phrase label;
};

constexpr GroupLabel kGroupLabels[] = {
    {"printer", Phrase::Printer},
    {"status", Phrase::Status},
    {"conditions", Phrase::Conditions},
    {"trays", Phrase::Trays},
    {"bins", Phrase::Bins},
    {"options", Phrase::Options},
    {"language", Phrase::PrinterLanguage},
    {"fonts", Phrase::Fonts},
    {"model", Phrase::Model},
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

const char* KindWord(EventKind kind) {
  switch (kind) {
    case EventKind::First:
      return "first";
    case EventKind::Changed:
      return "changed";
    case EventKind::Came:
      return "came";
    case EventKind::Went:
      return "went";
    case EventKind::Lost:
      return "lost";
    case EventKind::Back:
      break;
  }
  return "back";
}

std::vector<Event> ObserveFailure(Watch& watch, const Snapshot& latest, SteadyTime now) {
  // Each kind of failure is told once, not at every poll.
  const bool news = watch.failures == 0 || watch.failing != latest.exchange.outcome;
  ++watch.failures;
  watch.failing = latest.exchange.outcome;
  if (!news) return {};
  const Language& language = *latest.source.language;
  std::string from = Say(Phrase::NeverAnswered, language);
  if (watch.good)
    from = Say(Phrase::LastAnswerAgo, language, {AgeText(now - watch.goodAt, language)});
  return {{EventKind::Lost, "printer", from, latest.trouble, {}, LastAnswerOf(watch)}};
}

}  // namespace

std::vector<Event> Observe(Watch& watch, const Snapshot& latest, SteadyTime now) {
  if (!IsGood(latest)) return ObserveFailure(watch, latest, now);
  const Language& language = *latest.source.language;
  std::vector<Event> events;
  if (!watch.good) {
    events.push_back({EventKind::First, "printer", "", latest.headline, {}});
  } else {
    if (watch.failures > 0) {
      events.push_back({EventKind::Back,
                        "printer",
                        Say(Phrase::SilentFor, language, {AgeText(now - watch.goodAt, language)}),
                        latest.headline,
                        {},
                        LastAnswerOf(watch)});
    }
    for (const Group& group : kGroups)
      AddGroup(events, group, *watch.good, latest);
    AddConditions(events, *watch.good, latest);
  }
  watch.good = latest;
  watch.goodAt = now;
  watch.failures = 0;
  return events;
}

LastAnswer LastAnswerOf(const Watch& watch) {
  if (!watch.good) return {};
  return watch.good->when;
}

std::chrono::milliseconds NextWait(uint32_t failures, std::chrono::milliseconds interval) {
  constexpr std::chrono::milliseconds kLongest = std::chrono::minutes(1);
  auto wait = interval;
  for (uint32_t i = 0; i < failures && wait < kLongest; ++i)
    wait *= 2;
  return std::max(interval, std::min(wait, kLongest));
}

std::string EventText(const Event& event, const Snapshot& latest) {
  const Language& language = *latest.source.language;
  std::string line = LocalText(latest.when) + "  " + GroupColumn(event.group, language);
  switch (event.kind) {
    case EventKind::First:
      return line + Say(Phrase::FirstAnswer, language, {event.to}) + "\n";
    case EventKind::Changed:
      return line + event.from + " -> " + event.to + "\n";
    case EventKind::Came:
      return line + "+ " + event.to + "\n";
    case EventKind::Went:
      return line + "- " + event.from + "\n";
    case EventKind::Lost:
      return line + Say(Phrase::Lost, language, {event.from, event.to}) + "\n";
    case EventKind::Back:
      return line + Say(Phrase::Back, language, {event.from, event.to}) + "\n";
  }
  return line;
}

std::string EventJson(const Event& event, const Snapshot& latest) {
  Json json;
  json["time"] = UtcText(latest.when);
  json["source"] = CleanUtf8(latest.source.name);
  json["group"] = event.group;
  json["event"] = KindWord(event.kind);
  if (!event.from.empty()) json["from"] = CleanUtf8(event.from);
  if (!event.to.empty()) json["to"] = CleanUtf8(event.to);
  if (event.code) {
    const Reason& reason = ReasonOf(*event.code);
    json["code"] = *event.code;
    json["reason"] = Keyword(reason);
    json["severity"] = SeverityWord(reason.severity);
  }
  if (event.lastAnswer) json["last_answer"] = UtcText(*event.lastAnswer);
  if (event.kind == EventKind::Lost) json["outcome"] = OutcomeWord(latest.exchange.outcome);
  json["exit_status"] = static_cast<int>(latest.verdict);
  return json.dump() + "\n";
}

}  // namespace stmon
