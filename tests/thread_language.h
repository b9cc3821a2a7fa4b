// The calling thread's language, set for both of the system's notions of it.
#pragma once

#include "stmdata/stmdata.h"

namespace test {

// 0 returns to the user's.
inline void SetThreadLanguage(LANGID language) {
#ifdef _WIN32
  SetThreadLocale(language ? MAKELCID(language, SORT_DEFAULT) : GetUserDefaultLCID());
#endif
  SetThreadUILanguage(language);
}

}  // namespace test
