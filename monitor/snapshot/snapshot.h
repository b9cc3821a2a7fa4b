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

#include "snapshot/record.h"
#include "snapshot/record_fields.h"
#include "wire/transport.h"
#include "words/reasons.h"
#include "words/texts.h"

namespace stmon {

// The exit status, by the convention of monitoring plug-ins.
enum class Verdict { Fine = 0, Attention = 1, CannotPrint = 2, Unknown = 3 };

struct Condition {
  uint32_t code = 0;
  bool known = false;  // has a row in the library's table
  StatusRow row{};
  const Reason* reason = nullptr;  // never null once read
  uint32_t rank = 0;               // 1 decides; the others in the order in which they would
  Texts texts;                     // of this code alone
};

// What the printer is, from its Device ID.
struct Identity {
  std::string maker;  // as the printer wrote it: bytes of which nobody knows the code page
  std::string model;
  std::string description;
  std::optional<uint32_t> modelCode;  // empty: not known to the library
  std::vector<uint32_t> languages;    // emulation codes, 0 unknown
};

// Which of the library's two records answers.
enum class RecordKind { List, Flat };

// What a snapshot is read from.
struct Source {
  std::string name;   // what was asked, for people
  std::string query;  // the bytes that were sent; empty when a saved reply is shown
  std::string deviceId;
  RecordKind kind = RecordKind::List;
  const Language* language = &kLanguages[0];
};

struct Snapshot {
  Source source;
  std::string trouble;  // why there is no (whole) answer, for people; empty when all is well
  Exchange exchange;
  std::chrono::system_clock::time_point when;
  std::chrono::milliseconds took{};

  std::shared_ptr<Record> record = std::make_shared<Record>();
  std::shared_ptr<PrnInfo> flat = std::make_shared<PrnInfo>();

  std::optional<Identity> identity;
  bool told = false;  // a status block arrived: what follows means something
  bool online = false;
  bool hasError = false;
  std::vector<Condition> conditions;  // most important first, without repetitions
  std::vector<uint32_t> dominant;     // the codes that decide; several for toners of one kind
  Texts texts;                        // of the printer's state
  std::string icon;                   // the name of the state icon
  std::optional<uint32_t> currentTray;
  std::optional<uint32_t> currentBin;
  std::vector<Tray> trays;
  std::vector<Bin> bins;
  std::vector<std::string> versions;  // as the printer wrote them
  std::optional<uint32_t> number;
  std::optional<uint32_t> language;    // emulation code, 0 unknown
  std::vector<uint32_t> fonts;         // codes of the fonts that the library knows
  std::vector<std::string> fontNames;  // all, as the printer wrote them
  std::optional<std::vector<Option>> options;
  Verdict verdict = Verdict::Unknown;
};

Snapshot ReadExchange(Source source, Exchange exchange);

// A Device ID alone, without a poll.
Snapshot ReadIdentity(Source source);

// In one line for people: the library's words, or the keyword where it has none.
std::string ConditionText(const Condition& condition);
std::string StatusText(const Snapshot& snapshot);

// The library's words in another language.
Texts TextsIn(const Snapshot& snapshot, const Language& language);

// The keywords of all conditions, "none" when there is none: printer-state-reasons.
std::vector<std::string> StateReasons(const Snapshot& snapshot);

const char* OutcomeWord(Outcome outcome);  // a word for programs: "answered", "refused", ...

}  // namespace stmon
