#include "platform/linux/environment_language.h"

#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string_view>

#include "stmdata/languages.h"

namespace stm {
namespace {

// `codes` have two letters each, with a blank between them.
bool Lists(std::string_view codes, std::string_view code) {
  const size_t at = codes.find(code);
  return code.size() == 2 && at != codes.npos && at % 3 == 0;
}

thread_local LANGID chosenLanguage = kNeutral;

// Read when the library is loaded: a program's threads may change the environment later.
const LANGID environmentLanguage = LanguageOfLocale(EnvironmentLocale());

}  // namespace

const char* EnvironmentLocale() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value) return value;
  }
  return "C";
}

// A locale's country is not looked at: who asks for pt_PT or de_AT is better served by the one
// variant there is than by English, which C, POSIX and every other language get.
LANGID LanguageOfLocale(const char* locale) {
  const std::string_view code(locale, std::strcspn(locale, "_.@"));
  for (const LocaleRow& row : LocaleTable) {
    if (Lists(row.locales, code)) return row.id;
  }
  return LocaleTable[0].id;
}

LANGID EnvironmentLanguage() {
  return environmentLanguage;
}

LANGID ThreadTextLanguage() {
  const LANGID language = GetThreadUILanguage();
  for (const LocaleRow& row : LocaleTable) {
    if (row.id == language) return language;
  }
  return kEnglish;
}

}  // namespace stm

extern "C" {

LANGID STM_CALL SetThreadUILanguage(LANGID language) {
  stm::chosenLanguage = language;
  return GetThreadUILanguage();
}

LANGID STM_CALL GetThreadUILanguage(void) {
  return stm::chosenLanguage ? stm::chosenLanguage : stm::EnvironmentLanguage();
}
}
