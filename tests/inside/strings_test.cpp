#include "resources/strings.h"

#include <algorithm>

#include "doctest/doctest.h"
#include "platform/string_block.h"
#include "resources/chosen_language.h"
#include "support.h"
#include "thread_language.h"

namespace {

struct LanguageCase {
  const char* name;
  LANGID language;
};

const LanguageCase kNames[] = {
    {"EN", 1033}, {"de", 1031}, {"Fr", 1036},  {"it", 1040},    {"es", 1034},
    {"nl", 1043}, {"sv", 1053}, {"da", 1030},  {"no", 1044},    {"cs", 1029},
    {"hu", 1038}, {"pt", 1046}, {"pl", 1045},  {"fi", 1035},    {"jP", 1041},
    {"ja", 1033}, {"", 1033},   {"DE ", 1033}, {"en-US", 1033},
};

void Select(const char* name) {
  std::string writable = name;
  PatSetLocale(writable.data());
}

std::string Localized(uint32_t id) {
  char text[400];
  return stm::LoadLocalizedString(id, text, sizeof text) == stm::Loaded::Whole ? text : "(none)";
}

std::string OfThread(uint32_t id) {
  char text[400];
  return stm::LoadModuleString(id, text, sizeof text) == stm::Loaded::Whole ? text : "(none)";
}

bool IsCentralEuropean(LANGID language) {
  return language == 1029 || language == 1038 || language == 1045;
}

// The text as the resource holds it.
std::u16string Stored(uint32_t id, LANGID language) {
  HRSRC resource =
      FindResourceExA(nullptr, RT_STRING, MAKEINTRESOURCEA(stm::StringBlockOf(id)), language);
  if (!resource) return {};
  const void* block = LockResource(LoadResource(nullptr, resource));
  const stm::StringEntry entry = stm::FindStringEntry(block, SizeofResource(nullptr, resource), id);
  return {entry.units, entry.units + entry.length};
}

// The longest beginning of `text` of whole characters in at most `bytes` bytes.
std::string Beginning(UINT codePage, const std::string& text, size_t bytes) {
  size_t at = 0;
  if (codePage == CP_UTF8) {
    at = std::min(bytes, text.size());
    while (at < text.size() && (text[at] & 0xC0) == 0x80)
      --at;
    return text.substr(0, at);
  }
  while (at < text.size()) {
    const size_t width = IsDBCSLeadByteEx(codePage, static_cast<uint8_t>(text[at])) ? 2 : 1;
    if (at + width > bytes) break;
    at += width;
  }
  return text.substr(0, at);
}

// Asks for a text at every size and finds its beginning and a terminator, and nothing after it.
template <class Loader>
void CheckEverySize(Loader load, uint32_t id, UINT codePage, const std::string& whole) {
  for (int32_t size = 1; size <= static_cast<int32_t>(whole.size()) + 2; ++size) {
    CAPTURE(size);
    test::GuardedBytes buffer(std::string(static_cast<size_t>(size), 'x'));
    const bool fits = whole.size() < static_cast<size_t>(size);
    CHECK((load(id, buffer.data(), size) == stm::Loaded::Whole) == fits);
    CHECK(std::string(buffer.data()) == Beginning(codePage, whole, static_cast<size_t>(size) - 1));
    CHECK(buffer.neighboursUntouched());
  }
  for (int32_t size : {0, -1, INT32_MIN}) {
    char untouched = 'x';
    CHECK(load(id, &untouched, size) == stm::Loaded::None);
    CHECK(untouched == 'x');
  }
  CHECK(load(id, nullptr, 100) == stm::Loaded::None);
}

}  // namespace

TEST_CASE("a language is chosen by its name, whatever its case; another name means English") {
  for (const LanguageCase& row : kNames) {
    CAPTURE(row.name);
    Select("PL");
    std::string name = row.name;
    CHECK(PatSetLocale(name.data()) == 1);
    CHECK(stm::SelectedLanguage() == row.language);
    for (char& letter : name)
      CHECK_FALSE((letter >= 'a' && letter <= 'z'));
  }
  Select("DE");
  CHECK(PatSetLocale(nullptr) == 0);
  CHECK(stm::SelectedLanguage() == 1031);
}

