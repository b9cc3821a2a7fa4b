#include "words/reasons.h"

namespace stmon {
namespace {

// Alert groups and supply types by their numbers in the Printer MIB.
enum Group : uint32_t { Unknown = 2, Device = 5, Cover = 6, Input = 8, Output = 9 };
enum MarkerGroup : uint32_t { Marker = 10, Supply = 11, Path = 13 };
enum SupplyType : uint32_t { Toner = 3, Waste = 4, Opc = 9, Oil = 11, Fuser = 15 };
enum SupplyPart : uint32_t { Pad = 19, Transf = 20, Cartr = 21 };

// Bits of hrPrinterDetectedErrorState, by number.
constexpr const char* kBitNames[] = {
    "lowPaper",             // 0
    "noPaper",              // 1
    "lowToner",             // 2
    "noToner",              // 3
    "doorOpen",             // 4
    "jammed",               // 5
    "offline",              // 6
    "serviceRequested",     // 7
    "inputTrayMissing",     // 8
    "outputTrayMissing",    // 9
    "markerSupplyMissing",  // 10
    "outputNearFull",       // 11
    "outputFull",           // 12
    "inputTrayEmpty",       // 13
    "overduePreventMaint",  // 14
};
enum ErrorBits : uint32_t {
  NoPaper = 1u << 1,
  LowToner = 1u << 2,
  NoToner = 1u << 3,
  Door = 1u << 4,
  Jam = 1u << 5,
  Off = 1u << 6,
  Service = 1u << 7,
  NoTray = 1u << 8,
  NoSupply = 1u << 10,
  NearFull = 1u << 11,
  Full = 1u << 12,
  TrayEmpty = 1u << 13,
  Overdue = 1u << 14
};

constexpr Severity R = Severity::Report;
constexpr Severity W = Severity::Warning;
constexpr Severity U = Severity::Unknown;
constexpr Severity E = Severity::Error;

struct AlertRow {
  uint32_t alert;
  const char* name;
};

constexpr AlertRow kAlerts[] = {
    {1, "other"},
    {3, "coverOpen"},
    {8, "jam"},
    {9, "subunitMissing"},
    {10, "subunitLifeAlmostOver"},
    {11, "subunitLifeOver"},
    {12, "subunitAlmostEmpty"},
    {13, "subunitEmpty"},
    {17, "subunitAtLimit"},
    {22, "subunitOffline"},
    {23, "subunitPowerSaver"},
    {24, "subunitWarmingUp"},
    {30, "subunitUnrecoverableFailure"},
    {801, "inputMediaTrayMissing"},
    {808, "inputMediaSupplyEmpty"},
    {809, "inputMediaChangeRequest"},
    {902, "outputMediaTrayAlmostFull"},
    {903, "outputMediaTrayFull"},
    {1005, "markerAdjustingPrintQuality"},
    {1101, "markerTonerEmpty"},
    {1104, "markerTonerAlmostEmpty"},
    {1107, "markerWasteTonerReceptacleAlmostFull"},
    {1109, "markerWasteTonerReceptacleFull"},
    {1111, "markerOpcLifeAlmostOver"},
    {1115, "markerTonerCartridgeMissing"},
    {0, ""},  // closing row: no alert
};

// Where a general and a finer keyword exist, the general one stands here: monitors that know only
// the first edition of the standard know these. Toner low and the reminders 81 to 88 leave the
// printer ready, so they are warnings.
// clang-format off
constexpr Reason kReasons[] = {
    // code keyword               severity alert group supply error bits
    {  0, "none",                           R,    0, 0,      0,      0},        // ready
    {  4, "toner-low",                      W, 1104, Supply, Toner,  LowToner}, // low
    {  5, "cleaner-life-almost-over",       W,   10, Supply, Pad,    0},        // cleaner due
    {  6, "marker-supply-low",              W,   12, Supply, Oil,    0},        // fusing oil low
    {  8, "opc-near-eol",                   W, 1111, Supply, Opc,    0},        // change PCU
    {  9, "subunit-at-limit",               W,   17, Marker, 0,      Overdue},  // maintenance due
    { 10, "subunit-life-almost-over",       W,   10, Supply, Fuser,  0},        // fusing unit due
    { 16, "marker-adjusting-print-quality", R, 1005, Marker, 0,      0},        // adjusting
    { 17, "subunit-warming-up",             R,   24, Device, 0,      0},        // warming up
    { 18, "subunit-power-saver",            R,   23, Device, 0,      0},        // energy saver
    { 19, "other",                          R,    1, Device, 0,      0},        // self check
    { 25, "marker-waste-full",              E, 1109, Supply, Waste,  0},        // waste toner full
    { 26, "marker-supply-empty",            E,   13, Supply, Oil,    0},        // fusing oil empty
    { 28, "cleaner-life-over",              E,   11, Supply, Pad,    0},        // cleaner over
    { 31, "media-needed",                   E,  809, Input,  0,      NoPaper},  // paper type
    { 32, "media-empty",                    E,  808, Input,  0,      TrayEmpty | NoPaper},
    { 33, "input-tray-missing",             E,  801, Input,  0,      NoTray},   // tray not placed
    { 34, "output-area-full",               E,  903, Output, 0,      Full},     // output full
    { 36, "cover-open",                     E,    3, Cover,  0,      Door},     // top cover
    { 37, "cover-open",                     E,    3, Cover,  0,      Door},     // front cover
    { 38, "marker-toner-cartridge-missing", E, 1115, Supply, Cartr,  NoSupply}, // any colour
    { 39, "cover-open",                     E,    3, Cover,  0,      Door},     // back cover
    { 40, "marker-supply-missing",          E,    9, Supply, Oil,    NoSupply | Service},// oil
    { 42, "marker-opc-missing",             E,    9, Supply, Opc,    NoSupply}, // PCU not placed
    { 43, "marker-cleaner-missing",         E,    9, Supply, Pad,    NoSupply}, // cleaner missing
    { 44, "media-jam",                      E,    8, Input,  0,      Jam},      // misfeed, tray
    { 45, "media-jam",                      E,    8, Path,   0,      Jam},      // rear, top cover
    { 46, "media-jam",                      E,    8, Path,   0,      Jam},      // indicated area
    { 48, "subunit-unrecoverable-failure",  E,   30, Device, 0,      Service},  // 48 to 64
    { 65, "toner-low",                      W, 1104, Supply, Toner,  LowToner}, // low CMYK
    { 66, "toner-low",                      W, 1104, Supply, Toner,  LowToner},
    { 67, "toner-low",                      W, 1104, Supply, Toner,  LowToner},
    { 68, "toner-low",                      W, 1104, Supply, Toner,  LowToner},
    { 69, "toner-empty",                    E, 1101, Supply, Toner,  NoToner},  // empty CMYK
    { 70, "toner-empty",                    E, 1101, Supply, Toner,  NoToner},
    { 71, "toner-empty",                    E, 1101, Supply, Toner,  NoToner},
    { 72, "toner-empty",                    E, 1101, Supply, Toner,  NoToner},
    { 73, "marker-toner-cartridge-missing", E, 1115, Supply, Cartr,  NoSupply}, // missing CMYK
    { 74, "marker-toner-cartridge-missing", E, 1115, Supply, Cartr,  NoSupply},
    { 75, "marker-toner-cartridge-missing", E, 1115, Supply, Cartr,  NoSupply},
    { 76, "marker-toner-cartridge-missing", E, 1115, Supply, Cartr,  NoSupply},
    { 81, "marker-waste-almost-full",       W, 1107, Supply, Waste,  0},        // waste near full
    { 82, "output-area-almost-full",        W,  902, Output, 0,      NearFull}, // output near full
    { 83, "subunit-life-almost-over",       W,   10, Marker, 0,      Overdue},  // T1 due
    { 85, "subunit-life-almost-over",       W,   10, Marker, 0,      Overdue},  // R1 due
    { 86, "subunit-life-almost-over",       W,   10, Marker, 0,      Overdue},  // R2 due
    { 87, "subunit-life-almost-over",       W,   10, Marker, 0,      Overdue},  // R3 due
    { 88, "subunit-life-almost-over",       W,   10, Marker, 0,      Overdue},  // D1 due
    { 89, "cover-open",                     E,    3, Cover,  0,      Door},     // behind a tray
    { 90, "cover-open",                     E,    3, Cover,  0,      Door},     // behind a tray
    { 91, "cover-open",                     E,    3, Cover,  0,      Door},     // duplex unit
    { 93, "input-tray-missing",             E,  801, Input,  0,      NoTray},   // tray 2 connector
    { 94, "marker-supply-missing",          E,    9, Supply, Transf, NoSupply}, // transfer roller
    { 96, "media-jam",                      E,    8, Path,   0,      Jam},      // duplex unit
    { 97, "media-jam",                      E,    8, Path,   0,      Jam},      // duplex unit
    { 99, "cover-open",                     E,    3, Cover,  0,      Door},     // front cover
    {100, "none",                           R,    0, 0,      0,      0},        // printing
    {102, "timed-out",                      U,    0, 0,      0,      0},        // no response
    {kOfflineCode, "subunit-offline", E, 22, Device, 0, Off},  // switched offline
    {kOtherCode, "other", W, 1, Unknown, 0, 0},  // closing row: any other code
};
// clang-format on

}  // namespace

uint32_t FoldServiceCalls(uint32_t code) {
  return code >= 49 && code <= 64 ? 48 : code;
}

const Reason& ReasonOf(uint32_t code) {
  const uint32_t folded = FoldServiceCalls(code);
  const Reason* row = kReasons;
  while (row->code != kOtherCode && row->code != folded)
    ++row;
  return *row;
}

const Reason* AllReasons() {
  return kReasons;
}

std::string Keyword(const Reason& reason, Severity severity) {
  const std::string keyword = reason.keyword;
  const bool plain = keyword == "none" || severity == Severity::Unknown;
  return plain ? keyword : keyword + "-" + SeverityWord(severity);
}

std::string Keyword(const Reason& reason) {
  return Keyword(reason, reason.severity);
}

const char* AlertName(uint32_t alert) {
  const AlertRow* row = kAlerts;
  while (row->alert != 0 && row->alert != alert)
    ++row;
  return row->name;
}

const char* TonerColour(uint32_t code) {
  constexpr const char* kColours[] = {"cyan", "magenta", "yellow", "black"};
  return code >= 65 && code <= 76 ? kColours[(code - 65) % 4] : "";
}

const char* SeverityWord(Severity severity) {
  switch (severity) {
    case Severity::Report:
      return "report";
    case Severity::Warning:
      return "warning";
    case Severity::Unknown:
      return "unknown";
    case Severity::Error:
      break;
  }
  return "error";
}

std::vector<std::string> ErrorBitNames(uint32_t bits) {
  std::vector<std::string> names;
  for (uint32_t number = 0; number < std::size(kBitNames); ++number) {
    if (bits & (1u << number)) names.push_back(kBitNames[number]);
  }
  return names;
}

}  // namespace stmon
