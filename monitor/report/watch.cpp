#include "report/watch.h"

#include <algorithm>
#include <map>

#include "words/clock.h"
#include "words/labels.h"
#include "words/phrases.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

struct Part {
  std::optional<uint32_t> id;
  Json value;  // as the report has it
  std::string text;
};

// The parts of a group by what tells them apart.
using Parts = std::map<std::string, Part>;

void Add(Parts& parts, uint32_t id, Json value, std::string text) {
  parts[std::to_string(id)] = {id, std::move(value), std::move(text)};
}

Parts Single(Json value, std::string text) {
  return {{"", {{}, std::move(value), std::move(text)}}};
}

// The headline alone; reminders under the same headline are told as conditions.
Parts StatusParts(const Snapshot& snapshot) {
  return Single(snapshot.headline, snapshot.headline);
}

Parts ConditionParts(const Snapshot& snapshot) {
  const Language& language = *snapshot.source.language;
  Parts parts;
  for (const Condition& condition : snapshot.conditions) {
    const std::string key =
        condition.code ? std::to_string(*condition.code) : condition.reason->keyword;
    parts[key] = {condition.code, FindingJson(condition, language),
                  ConditionText(condition, language)};
  }
  return parts;
}

std::string InUse(const std::string& name, const Language& language) {
  return name + " (" + Say(Phrase::InUse, language) + ")";
}

std::string TrayText(const Tray& tray, const Language& language) {
  const std::string paper = PaperLabel(tray.paper, language);
  const std::string level = LevelLabel(tray.paper, tray.level, language);
  std::string text = TrayLabel(tray.id, language);
  if (!paper.empty()) text += ", " + paper;
  if (!level.empty()) text += ", " + Say(Phrase::Level, language, {level});
  return text;
}

Parts TrayParts(const Snapshot& snapshot) {
  Parts parts;
  for (const Tray& tray : snapshot.trays)
    Add(parts, tray.id, TrayJson(tray), TrayText(tray, *snapshot.source.language));
  return parts;
}

Parts TrayInUseParts(const Snapshot& snapshot) {
  const Language& language = *snapshot.source.language;
  if (!snapshot.currentTray) return {};
  return Single(*snapshot.currentTray, InUse(TrayLabel(*snapshot.currentTray, language), language));
}

Parts BinParts(const Snapshot& snapshot) {
  const Language& language = *snapshot.source.language;
  Parts parts;
  for (const Bin& bin : snapshot.bins)
    Add(parts, bin.id, BinJson(bin),
        BinLabel(bin.id, language) + ", " + BinStateLabel(bin.state, language));
  return parts;
}

Parts BinInUseParts(const Snapshot& snapshot) {
  const Language& language = *snapshot.source.language;
  if (!snapshot.currentBin) return {};
  return Single(*snapshot.currentBin, InUse(BinLabel(*snapshot.currentBin, language), language));
}

Parts OptionParts(const Snapshot& snapshot) {
  Parts parts;
  if (!snapshot.options) return parts;
  for (const Option& option : *snapshot.options)
    Add(parts, option.code, OptionJson(option),
        OptionLabel(option.code, *snapshot.source.language));
  return parts;
}

Parts LanguageParts(const Snapshot& snapshot) {
  if (!snapshot.language) return {};
  return Single(LanguageJson(*snapshot.language),
                LanguageLabel(*snapshot.language, *snapshot.source.language));
}

// Texts that the printer wrote, of which each stands for itself.
Parts FontParts(const Snapshot& snapshot) {
  Parts parts;
  for (const std::string& name : snapshot.fontNames)
    parts[name] = {{}, EscapeBytes(name), EscapeBytes(name)};
  return parts;
}

Parts VersionParts(const Snapshot& snapshot) {
  Parts parts;
  for (const std::string& version : snapshot.versions)
    parts[version] = {{},
                      EscapeBytes(version),
                      Say(Phrase::VersionIs, *snapshot.source.language, {EscapeBytes(version)})};
  return parts;
}

Parts NumberParts(const Snapshot& snapshot) {
  if (!snapshot.number) return {};
  return Single(*snapshot.number, Say(Phrase::NumberIs, *snapshot.source.language,
                                      {std::to_string(*snapshot.number)}));
}

