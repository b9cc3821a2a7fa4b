// What the command line asks for, and which options go together.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace stmon {

// Empty texts and zeros stand for options that were not given.
struct Options {
  std::string printer;                 // HOST[:PORT]; empty: the built-in simulated printer
  std::string replyFile;               // a saved reply instead of a printer, '-' standard input
  std::string deviceId;                // shown alone or beside the poll
  std::string record = "list";         // or "flat"
  std::string language;                // code, "all", or empty: that of the user's locale
  std::string saveFile;                // where to keep the reply, '-' standard output
  std::string pictureFile;             // where to write the picture, '-' standard output
  std::string gallery;                 // folder for the pictures of every status
  std::string metricsFile;             // where to write the metrics, '-' standard output
  std::string scenario;                // empty: ready
  std::string simulate;                // port to be a simulated printer at
  double watch = 0;                    // seconds between polls, 0: one poll
  uint32_t misses = 2;                 // polls without an answer that are silence
  uint32_t reportEvery = 0;            // polls from one whole report to the next, 0: the first only
  double timeout = 5;                  // seconds for a poll
  std::string offlineAs = "critical";  // how grave it is that the printer is offline
  bool catalogue = false;
  bool json = false;
  bool raw = false;
};

// A Device ID that stands alone on the command line is shown without asking anybody.
bool OnlyDeviceId(const Options& options);

// A result that goes to standard output as a file would is alone there.
bool FillsOutput(const Options& options);

// The options that have a row in the table of what goes together.
std::vector<std::string> OptionsWithRow();

// What has no effect beside another option is a mistake, and a mistake must not end like a printer
// that is fine. `given` names the options that the command line has: "PRINTER", "--reply", ...
// Result: empty, or which two of them do not go together.
std::string FindClash(const Options& options, std::vector<std::string> given);

}  // namespace stmon
