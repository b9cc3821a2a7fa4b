#include "view.h"

#include <algorithm>

#include "labels.h"
#include "safe_text.h"

namespace stmonw {
namespace {

constexpr uint32_t kPaperLevelIcon = 1;  // kind of PatGetIconName
constexpr uint32_t kFullTray = 100;      // per cent
constexpr const wchar_t* kInUse = L" (in use)";

bool Responds(const Knowledge& knowledge) {
  return knowledge.latest && knowledge.latest->told;
}

// The library's icons for what it has no icon of that name.
std::string ExistingIcon(const std::string& name) {
  if (name == "ICO_ERR_POWEROFF") return "ICO_OFFLINE";
  if (name == "BMP_ERR_CAUTION") return "ICO_ERR_CAUTION";
  return name;
}

std::wstring OneLine(const std::wstring& text) {
  std::wstring line;
  for (const wchar_t unit : text) {
    if (unit == L'\r') continue;
    const bool blank = unit == L'\n' || unit == L' ';
    if (!blank || (!line.empty() && line.back() != L' ')) line += blank ? L' ' : unit;
  }
  return line;
}

std::wstring CodeText(uint32_t code) {
  const stmon::Reason& reason = stmon::ReasonOf(code);
  return Wide(std::string(reason.keyword) + " (code " + std::to_string(code) + ")");
}

// The detail text names all that share it: the toners of one kind.
bool Decides(const stmon::Snapshot& snapshot, const stmon::Condition& condition) {
  for (const stmon::Condition& other : snapshot.conditions) {
    const auto& codes = snapshot.dominant;
    if (std::find(codes.begin(), codes.end(), other.code) == codes.end()) continue;
    if (other.code == condition.code) return true;
    if (other.known && condition.known && other.row.detailId == condition.row.detailId) return true;
  }
  return false;
}

std::vector<std::wstring> OtherConditions(const stmon::Snapshot& snapshot, const PrnInfoEx& record,
                                          const Language& language) {
  const bool offline = !snapshot.online && !snapshot.has_error;
  std::vector<std::wstring> others;
  for (const stmon::Condition& condition : snapshot.conditions) {
    if (condition.code == 0 || (!offline && Decides(snapshot, condition))) continue;
    std::wstring text = OneLine(DetailTextOf(record, condition.code, language));
    if (text.empty()) text = ShortTextOf(record, condition.code, language);
    others.push_back(condition.known && !text.empty() ? text : CodeText(condition.code));
  }
  return others;
}

TrayLine LineOf(const stmon::Tray& tray, bool in_use, const Language& language) {
  TrayLine line;
  line.name = TrayName(tray.id, language);
  if (in_use) line.name += kInUse;
  line.paper = PaperName(tray.paper, language);
  char name[32] = "";
  if (PatGetPaperBitmap_Ex(nullptr, tray.paper, name) == 1) line.paper_bitmap = name;
  const bool holds_paper = tray.paper != PaperNone && tray.paper != PaperTrayMissing;
  if (tray.level && tray.paper != PaperTrayMissing) {
    const uint32_t level = holds_paper ? *tray.level : 0;
    line.level = Wide(std::to_string(level) + (level <= kFullTray ? " %" : ""));
    if (PatGetIconName(kPaperLevelIcon, level, name, sizeof name) == 1) line.level_icon = name;
  }
  line.text = line.name + L", " + line.paper + (line.level.empty() ? L"" : L", ") + line.level;
  return line;
}

std::vector<std::wstring> Equipment(const stmon::Snapshot& snapshot, const Language& language) {
  std::vector<std::wstring> lines;
  if (snapshot.options) {
    for (const stmon::Option& option : *snapshot.options) {
      if (option.code != 0) lines.push_back(OptionName(option.code, language));
    }
  }
  for (const stmon::Bin& bin : snapshot.bins) {
    const std::string name = bin.id == BinUnknown ? "unknown" : std::to_string(bin.id);
    lines.push_back(Wide("Output bin " + name));
    if (snapshot.current_bin == bin.id) lines.back() += kInUse;
  }
  if (snapshot.language) lines.push_back(Wide(stmon::LanguageLabel(*snapshot.language)));
  if (!snapshot.versions.empty()) {
    std::string versions = "Version";
    for (const std::string& version : snapshot.versions)
      versions += " " + stmon::EscapeBytes(version);
    lines.push_back(Wide(versions));
  }
  return lines;
}

std::wstring ClockText(std::chrono::system_clock::time_point when) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(when.time_since_epoch());
  // FILETIME counts 100 ns from 1601.
  const uint64_t ticks = (static_cast<uint64_t>(seconds.count()) + 11644473600ull) * 10000000ull;
  const FILETIME time = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
  SYSTEMTIME universal, local;
  wchar_t text[64] = L"";
  if (FileTimeToSystemTime(&time, &universal) &&
      SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
    GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &local, nullptr, text, 64);
  return text;
}

std::wstring AgeText(std::chrono::system_clock::duration age) {
  const auto seconds =
      std::max<int64_t>(std::chrono::duration_cast<std::chrono::seconds>(age).count(), 0);
  if (seconds < 120) return std::to_wstring(seconds) + L" s";
  if (seconds < 7200) return std::to_wstring(seconds / 60) + L" min";
  return std::to_wstring(seconds / 3600) + L" h";
}

// The first sentence tells what happened; the rest is advice for a command line.
std::string FirstSentence(const std::string& text) {
  const size_t end = text.find(". ");
  return end == std::string::npos ? text : text.substr(0, end + 1);
}

}  // namespace

