// What each model of the product line calls itself at full length.
#pragma once

#include <cstdint>
#include <iterator>
#include <string_view>

#include "names/model_names.h"
#include "stmdata/records.h"

namespace stm {

struct DesName {
  const char* key;      // model name
  const char* desName;  // at most kLongestDesName characters
  uint8_t modelCode;
};

inline constexpr size_t kLongestDesName = 31;

// The models of the name table, then those that came later.
inline constexpr DesName kDesNameTable[] = {
    // key  description name  model code
    {"ZENTA M80", "ORLEX ZENTA M80", 0},
    {"ZENTA M80 PS", "ORLEX ZENTA M80 PS", 0},
    {"ZENTA M100", "ORLEX ZENTA M100", 1},
    {"ZENTA M100 PS", "ORLEX ZENTA M100 PS", 1},
    {"ZENTA M120", "ORLEX ZENTA M120", 2},
    {"ZENTA M160", "ORLEX ZENTA M160", 3},
    {"ZENTA M160 PS", "ORLEX ZENTA M160 PS", 3},
    {"ZENTA M160 N", "ORLEX ZENTA M160 N", 4},
    {"ZENTA M200", "ORLEX ZENTA M200", 10},
    {"ZENTA M200 PS", "ORLEX ZENTA M200 PS", 10},
    {"ZENTA M240", "ORLEX ZENTA M240", 11},
    {"ZENTA M240 PS", "ORLEX ZENTA M240 PS", 11},
    {"ZENTA M240 N", "ORLEX ZENTA M240 N", 12},
    {"ZENTA M280", "ORLEX ZENTA M280", 13},
    {"ZENTA M320", "ORLEX ZENTA M320", 20},
    {"ZENTA M320 PS", "ORLEX ZENTA M320 PS", 20},
    {"ZENTA M320 N", "ORLEX ZENTA M320 N", 21},
    {"ZENTA M360", "ORLEX ZENTA M360", 22},
    {"ZENTA M400", "ORLEX ZENTA M400", 30},
    {"ZENTA M400 PS", "ORLEX ZENTA M400 PS", 30},
    {"ZENTA M450", "ORLEX ZENTA M450", 31},
    {"ZENTA M450 D", "ORLEX ZENTA M450 D", 32},
    {"ZENTA W500", "ORLEX ZENTA W500", 40},
    {"ZENTA W500 PS", "ORLEX ZENTA W500 PS", 40},
    {"ZENTA W650", "ORLEX ZENTA W650", 41},
    {"ZENTA W650 D", "ORLEX ZENTA W650 D", 42},
    {"ZENTA W850", "ORLEX ZENTA W850", 50},
    {"ZENTA W850 PS", "ORLEX ZENTA W850 PS", 50},
    {"ZENTA C80", "ORLEX ZENTA C80", 60},
    {"ZENTA C80 PS", "ORLEX ZENTA C80 PS", 60},
    {"ZENTA C120", "ORLEX ZENTA C120", 61},
    {"ZENTA C120 PS", "ORLEX ZENTA C120 PS", 61},
    {"ZENTA C160", "ORLEX ZENTA C160", 70},
    {"ZENTA C160 D", "ORLEX ZENTA C160 D", 71},
    {"ZENTA C180", "ORLEX ZENTA C180", 80},
    {"ZENTA C180 PS", "ORLEX ZENTA C180 PS", 80},
    {"ZENTA C200", "ORLEX ZENTA C200", 90},
    {"ZENTA C200 D", "ORLEX ZENTA C200 D", 91},
    {"ZENTA C210", "ORLEX ZENTA C210", 103},
    {"ZENTA C250", "ORLEX ZENTA C250", 104},
    {"ZENTA C250 D", "ORLEX ZENTA C250 D", 105},
    {"ZENTA C300", "ORLEX ZENTA C300", 110},
    {"ZENTA C300 D", "ORLEX ZENTA C300 D", 111},
    {"ZENTA C350", "ORLEX ZENTA C350", 115},
    {"ZENTA C400", "ORLEX ZENTA C400", 119},
    {"ZENTA C400 D", "ORLEX ZENTA C400 D", 120},
    {"", "", ModelUnknown},  // no model
    {nullptr, nullptr, 0},   // closing row
};

constexpr bool DesNamesAreSound() {
  for (const DesName& row : kDesNameTable) {
    if (row.desName && std::string_view(row.desName).size() > kLongestDesName) return false;
  }
  const DesName* row = kDesNameTable;
  for (const NameCode* model = kModelNameTable; model->name.data(); ++model, ++row) {
    if (row->key != model->name || row->modelCode != model->code) return false;
  }
  return true;
}

static_assert(std::size(kDesNameTable) == 46 + 2);
static_assert(DesNamesAreSound(), "a name too long, or another order or code than in the models");

}  // namespace stm
