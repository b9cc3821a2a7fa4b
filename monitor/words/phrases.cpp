#include "words/phrases.h"

#include <span>

#include "words/phrases/cs.h"
#include "words/phrases/da.h"
#include "words/phrases/de.h"
#include "words/phrases/en.h"
#include "words/phrases/es.h"
#include "words/phrases/fi.h"
#include "words/phrases/fr.h"
#include "words/phrases/hu.h"
#include "words/phrases/it.h"
#include "words/phrases/jp.h"
#include "words/phrases/nl.h"
#include "words/phrases/no.h"
#include "words/phrases/pl.h"
#include "words/phrases/pt.h"
#include "words/phrases/sv.h"

namespace stmon {
namespace {

struct Table {
  std::string_view code;  // of the language
  std::span<const PhraseRow> rows;
};

// clang-format off
constexpr Table kTables[] = {  // in the order of the library's languages
    {"EN", kEnglishPhrases},
    {"DE", kGermanPhrases},
    {"FR", kFrenchPhrases},
    {"IT", kItalianPhrases},
    {"ES", kSpanishPhrases},
    {"NL", kDutchPhrases},
    {"SV", kSwedishPhrases},
    {"DA", kDanishPhrases},
    {"NO", kNorwegianPhrases},
    {"CS", kCzechPhrases},
    {"HU", kHungarianPhrases},
    {"PT", kPortuguesePhrases},
    {"PL", kPolishPhrases},
    {"FI", kFinnishPhrases},
    {"JP", kJapanesePhrases},
};
// clang-format on

// A look-up is then a matter of two numbers.
consteval bool AreWhole() {
  if (std::size(kTables) != std::size(kLanguages)) return false;
  for (size_t i = 0; i < std::size(kTables); ++i) {
    const Table& table = kTables[i];
    if (table.code != kLanguages[i].code) return false;
    if (table.rows.size() != static_cast<size_t>(Phrase::Last) + 1) return false;
    for (size_t row = 0; row < table.rows.size(); ++row) {
      if (table.rows[row].phrase != static_cast<Phrase>(row)) return false;
    }
  }
  return true;
}
static_assert(AreWhole(), "each language has each phrase, in the order of the enumeration");

}  // namespace

std::string Say(Phrase phrase, const Language& language,
                std::initializer_list<std::string_view> values) {
  const Table& table = kTables[&language - kLanguages];
  std::string_view text = table.rows[static_cast<size_t>(phrase)].text;
  std::string said;
  for (size_t brace; (brace = text.find('{')) != std::string_view::npos;) {
    said += text.substr(0, brace);
    const auto value = static_cast<size_t>(text[brace + 1] - '1');
    if (value < values.size()) said += values.begin()[value];
    text.remove_prefix(brace + 3);
  }
  return said.append(text);
}

}  // namespace stmon
