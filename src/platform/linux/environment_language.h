// The language that the calling thread's texts are in.
#pragma once

#include "platform/windows_api.h"

namespace stm {

inline constexpr LANGID kEnglish = 0x0409;
inline constexpr LANGID kNeutral = 0;

// The language of a locale name such as "de_AT.UTF-8@euro"; English for a name without one.
LANGID LanguageOfLocale(const char* locale);

// The name of the environment's locale; "C" where it has none.
const char* EnvironmentLocale();

// Its language, as it was when the library was loaded.
LANGID EnvironmentLanguage();

// The language of the texts that follow the calling thread's: that one where the library has texts
// in it, else English. Their code page is this language's, too.
LANGID ThreadTextLanguage();

}  // namespace stm
