#include "words/phrases.h"

#include <algorithm>
#include <set>
#include <sstream>

#include "doctest/doctest.h"
#include "report/catalogue.h"
#include "report/reports.h"
#include "words/labels.h"
#include "words/own_texts.h"
#include "words/safe_text.h"

using stmon::kLanguages;
using stmon::Language;
using stmon::Phrase;
using stmon::Say;

namespace {

// "{1}{2}": what the phrase has places for, in ascending order.
std::string Places(Phrase phrase, const Language& language) {
  const std::string text = Say(phrase, language, {"\x01", "\x02"});
  std::string places;
  for (const char value : {'\x01', '\x02'})
    places.append(static_cast<size_t>(std::count(text.begin(), text.end(), value)), value);
  return places;
}

std::string LibraryName(uint32_t device, const Language& language) {
  std::string code = language.code;
  PatSetLocale(code.data());
  char name[32] = "";
  uint32_t size = sizeof name;
  REQUIRE(PatGetDeviceName(device, name, &size) == 1);
  return stmon::ToUtf8(name, language.codePage);
}

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char byte) { return byte >= 'A' && byte <= 'Z' ? byte + 32 : byte; });
  return text;
}

std::string Detail(uint32_t code, const Language& language) {
  return stmon::AskTexts(stmon::StatusSample(code, false).list, language).detail;
}

}  // namespace

TEST_CASE("a phrase is one in every language") {
  for (const Language& language : kLanguages) {
    std::set<char> keys;
    for (int i = 0; i <= static_cast<int>(Phrase::Last); ++i) {
      const auto phrase = static_cast<Phrase>(i);
      const std::string text = Say(phrase, language, {"1", "2"});
      const std::string english = Say(phrase, stmon::kEnglish);
      CAPTURE(language.code);
      CAPTURE(text);
      CHECK(stmon::CleanUtf8(text) == text);
      CHECK(text != "");
      CHECK(Places(phrase, language) == Places(phrase, stmon::kEnglish));
      CHECK(std::count(text.begin(), text.end(), '\n') ==
            std::count(english.begin(), english.end(), '\n'));
      for (const char* blank : {" \n", "\n ", " :", " ;", "  "})
        CHECK(text.find(blank) == std::string::npos);
      // A control's key, once in the window.
      const size_t key = text.find('&');
      CHECK((key == std::string::npos) == (english.find('&') == std::string::npos));
      if (key == std::string::npos) continue;
      CHECK(text.find('&', key + 1) == std::string::npos);
      CHECK(keys.insert(Lower(text)[key + 1]).second);
    }
  }
}

TEST_CASE("values are put in as they are") {
  const Language& english = stmon::kEnglish;
  CHECK(Say(Phrase::Hours, english, {"{2}", "{1}"}) == "{2} h {1} min");
  CHECK(Say(Phrase::TrayNumber, *stmon::FindLanguage("hu"), {"2"}) == "2. tálca");
}

TEST_CASE("a thing is called what the library calls it") {
  for (const Language& language : kLanguages) {
    CAPTURE(language.code);
    CHECK(Lower(stmon::OptionLabel(OptionDuplex, language)) == Lower(LibraryName(164, language)));
    CHECK(Lower(stmon::OptionLabel(105, language)) == Lower(LibraryName(163, language)));
    CHECK(Detail(65, language).find(stmon::ColourLabel(65, language).substr(1)) !=
          std::string::npos);
    std::string other_unit = Detail(86, language);
    const size_t name = other_unit.find("R2");
    REQUIRE(name != std::string::npos);
    CHECK(Say(Phrase::UnitR3, language) == other_unit.replace(name, 2, "R3"));
  }
  const Language& japanese = *stmon::FindLanguage("JP");
  for (const uint32_t tray : {1u, 3u, 4u, 5u, 6u, 7u}) {
    char name[16] = "";
    REQUIRE(PatGetTrayName_Ex(nullptr, tray, name) == 1);
    CHECK(stmon::TrayLabel(tray, japanese) == stmon::ToUtf8(name, 932));
  }
}

