// One printer state in every language of the library, written as UTF-8.
#include <cstdio>
#include <string>
#include <vector>

#include "stmdata/languages.h"
#include "stmdata/stmdata.h"

namespace {

std::vector<WCHAR> Utf16(const std::string& text, UINT codePage) {
  const int length = MultiByteToWideChar(codePage, 0, text.c_str(), -1, nullptr, 0);
  std::vector<WCHAR> units(length > 0 ? length : 1);
  MultiByteToWideChar(codePage, 0, text.c_str(), -1, units.data(), length);
  return units;
}

// The library's texts have no characters beyond U+FFFF.
std::string Utf8(const std::string& text, UINT codePage) {
  std::string out;
  for (const WCHAR unit : Utf16(text, codePage)) {
    if (unit == 0) break;
    if (unit < 0x80) {
      out += static_cast<char>(unit);
    } else if (unit < 0x800) {
      out += static_cast<char>(0xC0 | unit >> 6);
      out += static_cast<char>(0x80 | (unit & 0x3F));
    } else {
      out += static_cast<char>(0xE0 | unit >> 12);
      out += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
      out += static_cast<char>(0x80 | (unit & 0x3F));
    }
  }
  return out;
}

}  // namespace

int main() {
  // A record may also be filled by hand: online, and the black toner is empty.
  StatusNode status = {nullptr, sizeof status, 72, {}};
  PrnInfoEx record = {};
  record.statusCount = 1;
  record.statusList = &status;
  record.online = 1;
  record.hasError = 1;

  for (const LocaleRow& language : LocaleTable) {
    std::string code = language.code;  // PatSetLocale writes capitals into it
    PatSetLocale(code.data());
    char shortText[128];
    char detail[512];
    if (!PatGetSimpleString_Ex(&record, shortText, sizeof shortText)) return 1;
    if (!PatGetDetailString_Ex(&record, detail, sizeof detail)) return 1;
    std::printf("%s  %s\n", language.code, Utf8(shortText, language.codePage).c_str());
    std::string lines = Utf8(detail, language.codePage);
    for (size_t at = 0; (at = lines.find('\n', at)) != std::string::npos; at += 5)
      lines.replace(at, 1, "\n    ");
    std::printf("    %s\n", lines.c_str());
  }
  return 0;
}
