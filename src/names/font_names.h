// Resident fonts: the names that the printer and the print manager give them.
#pragma once

#include "names/name_table.h"

namespace stm {

inline constexpr NameCode kFontNameTable[] = {
    {"CHUMINCYO 24X24", 1},     // bitmap fonts, in dots
    {"CHUMINCYO 32X32", 2},     //
    {"CHUMINCYO 40X40", 3},     //
    {"CHUMINCYO 56X56", 4},     //
    {"GOTHIC 24X24", 5},        //
    {"GOTHIC 32X32", 6},        //
    {"GOTHIC 40X40", 7},        //
    {"GOTHIC 56X56", 8},        //
    {"CHUMINCYO", 9},           // outline fonts
    {"MINCYO-BOLD", 10},        //
    {"MINCYO-EXTRA BOLD", 11},  //
    {"GOTHIC-MEDIUM", 12},      //
    {"GOTHIC", 13},             //
    {"GOTHIC-EXTRA BOLD", 14},  //
    {"MARUGOTHIC-LIGHT", 15},   //
    {"MARUGOTHIC-MEDIUM", 16},  //
    {"MARUGOTHIC", 17},         //
    {"GYOUSHO", 18},            //
    {"KAISHO", 19},             //
    {"KYOUKASHO", 20},          //
    {{}, 0},                    // closing row: unknown font
};

}  // namespace stm
