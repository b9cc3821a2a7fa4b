// The words that other printer software uses for a status code: the keyword of the IPP attribute
// printer-state-reasons (RFC 8011), the alert of the Printer MIB (RFC 3805), and the bits of the
// Host Resources MIB (RFC 2790). What speaks to monitors that know such printers can then speak of
// ours.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace stmon {

// How grave a condition is, the worst last. Unknown is that of a printer whose state is not known.
enum class Severity { Report, Warning, Unknown, Error };

struct Reason {
  uint32_t code;        // status code
  const char* keyword;  // without its severity suffix; "none" for a printer without a reason
  Severity severity;
  uint32_t alert;      // prtAlertCode, 0 none
  uint32_t group;      // prtAlertGroup, 0 none
  uint32_t supply;     // prtMarkerSuppliesType, 0 none
  uint32_t errorBits;  // hrPrinterDetectedErrorState, the standard's bit n as 1 << n
};

// Codes that no printer sends.
constexpr uint32_t kOtherCode = 0xFFFFFFFF;    // a code without a row
constexpr uint32_t kOfflineCode = 0xFFFFFFFE;  // the printer says that it is offline

// The service calls 48 to 64 are one status, of which the tables have a row for 48 alone.
uint32_t FoldServiceCalls(uint32_t code);

// The row of a status code; a code without one gets that of kOtherCode.
const Reason& ReasonOf(uint32_t code);

// The rows from the first to the closing one, whose code is kOtherCode.
const Reason* AllReasons();

// "toner-empty-error"; "none" has no suffix, nor has a reason of which nobody knows how grave it
// is.
std::string Keyword(const Reason& reason, Severity severity);
std::string Keyword(const Reason& reason);  // with the severity of its row

const char* AlertName(uint32_t alert);

// "cyan" for the toner codes of that colour, else empty.
const char* TonerColour(uint32_t code);

const char* SeverityWord(Severity severity);

// The names of the set bits: "noPaper", "doorOpen", ...
std::vector<std::string> ErrorBitNames(uint32_t bits);

}  // namespace stmon
