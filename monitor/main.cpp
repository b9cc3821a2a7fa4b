// stmon: asks a colour laser printer how it is, and says it.
#include <algorithm>
#include <thread>

#include "CLI/CLI.hpp"
#include "catalogue.h"
#include "console.h"
#include "gallery.h"
#include "options.h"
#include "picture.h"
#include "reports.h"
#include "safe_text.h"
#include "simulated_printer.h"
#include "snapshot.h"
#include "watch.h"

namespace stmon {
namespace {

constexpr int kTrouble = static_cast<int>(Verdict::Unknown);

constexpr const char* kFooter =
    "\nWithout PRINTER a built-in simulated printer is asked, over a real connection.\n"
    "Exit status: 0 fine, 1 needs attention soon, 2 cannot print, 3 unknown, no response or wrong "
    "usage.\n"
    "Examples:\n"
    "  stmon 192.0.2.10                      ask a printer\n"
    "  stmon --scenario no-paper --json      ask the simulated one, as JSON\n"
    "  stmon --scenario list                 name what can be simulated";

int Fail(const std::string& message) {
  Complain("stmon: " + message + "\n");
  return kTrouble;
}

void Describe(CLI::App& app, Options& options) {
  app.name("stmon");
  app.description("Asks a colour laser printer how it is.");
  app.footer(kFooter);
  auto* printer =
      app.add_option("PRINTER", options.printer, "HOST or HOST:PORT, port 9100 unless given")
          ->option_text(" ");
  auto* reply = app.add_option("--reply", options.reply_file,
                               "show a saved reply instead of asking a printer")
                    ->option_text("FILE  ('-': standard input)");
  app.add_option("--device-id", options.device_id,
                 "show what a Device ID says, alone or beside the poll")
      ->option_text("TEXT");
  app.add_option("--record", options.record, "which of the library's records answers, default list")
      ->option_text("list|flat")
      ->check(CLI::IsMember({"list", "flat"}));
  app.add_option("--lang", options.language,
                 "EN DE FR IT ES NL SV DA NO CS HU PT PL FI JP; default from the locale, else EN")
      ->option_text("CODE|all");
  app.add_flag("--catalogue", options.catalogue,
               "print every status the library knows, in all languages or that of --lang");
  app.add_option("--save-reply", options.save_file, "keep the reply for later")
      ->option_text("FILE");
  app.add_flag("--json", options.json, "one JSON object on standard output");
  app.add_flag("--raw", options.raw, "show the bytes of query and reply, block by block");
  auto* watch =
      app.add_option("--watch", options.watch, "poll on and print what changes, until ended")
          ->option_text("SECONDS")
          ->check(CLI::Range(0.1, 86400.0));
  app.add_option("--picture", options.picture_file,
                 "write the printer's picture; '-' shows it in a terminal with colours")
      ->option_text("FILE.png|-");
  app.add_option("--gallery", options.gallery,
                 "write pictures, icons and texts of every status, and a page that shows them")
      ->option_text("DIR");
  app.add_option("--metrics", options.metrics_file, "write the state as Prometheus text")
      ->option_text("FILE");
  app.add_option("--timeout", options.timeout, "for the whole poll, default 5")
      ->option_text("SECONDS")
      ->check(CLI::Range(0.1, 3600.0));
  auto* simulate = app.add_option("--simulate", options.simulate,
                                  "be a simulated printer at 127.0.0.1, until ended")
                       ->option_text("PORT");
  auto* scenario = app.add_option("--scenario", options.scenario,
                                  "what the simulated printer is like; 'list' names all")
                       ->option_text("NAME|FILE");
  reply->excludes(printer)->excludes(watch);
  simulate->excludes(printer)->excludes(reply)->excludes(watch);
  scenario->excludes(printer)->excludes(reply);
  app.set_version_flag("--version", std::string("stmon ") + STMON_VERSION);
}

// Result: -1 to go on, else the exit status.
int ParseCommandLine(int count, char** values, Options& options) {
  CLI::App app;
  Describe(app, options);
  auto arguments = Arguments(count, values);
  try {
    if (!arguments.empty()) arguments.erase(arguments.begin());
    std::reverse(arguments.begin(), arguments.end());
    app.parse(std::move(arguments));
  } catch (const CLI::CallForHelp&) {
    Print(app.help());
    return 0;
  } catch (const CLI::CallForVersion& version) {
    Print(std::string(version.what()) + "\n");
    return 0;
  } catch (const CLI::ParseError& error) {
    return Fail(CleanUtf8(error.what()) + "\n'stmon --help' shows the options.");
  }
  return -1;
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
  return {std::move(name), "", options.device_id,
          options.record == "flat" ? RecordKind::Flat : RecordKind::List, &ChosenLanguage(options)};
}

Snapshot AskFile(const Options& options) {
  std::string bytes;
  const std::string trouble = ReadWholeFile(options.reply_file, kLongestReply, bytes);
  Exchange exchange;
  if (trouble.empty()) {
    exchange = JudgeReply(std::move(bytes));
  } else {
    exchange.outcome = Outcome::Unreadable;
    exchange.detail = trouble;
  }
  const bool standard = options.reply_file == "-";
  return ReadExchange(
      SourceOf(options, standard ? "standard input" : "saved reply " + options.reply_file),
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
  if (!options.save_file.empty() && !snapshot.exchange.reply.empty()) {
    wrong = WriteWholeFile(options.save_file, snapshot.exchange.reply);
    if (!wrong.empty()) Fail("cannot write " + CleanUtf8(options.save_file) + ": " + wrong + ".");
  }
  if (options.metrics_file.empty()) return wrong.empty();
  const std::string trouble =
      WriteWholeFile(options.metrics_file, MetricsReport(snapshot, last_answer));
  if (!trouble.empty())
    Fail("cannot write " + CleanUtf8(options.metrics_file) + ": " + trouble + ".");
  return wrong.empty() && trouble.empty();
}

// Result: the picture could be shown, or there is nothing to show.
bool ShowPicture(const Options& options, const Snapshot& snapshot) {
  if (options.picture_file.empty() || !snapshot.told) return true;
  const Image image = snapshot.source.kind == RecordKind::Flat ? DrawPicture(*snapshot.flat)
                                                               : DrawPicture(*snapshot.record);
  if (image.pixels.empty()) {
    Fail("the picture could not be drawn.");
    return false;
  }
  if (options.picture_file == "-") {
    const Terminal terminal = OutputTerminal();
    if (terminal.columns > 0) {
      Print(HalfBlocks(image, std::min(terminal.columns, 100), terminal.true_colour));
      return true;
    }
    Fail(
        "--picture -: standard output is no terminal with colours; --picture FILE.png writes a "
        "file.");
    return false;
  }
  const std::string trouble = WriteWholeFile(options.picture_file, EncodePng(image));
  if (trouble.empty()) return true;
  Fail("cannot write " + CleanUtf8(options.picture_file) + ": " + trouble + ".");
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
  return !options.device_id.empty() && options.printer.empty() && options.reply_file.empty() &&
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
  const bool simulated = options.printer.empty() && options.reply_file.empty();
  if (simulated) {
    const std::string wrong =
        LoadScenario(options.scenario.empty() ? "ready" : options.scenario, scenario);
    if (!wrong.empty()) return Fail(wrong);
  }
  if (!options.simulate.empty()) return Simulate(options, scenario);
  if (!options.reply_file.empty()) return Report(options, AskFile(options));
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
