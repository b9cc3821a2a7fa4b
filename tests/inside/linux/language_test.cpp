#include "platform/linux/language.h"

#include <string>

#include "doctest/doctest.h"
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
  }
  SetThreadUILanguage(0x0411);
  char name[] = "\x83z\x82\x81\x82";
  CHECK(CharUpperA(name) == std::string("\x83z\x82\x60\x82"));
  CHECK(SetThreadUILanguage(0) == stm::EnvironmentLanguage());
}
