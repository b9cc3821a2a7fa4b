// What the command line wants to know: asks a printer, a saved reply or a Device ID, and reports.
#pragma once

#include <string>

#include "snapshot/snapshot.h"
#include "stmon/options.h"
#include "wire/transport.h"
#include "words/user_language.h"

namespace stmon {

// Tells trouble on standard error. Result: the exit status for it.
int Fail(const std::string& message);

const Language& ChosenLanguage(const Options& options);

Snapshot AskNetwork(const Options& options, const Target& target, const std::string& name);

// The results of these are exit statuses.

int ShowDeviceId(const Options& options);
int ShowReply(const Options& options);

// Asks once, or with --watch until the process is ended from outside. `name` is what people call
// the printer.
int Poll(const Options& options, const Target& target, const std::string& name);

}  // namespace stmon
