// One question to a printer over TCP: connect, send the query, read the reply up to its end, close.
// The connection is not kept: a printer has room for few, and one that is held keeps others from
// printing.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace stmon {

constexpr uint16_t kPrinterPort = 9100;  // on which printers take raw data
constexpr size_t kLongestReply = 65536;  // bytes; a full reply has a few hundred

struct Target {
  std::string host;
  uint16_t port = kPrinterPort;
};

// HOST, HOST:PORT, an IPv6 address alone or as [ADDRESS]:PORT. Result: false for anything else.
bool ParseTarget(std::string_view text, Target& target);

// The form that ParseTarget reads.
std::string TargetText(const Target& target);

enum class Outcome {
  NotAsked,        // nobody tried
  Answered,        // a reply with its end marker
  NameUnknown,     // the host name does not resolve
  Refused,         // nobody listens at the port
  Unreachable,     // no road to the host
  ConnectTimeout,  // no answer to the connection attempt
  SendFailed,      // the query could not be sent
  Silent,          // connected, but not one byte came
  ClosedEarly,     // closed without one byte
  Reset,           // the connection was reset
  StillComing,     // the time was over before the end marker came
  CutOff,          // a reply that stops before its end marker
  NotAReply,       // bytes that do not begin like a reply
  TooLong,         // kLongestReply bytes and no end
  Unreadable,      // a file that cannot be read
  Empty            // a file without one byte
};

struct Exchange {
  Outcome outcome = Outcome::Silent;
  std::string reply;   // what came, up to the end marker
  size_t surplus = 0;  // bytes that came after the end marker and were dropped
  std::string detail;  // the system's reason, for people; may be empty
};

// The whole exchange, name look-up included, ends within `timeout`.
Exchange AskPrinter(const Target& target, std::string_view query,
                    std::chrono::milliseconds timeout);

// What bytes that were saved earlier are: the same judgement as over the wire.
Exchange JudgeReply(std::string bytes);

}  // namespace stmon
