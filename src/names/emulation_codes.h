// Printer languages: the codes that the printer writes in its replies and in its Device ID.
#pragma once

#include "names/name_table.h"

namespace stm {

inline constexpr NameCode kEmulationCodeTable[] = {
    {"N00", 1},   // NVDL
    {"NPS", 2},   // OrlexScript2
    {"N98", 3},   // PC-PR201H
    {"N16", 4},   // ESC/P
    {"N52", 5},   //
    {"N01", 6},   //
    {"N55", 7},   // IBM5577
    {"N35", 8},   //
    {"N36", 9},   //
    {"N73", 10},  //
    {"NGL", 11},  //
    {"GL2", 12},  // NV-GL/2
    {"NTF", 13},  // TIFF
    {"NDL", 1},   // NVDL
    {"NWC", 14},  // WXDL-C
    {{}, 0},      // closing row: unknown language
};

}  // namespace stm
