// stmon: asks a colour laser printer how it is, and says it.
#include <algorithm>
#include <thread>

#include "CLI/CLI.hpp"
#include "picture/picture.h"
#include "report/catalogue.h"
#include "report/gallery.h"
#include "report/reports.h"
#include "report/watch.h"
#include "simulator/simulated_printer.h"
#include "snapshot/snapshot.h"
#include "stmon/command_line.h"
#include "system/files.h"
#include "system/streams.h"
#include "system/terminal.h"
#include "wire/query.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

constexpr int kTrouble = static_cast<int>(Verdict::Unknown);

int Fail(const std::string& message) {
  Complain("stmon: " + message + "\n");
  return kTrouble;
}

int ListScenarios() {
  std::string text;
  for (const NamedScenario* row = kNamedScenarios; row->name; ++row) {
    std::string name = row->name;
    name.resize(16, ' ');
    text += name + row->about + "\n";
  }
  Print(text);
  return 0;
}

int Simulate(const Options& options, const Scenario& scenario) {
  Target target;
  if (!ParseTarget("127.0.0.1:" + options.simulate, target))
    return Fail("--simulate " + EscapeBytes(options.simulate) + ": a port is 1 to 65535.");
  std::string trouble;
  const auto printer = StartPrinter(scenario, target.port, trouble);
  if (!printer)
    return Fail("cannot listen at " + TargetText(target) + ": " + CleanUtf8(trouble) + ".");
  Print("Simulated printer at " + TargetText(target) + ", scenario '" + CleanUtf8(scenario.name) +
        "'. End it with Ctrl-C.\n");
  ServeForever(*printer);
  return 0;
}

const Language& ChosenLanguage(const Options& options) {
  const Language* language = FindLanguage(options.language);
  return language ? *language : UserLanguage();
}

Source SourceOf(const Options& options, std::string name) {
  return {std::move(name), "", options.deviceId,
          options.record == "flat" ? RecordKind::Flat : RecordKind::List, &ChosenLanguage(options)};
}

Snapshot AskFile(const Options& options) {
  std::string bytes;
  const std::string trouble = ReadWholeFile(options.replyFile, kLongestReply, bytes);
  Exchange exchange;
  if (trouble.empty()) {
    exchange = JudgeReply(std::move(bytes));
  } else {
    exchange.outcome = Outcome::Unreadable;
    exchange.detail = trouble;
  }
  const bool standard = options.replyFile == "-";
  return ReadExchange(
      SourceOf(options, standard ? "standard input" : "saved reply " + options.replyFile),
      std::move(exchange));
}

Snapshot AskNetwork(const Options& options, const Target& target, const std::string& name) {
  const auto timeout = std::chrono::milliseconds(static_cast<int64_t>(options.timeout * 1000));
  const auto begin = std::chrono::steady_clock::now();
  Source source = SourceOf(options, name);
  source.query = BuildQuery();
  Exchange exchange = AskPrinter(target, source.query, timeout);
  Snapshot snapshot = ReadExchange(std::move(source), std::move(exchange));
  snapshot.took = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now() - begin);
  return snapshot;
}

// Writes the files that the options ask for. Result: all could be written.
bool WriteFiles(const Options& options, const Snapshot& snapshot,
                std::optional<std::chrono::system_clock::time_point> last_answer) {
  std::string wrong;
  if (!options.saveFile.empty() && !snapshot.exchange.reply.empty()) {
    wrong = WriteWholeFile(options.saveFile, snapshot.exchange.reply);
    if (!wrong.empty()) Fail("cannot write " + CleanUtf8(options.saveFile) + ": " + wrong + ".");
  }
  if (options.metricsFile.empty()) return wrong.empty();
  const std::string trouble =
      WriteWholeFile(options.metricsFile, MetricsReport(snapshot, last_answer));
  if (!trouble.empty())
    Fail("cannot write " + CleanUtf8(options.metricsFile) + ": " + trouble + ".");
  return wrong.empty() && trouble.empty();
}

