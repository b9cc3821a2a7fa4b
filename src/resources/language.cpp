#include "resources/language.h"

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

// One value, so that no reader meets the language of one call with the sublanguage of another.
std::atomic<LANGID> selectedLanguage{0};

const LocaleRow& FindLocale(const char* name) {
  const LocaleRow* row = kLocaleTable;
  while (row->languageId && std::strcmp(row->name, name) != 0)
    ++row;
  return row->languageId ? *row : kEnglish;
}

}  // namespace

LANGID SelectedLanguage() {
  return selectedLanguage.load(std::memory_order_relaxed);
}

}  // namespace stm

uint32_t STM_CALL PatSetLocale(char* name) {
  if (!name) return 0;
  CharUpperA(name);
  const stm::LocaleRow& row = stm::FindLocale(name);
  const auto language = static_cast<LANGID>(row.subLanguageId << 10 | row.languageId);
  stm::SetShared(stm::selectedLanguage, language);
  return 1;
}
