// The print manager's names and the codes of the records. Japanese names are code page 932 and are
// compared byte for byte; each stands readable at its row's end.
#pragma once

#include <cstdint>
#include <iterator>

#include "names/name_table.h"

namespace stm {

inline constexpr NameCode kInputTrayNameTable[] = {
    // name  tray id
    {"HandTray", 1},                              // bypass tray
    {"BypassTray", 1},                            //
    {"Hand Tray", 1},                             //
    {"Bypass Tray", 1},                           //
    {"\x8E\xE8\x8D\xB7\x82\xB5\xC4\xDA\xB2", 1},  // 手差しﾄﾚｲ
    {"MultiTray", 2},                             // multi-purpose tray
    {"Multi", 2},                                 //
    {"Tray1", 3},                                 // trays 1 to 5
    {"Tray 1", 3},                                //
    {"\xC4\xDA\xB2\x31", 3},                      // ﾄﾚｲ1
    {"\xC4\xDA\xB2\x20\x31", 3},                  // ﾄﾚｲ 1
    {"Tray2", 4},                                 //
    {"Tray 2", 4},                                //
    {"\xC4\xDA\xB2\x32", 4},                      // ﾄﾚｲ2
    {"\xC4\xDA\xB2\x20\x32", 4},                  // ﾄﾚｲ 2
    {"Tray3", 5},                                 //
    {"Tray 3", 5},                                //
    {"\xC4\xDA\xB2\x33", 5},                      // ﾄﾚｲ3
    {"\xC4\xDA\xB2\x20\x33", 5},                  // ﾄﾚｲ 3
    {"Tray4", 6},                                 //
    {"Tray 4", 6},                                //
    {"\xC4\xDA\xB2\x34", 6},                      // ﾄﾚｲ4
    {"\xC4\xDA\xB2\x20\x34", 6},                  // ﾄﾚｲ 4
    {"Tray5", 7},                                 //
    {"Tray 5", 7},                                //
    {"LCT", 7},                                   // large-capacity tray
    {"MultiA4", 10},                              // multi-purpose tray for A4
    {{}, 0},                                      // closing row: unknown tray
};

inline constexpr NameCode kOutputBinNameTable[] = {
    // name  bin id
    {"Tray1", 1},                                     // standard tray
    {"Tray 1", 1},                                    //
    {"Standard Tray", 1},                             //
    {"\x96\x7B\x91\xCC\xC4\xDA\xB2", 1},              // 本体ﾄﾚｲ
    {"\x95\x57\x8F\x80\xC4\xDA\xB2", 1},              // 標準ﾄﾚｲ
    {"Ext.Tray", 3},                                  //
    {"Finisher", 4},                                  //
    {"Finisher Tray", 4},                             //
    {"\xCC\xA8\xC6\xAF\xBC\xAC\xB0\xC4\xDA\xB2", 4},  // ﾌｨﾆｯｼｬｰﾄﾚｲ
    {"PrintPostProof", 6},                            //
    {"Print Post Proof", 6},                          //
    {"PrintPostBin1", 7},                             //
    {"Print Post Bin1", 7},                           //
    {"\x8F\xE3\xC4\xDA\xB2\x31", 7},                  // 上ﾄﾚｲ1
    {"PrintPostBin2", 8},                             //
    {"Print Post Bin2", 8},                           //
    {"\x8F\xE3\xC4\xDA\xB2\x32", 8},                  // 上ﾄﾚｲ2
    {"PrintPostBin3", 9},                             //
    {"Print Post Bin3", 9},                           //
    {"\x8F\xE3\xC4\xDA\xB2\x33", 9},                  // 上ﾄﾚｲ3
    {"PrintPostBin4", 10},                            //
    {"Print Post Bin4", 10},                          //
    {"\x8F\xE3\xC4\xDA\xB2\x34", 10},                 // 上ﾄﾚｲ4
    {"PrintPostBin5", 11},                            //
    {"Print Post Bin5", 11},                          //
    {"PrintPostBin6", 12},                            //
    {"Print Post Bin6", 12},                          //
    {"PrintPostBin7", 13},                            //
    {"Print Post Bin7", 13},                          //
    {"PrintPostBin8", 14},                            //
    {"Print Post Bin8", 14},                          //
    {"PrintPostBin9", 15},                            //
    {"Print Post Bin9", 15},                          //
    {{}, 255},                                        // closing row: unknown bin
};

inline constexpr uint32_t kEmulationOrlexScript2 = 2;
inline constexpr uint32_t kEmulationWxdlC = 14;

inline constexpr NameCode kEmulationNameTable[] = {
    // name  printer language
    {"NVDL", 1},          //
    {"OrlexScript2", 2},  //
    {"PC-PR201H", 3},     //
    {"ESC/P", 4},         //
    {"IBM5577", 7},       //
    {"NV-GL/2", 12},      //
    {"TIFF", 13},         //
    {"WXDL-C", 14},       //
    {{}, 0},              // closing row: unknown language
};

// Short forms may carry a blank that belongs to the name. Codes above 41 have no row in the paper
// table: such paper has no name and no picture.
inline constexpr NameCode kPaperNameTable[] = {
    // name  paper code
    {"-1 ", 1},                                            // no paper
    {"-1", 1},                                             //
    {"FR1", 2},                                            // free size
    {"OT1", 3},                                            //
    {"A3 ", 4},                                            //
    {"A3", 4},                                             //
    {"A3R", 5},                                            //
    {"B4 ", 6},                                            //
    {"B4", 6},                                             //
    {"B4R", 7},                                            //
    {"A4 ", 8},                                            //
    {"A4", 8},                                             //
    {"A4R", 9},                                            //
    {"B5 ", 10},                                           //
    {"B5", 10},                                            //
    {"B5R", 11},                                           //
    {"A5 ", 12},                                           //
    {"A5", 12},                                            //
    {"A5R", 13},                                           //
    {"B6 ", 14},                                           //
    {"B6", 14},                                            //
    {"B6R", 15},                                           //
    {"A6 ", 16},                                           //
    {"A6", 16},                                            //
    {"A6R", 17},                                           //
    {"DL ", 18},                                           // double letter
    {"DL", 18},                                            //
    {"11 x 17 in", 18},                                    //
    {"DLR", 19},                                           //
    {"11 x 17 in R", 19},                                  //
    {"LG ", 20},                                           // legal
    {"LG", 20},                                            //
    {"8 1/2 x 14 in", 20},                                 //
    {"LGR", 21},                                           //
    {"8 1/2 x 14 in R", 21},                               //
    {"LT ", 22},                                           // letter
    {"LT", 22},                                            //
    {"8 1/2 x 11 in", 22},                                 //
    {"LTR", 23},                                           //
    {"8 1/2 x 11 in R", 23},                               //
    {"EX ", 24},                                           // executive
    {"EX", 24},                                            //
    {"7 1/4 x 10 1/2 in", 24},                             //
    {"EXR", 25},                                           //
    {"7 1/4 x 10 1/2 in R", 25},                           //
    {"HL ", 26},                                           // half letter
    {"HL", 26},                                            //
    {"5 1/2 x 8 1/2 in", 26},                              //
    {"HLR", 27},                                           //
    {"5 1/2 x 8 1/2 in R", 27},                            //
    {"FLR", 28},                                           //
    {"8 1/4 x 13 in R", 28},                               //
    {"OTS", 29},                                           //
    {"OTR", 30},                                           //
    {"C5R", 31},                                           //
    {"DR ", 32},                                           //
    {"DR", 32},                                            //
    {"C6R", 33},                                           //
    {"PCR", 34},                                           // postcard
    {"\x8A\xAF\x90\xBB\x82\xCD\x82\xAA\x82\xAB\x52", 34},  // 官製はがきR
    {"N10", 35},                                           //
    {"N7R", 36},                                           //
    {"OT4", 38},                                           //
    {"OT6", 39},                                           //
    {"OT8", 40},                                           //
    {"NCS", 41},                                           // tray not in place
    {"L3 ", 50},                                           //
    {"L3", 50},                                            //
    {"L3R", 51},                                           //
    {"MNR", 52},                                           //
    {"CMR", 53},                                           //
    {"???", 54},                                           //
    {{}, 0},                                               // closing row: unknown paper
};

// Paper of any size.
inline constexpr uint32_t kPaperFree = 2;

// What the print manager calls paper that it knows nothing about ("unknown"): the tray is missing.
inline constexpr char kUnknownPaperName[] = "\x95\x73\x96\xBE";  // 不明

struct PaperSize {
  uint32_t width;   // millimetres
  uint32_t length;  // millimetres
  uint32_t paperCode;
};

// Upright sizes are followed by the same sheet lying.
inline constexpr PaperSize kPaperSizeTable[] = {
    // width  length  paper code
    {297, 420, 4},   // A3
    {420, 297, 5},   //
    {257, 364, 6},   // B4
    {364, 257, 7},   //
    {210, 297, 8},   // A4
    {297, 210, 9},   //
    {182, 257, 10},  // B5
    {257, 182, 11},  //
    {148, 210, 12},  // A5
    {210, 148, 13},  //
    {128, 182, 14},  // B6
    {182, 128, 15},  //
    {105, 148, 16},  // A6
    {148, 105, 17},  //
    {279, 431, 18},  // double letter
    {431, 279, 19},  //
    {216, 355, 20},  // legal
    {355, 216, 21},  //
    {216, 279, 22},  // letter
    {279, 216, 23},  //
    {215, 355, 20},  // legal
    {355, 215, 21},  //
    {215, 279, 22},  // letter
    {279, 215, 23},  //
    {139, 215, 26},  // half letter
    {215, 139, 27},  //
    {148, 100, 34},  // postcard
    {0, 0, 0},       // closing row
};

static_assert(std::size(kInputTrayNameTable) == 27 + 1);
static_assert(std::size(kOutputBinNameTable) == 33 + 1);
static_assert(std::size(kEmulationNameTable) == 8 + 1);
static_assert(std::size(kPaperNameTable) == 72 + 1);
static_assert(std::size(kPaperSizeTable) == 27 + 1);

}  // namespace stm
