// What the resource script holds, asked through the system's own look-up on both systems.
#include <string>
#include <vector>

#include "doctest/doctest.h"
#include "platform/windows_api.h"
#include "stmdata/languages.h"

namespace {

constexpr LANGID kJapanese = 1041;

HRSRC Find(const char* type, const char* name, LANGID language) {
  return FindResourceExA(nullptr, type, name, language);
}

// The ids of a language's strings that are not empty.
std::vector<unsigned> TextIds(LANGID language) {
  std::vector<unsigned> ids;
  for (unsigned block = 1; block <= 4096; ++block) {
    HRSRC resource = Find(RT_STRING, MAKEINTRESOURCEA(block), language);
    if (!resource) continue;
    const auto* unit = static_cast<const uint16_t*>(LockResource(LoadResource(nullptr, resource)));
    for (unsigned entry = 0; entry < 16; ++entry) {
      if (*unit) ids.push_back((block - 1) * 16 + entry);
      unit += *unit + 1;
    }
  }
  return ids;
}

}  // namespace

TEST_CASE("every language has the same sixteen string blocks") {
  const std::vector<unsigned> expected = {26, 27, 28, 31, 32, 38, 39, 40,
                                          41, 43, 44, 45, 46, 51, 58, 59};
  for (const LocaleRow& language : LocaleTable) {
    CAPTURE(language.code);
    std::vector<unsigned> blocks;
    for (unsigned block = 1; block <= 4096; ++block) {
      if (Find(RT_STRING, MAKEINTRESOURCEA(block), language.id)) blocks.push_back(block);
    }
    CHECK(blocks == expected);
  }
}

TEST_CASE("the languages have texts for the same ids, Japanese for fifteen more") {
  const std::vector<unsigned> japaneseOnly = {404, 434, 502, 600, 604, 634, 682, 687,
                                              689, 690, 702, 703, 706, 718, 719};
  const std::vector<unsigned> common = TextIds(1033);
  CHECK(common.size() == 106);
  for (const LocaleRow& language : LocaleTable) {
    CAPTURE(language.code);
    std::vector<unsigned> ids = TextIds(language.id);
    if (language.id == kJapanese) {
      for (unsigned id : japaneseOnly)
        CHECK(std::erase(ids, id) == 1);
    }
    CHECK(ids == common);
  }
}

TEST_CASE("a language that is not there is not replaced by another, the neutral one is") {
  constexpr LANGID kRussian = 0x0419;
  constexpr LANGID kPortuguesePortugal = 0x0816;
  CHECK_FALSE(Find(RT_STRING, MAKEINTRESOURCEA(26), kRussian));
  CHECK_FALSE(Find(RT_STRING, MAKEINTRESOURCEA(26), kPortuguesePortugal));
  CHECK(Find(RT_STRING, MAKEINTRESOURCEA(26), 0));
  CHECK_FALSE(Find(RT_STRING, MAKEINTRESOURCEA(1), 0));
}

TEST_CASE("pictures and icons are stored under Japanese alone and found from everywhere") {
  for (const char* name : {"BMP_P_BASE", "BMP_PB_TONER_EK", "BMP_PAPER_NORMAL"}) {
    CAPTURE(name);
    CHECK(Find(RT_BITMAP, name, kJapanese));
    CHECK_FALSE(Find(RT_BITMAP, name, 1033));
    CHECK(FindResourceA(nullptr, name, RT_BITMAP));
  }
  CHECK(FindResourceA(nullptr, "ICO_PAP_0", RT_GROUP_ICON));
  CHECK(FindResourceA(nullptr, "#16", RT_ICON));
  CHECK_FALSE(FindResourceA(nullptr, "#17", RT_ICON));
  CHECK_FALSE(FindResourceA(nullptr, "BMP_{", RT_BITMAP));
  CHECK_FALSE(FindResourceA(nullptr, "#26", RT_BITMAP));
  CHECK_FALSE(FindResourceA(nullptr, "BMP_P_BASE", RT_STRING));
  CHECK_FALSE(FindResourceA(nullptr, "#65535", "#65535"));
}

#ifndef _WIN32
TEST_CASE("a handle that is none of the library's has no bytes") {
  HRSRC resource = FindResourceA(nullptr, "BMP_PAPER_R", RT_BITMAP);
  auto* inside = reinterpret_cast<HRSRC>(reinterpret_cast<char*>(resource) + 1);
  int other = 0;
  for (HRSRC handle : {inside, reinterpret_cast<HRSRC>(&other), static_cast<HRSRC>(nullptr)}) {
    CHECK(LoadResource(nullptr, handle) == nullptr);
    CHECK(SizeofResource(nullptr, handle) == 0);
  }
}
#endif
