#include "stmonw/view.h"

#include <algorithm>

#include "picture/picture.h"
#include "system/wide_text.h"
#include "words/clock.h"
#include "words/labels.h"
#include "words/phrases.h"
#include "words/safe_text.h"

namespace stmonw {
namespace {

using stmon::Wide;

constexpr uint32_t kPaperLevelIcon = 1;  // kind of PatGetIconName

std::wstring SayWide(stmon::Phrase phrase, const stmon::Language& language,
                     std::initializer_list<std::string_view> values = {}) {
  return Wide(stmon::Say(phrase, language, values));
}

std::wstring InUse(const stmon::Language& language) {
  return L" (" + SayWide(stmon::Phrase::InUse, language) + L")";
}

// An edit control breaks lines at both characters only.
std::wstring WithCrLf(const std::wstring& text) {
  std::wstring lines;
  for (const wchar_t unit : text) {
    if (unit == L'\n') lines += L'\r';
    lines += unit;
  }
  return lines;
}

// All but what the headline tells.
std::vector<std::wstring> OtherConditions(const stmon::Snapshot& snapshot) {
  std::vector<std::wstring> others;
  for (const stmon::Condition& condition : snapshot.conditions) {
    if (condition.dominant) continue;
    std::string text = condition.texts.detail;
    std::replace(text.begin(), text.end(), '\n', ' ');
    others.push_back(
        Wide(text.empty() ? stmon::ConditionText(condition, *snapshot.source.language) : text));
  }
  return others;
}

TrayLine LineOf(const stmon::Tray& tray, bool in_use, const stmon::Language& language) {
  TrayLine line;
  line.name = Wide(stmon::TrayLabel(tray.id, language));
  if (in_use) line.name += InUse(language);
  line.paper = Wide(stmon::PaperLabel(tray.paper, language));
  char name[32] = "";
  if (PatGetPaperBitmap_Ex(nullptr, tray.paper, name) == 1) line.paperBitmap = name;
  const bool holds_paper = tray.paper != PaperNone && tray.paper != PaperTrayMissing;
  // A tray that is out has no level, and an empty one none but 0, whatever the printer sends.
  if (tray.level && tray.paper != PaperTrayMissing) {
    const uint32_t level = holds_paper ? *tray.level : 0;
    line.level = Wide(stmon::LevelLabel(tray.paper, tray.level, language));
    if (PatGetIconName(kPaperLevelIcon, level, name, sizeof name) == 1) line.levelIcon = name;
  }
  line.text = line.name + L", " + line.paper + (line.level.empty() ? L"" : L", ") + line.level;
  return line;
}

std::vector<std::wstring> Equipment(const stmon::Snapshot& snapshot,
                                    const stmon::Language& language) {
  std::vector<std::wstring> lines;
  if (snapshot.options) {
    for (const stmon::Option& option : *snapshot.options) {
      if (option.code != 0) lines.push_back(Wide(stmon::OptionLabel(option.code, language)));
    }
  }
  for (const stmon::Bin& bin : snapshot.bins) {
    lines.push_back(
        Wide(stmon::BinLabel(bin.id, language) + ", " + stmon::BinStateLabel(bin.state, language)));
    if (snapshot.currentBin == bin.id) lines.back() += InUse(language);
  }
  if (snapshot.language) lines.push_back(Wide(stmon::LanguageLabel(*snapshot.language, language)));
  if (!snapshot.versions.empty()) {
    std::string versions;
    for (const std::string& version : snapshot.versions)
      versions += (versions.empty() ? "" : ", ") + stmon::EscapeBytes(version);
    lines.push_back(SayWide(stmon::Phrase::VersionIs, language, {versions}));
  }
  return lines;
}

std::string ClockText(std::chrono::system_clock::time_point when) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(when.time_since_epoch());
  // FILETIME counts 100 ns from 1601.
  const uint64_t ticks = (static_cast<uint64_t>(seconds.count()) + 11644473600ull) * 10000000ull;
  const FILETIME time = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
  SYSTEMTIME universal, local;
  wchar_t text[64] = L"";
  if (FileTimeToSystemTime(&time, &universal) &&
      SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
    GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &local, nullptr, text, 64);
  return stmon::Utf8(text);
}

std::string AgeText(std::chrono::system_clock::duration age, const stmon::Language& language) {
  const auto shown = std::max(age, std::chrono::system_clock::duration::zero());
  return stmon::AgeText(std::chrono::duration_cast<std::chrono::steady_clock::duration>(shown),
                        language);
}

// The first sentence tells what happened; the rest is advice for a command line.
std::string FirstSentence(const std::string& text) {
  const size_t end = text.find(". ");
  return end == std::string::npos ? text : text.substr(0, end + 1);
}

}  // namespace

void Learn(Knowledge& knowledge, stmon::Snapshot snapshot) {
  if (snapshot.told) knowledge.lastGood = snapshot;
  knowledge.latest = std::move(snapshot);
}

PrnInfoEx ShownRecord(const Knowledge& knowledge) {
  PrnInfoEx record{};
  if (knowledge.lastGood) record = *knowledge.lastGood->record;
  if (knowledge.latest && !knowledge.latest->told) {
    // Without the error flag the texts would call it offline, which the printer has not said.
    record.noResponse = 1;
    record.hasError = 1;
  }
  return record;
}

void Translate(Knowledge& knowledge, const stmon::Language& language) {
  for (auto* snapshot : {&knowledge.latest, &knowledge.lastGood}) {
    if (!*snapshot) continue;
    const auto when = (*snapshot)->when;
    stmon::Source source = (*snapshot)->source;
    source.language = &language;
    *snapshot = stmon::ReadExchange(std::move(source), std::move((*snapshot)->exchange));
    (*snapshot)->when = when;
  }
}

View MakeView(const Knowledge& knowledge, const stmon::Language& language) {
  View view;
  if (!knowledge.latest) {
    view.shortText = SayWide(stmon::Phrase::Connecting, language);
    view.icon = "ICO_WARMUP";
    return view;
  }
  const stmon::Snapshot& latest = *knowledge.latest;
  view.shortText = Wide(latest.headline);
  view.detail = WithCrLf(Wide(latest.texts.detail));
  view.icon = stmon::ExistingIcon(latest.icon);
  view.others = OtherConditions(latest);
  if (!knowledge.lastGood) return view;
  const stmon::Snapshot& good = *knowledge.lastGood;
  for (const stmon::Tray& tray : good.trays)
    view.trays.push_back(LineOf(tray, good.currentTray == tray.id, language));
  view.equipment = Equipment(good, language);
  return view;
}

std::wstring ConnectionText(const Knowledge& knowledge, std::chrono::system_clock::time_point now,
                            const stmon::Language& language) {
  using stmon::Phrase;
  const std::string source = stmon::CleanUtf8(knowledge.source);
  if (!knowledge.latest) return SayWide(Phrase::Asking, language, {source});
  const stmon::Snapshot& latest = *knowledge.latest;
  if (latest.told && latest.trouble.empty())
    return SayWide(Phrase::AnsweredAt, language, {source, ClockText(latest.when)});
  const auto when = knowledge.lastGood ? knowledge.lastGood->when : knowledge.since;
  const auto since = knowledge.lastGood ? Phrase::LastAnswerAt : Phrase::NoAnswerSince;
  return Wide(source + ": " + stmon::CleanUtf8(FirstSentence(latest.trouble)) + "\n") +
         SayWide(since, language, {ClockText(when), AgeText(now - when, language)});
}

}  // namespace stmonw
