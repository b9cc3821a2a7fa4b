// Everything that one poll told, taken from the library once. Every report reads this and nothing
// else, so that list, status, texts, picture and exit status cannot contradict each other. What the
// printer did not tell is empty.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "reasons.h"
#include "record.h"
#include "transport.h"

namespace stmon {

// The exit status, by the convention of monitoring plug-ins.
enum class Verdict { Fine = 0, Attention = 1, CannotPrint = 2, Unknown = 3 };

struct Tray {
  uint32_t id = 0;
  uint32_t paper = 0;             // paper code, 0 not told
  std::optional<uint32_t> level;  // as the printer reports it
};

struct Bin {
  uint32_t id = 0;
  uint32_t state = 0;
};

struct Condition {
  uint32_t code = 0;
  bool known = false;  // has a row in the library's table
  StatusRow row{};
  const Reason* reason = nullptr;  // never null once read
};

struct Snapshot {
  std::string source;   // what was asked, for people
  std::string trouble;  // why there is no (whole) answer, for people; empty when all is well
  Exchange exchange;
  std::string query;
  std::chrono::system_clock::time_point when;
  std::chrono::milliseconds took{};

  std::shared_ptr<Record> record = std::make_shared<Record>();
  bool told = false;  // a status block arrived: what follows means something
  bool online = false;
  bool has_error = false;
  std::vector<Condition> conditions;  // in the printer's order, without repetitions
  std::vector<uint32_t> dominant;     // the codes that decide; several for toners of one kind
  std::optional<uint32_t> current_tray;
  std::optional<uint32_t> current_bin;
  std::vector<Tray> trays;
  std::vector<Bin> bins;
  Verdict verdict = Verdict::Unknown;
};

// The query for all that stmon shows.
std::string BuildQuery();

// Reads an exchange into a snapshot. `source` names what was asked.
Snapshot ReadExchange(std::string source, std::string query, Exchange exchange);

// "Tray 1"
std::string TrayLabel(uint32_t id);

// "A4", or empty when the printer did not tell.
std::string PaperLabel(uint32_t code);

// The keywords of all conditions, "none" when there is none: printer-state-reasons.
std::vector<std::string> StateReasons(const Snapshot& snapshot);

const char* OutcomeWord(Outcome outcome);  // a word for programs: "answered", "refused", ...

}  // namespace stmon
