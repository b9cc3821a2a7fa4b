// Every status that the library knows, with its words: for translators, for documentation, and to
// look at all of them at once.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "words/reasons.h"
#include "words/texts.h"
#include "words/user_language.h"

namespace stmon {

// What the library says of a status in one language, by record and by the printer's equipment.
struct StatusWords {
  const Language* language;
  Texts list, listDuplex, flat, flatDuplex;
};

struct CatalogueEntry {
  uint32_t code;
  uint32_t level;  // of the library's row
  const Reason* reason;
  std::string icon;
  std::vector<StatusWords> words;  // in the order of kLanguages
};

// The codes that have a row in the library's table, in ascending order. `only` null: all languages.
std::vector<CatalogueEntry> AskCatalogue(const Language* only);

// Shows the list-based record's words, and the flat record's and those with a duplex unit where
// they differ.
std::string CatalogueText(const std::vector<CatalogueEntry>& catalogue);

// All four, one line a status.
std::string CatalogueJson(const std::vector<CatalogueEntry>& catalogue);

}  // namespace stmon
