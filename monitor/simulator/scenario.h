// What the simulated printer is told to be: a few states, one after the other.
//
// A scenario is written as lines of text; built-in scenarios are kept in the same form.
//
//   # comment
//   status 32,68        status codes, 0 to 999999, separated by commas
//   online yes|no
//   tray-in-use 1       T bypass, M multi-purpose, 1 to 5; likewise in `tray`
//   bin-in-use 1        1 to 15, or none
//   tray 1 6 50         a tray: letter, the printer's paper number (6 is A4, -1 no paper, 128 not
//                       in place), level in per cent; the first `tray` line of a state replaces
//                       all trays before it, likewise `bin`, `version`, `font` and `option`
//   bin 1 0             an output bin: number, state
//   version SYS 1.01    up to three pairs of label and value, at most 6 characters each
//   number 64           the printer's number
//   language NDL        printer language, at most 3 characters
//   font GOTHIC         a resident font
//   duplex yes|no       the duplex unit
//   option F 3          option letter and its bits as a number, 0 to 255
//   manner NAME [N]     how the answer is sent, see the table of manners
//   repeat 2            this state answers so many queries (else one); the last state stays
//   next                the following lines describe a later state, which starts as a copy
//
// The limits are those of the wire: what goes out is always a reply that a real printer could send,
// but for the codes and numbers in it and the manner of sending.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace stmon {

enum class Manner { Whole, Slowly, Twice, Cut, Stall, Silent, Close, Reset, Garbage, Flood };

struct ScenarioTray {
  std::string letter;
  std::string paper;
  uint32_t level;
};

struct ScenarioBin {
  std::string number;
  uint32_t state;
};

struct ScenarioVersion {
  std::string label;
  std::string value;
};

struct ScenarioOption {
  char letter;
  uint8_t bits;
};

// A printer at rest, unless lines say otherwise.
struct PrinterState {
  std::string status = "0";
  bool online = true;
  std::string tray = "1";
  std::string bin = "1";  // empty: the printer does not tell
  std::vector<ScenarioTray> trays = {{"1", "6", 75}, {"2", "2", 50}, {"T", "6", 25}};
  std::vector<ScenarioBin> bins = {{"1", 0}};
  std::vector<ScenarioVersion> versions = {{"SYS", "1.01"}, {"NWC", "2.00"}};
  uint32_t number = 64;
  std::string language = "NDL";
  std::vector<std::string> fonts = {"GOTHIC", "KAISHO"};
  bool duplex = false;
  std::vector<ScenarioOption> options;
  Manner manner = Manner::Whole;
  uint32_t amount = 0;  // of the manner: bytes
  uint32_t repeat = 1;
};

struct Scenario {
  std::string name;
  std::vector<PrinterState> states;
};

struct NamedScenario {
  const char* name;
  const char* about;
  const char* text;
};
extern const NamedScenario kNamedScenarios[];  // closed by a null name

// Reads scenario lines. Result: empty, or what is wrong, with its line number.
std::string ReadScenario(std::string_view text, Scenario& scenario);

// The built-in scenario of that name, else the file of that name. Result as above.
std::string LoadScenario(const std::string& name, Scenario& scenario);

}  // namespace stmon
