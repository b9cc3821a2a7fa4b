#include "stmonw/names.h"

#include "system/wide_text.h"
#include "words/labels.h"
#include "words/safe_text.h"
#include "words/texts.h"

namespace stmonw {
namespace {

using stmon::Wide;

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
  std::string locale = language.code;  // the library writes to what it is given
  PatSetLocale(locale.data());
  char name[32] = "";
  uint32_t size = sizeof name;
  if (PatGetDeviceName(device, name, &size) == 1 && name[0] != '\0')
    return Wide(stmon::ToUtf8(name, language.codePage));
  return Wide(stmon::OptionLabel(code));
}

bool IsJapanese(const stmon::Language& language) {
  return language.id == 1041;
}

}  // namespace stmonw
