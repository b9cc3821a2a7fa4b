// Every status that the library knows, with its words: for translators, for documentation, and to
// look at all of them at once.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "words/languages.h"

namespace stmon {

// The codes that have a row in the library's table, in ascending order.
std::vector<uint32_t> KnownCodes();

// `only` null: all languages. Text shows the list-based record's words, and the flat record's and
// those with a duplex unit where they differ; JSON has all four, one line a status.
std::string CatalogueText(const Language* only);
std::string CatalogueJson(const Language* only);

}  // namespace stmon
