#include "words/texts.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "words/reasons.h"

#include "words/safe_text.h"

namespace stmon {
namespace {

constexpr int32_t kSize = 1024;  // bytes; the longest text has about 250

std::string_view Trimmed(std::string_view line) {
  while (!line.empty() && (line.front() == ' ' || line.front() == '\r'))
    line.remove_prefix(1);
  while (!line.empty() && (line.back() == ' ' || line.back() == '\r'))
    line.remove_suffix(1);
  return line;
}

// Lines without blanks around them, without empty lines, without a line feed at the end. The
// library's texts are laid out for a dialog of fixed width: blanks and line feeds at the end of a
// text are there to join it with the next one.
std::string Tidy(std::string_view text) {
  std::string tidy;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    const std::string_view line = Trimmed(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.empty()) continue;
    if (!tidy.empty()) tidy += '\n';
    tidy += line;
  }
  return tidy;
}

// The flat record's detail text of a toner status ends with colour names of code page 932, whatever
// its language; they follow the last line feed.
std::string FlatDetail(std::string_view text, uint32_t dominant) {
  const bool colours = dominant >= 65 && dominant <= 76;
  const size_t last = colours ? text.rfind('\n') : std::string_view::npos;
  if (last == std::string_view::npos) return Tidy(ToUtf8(text, CP_ACP));
  return Tidy(ToUtf8(text.substr(0, last), CP_ACP) + "\n" + ToUtf8(text.substr(last + 1), 932));
}

// The language in which the system picks this thread's texts: a thread has one for what it shows
// and one for its locale, and systems differ in which of them counts.
struct ThreadLanguage {
  LANGID shown;
  uint32_t locale;
};

ThreadLanguage SetThreadLanguage(ThreadLanguage language) {
  ThreadLanguage before = {GetThreadUILanguage(), 0};
#ifdef _WIN32
  before.locale = GetThreadLocale();
  SetThreadLocale(language.locale);
#endif
  SetThreadUILanguage(language.shown);
  return before;
}

}  // namespace

Texts AskTexts(const PrnInfoEx& record, const Language& language) {
  std::string code = language.code;  // the library writes to what it is given
  PatSetLocale(code.data());
  char buffer[kSize] = "";
  Texts texts;
  if (PatGetSimpleString_Ex(&record, buffer, kSize) == 1)
    texts.brief = Tidy(ToUtf8(buffer, language.codePage));
  if (PatGetDetailString_Ex(&record, buffer, kSize) == 1)
    texts.detail = Tidy(ToUtf8(buffer, language.codePage));
  return texts;
}

Texts AskTexts(const PrnInfo& info, const Language& language, uint32_t dominant) {
  const ThreadLanguage before = SetThreadLanguage({language.id, language.id});
  PrnInfo copy = info;  // the question for the detail text may write to its record
  char buffer[kSize] = "";
  Texts texts;
  if (PatGetSimpleString(&copy, buffer, kSize) == 1) texts.brief = Tidy(ToUtf8(buffer, CP_ACP));
  if (PatGetDetailString(&copy, buffer, kSize) == 1) texts.detail = FlatDetail(buffer, dominant);
  SetThreadLanguage(before);
  return texts;
}

bool AskRow(uint32_t code, StatusRow& row) {
  PrnInfo info{};
  info.structSize = PrnInfoSize;
  info.statusCode = code;
  return PatGetPrinterStatus(&info, &row) == 1;
}

std::string AskIcon(const PrnInfoEx& record) {
  char name[17] = "";
  return PatGetErrParts_Ex(&record, name) == 1 ? name : "";
}

std::string AskIcon(const PrnInfo& info) {
  char name[17] = "";
  return PatGetErrParts(&info, name) == 1 ? name : "";
}

StatusSample::StatusSample(std::span<const uint32_t> codes, bool duplex, uint32_t trays) {
  list.recordTag = PrnInfoExTag;
  list.structSize = PrnInfoExSize;
  flat.structSize = PrnInfoSize;
  list.online = flat.online = 1;
  for (const uint32_t code : codes) {
    if (code == kOfflineCode) list.online = flat.online = 0;
    if (code == kOfflineCode || code == kOtherCode) continue;
    flat.statusCode = code;
    flat.statusList[flat.statusCount++] = code;
    list.printing |= code == StatusPrinting;
    list.noResponse |= code == StatusNoResponse;
    // The library's own two codes come from flags; as listed codes they mean nothing.
    if (code == StatusPrinting || code == StatusNoResponse) continue;
    StatusNode& node = statuses.emplace_back();
    node.nodeSize = sizeof node;
    node.code = static_cast<uint16_t>(code);
  }
  for (size_t i = 1; i < statuses.size(); ++i)
    statuses[i - 1].next = &statuses[i];
  list.statusCount = static_cast<uint32_t>(statuses.size());
  list.statusList = statuses.empty() ? nullptr : statuses.data();
  flat.printing = list.printing;
  flat.noResponse = list.noResponse;
  if (flat.statusCount > 1) flat.statusCode = StatusSeveralMarker;
  duplexUnit.nodeSize = sizeof duplexUnit;
  duplexUnit.optionCode = OptionDuplex;
  list.optionCount = duplex;
  list.optionList = duplex ? &duplexUnit : nullptr;

  flat.hasDuplex = flat.duplexFlag = duplex;

  constexpr uint16_t kFirstTray = 3, kA4 = 8, kFull = 100;
  trays = std::min<uint32_t>(trays, std::size(trayNodes));
  for (uint32_t i = 0; i < trays; ++i) {
    TrayNode& node = trayNodes[i];
    node.nodeSize = sizeof node;
    node.trayId = static_cast<uint16_t>(kFirstTray + i);
    node.paperCode = kA4;
    node.paperLevel = kFull;
    node.next = i + 1 < trays ? &trayNodes[i + 1] : nullptr;
    flat.trayList[i] = {node.trayId, kA4};
    flat.trayLevelList[i] = {node.trayId, kFull};
  }
  list.trayList = trays > 0 ? trayNodes : nullptr;
  list.trayCount = flat.trayCount = flat.trayLevelCount = trays;
  if (trays > 0) list.currentTray = flat.currentTray = kFirstTray;
}

}  // namespace stmon
