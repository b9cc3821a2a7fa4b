// The fields of the library's two records in one form, so that everything behind it is written
// once.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "stmdata/stmdata.h"

namespace stmon {

struct Tray {
  uint32_t id = 0;
  uint32_t paper = 0;             // paper code, 0 not told
  std::optional<uint32_t> level;  // as the printer reports it
};

struct Bin {
  uint32_t id = 0;
  uint32_t state = 0;
};

struct Option {
  uint32_t code = 0;
  std::optional<uint32_t> value;  // the list-based record carries one
};

struct RecordView {
  std::vector<uint32_t> codes;
  std::vector<Tray> trays;
  std::vector<Bin> bins;
  std::vector<uint32_t> fonts;
  std::vector<uint32_t> languages;
  std::vector<Option> options;
  std::vector<std::string> versions;
  std::string maker, model, description;
  uint32_t model_code = ModelUnknown;
  uint32_t number = 0;
  uint32_t language = 0;
  uint32_t current_tray = 0;
  uint32_t current_bin = 0;
  bool online = false;
  bool has_error = false;
};

// Lists end at their count and at their end, arrays at their capacity, whatever the count says.
RecordView ViewOf(const PrnInfoEx& record);
RecordView ViewOf(const PrnInfo& info);

}  // namespace stmon
