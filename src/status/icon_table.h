// The icons of the printer's state and of a tray's paper level. Two of the state names are no
// resources of the library; the caller knows what to show for them.
#pragma once

#include <cstdint>

namespace stm {

struct IconRow {
  int32_t code;
  const char* icon;
};

inline constexpr IconRow kErrPartsTable[] = {
    //  code  icon
    {0, "ICO_ONLINE"},          // ready
    {102, "ICO_ERR_POWEROFF"},  // no response
    {4, "ICO_ONLINE"},          // toner nearly empty
    {5, "ICO_ONLINE"},          // fuser cleaner nearly due
    {6, "ICO_ONLINE"},          // fusing oil nearly empty
    {8, "ICO_ONLINE"},          // PCU nearly due
    {9, "ICO_ONLINE"},          // maintenance required
    {10, "ICO_ONLINE"},         // fusing unit nearly due
    {16, "ICO_WARMUP"},         // adjusting
    {17, "ICO_WARMUP"},         // warming up
    {18, "ICO_ONLINE"},         // energy saver
    {19, "ICO_WARMUP"},         // self check
    {25, "ICO_ERR_WASTONER"},   // waste toner full
    {26, "ICO_ERR_CAUTION"},    // fusing oil empty
    {28, "ICO_ERR_CAUTION"},    // fuser cleaner due
    {32, "ICO_ERR_PAPER"},      // no paper
    {33, "ICO_ERR_CAUTION"},    // tray not placed properly
    {34, "ICO_ERR_CAUTION"},    // output full
    {36, "ICO_ERR_COVER"},      // top cover open
    {37, "ICO_ERR_COVER"},      // front cover open
    {38, "ICO_ERR_CK_UNIT"},    // toner not placed properly
    {39, "ICO_ERR_COVER"},      // back cover open
    {40, "ICO_ERR_SERVICE"},    // fusing oil not placed properly
    {42, "ICO_ERR_CK_UNIT"},    // PCU not placed properly
    {43, "ICO_ERR_CK_UNIT"},    // fuser cleaner not placed properly
    {44, "ICO_ERR_JAM"},        // misfeed at a tray or the rear cover
    {45, "ICO_ERR_JAM"},        // misfeed at the rear or top cover
    {46, "ICO_ERR_JAM"},        // misfeed at the indicated area
    {65, "ICO_ONLINE"},         // cyan toner nearly empty
    {66, "ICO_ONLINE"},         // magenta toner nearly empty
    {67, "ICO_ONLINE"},         // yellow toner nearly empty
    {68, "ICO_ONLINE"},         // black toner nearly empty
    {69, "ICO_ERR_TONER"},      // cyan toner empty
    {70, "ICO_ERR_TONER"},      // magenta toner empty
    {71, "ICO_ERR_TONER"},      // yellow toner empty
    {72, "ICO_ERR_TONER"},      // black toner empty
    {73, "ICO_ERR_CK_UNIT"},    // cyan toner not placed properly
    {74, "ICO_ERR_CK_UNIT"},    // magenta toner not placed properly
    {75, "ICO_ERR_CK_UNIT"},    // yellow toner not placed properly
    {76, "ICO_ERR_CK_UNIT"},    // black toner not placed properly
    {81, "ICO_ONLINE"},         // waste toner nearly full
    {82, "ICO_ONLINE"},         // output nearly full
    {83, "ICO_ONLINE"},         // unit T1 nearly due
    {85, "ICO_ONLINE"},         // unit R1 nearly due
    {86, "ICO_ONLINE"},         // unit R2 nearly due
    {87, "ICO_ONLINE"},         // unit R3 nearly due
    {88, "ICO_ONLINE"},         // unit D1 nearly due
    {89, "ICO_ERR_CAUTION"},    // cover behind a tray open
    {90, "ICO_ERR_CAUTION"},    // cover behind a tray open
    {91, "ICO_ERR_CAUTION"},    // duplex unit cover open
    {93, "ICO_ERR_CK_UNIT"},    // tray or its connector not placed properly
    {94, "ICO_ERR_CK_UNIT"},    // transfer roller not placed properly
    {96, "ICO_ERR_JAM"},        // misfeed in the duplex unit
    {97, "ICO_ERR_JAM"},        // misfeed in the duplex unit
    {99, "ICO_ERR_CK_UNIT"},    // front cover not placed properly
    {48, "ICO_ERR_SERVICE"},    // service call
    {100, "ICO_ONLINE"},        // printing
    {-1, "BMP_ERR_CAUTION"},    // closing row: a code without an icon
};
static_assert(sizeof kErrPartsTable / sizeof kErrPartsTable[0] == 58);

// For an offline printer whose code is at most kLastMildCode.
inline constexpr char kOfflineIcon[] = "ICO_OFFLINE";

struct LevelIcon {
  uint32_t highest;  // per cent; the lowest follows the row before
  const char* icon;
};

inline constexpr LevelIcon kLevelIcons[] = {
    //  highest  icon
    {0, "ICO_PAP_0"},            // empty
    {24, "ICO_PAP_25"},          // 1 to 24
    {50, "ICO_PAP_50"},          // 25 to 50
    {75, "ICO_PAP_75"},          // 51 to 75
    {100, "ICO_PAP_100"},        // 76 to 100
    {0xFFFFFFFF, "ICO_PAP_75"},  // closing row: no percentage
};

}  // namespace stm
