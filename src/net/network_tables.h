// The network layer's names and the codes of the flat record. Each table is closed by a row with an
// empty name, which is never compared: a look-up brings its own answer for unknown names.
#pragma once

#include <cstdint>
#include <iterator>

namespace stm {

struct NetName {
  const char* name;
  uint32_t code;
};

inline constexpr NetName kNetInputTrayTable[] = {
    //  name      tray id
    {"HandTray", 1},    // bypass tray
    {"BypassTray", 1},  //
    {"Tray1", 3},       //
    {"Tray2", 4},       //
    {"Tray3", 5},       //
    {"Tray4", 6},       //
    {"LCT", 7},         // large-capacity tray
    {"Multi", 2},       // multi-purpose tray
    {"", 0},            // closing row
};

inline constexpr NetName kNetOutputBinTable[] = {
    //  name  bin id
    {"Tray1", 1},           // standard tray
    {"Ext.Tray", 3},        //
    {"PrintPostProof", 6},  //
    {"Finisher", 4},        //
    {"PrintPostBin1", 7},   //
    {"PrintPostBin2", 8},   //
    {"PrintPostBin3", 9},   //
    {"PrintPostBin4", 10},  //
    {"PrintPostBin5", 11},  //
    {"PrintPostBin6", 12},  //
    {"PrintPostBin7", 13},  //
    {"PrintPostBin8", 14},  //
    {"PrintPostBin9", 15},  //
    {"", 255},              // closing row; its code is never the answer
};

inline constexpr uint32_t kNetDuplexUnit = 1;
inline constexpr uint32_t kNetHardDisk = 2;
inline constexpr uint32_t kNetElectronicSort = 3;

inline constexpr NetName kNetOptionTable[] = {
    {"DuplexUnit", kNetDuplexUnit},
    {"HardDiskUnit", kNetHardDisk},
    {"ElectronicSort", kNetElectronicSort},
    {"", 0},  // closing row
};

// Paper sizes go by their names, by short forms, or by the printer's own numbers.
inline constexpr NetName kNetMediaTable[] = {
    // name  paper code
    {"-1", 1},     // no paper
    {"0", 2},      // free size
    {"1", 3},      //
    {"A3", 4},     //
    {"A3R", 5},    //
    {"B4", 6},     //
    {"B4R", 7},    //
    {"A4", 8},     //
    {"A4R", 9},    //
    {"B5", 10},    //
    {"B5R", 11},   //
    {"A5", 12},    //
    {"A5R", 13},   //
    {"B6", 14},    //
    {"B6R", 15},   //
    {"A6", 16},    //
    {"A6R", 17},   //
    {"DLT", 18},   // double letter
    {"DLTR", 19},  //
    {"LG", 20},    // legal
    {"LGR", 21},   //
    {"LT", 22},    // letter
    {"LTR", 23},   //
    {"26", 24},    //
    {"27", 25},    //
    {"HLT", 26},   // half letter
    {"HLTR", 27},  //
    {"39", 28},    //
    {"48", 29},    //
    {"61", 30},    //
    {"73", 31},    //
    {"75", 32},    //
    {"77", 33},    //
    {"79", 34},    // postcard
    {"80", 2},     // free size as well
    {"91", 35},    //
    {"93", 36},    //
    {"120", 37},   //
    {"121", 38},   //
    {"122", 39},   //
    {"123", 40},   //
    {"128", 41},   // tray not in place
    {"", 0},       // closing row
};

static_assert(std::size(kNetOutputBinTable) == 13 + 1);
static_assert(std::size(kNetMediaTable) == 42 + 1);

}  // namespace stm