// Result: the picture could be shown, or there is nothing to show.
bool ShowPicture(const Options& options, const Snapshot& snapshot) {
  if (options.pictureFile.empty() || !snapshot.told) return true;
  const Image image = snapshot.source.kind == RecordKind::Flat ? DrawPicture(*snapshot.flat)
                                                               : DrawPicture(*snapshot.record);
  if (image.pixels.empty()) {
    Fail("the picture could not be drawn.");
    return false;
  }
  if (options.pictureFile == "-") {
    const Terminal terminal = OutputTerminal();
    if (terminal.columns > 0) {
      Print(HalfBlocks(image, std::min(terminal.columns, 100), terminal.trueColour));
      return true;
    }
    Fail(
        "--picture -: standard output is no terminal with colours; --picture FILE.png writes a "
        "file.");
    return false;
  }
  const std::string trouble = WriteWholeFile(options.pictureFile, EncodePng(image));
  if (trouble.empty()) return true;
  Fail("cannot write " + CleanUtf8(options.pictureFile) + ": " + trouble + ".");
  return false;
}

bool IsGood(const Snapshot& snapshot) {
  return snapshot.told && snapshot.exchange.outcome == Outcome::Answered;
}

int Report(const Options& options, const Snapshot& snapshot) {
  std::optional<std::chrono::system_clock::time_point> last_answer;
  if (IsGood(snapshot)) last_answer = snapshot.when;
  const bool written = WriteFiles(options, snapshot, last_answer);
  const bool all_languages = options.language == "all";
  if (options.json) {
    Print(JsonReport(snapshot, all_languages));
  } else if (snapshot.told || snapshot.identity) {
    Print(TextReport(snapshot, all_languages));
  }
  const bool drawn = ShowPicture(options, snapshot);
  if (options.raw) Print((options.json ? "" : "\n") + RawReport(snapshot));
  if (!snapshot.trouble.empty()) Fail(CleanUtf8(snapshot.source.name + ": " + snapshot.trouble));
  return written && drawn ? static_cast<int>(snapshot.verdict) : kTrouble;
}

// Polls until the process is ended from outside. One query at a time;
// the connection is closed between polls.
int WatchOn(const Options& options, const Target& target, const std::string& name) {
  const auto interval = std::chrono::milliseconds(static_cast<int64_t>(options.watch * 1000));
  Watch watch;
  bool first_poll = true;
  std::optional<std::chrono::system_clock::time_point> last_answer;
  while (true) {
    const Snapshot snapshot = AskNetwork(options, target, name);
    const bool first = IsGood(snapshot) && !watch.good;
    const bool was_silent = watch.failures > 0;
    if (IsGood(snapshot)) last_answer = snapshot.when;
    const auto events = Observe(watch, snapshot, std::chrono::steady_clock::now());
    for (const Event& event : events) {
      // A printer that answers at once needs no line before its first report.
      if (event.kind == EventKind::First && !was_silent) continue;
      Print(options.json ? EventJson(event, snapshot) : EventText(event, snapshot));
    }
    if (first) Print(options.json ? JsonReport(snapshot) : TextReport(snapshot) + "\n");
    if (options.raw && !events.empty()) Print(RawReport(snapshot));
    // A file that cannot be written from the start is a mistake; later the disk may be full a
    // while.
    const bool written = WriteFiles(options, snapshot, last_answer);
    if (!written && first_poll) return kTrouble;
    first_poll = false;
    std::this_thread::sleep_for(NextWait(watch, interval));
  }
}

int Poll(const Options& options, const Target& target, const std::string& name) {
  if (options.watch > 0) return WatchOn(options, target, name);
  return Report(options, AskNetwork(options, target, name));
}

int PollSimulated(const Options& options, const Scenario& scenario) {
  std::string trouble;
  const auto printer = StartPrinter(scenario, 0, trouble);
  if (!printer) return Fail("cannot start the simulated printer: " + CleanUtf8(trouble) + ".");
  const Target target{"127.0.0.1", PrinterPort(*printer)};
  return Poll(options, target, "simulated printer, scenario '" + scenario.name + "'");
}

