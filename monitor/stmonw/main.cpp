// stmonw: shows how a colour laser printer is, in a window.
#include <windows.h>
// after windows.h
#include <commctrl.h>

#include <algorithm>

#include "CLI/CLI.hpp"
#include "simulator/scenario.h"
#include "stmonw/window.h"
#include "system/streams.h"
#include "wire/transport.h"
#include "words/user_language.h"

namespace {

constexpr int kWrongUsage = 3;

struct CommandLine {
  stmonw::Settings settings;
  std::string language;
  int interval = 5;  // seconds
};

void Describe(CLI::App& app, CommandLine& line) {
  app.name("stmonw");
  app.description("Shows how a colour laser printer is.");
  app.footer("\nWithout PRINTER a built-in simulated printer is asked.");
  app.add_option("PRINTER", line.settings.printer, "HOST or HOST:PORT, port 9100 unless given")
      ->option_text(" ");
  app.add_option("--lang", line.language, stmon::LanguageCodes())->option_text("CODE");
  app.add_option("--scenario", line.settings.scenario, "what the simulated printer is like")
      ->option_text("NAME|FILE");
  app.add_option("--interval", line.interval, "between two polls, default 5")
      ->option_text("SECONDS")
      ->check(CLI::Range(stmonw::kShortestInterval, stmonw::kLongestInterval));
  app.set_version_flag("--version", std::string("stmonw ") + STMON_VERSION);
}

// Result: empty to go on, else what to tell the user before ending with `status`.
std::string Parse(CommandLine& line, int& status) {
  CLI::App app;
  Describe(app, line);
  auto arguments = stmon::Arguments(0, nullptr);
  try {
    if (!arguments.empty()) arguments.erase(arguments.begin());
    std::reverse(arguments.begin(), arguments.end());  // parse() takes them from the back
    app.parse(std::move(arguments));
  } catch (const CLI::CallForHelp&) {
    return app.help();
  } catch (const CLI::CallForVersion& version) {
    return version.what();
  } catch (const CLI::ParseError& error) {
    status = kWrongUsage;
    return std::string(error.what()) + "\n'stmonw --help' shows the options.";
  }
  status = kWrongUsage;
  stmonw::Settings& settings = line.settings;
  settings.interval = std::chrono::seconds(line.interval);
  settings.language =
      line.language.empty() ? &stmon::UserLanguage() : stmon::FindLanguage(line.language);
  if (!settings.language)
    return "--lang " + line.language + ": " + stmon::LanguageCodes() + " are known.";
  stmon::Target target;
  if (!settings.printer.empty() && !stmon::ParseTarget(settings.printer, target)) {
    return "'" + settings.printer +
           "' is not a printer's address; HOST, HOST:PORT or [IPV6]:PORT are.";
  }
  stmon::Scenario scenario;
  return settings.printer.empty() ? stmon::LoadScenario(settings.scenario, scenario) : "";
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
  const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_UPDOWN_CLASS | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
  CommandLine line;
  int status = 0;
  const std::string message = Parse(line, status);
  if (!message.empty()) {
    stmonw::Complain(nullptr, message);
    return status;
  }
  if (stmonw::RunWindow(instance, show, line.settings)) return 0;
  stmonw::Complain(nullptr, "The window cannot be made: the program file is damaged.");
  return kWrongUsage;
}
