// The look-up of a name by its table's index finds what a walk through the rows finds.
#include <algorithm>
#include <string>

#include "doctest/doctest.h"
#include "names/emulation_codes.h"
#include "names/font_names.h"
#include "names/model_names.h"
#include "names/name_index.h"
#include "pm/name_tables.h"
#include "records/reply_tables.h"

namespace {

// GOTHIC-B and GUNTHI-B share a slot; one is told from the other by its text alone.
constexpr stm::NameCode kNames[] = {
    {"A", 1},        {"AB", 2},        {"A", 3},    {"GOTHIC-B", 4},
    {"GUNTHI-B", 5}, {"GOTHIC-BB", 6}, {"ABCD", 7}, {{}, 255},
};
constexpr stm::NameCode kNothing[] = {{{}, 9}};

// Every name of the table, and names like it that the table may lack.
template <const auto& kTable>
void CheckIndex() {
  for (const stm::NameCode& row : kTable) {
    const std::string name(row.name);
    for (const std::string& asked : {name, name + "0", "0" + name, name.substr(0, 1)}) {
      CAPTURE(asked);
      const auto* found =
          std::find_if(std::begin(kTable), std::end(kTable) - 1,
                       [&](const stm::NameCode& held) { return held.name == asked; });
      CHECK(stm::LookupNameCode<kTable>(asked) == found->code);
    }
  }
}

}  // namespace

TEST_CASE("a name gets the code of its first row, one that no row holds that of the closing row") {
  const struct {
    std::string_view name;
    int32_t code;
  } rows[] = {
      {"A", 1},          {"AB", 2},          {"a", 255},        {"", 255},
      {"ABC", 255},      {{"ABC", 2}, 2},    {{"A\0B", 3}, 1},  {{"\0A", 2}, 255},
      {"GOTHIC-B", 4},   {"GUNTHI-B", 5},    {"GXNTHI-B", 255}, {"GOTHIC-BB", 6},
      {"ABCD", 7},       {"ABC\xC4", 255},   {"AXCD", 255},     {{"GUNTHI-B\0", 9}, 5},
      {"GOTHIC-A", 255}, {"GOTHIC-BC", 255}, {"GOTHI-BB", 255},
  };
  for (const auto& row : rows) {
    CAPTURE(row.name);
    CHECK(stm::LookupNameCode<kNames>(row.name) == row.code);
    CHECK(stm::LookupNameCode<kNothing>(row.name) == 9);
  }
}

TEST_CASE("the index of a table leads to the row that a walk finds") {
  CheckIndex<stm::kTrayLetters>();
  CheckIndex<stm::kBinNumbers>();
  CheckIndex<stm::kPaperSizes>();
  CheckIndex<stm::kEmulationCodeTable>();
  CheckIndex<stm::kFontNameTable>();
  CheckIndex<stm::kModelNameTable>();
  CheckIndex<stm::kInputTrayNameTable>();
  CheckIndex<stm::kOutputBinNameTable>();
  CheckIndex<stm::kEmulationNameTable>();
  CheckIndex<stm::kPaperNameTable>();
}
