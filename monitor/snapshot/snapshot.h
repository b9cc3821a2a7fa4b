// Everything that one poll told, asked of the library once. Every report reads this and nothing
// else, so that list, status, texts, picture and exit status cannot contradict each other. What the
// printer did not tell is empty.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "snapshot/condition.h"
#include "snapshot/owned_record.h"
#include "snapshot/record_fields.h"
#include "snapshot/verdict.h"
#include "wire/transport.h"
#include "words/texts.h"
#include "words/user_language.h"

namespace stmon {

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

// What a snapshot is read from, and in which language its texts are wanted.
struct Source {
  std::string name;   // what was asked, for people
  std::string query;  // the bytes that were sent; empty when a saved reply is shown
  std::string deviceId;
  RecordKind kind = RecordKind::List;
  const Language* language = &kLanguages[0];
  bool everyLanguage = false;            // the state's texts in all the others as well
  Severity offlineAs = Severity::Error;  // how grave it is that the printer is offline
};

struct Snapshot {
  Source source;
  std::string trouble;  // why there is no (whole) answer, for people; empty when all is well
  Exchange exchange;
  std::chrono::system_clock::time_point when;
  std::chrono::milliseconds took{};

  // Shared, so that a snapshot can be kept and compared without a copy of their lists.
  std::shared_ptr<Record> record = std::make_shared<Record>();
  std::shared_ptr<PrnInfo> flat = std::make_shared<PrnInfo>();

  std::optional<Identity> identity;
  bool told = false;  // a status block arrived: what follows means something
  bool online = false;
  std::vector<Condition> conditions;  // the most important first, which decides
  Verdict verdict = Verdict::Fine;

  // The words and the icon of what decides.
  std::string headline;         // one line
  Texts texts;                  // empty when the library does not know the code
  std::vector<Texts> allTexts;  // in the order of kLanguages, when they were asked for
  std::string icon;             // a name of the library's resources

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
};

Snapshot ReadExchange(Source source, Exchange exchange);

// A Device ID alone, without a poll.
Snapshot ReadIdentity(Source source);

// The answer is whole and tells the printer's state.
bool IsGood(const Snapshot& snapshot);

}  // namespace stmon
