#include "resources/chosen_language.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

#include "platform/shared_value.h"
#include "stmdata/languages.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// The language, and above it its code page, which is asked for once. One value, so that no reader
// meets parts of two calls.
std::atomic<uint32_t> selectedLocale{0};

const LocaleRow& FindLocale(const char* code) {
  for (const LocaleRow& row : LocaleTable) {
    if (std::strcmp(row.code, code) == 0) return row;
  }
  return LocaleTable[0];
}

UINT AskCodePage(LANGID language) {
  char digits[256];
  if (!GetLocaleInfoA(language, LOCALE_IDEFAULTANSICODEPAGE, digits, sizeof digits))
    return kNoCodePage;
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
  const LANGID language = stm::FindLocale(name).id;
  stm::SetShared(stm::selectedLocale, stm::AskCodePage(language) << 16 | language);
  return 1;
}
