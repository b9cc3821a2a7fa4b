// The fields of the library's two records in one form, so that everything after it is written once.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "stmdata/stmdata.h"

namespace stmon {

enum class TrayState { Unknown, Paper, Empty, NotInPlace };

struct Tray {
  uint32_t id = 0;
  uint32_t paper = 0;             // paper code, 0 not told
  std::string paperName;          // for people; empty when the paper was not told
  std::optional<uint32_t> level;  // as the printer reports it
  TrayState state = TrayState::Unknown;
  std::optional<uint32_t> percent = {};  // of paper, when that is known
};

const char* TrayStateWord(TrayState state);  // "not-in-place"

struct Bin {
  uint32_t id = 0;
  uint32_t state = 0;
};

struct Option {
  uint32_t code = 0;
  std::optional<uint32_t> value;  // the list-based record carries one
};

struct RecordFields {
  std::vector<uint32_t> codes;
  std::vector<Tray> trays;
  std::vector<Bin> bins;
  std::vector<uint32_t> fonts;
  std::vector<uint32_t> languages;
  std::vector<Option> options;
  std::vector<std::string> versions;
  std::string maker, model, description;
  uint32_t modelCode = ModelUnknown;
  uint32_t number = 0;
  uint32_t language = 0;
  uint32_t currentTray = 0;
  uint32_t currentBin = 0;  // may be BinUnknown
  bool online = false;
};

// Lists end at their count and at their end, arrays at their capacity, whatever the count says.
RecordFields FieldsOf(const PrnInfoEx& record);
RecordFields FieldsOf(const PrnInfo& info);

}  // namespace stmon
