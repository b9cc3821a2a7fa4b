#include "stmon/command_line.h"

#include <algorithm>

#include "CLI/CLI.hpp"
#include "system/streams.h"
#include "words/safe_text.h"
#include "words/user_language.h"

namespace stmon {
namespace {

constexpr int kWrongUsage = 3;

constexpr const char* kFooter =
    "\nWithout PRINTER a built-in simulated printer is asked, over a real connection.\n"
    "Exit status: 0 fine, 1 needs attention soon, 2 cannot print, 3 unknown, no response or wrong "
    "usage.\n"
    "Examples:\n"
    "  stmon 192.0.2.10                      ask a printer\n"
    "  stmon --scenario no-paper --json      ask the simulated one, as JSON\n"
    "  stmon --scenario list                 name what can be simulated";

void Describe(CLI::App& app, Options& options) {
  app.name("stmon");
  app.description("Asks a colour laser printer how it is.");
  app.footer(kFooter);
  auto* printer =
      app.add_option("PRINTER", options.printer, "HOST or HOST:PORT, port 9100 unless given")
          ->option_text(" ");
  auto* reply =
      app.add_option("--reply", options.replyFile, "show a saved reply instead of asking a printer")
          ->option_text("FILE  ('-': standard input)");
  app.add_option("--device-id", options.deviceId,
                 "show what a Device ID says, alone or beside the poll")
      ->option_text("TEXT");
  app.add_option("--record", options.record, "which of the library's records answers, default list")
      ->option_text("list|flat")
      ->check(CLI::IsMember({"list", "flat"}));
  app.add_option("--lang", options.language, LanguageCodes() + "; default from the locale, else EN")
      ->option_text("CODE|all");
  app.add_flag("--catalogue", options.catalogue,
               "print every status the library knows, in all languages or that of --lang");
  app.add_option("--save-reply", options.saveFile, "keep the reply for later")->option_text("FILE");
  app.add_flag("--json", options.json, "one JSON object on standard output");
  app.add_flag("--raw", options.raw, "show the bytes of query and reply, block by block");
  auto* watch =
      app.add_option("--watch", options.watch, "poll on and print what changes, until ended")
          ->option_text("SECONDS")
          ->check(CLI::Range(0.1, 86400.0));
  app.add_option("--picture", options.pictureFile,
                 "write the printer's picture; '-' shows it in a terminal with colours")
      ->option_text("FILE.png|FILE.svg|-");
  app.add_option("--gallery", options.gallery,
                 "write pictures, icons and texts of every status, and a page that shows them")
      ->option_text("DIR");
  app.add_option("--metrics", options.metricsFile, "write the state as Prometheus text")
      ->option_text("FILE");
  app.add_option("--timeout", options.timeout, "for the whole poll, default 5")
      ->option_text("SECONDS")
      ->check(CLI::Range(0.1, 3600.0));
  app.add_option("--offline-as", options.offlineAs,
                 "what an offline printer without an error is, default critical")
      ->option_text("ok|warning|critical|unknown")
      ->check(CLI::IsMember({"ok", "warning", "critical", "unknown"}));
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

}  // namespace

int ParseCommandLine(int count, char** values, Options& options) {
  CLI::App app;
  Describe(app, options);
  auto arguments = Arguments(count, values);
  try {
    if (!arguments.empty()) arguments.erase(arguments.begin());
    std::reverse(arguments.begin(), arguments.end());  // parse() takes them from the back
    app.parse(std::move(arguments));
  } catch (const CLI::CallForHelp&) {
    Print(app.help());
    return 0;
  } catch (const CLI::CallForVersion& version) {
    Print(std::string(version.what()) + "\n");
    return 0;
  } catch (const CLI::ParseError& error) {
    Complain("stmon: " + CleanUtf8(error.what()) + "\n'stmon --help' shows the options.\n");
    return kWrongUsage;
  }
  return -1;
}

}  // namespace stmon
