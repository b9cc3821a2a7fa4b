// Keywords of the readback reply: what the printer writes and the code that the records hold.
#pragma once

#include "names/name_table.h"

namespace stm {

inline constexpr NameCode kTrayLetters[] = {
    {"T", 1},  // bypass tray
    {"M", 2},  // multi-purpose tray
    {"1", 3},  // tray 1
    {"2", 4},  //
    {"3", 5},  //
    {"4", 6},  //
    {"5", 7},  // tray 5
    {{}, 0},   // closing row: unknown tray
};

inline constexpr NameCode kBinNumbers[] = {
    {"1", 1},    //
    {"2", 2},    //
    {"3", 3},    //
    {"4", 4},    //
    {"5", 5},    //
    {"6", 6},    //
    {"7", 7},    //
    {"8", 8},    //
    {"9", 9},    //
    {"10", 10},  //
    {"11", 11},  //
    {"12", 12},  //
    {"13", 13},  //
    {"14", 14},  //
    {"15", 15},  //
    {{}, 255},   // closing row: unknown bin
};

// The printer's paper-size numbers and the paper codes that the paper table names.
inline constexpr NameCode kPaperSizes[] = {
    {"-1", 1},    // no paper
    {"0", 2},     // free size
    {"1", 2},     // free size
    {"2", 4},     // A3
    {"3", 5},     // A3 rotated
    {"4", 6},     // B4
    {"5", 7},     // B4 rotated
    {"6", 8},     // A4
    {"7", 9},     // A4 rotated
    {"8", 10},    // B5
    {"9", 11},    // B5 rotated
    {"10", 12},   // A5
    {"11", 13},   // A5 rotated
    {"12", 14},   // B6
    {"13", 15},   // B6 rotated
    {"14", 16},   // A6
    {"15", 17},   // A6 rotated
    {"16", 18},   // DLT
    {"17", 19},   // DLT rotated
    {"18", 20},   // LG
    {"19", 21},   // LG rotated
    {"22", 22},   // LT
    {"23", 23},   // LT rotated
    {"26", 24},   // not named
    {"27", 25},   // not named, rotated
    {"28", 26},   // HLT
    {"29", 27},   // HLT rotated
    {"39", 28},   // not named, rotated
    {"48", 29},   // not named (likewise where nothing is said)
    {"61", 30},   //
    {"73", 31},   //
    {"75", 32},   //
    {"77", 33},   //
    {"79", 34},   // postcard
    {"80", 2},    // free size
    {"91", 35},   //
    {"93", 36},   //
    {"120", 37},  //
    {"121", 38},  //
    {"122", 39},  //
    {"123", 40},  //
    {"128", 41},  // tray not in place
    {{}, 0},      // closing row: unknown size
};

}  // namespace stm
