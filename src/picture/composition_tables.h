// Which layers show what. A layer is a part code: its number in the parts table; 0 is none.
#pragma once

#include <cstdint>

namespace stm {

// An overlay is a unit cut out of the picture by its mask and then filled by its image.
struct Overlay {
  uint8_t mask;
  uint8_t image;
};

//                                        mask  image
inline constexpr Overlay kTray2Front = {43, 3};
inline constexpr Overlay kTray3Front = {55, 54};
inline constexpr Overlay kTray2Back = {44, 4};
inline constexpr Overlay kTray3Back = {57, 56};
inline constexpr Overlay kTray1Paper = {24, 5};
inline constexpr Overlay kTray2Paper = {25, 6};
inline constexpr Overlay kTray3Paper = {59, 58};
inline constexpr Overlay kTonerArea = {31, 12};
inline constexpr Overlay kCyanToner = {37, 18};
inline constexpr Overlay kMagentaToner = {36, 17};
inline constexpr Overlay kYellowToner = {35, 16};
inline constexpr Overlay kBlackToner = {34, 15};
inline constexpr Overlay kDuplexBack = {67, 66};
inline constexpr Overlay kDuplexUnit1 = {51, 47};
inline constexpr Overlay kDuplexUnit2 = {52, 48};

// Base pictures, which stand first in a part list: the printer from the front, from the back, and
// with its duplex unit from the back.
inline constexpr uint8_t kBaseFront = 1;
inline constexpr uint8_t kBaseBack = 2;
inline constexpr uint8_t kBaseDuplexBack = 45;

struct PictureRow {
  uint32_t status;
  uint8_t codes[32];  // up to the first 0
};

inline constexpr uint32_t kPictureTableEnd = 0xFFFFFFFF;

inline constexpr PictureRow kPictureTable[] = {
    // status  base, then mask and image in turn
    {25, {1, 31, 12, 26, 7}},                           // waste toner full
    {26, {1, 30, 11, 28, 9}},                           // fusing oil empty
    {28, {1, 30, 11, 29, 10}},                          // fuser cleaner due
    {34, {1, 65, 64}},                                  // output full
    {36, {1, 33, 14}},                                  // top cover open
    {37, {1, 32, 13}},                                  // front cover open
    {38, {1, 31, 12, 34, 15, 35, 16, 36, 17, 37, 18}},  // toner not placed properly
    {39, {}},                                           // back cover open: rear view
    {40, {1, 41, 22}},                                  // fusing oil not placed properly
    {42, {1, 30, 11, 27, 8}},                           // PCU not placed properly
    {43, {1, 30, 11, 29, 10}},                          // fuser cleaner not placed properly
    {44, {1, 24, 5}},                                   // misfeed at a tray
    {45, {}},                                           // misfeed at the back: rear view
    {46, {1, 33, 14}},                                  // misfeed at the indicated area
    {48, {1, 41, 22}},                                  // service call
    {89, {}},                                           // cover behind a tray open: rear view
    {90, {}},                                           // cover behind a tray open: rear view
    {91, {67, 66, 51, 47, 52, 48}},                     // duplex unit cover open
    {94, {}},                                           // transfer roller: rear view
    {96, {67, 66, 51, 47}},                             // misfeed in the duplex unit
    {97, {67, 66, 52, 48}},                             // misfeed in the duplex unit
    {99, {1, 32, 13}},                                  // front cover not placed properly
    {102, {1, 42, 23}},                                 // no response
    {kPictureTableEnd, {1}},  // closing row: every other status, the printer from the front
};

// Overlays of the printer from the back, of list-based records only.
struct RearViewRow {
  uint32_t status;
  uint8_t tray3[8];       // duplex unit and tray 3 installed, before the next
  uint8_t duplexUnit[8];  // duplex unit installed
  uint8_t noDuplex[8];    // no duplex unit
  uint8_t tray2[8];       // no duplex unit, and tray 2 installed; status 93: also with the duplex
                          // unit, and then whether tray 2 is installed or not
};

// The first column is the status, as above; 93 is a tray not placed properly, seen from the front.
// clang-format off
inline constexpr RearViewRow kRearViewTable[] = {
    //   tray 3            duplex unit               no duplex unit       tray 2
    {39, {57, 56},         {67, 66, 52, 48},         {2, 38, 19},         {44, 4}},
    {45, {57, 56},         {67, 66, 50, 46, 52, 48}, {2, 38, 19, 39, 20}, {44, 4}},
    {89, {57, 56, 63, 62}, {67, 66, 52, 48},         {2},                 {44, 4, 61, 60}},
    {90, {57, 56, 63, 62}, {67, 66, 52, 48},         {2},                 {44, 4, 61, 60}},
    {91, {57, 56},         {67, 66, 51, 47, 52, 48}, {},                  {}},
    {93, {},               {},                       {},                  {43, 3, 25, 6}},
    {94, {57, 56},         {67, 66, 52, 48},         {2, 38, 19},         {44, 4}},
    {kPictureTableEnd, {}, {}, {}, {}},  // closing row: every other status is seen from the front
};
// clang-format on

}  // namespace stm
