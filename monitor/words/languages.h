// The languages that the library speaks, and its texts as UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "stmdata/stmdata.h"

namespace stmon {

struct Language {
  const char* code;    // as PatSetLocale takes it
  const char* locale;  // two letters of the system's locale names
  uint16_t id;         // of the system
  uint32_t codePage;   // of the texts that the list-based record's questions give
  const char* name;    // in the language itself
};

extern const Language kLanguages[];  // closed by a null code

// By code, in any case. Result: null for an unknown one.
const Language* FindLanguage(std::string_view code);

// That of the user's locale, English when the library does not speak it.
const Language& UserLanguage();

// The flat record's texts come in the system's code page, which may lack letters of the language.
// (On Linux it is the one of the language.)
bool FlatTextsAreWhole(const Language& language);

// `text` of code page 932, 1250, 1252 or CP_ACP; without control characters but line feeds.
std::string ToUtf8(std::string_view text, uint32_t code_page);

}  // namespace stmon