void Learn(Knowledge& knowledge, stmon::Snapshot snapshot) {
  if (snapshot.told) knowledge.last_good = snapshot;
  knowledge.latest = std::move(snapshot);
}

PrnInfoEx ShownRecord(const Knowledge& knowledge) {
  PrnInfoEx record{};
  if (knowledge.last_good) record = *knowledge.last_good->record;
  if (knowledge.latest && !Responds(knowledge)) {
    // Without the error flag the texts would call it offline, which the printer has not said.
    record.noResponse = 1;
    record.hasError = 1;
  }
  return record;
}

View MakeView(const Knowledge& knowledge, const Language& language) {
  View view;
  const PrnInfoEx record = ShownRecord(knowledge);
  if (!knowledge.latest) {
    view.short_text = L"Connecting...";
    view.icon = "ICO_WARMUP";
    return view;
  }
  char icon[32] = "";
  PatGetErrParts_Ex(&record, icon);
  view.icon = ExistingIcon(icon);
  view.short_text = ShortText(record, language);
  view.detail = DetailText(record, language);
  view.stale = !Responds(knowledge);
  if (!knowledge.last_good) return view;

  const stmon::Snapshot& good = *knowledge.last_good;
  if (view.short_text.empty() && !good.dominant.empty())
    view.short_text = CodeText(good.dominant[0]);
  if (!view.stale) view.others = OtherConditions(good, record, language);
  for (const stmon::Tray& tray : good.trays)
    view.trays.push_back(LineOf(tray, good.current_tray == tray.id, language));
  view.equipment = Equipment(good, language);
  return view;
}

std::wstring ConnectionText(const Knowledge& knowledge, std::chrono::system_clock::time_point now) {
  if (!knowledge.latest) return Wide("Asking " + stmon::CleanUtf8(knowledge.source) + "...");
  const std::wstring source = Wide(stmon::CleanUtf8(knowledge.source));
  const stmon::Snapshot& latest = *knowledge.latest;
  if (latest.told && latest.trouble.empty())
    return source + L" answered at " + ClockText(latest.when) + L".";
  std::wstring text =
      source + L": " + Wide(stmon::CleanUtf8(FirstSentence(latest.trouble))) + L"\n";
  if (knowledge.last_good) {
    const auto when = knowledge.last_good->when;
    return text + L"Last answer at " + ClockText(when) + L", " + AgeText(now - when) +
           L" ago: trays and equipment are of that time.";
  }
  return text + L"No answer since " + ClockText(knowledge.since) + L", " +
         AgeText(now - knowledge.since) + L" ago.";
}

}  // namespace stmonw
