// The language that the caller chose for the texts of list-based records.
#pragma once

#include "platform/windows_api.h"

namespace stm {

// 0, the neutral language, until PatSetLocale was called: the system then takes the thread's.
LANGID SelectedLanguage();

}  // namespace stm
