// The languages that the library speaks, and the one to choose for a user.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "stmdata/languages.h"

namespace stmon {

using Language = LocaleRow;
inline constexpr auto& kLanguages = LocaleTable;
inline constexpr const Language& kEnglish = kLanguages[0];

// By code, in any case. Result: null for an unknown one.
const Language* FindLanguage(std::string_view code);

// "EN DE FR ...": all codes in the order of the table.
std::string LanguageCodes();

// The language in which the system shows things to the user; English when the library does not
// speak it.
const Language& UserLanguage();

// The flat record's texts come in the system's code page, which may lack letters of the language.
// On Linux none is lost: the library takes the code page of the thread's language there.
bool FlatTextsAreWhole(const Language& language);

}  // namespace stmon
