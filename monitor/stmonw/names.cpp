#include "stmonw/names.h"

#include <algorithm>

#include "words/labels.h"
#include "words/safe_text.h"
#include "words/texts.h"

namespace stmonw {
namespace {

constexpr uint32_t kNamesCodePage = 932;  // of tray and paper names, in every language
constexpr uint32_t kStatusNoPaper = 32;
constexpr uint32_t kStatusTrayMisplaced = 33;
constexpr uint32_t kOptionTray = 105;  // option code
// Device codes of PatGetDeviceName.
constexpr uint32_t kOptionTrayDevice = 163;
constexpr uint32_t kDuplexDevice = 164;

std::wstring StatusName(uint32_t code, const stmon::Language& language) {
  const stmon::StatusSample sample(code, false);
  return Wide(stmon::AskTexts(sample.list, language).brief);
}

}  // namespace

std::wstring TrayName(uint32_t id, const stmon::Language& language) {
  char name[16] = "";
  if (IsJapanese(language) && PatGetTrayName_Ex(nullptr, id, name) == 1)
    return Wide(stmon::ToUtf8(name, kNamesCodePage));
  return Wide(stmon::TrayLabel(id));
}

std::wstring PaperName(uint32_t code, const stmon::Language& language) {
  // A short status text says both in every language.
  if (code == PaperNone) return StatusName(kStatusNoPaper, language);
  if (code == PaperTrayMissing) return StatusName(kStatusTrayMisplaced, language);
  char name[16] = "";
  if (IsJapanese(language) && PatGetPaperName_Ex(nullptr, code, name) == 1 && name[0] != '*')
    return Wide(stmon::ToUtf8(name, kNamesCodePage));
  return Wide(stmon::PaperLabel(code));
}

std::wstring OptionName(uint32_t code, const stmon::Language& language) {
  const uint32_t device = code == OptionDuplex  ? kDuplexDevice
                          : code == kOptionTray ? kOptionTrayDevice
                                                : 0;
  char locale[8];
  lstrcpynA(locale, language.code, sizeof locale);  // the library writes to what it is given
  PatSetLocale(locale);
  char name[32] = "";
  uint32_t size = sizeof name;
  if (PatGetDeviceName(device, name, &size) == 1 && name[0] != '\0')
    return Wide(stmon::ToUtf8(name, language.codePage));
  return Wide(stmon::OptionLabel(code));
}

bool IsJapanese(const stmon::Language& language) {
  return language.id == 1041;
}

std::wstring Wide(std::string_view utf8) {
  const int length = static_cast<int>(utf8.size());
  const int units =
      length > 0 ? MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0) : 0;
  std::wstring wide(static_cast<size_t>(std::max(units, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), units);
  return wide;
}

std::string Utf8(std::wstring_view wide) {
  const int units = static_cast<int>(wide.size());
  const int size =
      units > 0 ? WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr)
                : 0;
  std::string text(static_cast<size_t>(std::max(size, 0)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, text.data(), size, nullptr, nullptr);
  return text;
}

}  // namespace stmonw
