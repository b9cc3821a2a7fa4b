// Names of trays, papers, options and printer languages for people, in English: the library has
// most of them in Japanese only. A code without a name is told as a number, never left out, since
// newer printers bring codes that nobody here has heard of.
#pragma once

#include <cstdint>
#include <string>

namespace stmon {

std::string TrayLabel(uint32_t id);        // "Tray 1"
std::string PaperLabel(uint32_t code);     // "A4"; empty for 0, a paper that was not told
std::string BinLabel(uint32_t id);         // "Bin 1"
std::string OptionLabel(uint32_t code);    // "Duplex unit"
std::string LanguageLabel(uint32_t code);  // "NVDL"

}  // namespace stmon
