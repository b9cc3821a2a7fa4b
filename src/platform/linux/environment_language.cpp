#include "platform/linux/environment_language.h"

#include <cstdlib>
#include <cstring>
#include <initializer_list>

namespace stm {
namespace {

struct LocaleRow {
  char code[3];  // ISO 639-1
  LANGID language;
};

// A locale's country is not looked at: who asks for pt_PT or de_AT is better served by the one
// variant there is than by English.
constexpr LocaleRow kLocales[] = {
    {"en", 0x0409},  // English (United States)
    {"de", 0x0407},  // German
    {"fr", 0x040C},  // French
    {"it", 0x0410},  // Italian
    {"es", 0x040A},  // Spanish
    {"nl", 0x0413},  // Dutch
    {"sv", 0x041D},  // Swedish
    {"da", 0x0406},  // Danish
    {"no", 0x0414},  // Norwegian, the old name
    {"nb", 0x0414},  // Norwegian (Bokmål)
    {"nn", 0x0414},  // Norwegian (Nynorsk), read by the same people
    {"cs", 0x0405},  // Czech
    {"hu", 0x040E},  // Hungarian
    {"pt", 0x0416},  // Portuguese (Brazil)
    {"pl", 0x0415},  // Polish
    {"fi", 0x040B},  // Finnish
    {"ja", 0x0411},  // Japanese
    {"", kEnglish},  // closing row: C, POSIX and every other language
};

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

LANGID LanguageOfLocale(const char* locale) {
  const size_t length = std::strcspn(locale, "_.@");
  const LocaleRow* row = kLocales;
  while (row->code[0] && !(length == 2 && std::memcmp(row->code, locale, 2) == 0))
    ++row;
  return row->language;
}

LANGID EnvironmentLanguage() {
  return environmentLanguage;
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
