// The command line, and what it asks for.
#pragma once

#include <string>

namespace stmon {

// Empty texts and zeros stand for options that were not given.
struct Options {
  std::string printer;                 // HOST[:PORT]; empty: the built-in simulated printer
  std::string replyFile;               // a saved reply instead of a printer
  std::string deviceId;                // shown alone or beside the poll
  std::string record = "list";         // or "flat"
  std::string language;                // code, "all", or empty: that of the user's locale
  std::string saveFile;                // where to keep the reply
  std::string pictureFile;             // where to write the picture, '-' the terminal
  std::string gallery;                 // folder for the pictures of every status
  std::string metricsFile;             // where to write the metrics
  std::string scenario;                // empty: ready
  std::string simulate;                // port to be a simulated printer at
  double watch = 0;                    // seconds between polls, 0: one poll
  double timeout = 5;                  // seconds for a poll
  std::string offlineAs = "critical";  // how grave it is that the printer is offline
  bool catalogue = false;
  bool json = false;
  bool raw = false;
};

// Reads the arguments of main(); what is wrong, help and version are printed. Result: -1 to go on,
// else the exit status.
int ParseCommandLine(int count, char** values, Options& options);

}  // namespace stmon
