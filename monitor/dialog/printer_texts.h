// What the library says, in a language of its own and as UTF-16, whatever code page the system has.
// The library keeps its language for the whole process: these are asked on the window's thread
// only.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "stmdata/stmdata.h"

namespace stmonw {

struct Language {
  const char* code;  // of PatSetLocale
  LANGID id;
  const wchar_t* name;  // in the language itself, and the code for fonts without its letters
};
extern const Language kLanguages[];  // closed by a null code

// The language of that code, in any case; null when there is none.
const Language* FindLanguage(std::string_view code);

// The language that the user has Windows speak, English when the library does not have it.
const Language& UserLanguage();

// Texts are empty where the library has none in this language. Lines end with CR LF.
std::wstring ShortText(const PrnInfoEx& record, const Language& language);
std::wstring DetailText(const PrnInfoEx& record, const Language& language);

// The record as if the status `code` were its only one.
std::wstring ShortTextOf(const PrnInfoEx& record, uint32_t code, const Language& language);
std::wstring DetailTextOf(const PrnInfoEx& record, uint32_t code, const Language& language);

// "Tray 1", "A4", "Duplex Unit"; where the library has the name in Japanese only, the other
// languages get an English one.
std::wstring TrayName(uint32_t id, const Language& language);
std::wstring PaperName(uint32_t code, const Language& language);
std::wstring OptionName(uint32_t code, const Language& language);

std::wstring Wide(std::string_view text, UINT code_page = CP_UTF8);

}  // namespace stmonw
