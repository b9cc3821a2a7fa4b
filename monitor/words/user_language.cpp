#include "words/user_language.h"

#include "stmdata/stmdata.h"

namespace stmon {
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
LANGID SystemLanguage() {
  return GetUserDefaultUILanguage();
}

uint32_t SystemCodePage(const Language&) {
  return GetACP();
}
#else
// The library's reading of the environment. AskTexts sets another one only while it asks.
LANGID SystemLanguage() {
  return GetThreadUILanguage();
}

uint32_t SystemCodePage(const Language& language) {
  return language.codePage;
}
#endif

}  // namespace

const Language* FindLanguage(std::string_view code) {
  for (const Language& row : kLanguages) {
    if (SameWord(code, row.code)) return &row;
  }
  return nullptr;
}

std::string LanguageCodes() {
  std::string codes;
  for (const Language& row : kLanguages)
    codes += (codes.empty() ? "" : " ") + std::string(row.code);
  return codes;
}

const Language& UserLanguage() {
  constexpr uint32_t kPrimary = 0x3FF;  // bits of a language id, without the country's
  const uint32_t wanted = SystemLanguage();
  for (const Language& row : kLanguages) {
    if (((row.id ^ wanted) & kPrimary) == 0) return row;
  }
  return kLanguages[0];
}

bool FlatTextsAreWhole(const Language& language) {
  constexpr uint32_t kUtf8 = 65001;
  const uint32_t page = SystemCodePage(language);
  return page == language.codePage || page == kUtf8 || language.id == kLanguages[0].id;
}

}  // namespace stmon
