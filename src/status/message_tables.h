// Texts beside those of the status rows: which message, for which code.
#pragma once

#include <cstdint>

namespace stm {

struct MessageRow {
  uint32_t code;
  uint32_t messageId;
};

inline constexpr uint32_t kTrayMessage = 704;  // a tray is missing or empty

// There is one recovery text, and it is empty in every language.
inline constexpr MessageRow kRecoveryTable[] = {
    {88, 800},  // closing row: every code
};

// What to do when the duplex unit is in the way. List-based records only.
inline constexpr MessageRow kDuplexMessages[] = {
    //  code  message
    {26, 710},  // fusing oil empty
    {28, 711},  // fuser cleaner due
    {39, 713},  // back cover open
    {42, 714},  // PCU not placed properly
    {43, 715},  // fuser cleaner not placed properly
    {45, 716},  // misfeed at the rear or top cover
    {46, 717},  // misfeed at the indicated area
    {89, 718},  // cover behind a tray open
    {94, 720},  // transfer roller not placed properly
    {0, 0},     // closing row: no text of its own
};

// In the order that the toner codes have them.
inline constexpr uint32_t kColours = 4;

inline constexpr uint32_t kFlatNamesCodePage = 932;

struct ColourRow {
  uint32_t messageId;    // name in the chosen language
  const char* flatName;  // name for flat records: of the code page above, whatever the language
};

inline constexpr ColourRow kColourNames[kColours] = {
    {930, "\xBC\xB1\xDD  "},          // cyan
    {931, "\xCF\xBE\xDE\xDD\xC0  "},  // magenta
    {932, "\xB2\xB4\xDB-  "},         // yellow; an ASCII hyphen
    {933, "\xCC\xDE\xD7\xAF\xB8  "},  // black
};

}  // namespace stm