TEST_CASE("localized texts come in the language's code page, empty where it has none") {
  for (const LanguageCase& row : kNames) {
    CAPTURE(row.name);
    Select(row.name);
    CHECK(Localized(800) == "");
    CHECK((Localized(706) == "") == (row.language != 1041));
    CHECK(Localized(1) == "(none)");
  }
  Select("JP");
  CHECK(Localized(400) == "\x88\xF3\x8D\xFC\x89\xC2");
  CHECK(Localized(932) == "\xB2\xB4\xDB\xB0  ");
}

TEST_CASE("before a language is chosen there are texts, whatever the user's is") {
  char text[400];
  CHECK(stm::LoadStringIn(0, 400, text, sizeof text) == stm::Loaded::Whole);
  CHECK(text != std::string());
}

TEST_CASE("no text of any language loses a character in its code page") {
  for (const LanguageCase& row : kNames) {
    CAPTURE(row.name);
    Select(row.name);
    const UINT codePage = row.language == 1041              ? 932
                          : IsCentralEuropean(row.language) ? 1250
                                                            : 1252;
    for (uint32_t id = 400; id < 944; ++id) {
      const std::u16string stored = Stored(id, row.language);
      if (stored.empty()) continue;
      CAPTURE(id);
      WCHAR units[400];
      const int count = MultiByteToWideChar(codePage, 0, Localized(id).c_str(), -1, units, 400);
      CHECK(std::u16string(units, units + count - 1) == stored);
    }
  }
}

TEST_CASE("a text is cut between characters at every size") {
  Select("JP");
  for (uint32_t id : {600u, 714u, 930u})
    CheckEverySize(stm::LoadLocalizedString, id, 932, Localized(id));
  CHECK(stm::CountWholeCharacters(932, "A\x88\x9F\xB1", 2) == 1);
  CHECK(stm::CountWholeCharacters(932, "A\x88\x9F\xB1", 4) == 4);
  const char utf8[] = "A\xC3\xA9\xE3\x81\x82\xF0\x9F\x96\xA8";  // of 1, 2, 3 and 4 bytes
  const size_t whole[] = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10};
  for (size_t most = 0; most < std::size(whole); ++most)
    CHECK(stm::CountWholeCharacters(CP_UTF8, utf8, most) == whole[most]);
  test::SetThreadLanguage(1041);
  for (uint32_t id : {400u, 707u})
    CheckEverySize(stm::LoadModuleString, id, GetACP(), OfThread(id));
  test::SetThreadLanguage(0);
}

TEST_CASE("the other loader takes the thread's language and counts an empty text as none") {
  test::SetThreadLanguage(1033);
  Select("JP");
  CHECK(OfThread(400) == "Online/Ready");
  CHECK(OfThread(706) == "(none)");
  CHECK(OfThread(800) == "(none)");
  CHECK(OfThread(1) == "(none)");
  test::SetThreadLanguage(0);
}

TEST_CASE("a string block that ends too early is not read past its end") {
  const auto text = [](std::initializer_list<uint16_t> units) {
    return std::string(reinterpret_cast<const char*>(units.begin()), units.size() * 2);
  };
  const struct {
    const char* why;
    std::string block;
    uint32_t id, length;
    bool found;
  } rows[] = {
      {"the second string", text({1, 'A', 2, 'B', 'C'}), 17, 2, true},
      {"an empty one", text({1, 'A', 0}), 1, 0, true},
      {"the third is not there", text({1, 'A', 2, 'B', 'C'}), 2, 0, false},
      {"a length beyond the end", text({1, 'A', 3, 'B', 'C'}), 1, 0, false},
      {"a skipped length beyond the end", text({9, 'A'}), 5, 0, false},
      {"half a unit", text({1, 'A'}) + "B", 1, 0, false},
      {"nothing", "", 0, 0, false},
  };
  for (const auto& row : rows) {
    CAPTURE(row.why);
    // Blocks are aligned: an odd one is moved down from the unreadable page by a byte.
    test::GuardedBytes bytes(row.block + std::string(row.block.size() % 2, '\xFF'));
    const auto size = static_cast<uint32_t>(row.block.size());
    const stm::StringEntry entry = stm::FindStringEntry(bytes.data(), size, row.id);
    CHECK((entry.units != nullptr) == row.found);
    CHECK(entry.length == row.length);
  }
}
