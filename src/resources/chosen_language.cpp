#include "resources/chosen_language.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

#include "platform/shared_value.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

struct LocaleRow {
  const char* name;
  uint32_t languageId;
  uint32_t subLanguageId;
};

constexpr LocaleRow kLocaleTable[] = {
    //  name  primary  sublanguage
    {"EN", 9, 1},     // English (United States)
    {"DE", 7, 1},     // German
    {"FR", 12, 1},    // French
    {"IT", 16, 1},    // Italian
    {"ES", 10, 1},    // Spanish
    {"NL", 19, 1},    // Dutch
    {"SV", 29, 1},    // Swedish
    {"DA", 6, 1},     // Danish
    {"NO", 20, 1},    // Norwegian (Bokmål)
    {"CS", 5, 1},     // Czech
    {"HU", 14, 1},    // Hungarian
    {"PT", 22, 1},    // Portuguese (Brazil)
    {"PL", 21, 1},    // Polish
    {"FI", 11, 1},    // Finnish
    {"JP", 17, 1},    // Japanese; not the ISO code
    {nullptr, 0, 0},  // closing row
};
constexpr const LocaleRow& kEnglish = kLocaleTable[0];

// The language, and above it its code page, which is asked for once. One value, so that no reader
// meets parts of two calls.
std::atomic<uint32_t> selectedLocale{0};

const LocaleRow& FindLocale(const char* name) {
  const LocaleRow* row = kLocaleTable;
  while (row->languageId && std::strcmp(row->name, name) != 0)
    ++row;
  return row->languageId ? *row : kEnglish;
}

UINT AskCodePage(LANGID language) {
  char digits[256];
  if (!GetLocaleInfoA(language, LOCALE_IDEFAULTANSICODEPAGE, digits, sizeof digits)) return 0;
  return static_cast<UINT>(std::strtoul(digits, nullptr, 10));
}

}  // namespace

LANGID SelectedLanguage() {
  return static_cast<LANGID>(selectedLocale.load(std::memory_order_relaxed));
}

// What the neutral language means changes with the thread, and so does its code page.
UINT CodePageOf(LANGID language) {
  const uint32_t selected = selectedLocale.load(std::memory_order_relaxed);
  const bool known = language != 0 && language == static_cast<LANGID>(selected);
  return known ? selected >> 16 : AskCodePage(language);
}

}  // namespace stm

uint32_t STM_CALL PatSetLocale(char* name) {
  if (!name) return 0;
  CharUpperA(name);
  const stm::LocaleRow& row = stm::FindLocale(name);
  const auto language = static_cast<LANGID>(row.subLanguageId << 10 | row.languageId);
  stm::SetShared(stm::selectedLocale, stm::AskCodePage(language) << 16 | language);
  return 1;
}
