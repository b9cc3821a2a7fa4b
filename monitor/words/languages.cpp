#include "words/languages.h"

#include <cstdlib>
#include <vector>

#include "utf8.h"
#include "words/safe_text.h"

namespace stmon {

const Language kLanguages[] = {
    // code locale id    page  name
    {"EN", "en", 1033, 1252, "English"},             //
    {"DE", "de", 1031, 1252, "Deutsch"},             //
    {"FR", "fr", 1036, 1252, "Français"},            //
    {"IT", "it", 1040, 1252, "Italiano"},            //
    {"ES", "es", 1034, 1252, "Español"},             //
    {"NL", "nl", 1043, 1252, "Nederlands"},          //
    {"SV", "sv", 1053, 1252, "Svenska"},             //
    {"DA", "da", 1030, 1252, "Dansk"},               //
    {"NO", "nb", 1044, 1252, "Norsk"},               //
    {"CS", "cs", 1029, 1250, "Čeština"},             //
    {"HU", "hu", 1038, 1250, "Magyar"},              //
    {"PT", "pt", 1046, 1252, "Português (Brasil)"},  //
    {"PL", "pl", 1045, 1250, "Polski"},              //
    {"FI", "fi", 1035, 1252, "Suomi"},               //
    {"JP", "ja", 1041, 932, "日本語"},               //
    {nullptr, nullptr, 0, 0, nullptr},               // closing row
};

namespace {

char Upper(char byte) {
  return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 32) : byte;
}

bool SameWord(std::string_view left, std::string_view right) {
  if (left.size() != right.size()) return false;
  for (size_t i = 0; i < left.size(); ++i) {
    if (Upper(left[i]) != Upper(right[i])) return false;
  }
  return true;
}

#ifdef _WIN32
const Language* SystemLanguage() {
  constexpr uint16_t kPrimary = 0x3FF;
  const uint16_t id = GetUserDefaultUILanguage();
  for (const Language* row = kLanguages; row->code; ++row) {
    if ((row->id & kPrimary) == (id & kPrimary)) return row;
  }
  return nullptr;
}

uint32_t SystemCodePage(const Language&) {
  return GetACP();
}
#else
uint32_t SystemCodePage(const Language& language) {
  return language.codePage;
}

const Language* SystemLanguage() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (!value || !*value) continue;
    std::string_view word(value);
    word = word.substr(0, word.find_first_of("_.@-"));
    if (SameWord(word, "no") || SameWord(word, "nn")) word = "nb";
    for (const Language* row = kLanguages; row->code; ++row) {
      if (SameWord(word, row->locale)) return row;
    }
    return nullptr;
  }
  return nullptr;
}
#endif

}  // namespace

const Language* FindLanguage(std::string_view code) {
  for (const Language* row = kLanguages; row->code; ++row) {
    if (SameWord(code, row->code)) return row;
  }
  return nullptr;
}

const Language& UserLanguage() {
  const Language* language = SystemLanguage();
  return language ? *language : kLanguages[0];
}

bool FlatTextsAreWhole(const Language& language) {
  constexpr uint32_t kUtf8 = 65001;
  const uint32_t page = SystemCodePage(language);
  return page == language.codePage || page == kUtf8 || language.id == kLanguages[0].id;
}

std::string ToUtf8(std::string_view text, uint32_t code_page) {
  if (text.empty()) return {};
  const auto size = static_cast<int>(text.size());
  const int units = MultiByteToWideChar(code_page, 0, text.data(), size, nullptr, 0);
  if (units <= 0) return EscapeBytes(text);
  std::vector<WCHAR> wide(static_cast<size_t>(units));
  MultiByteToWideChar(code_page, 0, text.data(), size, wide.data(), units);
  std::u16string points(wide.begin(), wide.end());
  std::string result;
  utf8::unchecked::utf16to8(points.begin(), points.end(), std::back_inserter(result));
  return CleanUtf8(result);
}

}  // namespace stmon
