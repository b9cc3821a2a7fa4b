#include "words/labels.h"

#include "stmdata/stmdata.h"

namespace stmon {
namespace {

struct Label {
  uint32_t code;
  const char* name;
};

constexpr Label kTrays[] = {
    {1, "Bypass tray"},         //
    {2, "Multi-purpose tray"},  //
    {3, "Tray 1"},              //
    {4, "Tray 2"},              //
    {5, "Tray 3"},              //
    {6, "Tray 4"},              //
    {7, "Tray 5"},              //
    {0, "Tray with id "},       // closing row: any other, its id follows
};

constexpr Label kOptions[] = {
    {1, "Duplex unit"},       //
    {2, "Hard disk unit"},    //
    {3, "Electronic sort"},   //
    {11, "Stapler"},          //
    {12, "Puncher"},          //
    {105, "Option tray"},     //
    {0, "Option with code "}  // closing row
};

constexpr Label kLanguages[] = {
    {1, "NVDL"},                //
    {2, "OrlexScript2"},        //
    {3, "PC-PR201H"},           //
    {4, "ESC/P"},               //
    {7, "IBM5577"},             //
    {12, "NV-GL/2"},            //
    {13, "TIFF"},               //
    {14, "WXDL-C"},             //
    {0, "Language with code "}  // closing row
};

// Papers that the library names in Japanese or not at all.
constexpr Label kPapers[] = {
    {1, "no paper"},       //
    {2, "free size"},      //
    {34, "postcard"},      //
    {41, "not in place"},  //
    {0, ""},               // closing row: the library knows
};

std::string Find(const Label* row, uint32_t code) {
  while (row->code != 0 && row->code != code)
    ++row;
  return row->code != 0 ? row->name : row->name + std::to_string(code);
}

}  // namespace

std::string TrayLabel(uint32_t id) {
  return Find(kTrays, id);
}

std::string OptionLabel(uint32_t code) {
  return Find(kOptions, code);
}

std::string LanguageLabel(uint32_t code) {
  return code == 0 ? "unknown" : Find(kLanguages, code);
}

std::string BinLabel(uint32_t id) {
  return id == BinUnknown ? "Unknown bin" : "Bin " + std::to_string(id);
}

// The library names sizes in ASCII and the rest in Japanese or with asterisks; the name of its
// picture tells how the paper lies.
std::string PaperLabel(uint32_t code) {
  if (code == 0) return {};
  for (const Label* row = kPapers; row->code != 0; ++row) {
    if (row->code == code) return row->name;
  }
  char name[8] = "";
  char picture[17] = "";
  PatGetPaperName_Ex(nullptr, code, name);
  PatGetPaperBitmap_Ex(nullptr, code, picture);
  if (name[0] == '\0' || name[0] == '*') return "paper with code " + std::to_string(code);
  const bool rotated = std::string_view(picture).ends_with("_R");
  return name + std::string(rotated ? " rotated" : "");
}

}  // namespace stmon
