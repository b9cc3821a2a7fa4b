// Names in the language chosen, where the library has them, as the window takes text.
#pragma once

#include <cstdint>
#include <string>

#include "words/user_language.h"

namespace stmonw {

// "Tray 1", "A4", "Duplex Unit"; where the library has the name in Japanese only, the other
// languages get an English one.
std::wstring TrayName(uint32_t id, const stmon::Language& language);
std::wstring PaperName(uint32_t code, const stmon::Language& language);
std::wstring OptionName(uint32_t code, const stmon::Language& language);

bool IsJapanese(const stmon::Language& language);

}  // namespace stmonw