struct Group {
  const char* name;  // of the report's field
  Parts (*parts)(const Snapshot& snapshot);
};

constexpr Group kGroups[] = {
    {"status", StatusParts},              //
    {"conditions", ConditionParts},       //
    {"tray_in_use", TrayInUseParts},      //
    {"trays", TrayParts},                 //
    {"bin_in_use", BinInUseParts},        //
    {"bins", BinParts},                   //
    {"options", OptionParts},             //
    {"printer_language", LanguageParts},  //
    {"fonts", FontParts},                 //
    {"versions", VersionParts},           //
    {"number", NumberParts},              //
};

// What went comes before what came: of two conditions the one that is over.
void AddGroup(std::vector<Event>& events, const Group& group, const Snapshot& before,
              const Snapshot& after) {
  Parts old_parts = group.parts(before);
  Parts new_parts = group.parts(after);
  for (auto& [key, was] : old_parts) {
    const auto place = new_parts.find(key);
    if (place == new_parts.end()) {
      events.push_back(
          {EventKind::Went, group.name, was.id, std::move(was.value), nullptr, was.text, ""});
    } else if (place->second.value != was.value) {
      Part& now = place->second;
      events.push_back({EventKind::Changed, group.name, was.id, std::move(was.value),
                        std::move(now.value), was.text, now.text});
    }
  }
  for (auto& [key, now] : new_parts) {
    if (!old_parts.contains(key))
      events.push_back(
          {EventKind::Came, group.name, now.id, nullptr, std::move(now.value), "", now.text});
  }
}

Event PrinterEvent(EventKind kind, std::string from, std::string to, const Watch& watch) {
  return {kind,          "printer",          {}, nullptr, nullptr, std::move(from),
          std::move(to), LastAnswerOf(watch)};
}

std::vector<Event> Failure(Watch& watch, const Snapshot& latest, SteadyTime now) {
  const bool silent_before = IsSilent(watch);
  ++watch.failures;
  if (silent_before || !IsSilent(watch)) return {};
  const Language& language = *latest.source.language;
  std::string from = Say(Phrase::NeverAnswered, language);
  if (watch.good)
    from = Say(Phrase::LastAnswerAgo, language, {AgeText(now - watch.goodAt, language)});
  return {PrinterEvent(EventKind::Lost, std::move(from), latest.trouble, watch)};
}

std::vector<Event> Answer(Watch& watch, const Snapshot& latest, SteadyTime now) {
  const Language& language = *latest.source.language;
  std::vector<Event> events;
  if (!watch.good) {
    events.push_back(PrinterEvent(EventKind::First, "", latest.headline, watch));
  } else {
    if (IsSilent(watch))
      events.push_back(
          PrinterEvent(EventKind::Back,
                       Say(Phrase::SilentFor, language, {AgeText(now - watch.goodAt, language)}),
                       latest.headline, watch));
    for (const Group& group : kGroups)
      AddGroup(events, group, *watch.good, latest);
  }
  watch.good = latest;
  watch.goodAt = now;
  watch.failures = 0;
  return events;
}

}  // namespace

std::vector<Event> Observe(Watch& watch, const Snapshot& latest, SteadyTime now) {
  return Settle(watch.flapping,
                IsGood(latest) ? Answer(watch, latest, now) : Failure(watch, latest, now));
}

bool IsSilent(const Watch& watch) {
  return watch.failures >= watch.misses;
}

LastAnswer LastAnswerOf(const Watch& watch) {
  if (!watch.good) return {};
  return watch.good->when;
}

std::chrono::milliseconds NextWait(const Watch& watch, std::chrono::milliseconds interval) {
  return NextWait(IsSilent(watch) ? watch.failures - watch.misses + 1 : 0, interval);
}

std::chrono::milliseconds NextWait(uint32_t failures, std::chrono::milliseconds interval) {
  constexpr std::chrono::milliseconds kLongest = std::chrono::minutes(1);
  auto wait = interval;
  for (uint32_t i = 0; i < failures && wait < kLongest; ++i)
    wait *= 2;
  return std::max(interval, std::min(wait, kLongest));
}

}  // namespace stmon
