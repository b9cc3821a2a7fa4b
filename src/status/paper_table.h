// Paper codes and tray codes: what they are called. The names are the printer's, fixed bytes of
// code page 932 in every language.
#pragma once

#include <cstdint>

namespace stm {

struct PaperRow {
  int32_t code;
  const char* name;
  uint16_t kind;
};

inline constexpr uint16_t kNoPicture = 0;
inline constexpr uint16_t kRotated = 1;
inline constexpr uint16_t kNormal = 2;

inline constexpr const char* kPaperPictures[] = {
    nullptr,             // no picture
    "BMP_PAPER_R",       // rotated
    "BMP_PAPER_NORMAL",  // normal
};

inline constexpr PaperRow kPaperTable[] = {
    //  code  name  orientation
    {0, "***", kNoPicture},                           // unknown size
    {1, "", kNoPicture},                              // no paper
    {2, "\xCC\xD8\xB0\xBB\xB2\xBD\xDE", kNoPicture},  // free size
    {3, "***", kNoPicture},                           // not named
    {4, "A3", kNormal},
    {5, "A3", kRotated},
    {6, "B4", kNormal},
    {7, "B4", kRotated},
    {8, "A4", kNormal},
    {9, "A4", kRotated},
    {10, "B5", kNormal},
    {11, "B5", kRotated},
    {12, "A5", kNormal},
    {13, "A5", kRotated},
    {14, "B6", kNormal},
    {15, "B6", kRotated},
    {16, "A6", kNormal},
    {17, "A6", kRotated},
    {18, "DLT", kNormal},
    {19, "DLT", kRotated},
    {20, "LG", kNormal},
    {21, "LG", kRotated},
    {22, "LT", kNormal},
    {23, "LT", kRotated},
    {24, "***", kNormal},
    {25, "***", kRotated},
    {26, "HLT", kNormal},
    {27, "HLT", kRotated},
    {28, "***", kRotated},
    {29, "***", kNoPicture},
    {30, "***", kNoPicture},
    {31, "***", kNoPicture},
    {32, "***", kNoPicture},
    {33, "***", kNoPicture},
    {34, "\xCA\xB6\xDE\xB7", kRotated},  // postcard
    {35, "***", kNoPicture},
    {36, "***", kNoPicture},
    {37, "***", kNoPicture},
    {38, "***", kNoPicture},
    {39, "***", kNoPicture},
    {40, "***", kNoPicture},
    {41, " ", kNoPicture},  // tray not in place
    {-1, nullptr, 0},       // closing row: every other code
};
static_assert(sizeof kPaperTable / sizeof kPaperTable[0] == 43);

struct TrayRow {
  int32_t code;
  const char* name;
};

inline constexpr TrayRow kTrayTable[] = {
    //  code  name
    {3, "\xC4\xDA\xB2\x31"},                              // tray 1
    {4, "\xC4\xDA\xB2\x32"},                              // tray 2
    {5, "\xC4\xDA\xB2\x33"},                              // tray 3
    {6, "\xC4\xDA\xB2\x34"},                              // tray 4
    {7, "\x91\xE5\x97\xCA\x8B\x8B\x8E\x86\xC4\xDA\xB2"},  // large-capacity tray
    {1, "\x8E\xE8\x8D\xB7\x82\xB5\xC4\xDA\xB2"},          // bypass tray
    {-1, nullptr},                                        // closing row: every other code
};

}  // namespace stm
