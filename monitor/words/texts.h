// What the library says about a record, in one language, as UTF-8. PatSetLocale and the thread's
// language are set for each question, so that callers need not know which of them a text follows.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "stmdata/stmdata.h"
#include "words/user_language.h"

namespace stmon {

struct Texts {
  std::string brief;   // "No Paper"; empty where the language has no text
  std::string detail;  // what to do, in lines without blanks around them
};

// `dominant` is the deciding status code: the flat record's texts of toner statuses come in two
// code pages at once.
Texts AskTexts(const PrnInfoEx& record, const Language& language);
Texts AskTexts(const PrnInfo& info, const Language& language, uint32_t dominant);

// The library's row of a status code. Result: false for a code without one.
bool AskRow(uint32_t code, StatusRow& row);

// The name of the icon that shows the record's state: "ICO_ERR_PAPER".
std::string AskIcon(const PrnInfoEx& record);
std::string AskIcon(const PrnInfo& info);

// A status alone, or some that share a rank, as both records would carry them: what the library
// says about the codes themselves. kOfflineCode stands for a printer that is offline, and
// kOtherCode for nothing. The records point into the sample, which therefore stays where it is.
struct StatusSample {
  // Trays 1 to 3, filled with A4.
  StatusSample(std::span<const uint32_t> codes, bool duplex, uint32_t trays = 0);
  StatusSample(uint32_t code, bool duplex, uint32_t trays = 0)
      : StatusSample(std::span(&code, 1), duplex, trays) {}
  StatusSample(const StatusSample&) = delete;
  StatusSample& operator=(const StatusSample&) = delete;

  PrnInfoEx list{};
  PrnInfo flat{};

 private:
  std::vector<StatusNode> statuses;
  OptionNode duplexUnit{};
  TrayNode trayNodes[3]{};
};

}  // namespace stmon
