#include "printer_texts.h"

#include <algorithm>
#include <cstring>

#include "labels.h"

namespace stmonw {
namespace {

constexpr UINT kNamesCodePage = 932;  // of tray and paper names, in every language
constexpr uint32_t kStatusNoPaper = 32;
constexpr uint32_t kStatusTrayMisplaced = 33;

UINT CodePageOf(const Language& language) {
  DWORD code_page = CP_ACP;
  GetLocaleInfoW(language.id, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                 reinterpret_cast<wchar_t*>(&code_page), sizeof code_page / sizeof(wchar_t));
  return code_page;
}

void Choose(const Language& language) {
  char code[8];
  lstrcpynA(code, language.code, sizeof code);  // the library writes to what it is given
  PatSetLocale(code);
}

std::wstring WithCrLf(const std::wstring& text) {
  std::wstring lines;
  for (const wchar_t unit : text) {
    if (unit == L'\n') lines += L'\r';
    lines += unit;
  }
  while (!lines.empty() && (lines.back() == L' ' || lines.back() == L'\r' || lines.back() == L'\n'))
    lines.pop_back();
  return lines;
}

enum class Question { Short, Detail };

std::wstring Ask(Question question, const PrnInfoEx& record, const Language& language) {
  char buffer[1024] = "";
  Choose(language);
  if (question == Question::Short) PatGetSimpleString_Ex(&record, buffer, sizeof buffer);
  if (question == Question::Detail) PatGetDetailString_Ex(&record, buffer, sizeof buffer);
  return WithCrLf(Wide(buffer, CodePageOf(language)));
}

std::wstring AskAbout(uint32_t code, Question question, PrnInfoEx record,
                      const Language& language) {
  StatusNode node{};
  node.nodeSize = sizeof node;
  node.code = static_cast<uint16_t>(code);
  record.statusList = &node;
  record.statusCount = 1;
  record.online = 1;
  record.noResponse = 0;
  return Ask(question, record, language);
}

bool IsJapanese(const Language& language) {
  return language.id == 1041;
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char byte) { return byte > 0x20 && byte < 0x7F; });
}

}  // namespace

const Language kLanguages[] = {
    //  code  id    name
    {"CS", 1029, L"\u010Ce\u0161tina (CS)"},
    {"DA", 1030, L"Dansk (DA)"},
    {"DE", 1031, L"Deutsch (DE)"},
    {"EN", 1033, L"English (EN)"},
    {"ES", 1034, L"Espa\u00F1ol (ES)"},
    {"FR", 1036, L"Fran\u00E7ais (FR)"},
    {"IT", 1040, L"Italiano (IT)"},
    {"HU", 1038, L"Magyar (HU)"},
    {"NL", 1043, L"Nederlands (NL)"},
    {"NO", 1044, L"Norsk (NO)"},
    {"PL", 1045, L"Polski (PL)"},
    {"PT", 1046, L"Portugu\u00EAs (PT)"},
    {"FI", 1035, L"Suomi (FI)"},
    {"SV", 1053, L"Svenska (SV)"},
    {"JP", 1041, L"\u65E5\u672C\u8A9E (JP)"},
    {nullptr, 0, nullptr},  // closing row
};

const Language* FindLanguage(std::string_view code) {
  const std::string name(code);
  for (const Language* row = kLanguages; row->code; ++row) {
    if (lstrcmpiA(row->code, name.c_str()) == 0) return row;
  }
  return nullptr;
}

const Language& UserLanguage() {
  // Two names for one Norwegian, and a system may say either.
  LANGID primary = PRIMARYLANGID(GetUserDefaultUILanguage());
  for (const Language* row = kLanguages; row->code; ++row) {
    if (PRIMARYLANGID(row->id) == primary) return *row;
  }
  return *FindLanguage("EN");
}

std::wstring ShortText(const PrnInfoEx& record, const Language& language) {
  return Ask(Question::Short, record, language);
}

std::wstring DetailText(const PrnInfoEx& record, const Language& language) {
  return Ask(Question::Detail, record, language);
}

std::wstring ShortTextOf(const PrnInfoEx& record, uint32_t code, const Language& language) {
  return AskAbout(code, Question::Short, record, language);
}

std::wstring DetailTextOf(const PrnInfoEx& record, uint32_t code, const Language& language) {
  return AskAbout(code, Question::Detail, record, language);
}

std::wstring TrayName(uint32_t id, const Language& language) {
  char name[16] = "";
  if (IsJapanese(language) && PatGetTrayName_Ex(nullptr, id, name) == 1)
    return Wide(name, kNamesCodePage);
  return Wide(stmon::TrayLabel(id));
}

std::wstring PaperName(uint32_t code, const Language& language) {
  // A short status text says both in every language.
  if (code == PaperNone) return ShortTextOf({}, kStatusNoPaper, language);
  if (code == PaperTrayMissing) return ShortTextOf({}, kStatusTrayMisplaced, language);
  char name[16] = "";
  const bool named = PatGetPaperName_Ex(nullptr, code, name) == 1 && std::strcmp(name, "***") != 0;
  if (named && (IsJapanese(language) || IsAscii(name))) return Wide(name, kNamesCodePage);
  return Wide(stmon::PaperLabel(code));
}

std::wstring OptionName(uint32_t code, const Language& language) {
  // Device codes of PatGetDeviceName for the two options that it names.
  const uint32_t device = code == OptionDuplex ? 164 : code == 105 ? 163 : 0;
  char name[32] = "";
  uint32_t size = sizeof name;
  Choose(language);
  if (PatGetDeviceName(device, name, &size) == 1 && name[0] != '\0')
    return Wide(name, CodePageOf(language));
  return Wide(stmon::OptionLabel(code));
}

std::wstring Wide(std::string_view text, UINT code_page) {
  if (text.empty()) return {};
  const int length = static_cast<int>(text.size());
  const int units = MultiByteToWideChar(code_page, 0, text.data(), length, nullptr, 0);
  std::wstring wide(static_cast<size_t>(std::max(units, 0)), L'\0');
  MultiByteToWideChar(code_page, 0, text.data(), length, wide.data(), units);
  return wide;
}

}  // namespace stmonw
