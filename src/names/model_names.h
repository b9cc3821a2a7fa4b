// The maker's product line: model names and their model codes.
#pragma once

#include "names/name_table.h"
#include "stmdata/records.h"

namespace stm {

// The printer that this library serves.
inline constexpr NameCode kServedModel = {"ZENTA C210", 103};

// M are the monochrome, W the wide-carriage, C the colour printers. PS adds the page description
// language and keeps the code; N adds the network port and D the duplex unit, with codes of their
// own. Names have at most 31 characters.
inline constexpr NameCode kModelNameTable[] = {
    {"ZENTA M80", 0},       // 8 pages a minute
    {"ZENTA M80 PS", 0},    //
    {"ZENTA M100", 1},      // 10
    {"ZENTA M100 PS", 1},   //
    {"ZENTA M120", 2},      // 12
    {"ZENTA M160", 3},      // 16
    {"ZENTA M160 PS", 3},   //
    {"ZENTA M160 N", 4},    //
    {"ZENTA M200", 10},     // 20
    {"ZENTA M200 PS", 10},  //
    {"ZENTA M240", 11},     // 24
    {"ZENTA M240 PS", 11},  //
    {"ZENTA M240 N", 12},   //
    {"ZENTA M280", 13},     // 28
    {"ZENTA M320", 20},     // 32
    {"ZENTA M320 PS", 20},  //
    {"ZENTA M320 N", 21},   //
    {"ZENTA M360", 22},     // 36
    {"ZENTA M400", 30},     // 40
    {"ZENTA M400 PS", 30},  //
    {"ZENTA M450", 31},     // 45
    {"ZENTA M450 D", 32},   //
    {"ZENTA W500", 40},     // 50
    {"ZENTA W500 PS", 40},  //
    {"ZENTA W650", 41},     // 65
    {"ZENTA W650 D", 42},   //
    {"ZENTA W850", 50},     // 85
    {"ZENTA W850 PS", 50},  //
    {"ZENTA C80", 60},      // 8 in colour
    {"ZENTA C80 PS", 60},   //
    {"ZENTA C120", 61},     // 12 in colour
    {"ZENTA C120 PS", 61},  //
    {"ZENTA C160", 70},     // 16 in colour
    {"ZENTA C160 D", 71},   //
    {"ZENTA C180", 80},     // 18 in colour
    {"ZENTA C180 PS", 80},  //
    {"ZENTA C200", 90},     // 20 in colour
    {"ZENTA C200 D", 91},   //
    kServedModel,           // 21 in colour
    {"ZENTA C250", 104},    // 25 in colour
    {"ZENTA C250 D", 105},  //
    {"ZENTA C300", 110},    // 30 in colour
    {{}, ModelUnknown},     // closing row: unknown model
};
static_assert(sizeof kModelNameTable / sizeof *kModelNameTable == 42 + 1);
static_assert([] {
  for (const NameCode& row : kModelNameTable) {
    if (row.name.size() > 31) return false;
  }
  return true;
}());

}  // namespace stm
