// The language that the caller chose for the texts of list-based records.
#pragma once

#include "platform/windows_api.h"

namespace stm {

// 0, the neutral language, until PatSetLocale was called: the system then takes the thread's.
LANGID SelectedLanguage();

// The ANSI code page that the system gives a language: 0, the system's own, for one that has
// Unicode only.
UINT CodePageOf(LANGID language);
inline constexpr UINT kNoCodePage = 0xFFFF;  // of a language that the system does not know

}  // namespace stm
