#include "snapshot/outcome.h"

namespace stmon {
namespace {

struct OutcomeRow {
  Outcome outcome;
  const char* word;
  const char* trouble;           // what happened and what to do; null when nothing did
  const char* ofFile = nullptr;  // the same of a saved reply; null: no other words for it
};

constexpr OutcomeRow kOutcomes[] = {
    {Outcome::Answered, "answered", nullptr},
    {Outcome::NotAsked, "not-asked", nullptr},
    {Outcome::NameUnknown, "name-unknown",
     "no such host. Check the name, or give the printer's IP address."},
    {Outcome::Refused, "refused",
     "connection refused. The host is there, but nothing listens at this port; is it the printer, "
     "and is the port right?"},
    {Outcome::Unreachable, "unreachable", "cannot be reached. Check the network and the address."},
    {Outcome::ConnectTimeout, "connect-timeout",
     "no answer to the connection attempt. Is the printer switched on and connected?"},
    {Outcome::SendFailed, "send-failed",
     "connected, but the query could not be sent. Try again; if it stays so, restart the printer."},
    {Outcome::Silent, "silent",
     "connected, but no answer within the time-out. The printer may be busy: try again, or allow "
     "more with --timeout."},
    {Outcome::ClosedEarly, "closed",
     "the connection was closed without an answer. Is it a printer of this family?"},
    {Outcome::Reset, "reset",
     "the connection was reset without an answer. The printer may be serving someone else: try "
     "again."},
    {Outcome::StillComing, "still-coming",
     "the reply was still coming when the time was over. What is shown arrived before that; allow "
     "more with --timeout."},
    {Outcome::CutOff, "cut-off",
     "the reply stops before its end marker. What is shown arrived before that; try again.",
     "the reply stops before its end marker. What is shown stands before that."},
    {Outcome::NotAReply, "not-a-reply",
     "the answer is not a readback reply. Is it a printer of this family? --raw shows the bytes.",
     "this is not a readback reply. --raw shows the bytes."},
    {Outcome::TooLong, "too-long",
     "64 KiB without an end marker: not a readback reply; the rest was not read. --raw shows the "
     "beginning."},
    {Outcome::Unreadable, "unreadable", "cannot be read."},
    {Outcome::Empty, "empty", "no reply: there is not one byte in it."},
};

const OutcomeRow& RowOf(Outcome outcome) {
  for (const OutcomeRow& row : kOutcomes) {
    if (row.outcome == outcome) return row;
  }
  return kOutcomes[0];
}

}  // namespace

const char* OutcomeWord(Outcome outcome) {
  return RowOf(outcome).word;
}

std::string TroubleText(const Exchange& exchange, bool saved) {
  const OutcomeRow& row = RowOf(exchange.outcome);
  if (!row.trouble) return {};
  const std::string text = saved && row.ofFile ? row.ofFile : row.trouble;
  return exchange.detail.empty() ? text : text + " (" + exchange.detail + ")";
}

}  // namespace stmon