TEST_CASE("codes have names, unknown codes their number") {
  const Language& german = *stmon::FindLanguage("DE");
  struct Row {
    std::string label;
    const char* expected;
  };
  const Row rows[] = {
      {stmon::TrayLabel(6), "Tray 4"},
      {stmon::TrayLabel(9), "Tray with id 9"},
      {stmon::TrayLabel(3, german), "Papierfach 1"},
      {stmon::PaperLabel(0), ""},
      {stmon::PaperLabel(PaperNone), "no paper"},
      {stmon::PaperLabel(9), "A4 rotated"},
      {stmon::PaperLabel(26, german), "HLT"},
      {stmon::PaperLabel(28, german), "Papier mit Code 28"},
      {stmon::PaperLabel(99), "paper with code 99"},
      {stmon::BinLabel(BinUnknown), "Unknown bin"},
      {stmon::BinStateLabel(0), "not full"},
      {stmon::BinStateLabel(2, german), "voll"},
      {stmon::BinStateLabel(7, german), "Zustand 7"},
      {stmon::OptionLabel(14), "Option with code 14"},
      {stmon::LanguageLabel(0), "unknown"},
      {stmon::LanguageLabel(5, german), "Druckersprache mit Code 5"},
      {stmon::ColourLabel(76, german), "Schwarz"},
      {stmon::ColourLabel(77, german), ""},
      {stmon::LevelLabel(8, 75, german), "75 %"},
      {stmon::LevelLabel(8, 700, german), "700"},
      {stmon::LevelLabel(PaperNone, 50, german), "0 %"},
      {stmon::LevelLabel(PaperTrayMissing, 50, german), ""},
      {stmon::LevelLabel(8, {}, german), ""},
  };
  for (const Row& row : rows)
    CHECK(row.label == row.expected);
}

TEST_CASE("every status explains itself in every language") {
  for (const stmon::CatalogueEntry& entry : stmon::AskCatalogue(nullptr)) {
    CAPTURE(entry.code);
    for (const stmon::StatusWords& words : entry.words) {
      CAPTURE(words.language->code);
      for (stmon::Texts texts : {words.list, words.flat}) {
        stmon::FillTexts(texts, entry.code, false, *words.language);
        CHECK(texts.brief != "");
        CHECK((texts.detail != "" || entry.code == 0));
      }
    }
  }
  const Language& german = *stmon::FindLanguage("DE");
  stmon::Texts texts{"Abdeckung offen", ""};
  stmon::FillTexts(texts, 89, true, german);
  CHECK(texts.brief == "Abdeckung offen");
  CHECK(texts.detail == Say(Phrase::RearCoverOpenDuplex, german));
}

TEST_CASE("columns begin where they begin in the line above, in letters of any width") {
  const std::string reply =
      "\033S\r65,81\r0\r2\r1\n\033T\r1\r6\r2\r128\rT\r2\n\033Z\r1\r5\r2\r0\rT\r100\n\033 ";
  for (const Language& language : kLanguages) {
    CAPTURE(language.code);
    stmon::Source source;
    source.language = &language;
    const auto snapshot = stmon::ReadExchange(source, stmon::JudgeReply(reply));
    std::istringstream report(stmon::TextReport(snapshot));
    // Where papers and levels begin.
    std::set<size_t> papers, levels;
    const std::string level = Say(Phrase::Level, language, {""});
    for (std::string line; std::getline(report, line);) {
      const auto note = [&](std::set<size_t>& columns, const std::string& word) {
        const size_t at = line.find("  " + word);
        if (at != std::string::npos) columns.insert(stmon::DisplayWidth(line.substr(0, at)));
      };
      for (const char* paper : {"A4 ", "A3 "})
        note(papers, paper);
      note(papers, Say(Phrase::PaperMissing, language));
      note(levels, level);
    }
    CHECK(papers.size() == 1);
    CHECK(levels.size() == 1);
  }
}
