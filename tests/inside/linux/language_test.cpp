#include "platform/linux/environment_language.h"

#include <cstdlib>
#include <string>

#include "checksum.h"
#include "doctest/doctest.h"
#include "resources/chosen_language.h"
#include "resources/strings.h"

TEST_CASE("a locale's name tells the language") {
  const struct {
    const char* locale;
    LANGID language;
  } rows[] = {
      {"C", 0x0409},           {"POSIX", 0x0409},      {"", 0x0409},
      {"ja_JP.UTF-8", 0x0411}, {"de_AT@euro", 0x0407}, {"pt_PT", 0x0416},
      {"nb_NO.UTF-8", 0x0414}, {"fi", 0x040B},         {"fil_PH", 0x0409},
      {"ru_RU.UTF-8", 0x0409}, {"d", 0x0409},
  };
  for (const auto& row : rows) {
    CAPTURE(row.locale);
    CHECK(stm::LanguageOfLocale(row.locale) == row.language);
  }
  test::Checksum sum;  // of all that two letters can name
  for (char first = 'a'; first <= 'z'; ++first) {
    for (char second = 'a'; second <= 'z'; ++second)
      sum.Add(stm::LanguageOfLocale(std::string{first, second}.c_str()));
  }
  CHECK(sum.value == 0xE7A736BA);
}

TEST_CASE("the first variable that is set names the environment's locale") {
  const char* const names[] = {"LC_ALL", "LC_MESSAGES", "LANG"};
  const struct {
    const char* values[3];
    std::string locale;
  } rows[] = {
      {{"de_DE", "fr_FR", "it_IT"}, "de_DE"},
      {{"", "fr_FR", "it_IT"}, "fr_FR"},
      {{nullptr, nullptr, "it_IT"}, "it_IT"},
      {{nullptr, "", nullptr}, "C"},
  };
  const LANGID before = stm::EnvironmentLanguage();
  for (const auto& row : rows) {
    for (size_t i = 0; i < std::size(names); ++i)
      row.values[i] ? setenv(names[i], row.values[i], 1) : unsetenv(names[i]);
    CHECK(stm::EnvironmentLocale() == row.locale);
  }
  CHECK(stm::EnvironmentLanguage() == before);
}

TEST_CASE("text calls refuse what they do not know and what has no room") {
  const auto refused = [](int32_t result, DWORD error) {
    CHECK(result == 0);
    CHECK(GetLastError() == error);
    SetLastError(0);
  };
  const DWORD bad = ERROR_INVALID_PARAMETER;
  const WCHAR a = 'A';
  WCHAR unit = 0;
  char byte = 'x';
  BOOL used = 0;
  refused(WideCharToMultiByte(12345, 0, &a, 1, &byte, 1, nullptr, nullptr), bad);
  refused(WideCharToMultiByte(932, 0, nullptr, 1, &byte, 1, nullptr, nullptr), bad);
  refused(WideCharToMultiByte(932, 0, &a, 0, &byte, 1, nullptr, nullptr), bad);
  refused(WideCharToMultiByte(932, 0, &a, 1, &byte, -1, nullptr, nullptr), bad);
  refused(WideCharToMultiByte(932, 0, &a, 1, nullptr, 1, nullptr, nullptr), bad);
  refused(WideCharToMultiByte(932, 0, &a, 1, &byte, 1, "?", nullptr), bad);
  refused(WideCharToMultiByte(932, 0, &a, 1, &byte, 1, nullptr, &used), bad);
  refused(WideCharToMultiByte(932, 1, &a, 1, &byte, 1, nullptr, nullptr), ERROR_INVALID_FLAGS);
  refused(MultiByteToWideChar(932, 0, nullptr, 1, &unit, 1), bad);
  refused(MultiByteToWideChar(932, 0, &byte, 1, &unit, -1), bad);
  refused(MultiByteToWideChar(932, 0, &byte, 1, nullptr, 1), bad);
  refused(MultiByteToWideChar(932, 1, &byte, 1, &unit, 1), ERROR_INVALID_FLAGS);
  refused(GetLocaleInfoA(0x0411, 1, &byte, 1), ERROR_INVALID_FLAGS);
  refused(GetLocaleInfoA(0x0411, LOCALE_IDEFAULTANSICODEPAGE, &byte, 1), ERROR_INSUFFICIENT_BUFFER);
  refused(GetLocaleInfoA(0x0411, LOCALE_IDEFAULTANSICODEPAGE, nullptr, 9),
          ERROR_INSUFFICIENT_BUFFER);
  refused(LoadStringA(nullptr, 400, nullptr, 9), 0);
  refused(LoadStringA(nullptr, 400, &byte, 0), 0);
  refused(IsDBCSLeadByteEx(12345, 0x81), 0);
  CHECK(byte == 'x');
  CHECK(unit == 0);
  CHECK(GetLocaleInfoA(0x0411, LOCALE_IDEFAULTANSICODEPAGE, nullptr, 0) == 4);
}

TEST_CASE("the thread's language chooses table and code page; one without a table is English") {
  const struct {
    LANGID language;
    std::string ready, codePage;
  } rows[] = {
      {0x0411, "\x88\xF3\x8D\xFC\x89\xC2", "932"},
      {0x0405, "Online/P\xF8ipraveno", "1250"},
      {0x0409, "Online/Ready", "1252"},
      {0x0419, "Online/Ready", "1252"},
      {0x0816, "Online/Ready", "1252"},
      {0x0408, "Online/Ready", "1252"},
      {0x0C07, "Online/Ready", "1252"},
      {0x0809, "Online/Ready", "1252"},
      {0x0811, "Online/Ready", "1252"},  // Japanese of no country that there is
  };
  for (const auto& row : rows) {
    CAPTURE(row.language);
    CHECK(SetThreadUILanguage(row.language) == row.language);
    char text[100];
    stm::LoadModuleString(400, text, sizeof text);
    CHECK(text == row.ready);
    CHECK(GetLocaleInfoA(0, LOCALE_IDEFAULTANSICODEPAGE, text, sizeof text) ==
          static_cast<int32_t>(row.codePage.size() + 1));
    CHECK(text == row.codePage);
    for (const LANGID language : {LANGID{0}, row.language})
      CHECK(std::to_string(stm::CodePageOf(language)) == row.codePage);
    CHECK(stm::LoadStringIn(0, 400, text, sizeof text) == stm::Loaded::Whole);
    CHECK(text == row.ready);
  }
  SetThreadUILanguage(0x0411);
  char name[] = "\x83z\x82\x81\x82";
  CHECK(CharUpperA(name) == std::string("\x83z\x82\x60\x82"));
  CHECK(SetThreadUILanguage(0) == stm::EnvironmentLanguage());
}
