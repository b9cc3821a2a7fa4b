// What trays, papers, options, levels and the like are called for people. A code without a name is
// told as a number, never left out, since newer printers bring codes that nobody here has heard of.
// Programs get the English names, whatever the user's language.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "words/reasons.h"
#include "words/user_language.h"

namespace stmon {

std::string TrayLabel(uint32_t id, const Language& language = kEnglish);         // "Tray 1"
std::string PaperLabel(uint32_t code, const Language& language = kEnglish);      // "A4"; of 0 ""
std::string BinLabel(uint32_t id, const Language& language = kEnglish);          // "Bin 1"
std::string OptionLabel(uint32_t code, const Language& language = kEnglish);     // "Duplex unit"
std::string LanguageLabel(uint32_t code, const Language& language = kEnglish);   // "NVDL"
std::string ColourLabel(uint32_t code, const Language& language = kEnglish);     // as TonerColour
std::string SeverityLabel(Severity severity, const Language& language);          // "warning"
std::string BinStateLabel(uint32_t state, const Language& language = kEnglish);  // "empty"

// "75 %", or the bare number that is no percentage; of an empty tray "0 %", whatever the printer
// sends for it; empty for a tray that is out, and when the level was not told.
std::string LevelLabel(uint32_t paper, const std::optional<uint32_t>& level,
                       const Language& language);

}  // namespace stmon
