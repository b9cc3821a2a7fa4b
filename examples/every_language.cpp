// One printer state in every language of the library, written as UTF-8.
#include <cstdio>
#include <string>
#include <vector>

#include "stmdata/stmdata.h"

namespace {

struct Language {
  const char* name;  // for PatSetLocale
  UINT codePage;     // of the texts that it gives
};

constexpr Language kLanguages[] = {
    {"EN", 1252}, {"DE", 1252}, {"FR", 1252}, {"IT", 1252}, {"ES", 1252},
    {"NL", 1252}, {"SV", 1252}, {"DA", 1252}, {"NO", 1252}, {"CS", 1250},
    {"HU", 1250}, {"PT", 1252}, {"PL", 1250}, {"FI", 1252}, {"JP", 932},
};

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

  for (const Language& language : kLanguages) {
    std::string name = language.name;  // PatSetLocale writes capitals into it
    PatSetLocale(name.data());
    char shortText[128];
    char detail[512];
    if (!PatGetSimpleString_Ex(&record, shortText, sizeof shortText)) return 1;
    if (!PatGetDetailString_Ex(&record, detail, sizeof detail)) return 1;
    std::printf("%s  %s\n", language.name, Utf8(shortText, language.codePage).c_str());
    std::string lines = Utf8(detail, language.codePage);
    for (size_t at = 0; (at = lines.find('\n', at)) != std::string::npos; at += 5)
      lines.replace(at, 1, "\n    ");
    std::printf("    %s\n", lines.c_str());
  }
  return 0;
}
