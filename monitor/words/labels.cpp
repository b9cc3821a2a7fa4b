#include "words/labels.h"

#include "stmdata/stmdata.h"
#include "words/phrases.h"

namespace stmon {
namespace {

constexpr uint32_t kAny = 0xFFFFFFFF;  // of a closing row: every other code

struct Label {
  uint32_t code;
  Phrase name;
};

constexpr Label kTrays[] = {
    {1, Phrase::TrayBypass},        //
    {2, Phrase::TrayMultiPurpose},  //
    {7, Phrase::TrayFive},          //
    {kAny, Phrase::TrayOther},      // closing row
};

constexpr Label kOptions[] = {
    {1, Phrase::OptionDuplex},    //
    {2, Phrase::OptionHardDisk},  //
    {3, Phrase::OptionSort},      //
    {11, Phrase::OptionStapler},  //
    {12, Phrase::OptionPuncher},  //
    {105, Phrase::OptionTray},    //
    {kAny, Phrase::OptionOther},  // closing row
};

// Papers whose names the library has in Japanese or not at all.
constexpr Label kPapers[] = {
    {PaperNone, Phrase::PaperNone},            //
    {2, Phrase::PaperFree},                    //
    {34, Phrase::PaperPostcard},               //
    {PaperTrayMissing, Phrase::PaperMissing},  //
    {kAny, Phrase::PaperOther},                // closing row
};

// A reply's state is a bare number; the names are those under which the library files the flags of
// print manager and network: empty, full, or neither.
constexpr Label kBinStates[] = {
    {0, Phrase::BinNotFull},   //
    {1, Phrase::BinEmpty},     //
    {2, Phrase::BinFull},      //
    {kAny, Phrase::BinState},  // closing row
};

struct LanguageName {
  uint32_t code;
  const char* name;  // the same everywhere
};

constexpr LanguageName kPrinterLanguages[] = {
    {1, "NVDL"},          //
    {2, "OrlexScript2"},  //
    {3, "PC-PR201H"},     //
    {4, "ESC/P"},         //
    {7, "IBM5577"},       //
    {12, "NV-GL/2"},      //
    {13, "TIFF"},         //
    {14, "WXDL-C"},       //
    {kAny, ""},           // closing row
};

template <class Row>
const Row& RowOf(const Row* row, uint32_t code) {
  while (row->code != kAny && row->code != code)
    ++row;
  return *row;
}

std::string Find(const Label* rows, uint32_t code, const Language& language) {
  return Say(RowOf(rows, code).name, language, {std::to_string(code)});
}

}  // namespace

std::string TrayLabel(uint32_t id, const Language& language) {
  constexpr uint32_t kFirst = 3, kFourth = 6;
  if (id >= kFirst && id <= kFourth)
    return Say(Phrase::TrayNumber, language, {std::to_string(id - kFirst + 1)});
  return Find(kTrays, id, language);
}

std::string OptionLabel(uint32_t code, const Language& language) {
  return Find(kOptions, code, language);
}

std::string LanguageLabel(uint32_t code, const Language& language) {
  if (code == 0) return Say(Phrase::LanguageUnknown, language);
  const std::string name = RowOf(kPrinterLanguages, code).name;
  return name.empty() ? Say(Phrase::LanguageOther, language, {std::to_string(code)}) : name;
}

std::string BinLabel(uint32_t id, const Language& language) {
  const bool known = id != BinUnknown;
  return Say(known ? Phrase::BinNumber : Phrase::BinOther, language, {std::to_string(id)});
}

std::string BinStateLabel(uint32_t state, const Language& language) {
  return Find(kBinStates, state, language);
}

std::string ColourLabel(uint32_t code, const Language& language) {
  constexpr Phrase kColours[] = {Phrase::Cyan, Phrase::Magenta, Phrase::Yellow, Phrase::Black};
  return *TonerColour(code) == '\0' ? "" : Say(kColours[(code - 65) % 4], language);
}

std::string SeverityLabel(Severity severity, const Language& language) {
  switch (severity) {
    case Severity::Report:
      return Say(Phrase::SeverityReport, language);
    case Severity::Warning:
      return Say(Phrase::SeverityWarning, language);
    case Severity::Error:
      return Say(Phrase::SeverityError, language);
    case Severity::Unknown:
      break;
  }
  return Say(Phrase::SeverityUnknown, language);
}

// The library names sizes in ASCII and the rest in Japanese or with asterisks; the name of its
// picture tells how the paper lies.
std::string PaperLabel(uint32_t code, const Language& language) {
  if (code == 0) return {};
  char name[8] = "";
  char picture[17] = "";
  PatGetPaperName_Ex(nullptr, code, name);
  PatGetPaperBitmap_Ex(nullptr, code, picture);
  if (name[0] < 'A' || name[0] > 'Z') return Find(kPapers, code, language);
  const bool rotated = std::string_view(picture).ends_with("_R");
  return rotated ? Say(Phrase::PaperRotated, language, {name}) : name;
}

std::string LevelLabel(uint32_t paper, const std::optional<uint32_t>& level,
                       const Language& language) {
  constexpr uint32_t kFull = 100;  // per cent
  if (!level || paper == PaperTrayMissing) return {};
  const std::string number = paper == PaperNone ? "0" : std::to_string(*level);
  if (paper != PaperNone && *level > kFull) return number;
  return Say(Phrase::Percent, language, {number});
}

}  // namespace stmon
