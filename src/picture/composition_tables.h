// Which layers show what. A layer is a part code: its number in the parts table; 0 is none.
#pragma once

#include <cstdint>

#include "stmdata/records.h"

namespace stm {

// A unit is cut out of the picture by its mask and then filled by its image. A whole printer needs
// no mask and is one layer.
struct Overlay {
  uint8_t mask;
  uint8_t image;
};

inline constexpr Overlay kFrontView = {0, 1};
inline constexpr Overlay kBackView = {0, 2};
// unit                                 mask  image
inline constexpr Overlay kTray2Front = {43, 3};
inline constexpr Overlay kTray2Back = {44, 4};
inline constexpr Overlay kTray1Paper = {24, 5};
inline constexpr Overlay kTray2Paper = {25, 6};
inline constexpr Overlay kWasteToner = {26, 7};
inline constexpr Overlay kPcu = {27, 8};
inline constexpr Overlay kFusingOil = {28, 9};
inline constexpr Overlay kFuserCleaner = {29, 10};
inline constexpr Overlay kOpenTop = {30, 11};  // shows the three before it
inline constexpr Overlay kTonerArea = {31, 12};
inline constexpr Overlay kFrontCover = {32, 13};
inline constexpr Overlay kTopCover = {33, 14};
inline constexpr Overlay kBlack = {34, 15};
inline constexpr Overlay kYellow = {35, 16};
inline constexpr Overlay kMagenta = {36, 17};
inline constexpr Overlay kCyan = {37, 18};
inline constexpr Overlay kBackCover = {38, 19};
inline constexpr Overlay kRearMisfeed = {39, 20};
inline constexpr Overlay kServiceSign = {41, 22};
inline constexpr Overlay kPowerOffSign = {42, 23};
inline constexpr Overlay kDuplexMisfeed = {50, 46};
inline constexpr Overlay kDuplexUnit1 = {51, 47};
inline constexpr Overlay kDuplexUnit2 = {52, 48};
inline constexpr Overlay kTray3Front = {55, 54};
inline constexpr Overlay kTray3Back = {57, 56};
inline constexpr Overlay kTray3Paper = {59, 58};
inline constexpr Overlay kTray2Cover = {61, 60};
inline constexpr Overlay kTray3Cover = {63, 62};
inline constexpr Overlay kOutput = {65, 64};
inline constexpr Overlay kDuplexBack = {67, 66};

// ---- Pictures -----------------------------------------------------------------------------------

struct PictureRow {
  uint32_t status;
  Overlay base;         // stands before the overlays that the record's rules add
  Overlay overlays[5];  // stand after them
};

inline constexpr PictureRow kPictureTable[] = {
    // status  base   overlays
    {25, kFrontView, {kTonerArea, kWasteToner}},                       // waste toner full
    {26, kFrontView, {kOpenTop, kFusingOil}},                          // fusing oil empty
    {28, kFrontView, {kOpenTop, kFuserCleaner}},                       // fuser cleaner due
    {34, kFrontView, {kOutput}},                                       // output full
    {36, kFrontView, {kTopCover}},                                     // top cover open
    {37, kFrontView, {kFrontCover}},                                   // front cover open
    {38, kFrontView, {kTonerArea, kBlack, kYellow, kMagenta, kCyan}},  // toner not placed properly
    {39, {}, {}},                                                      // back cover open: rear view
    {40, kFrontView, {kServiceSign}},                     // fusing oil not placed properly
    {42, kFrontView, {kOpenTop, kPcu}},                   // PCU not placed properly
    {43, kFrontView, {kOpenTop, kFuserCleaner}},          // fuser cleaner not placed properly
    {44, kFrontView, {kTray1Paper}},                      // misfeed at a tray
    {45, {}, {}},                                         // misfeed at the back: rear view
    {46, kFrontView, {kTopCover}},                        // misfeed at the indicated area
    {48, kFrontView, {kServiceSign}},                     // service call
    {89, {}, {}},                                         // cover behind a tray open: rear view
    {90, {}, {}},                                         // cover behind a tray open: rear view
    {91, {}, {kDuplexBack, kDuplexUnit1, kDuplexUnit2}},  // duplex unit cover open
    {94, {}, {}},                                         // transfer roller: rear view
    {96, {}, {kDuplexBack, kDuplexUnit1}},                // misfeed in the duplex unit
    {97, {}, {kDuplexBack, kDuplexUnit2}},                // misfeed in the duplex unit
    {99, kFrontView, {kFrontCover}},                      // front cover not placed properly
    {102, kFrontView, {kPowerOffSign}},                   // no response
    {0, kFrontView, {}},                                  // closing row: every other status
};

// ---- What the rules of the records add ----------------------------------------------------------

enum : uint32_t { Tray1 = 3, Tray2 = 4, Tray3 = 5 };

// What stands out for a code.
struct OverlayRow {
  uint32_t code;
  Overlay overlay;
};

inline constexpr OverlayRow kTonerOverlays[] = {
    // status  overlay
    {69, kCyan},     // cyan toner empty
    {70, kMagenta},  // magenta toner empty
    {71, kYellow},   // yellow toner empty
    {72, kBlack},    // black toner empty
    {73, kCyan},     // cyan toner not placed properly
    {74, kMagenta},  // magenta toner not placed properly
    {75, kYellow},   // yellow toner not placed properly
    {76, kBlack},    // black toner not placed properly
    {0, {}},         // closing row: no toner that the picture shows
};

inline constexpr OverlayRow kDuplexOverlays[] = {
    // status  overlay
    {96, kDuplexUnit1},  // misfeed in the duplex unit
    {97, kDuplexUnit2},  // misfeed in the duplex unit
    {0, {}},             // closing row: nothing in the duplex unit
};

inline constexpr OverlayRow kTrayOverlays[] = {
    {Tray1, kTray1Paper},
    {Tray2, kTray2Paper},
    {Tray3, kTray3Paper},
    {0, {}},  // closing row: a tray that the picture does not show
};

// The units that a flat record lists.
struct FlatUnitsRow {
  uint32_t status;
  Overlay tray2;
  Overlay tray3;
};

inline constexpr FlatUnitsRow kFlatUnits[] = {
    // status  tray 2   tray 3
    {39, kTray2Back, kTray3Back},   // back cover open
    {45, kTray2Back, kTray3Back},   // misfeed at the back
    {0, kTray2Front, kTray3Front},  // closing row: every other picture is seen from the front
};

// The units that a list-based record lists.
struct ListUnitsRow {
  uint32_t status;
  Overlay tray2[2];
  Overlay duplexUnit;
};

inline constexpr ListUnitsRow kListUnits[] = {
    // status  tray 2   duplex unit
    {39, {}, {}},                          // back cover open: rear view
    {44, {kTray2Front, kTray2Paper}, {}},  // misfeed at a tray
    {45, {}, {}},                          // misfeed at the back: rear view
    {89, {}, {}},                          // cover behind a tray open: rear view
    {90, {}, {}},                          // cover behind a tray open: rear view
    {91, {}, {}},                          // duplex unit cover open: rear view
    {94, {}, {}},                          // transfer roller: rear view
    {96, {}, kDuplexBack},                 // misfeed in the duplex unit
    {97, {}, kDuplexBack},                 // misfeed in the duplex unit
    {0, {kTray2Front}, {}},  // closing row: every other picture is seen from the front
};

// Which trays stand out. The picture of a row's status marks the tray in use. The picture of a
// ready printer marks every tray with the row's paper and every tray in place that has run down; it
// stops at the first row that marked any.
struct TrayRule {
  uint32_t status;
  uint32_t paperCode;
  bool flatLevels;  // whether a flat record's trays that have run down are marked
};

inline constexpr TrayRule kTrayRules[] = {
    // status  paper   levels
    {33, PaperTrayMissing, false},  // not placed properly
    {32, PaperNone, true},          // no paper
};

// ---- The printer from the back ------------------------------------------------------------------

// For list-based records, after what the rules above add: with the duplex unit and without it.
struct RearViewRow {
  uint32_t status;
  Overlay before[3];
  Overlay after[3];
};

inline constexpr RearViewRow kRearWithDuplexUnit[] = {
    // status  with tray 3   always
    {39, {kTray3Back}, {kDuplexBack, kDuplexUnit2}},                  // back cover open
    {45, {kTray3Back}, {kDuplexBack, kDuplexMisfeed, kDuplexUnit2}},  // misfeed at the back
    {89, {kTray3Back, kTray3Cover}, {kDuplexBack, kDuplexUnit2}},     // cover behind a tray open
    {90, {kTray3Back, kTray3Cover}, {kDuplexBack, kDuplexUnit2}},     // cover behind a tray open
    {91, {kTray3Back}, {kDuplexBack, kDuplexUnit1, kDuplexUnit2}},    // duplex unit cover open
    {93, {}, {kTray2Front, kTray2Paper}},             // tray or its connector: from the front
    {94, {kTray3Back}, {kDuplexBack, kDuplexUnit2}},  // transfer roller
    {0, {}, {}},                                      // closing row: not from the back
};

inline constexpr RearViewRow kRearWithoutDuplexUnit[] = {
    // status  always   with tray 2
    {39, {kBackView, kBackCover}, {kTray2Back}},                // back cover open
    {45, {kBackView, kBackCover, kRearMisfeed}, {kTray2Back}},  // misfeed at the back
    {89, {kBackView}, {kTray2Back, kTray2Cover}},               // cover behind a tray open
    {90, {kBackView}, {kTray2Back, kTray2Cover}},               // cover behind a tray open
    {93, {}, {kTray2Front, kTray2Paper}},         // tray or its connector: from the front
    {94, {kBackView, kBackCover}, {kTray2Back}},  // transfer roller
    {0, {}, {}},                                  // closing row: not from the back
};

}  // namespace stm