// A Device ID that stands alone on the command line is shown without asking anybody.
bool OnlyDeviceId(const Options& options) {
  return !options.deviceId.empty() && options.printer.empty() && options.replyFile.empty() &&
         options.scenario.empty() && options.simulate.empty();
}

int ShowDeviceId(const Options& options) {
  Snapshot snapshot = ReadIdentity(SourceOf(options, ""));
  const Identity& identity = *snapshot.identity;
  if (identity.maker.empty() && identity.model.empty() && identity.description.empty() &&
      identity.languages.empty()) {
    return Fail(
        "the Device ID has none of the fields MFG:, CMD:, MDL: and DES:, each ended by ';'.");
  }
  snapshot.verdict = Verdict::Fine;
  return Report(options, snapshot);
}

std::string LanguageCodes() {
  std::string codes;
  for (const Language* language = kLanguages; language->code; ++language)
    codes += std::string(language->code) + " ";
  return codes;
}

// The texts go out all the same, with plainer letters or question marks for those that are missing.
void TellOfCodePage(const Options& options) {
  std::string lacking;
  for (const Language* language = kLanguages; language->code; ++language) {
    const bool asked = options.language == "all" || language == &ChosenLanguage(options) ||
                       (options.catalogue && options.language.empty());
    if (asked && !FlatTextsAreWhole(*language)) lacking += std::string(" ") + language->code;
  }
  if (lacking.empty()) return;
  Complain(
      "stmon: the flat record's texts come in this system's code page, which may lack letters of" +
      lacking + "; those of --record list are whole.\n");
}

int PrintCatalogue(const Options& options) {
  const Language* only = FindLanguage(options.language);
  Print(options.json ? CatalogueJson(only) : CatalogueText(only));
  return 0;
}

int MakeGallery(const Options& options) {
  const std::string wrong = WriteGallery(
      options.gallery, [](const std::string& line) { Complain("stmon: " + line + "\n"); });
  if (!wrong.empty()) return Fail("cannot write " + CleanUtf8(wrong) + ".");
  Print("Look at " + CleanUtf8(options.gallery) + "/index.html.\n");
  return 0;
}

int Run(const Options& options) {
  const bool all = options.language == "all" || options.language.empty();
  if (!all && !FindLanguage(options.language)) {
    return Fail("--lang " + EscapeBytes(options.language) + ": not one of " + LanguageCodes() +
                "all.");
  }
  if (options.catalogue || options.record == "flat") TellOfCodePage(options);
  if (options.catalogue) return PrintCatalogue(options);
  if (!options.gallery.empty()) return MakeGallery(options);
  if (options.scenario == "list") return ListScenarios();
  if (OnlyDeviceId(options)) return ShowDeviceId(options);
  Scenario scenario;
  const bool simulated = options.printer.empty() && options.replyFile.empty();
  if (simulated) {
    const std::string wrong =
        LoadScenario(options.scenario.empty() ? "ready" : options.scenario, scenario);
    if (!wrong.empty()) return Fail(wrong);
  }
  if (!options.simulate.empty()) return Simulate(options, scenario);
  if (!options.replyFile.empty()) return Report(options, AskFile(options));
  if (simulated) return PollSimulated(options, scenario);
  Target target;
  if (!ParseTarget(options.printer, target)) {
    return Fail("'" + EscapeBytes(options.printer) +
                "' is not a printer's address; HOST, HOST:PORT or [IPV6]:PORT are.");
  }
  return Poll(options, target, TargetText(target));
}

}  // namespace
}  // namespace stmon

int main(int count, char** values) {
  stmon::PrepareStreams();
  stmon::Options options;
  const int parsed = stmon::ParseCommandLine(count, values, options);
  return parsed >= 0 ? parsed : stmon::Run(options);
}
