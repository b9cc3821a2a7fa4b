#include "stmon/command_line.h"

#include <algorithm>
#include <charconv>
#include <functional>

#include "CLI/CLI.hpp"
#include "wire/transport.h"
#include "words/safe_text.h"
#include "words/user_language.h"

namespace stmon {
namespace {

constexpr const char* kFooter =
    "\nWithout PRINTER a built-in simulated printer is asked, over a real connection.\n"
    "Exit status: 0 fine, 1 needs attention soon, 2 cannot print, 3 unknown,\n"
    "no response or wrong usage.\n"
    "Examples:\n"
    "  stmon 192.0.2.10                      ask a printer\n"
    "  stmon --scenario no-paper --json      ask the simulated one, as JSON\n"
    "  stmon --scenario list                 name what can be simulated\n"
    "  stmon check 192.0.2.10                be a monitoring plugin";

constexpr const char* kNoTarget = "is not a printer's address; HOST, HOST:PORT or [IPV6]:PORT are";

bool IsTarget(const std::string& text) {
  Target target;
  return ParseTarget(text, target);
}

bool IsPort(const std::string& text) {
  return IsTarget("127.0.0.1:" + text);
}

bool IsLanguage(const std::string& text) {
  return text == "all" || FindLanguage(text);
}

// A test of the option's value; `wrong` is what people read after the value.
CLI::Validator Must(const std::function<bool(const std::string& text)>& good,
                    const std::string& wrong) {
  return CLI::Validator(
      [=](const std::string& text) {
        return good(text) ? std::string() : "'" + EscapeBytes(text) + "' " + wrong;
      },
      "");
}

CLI::Validator Seconds(double least, int most) {
  const auto good = [=](const std::string& text) {
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    // What is no number compares false with everything.
    return read.ec == std::errc() && read.ptr == end && value >= least && value <= most;
  };
  return Must(good, "is no number of seconds from 0.1 to " + std::to_string(most));
}

// A value that was forgotten, or that a script's variable did not have, must not count as one.
bool IsValue(const std::string& text) {
  return !text.empty() && (text[0] != '-' || text == "-");
}

void Describe(CLI::App& app, Options& options) {
  app.name("stmon");
  app.description("Asks a colour laser printer how it is.");
  app.footer(kFooter);
  app.add_option("PRINTER", options.printer, "HOST or HOST:PORT, port 9100 unless given")
      ->option_text(" ")
      ->check(Must(IsTarget, kNoTarget));
  app.add_option("--reply", options.replyFile, "show a saved reply instead of asking a printer")
      ->option_text("FILE  ('-': standard input)");
  app.add_option("--device-id", options.deviceId, "tell of a Device ID, alone or beside the poll")
      ->option_text("TEXT");
  app.add_option("--record", options.record, "which of the two records answers, default list")
      ->option_text("list|flat")
      ->check(CLI::IsMember({"list", "flat"}));
  app.add_option("--lang", options.language,
                 "of texts and labels; default the locale's, one of\n" + LanguageCodes())
      ->option_text("CODE|all")
      ->check(Must(IsLanguage, "is not one of " + LanguageCodes() + " all"));
  app.add_flag("--catalogue", options.catalogue,
               "every status, in all languages or that of --lang");
  app.add_option("--save-reply", options.saveFile, "keep the reply for later")->option_text("FILE");
  app.add_flag("--json", options.json, "one JSON object on standard output");
  app.add_flag("--raw", options.raw, "show the bytes of query and reply, block by block");
  app.add_option("--watch", options.watch, "poll on and print what changes, until ended")
      ->option_text("SECONDS")
      ->check(Seconds(0.1, 86400));
  app.add_option("--misses", options.misses, "polls without answer that are silence, default 2")
      ->option_text("POLLS")
      ->check(CLI::Range(1, 1000));
  app.add_option("--report-every", options.reportEvery,
                 "watching: the whole report again at each so many")
      ->option_text("POLLS")
      ->check(CLI::Range(1, 1000000));
  app.add_option("--picture", options.pictureFile, "write the picture; in a terminal '-' shows it")
      ->option_text("FILE.png|FILE.svg|-");
  app.add_option("--gallery", options.gallery, "write a page with the pictures of every status")
      ->option_text("DIR");
  app.add_option("--metrics", options.metricsFile, "write the state as Prometheus text")
      ->option_text("FILE");
  app.add_option("--timeout", options.timeout, "for the whole poll, default 5")
      ->option_text("SECONDS")
      ->check(Seconds(0.1, 3600));
  app.add_option("--offline-as", options.offlineAs, "what being offline is, default critical")
      ->option_text("ok|warning|critical|unknown")
      ->check(CLI::IsMember({"ok", "warning", "critical", "unknown"}));
  app.add_option("--simulate", options.simulate, "be a simulated printer at 127.0.0.1, until ended")
      ->option_text("PORT")
      ->check(Must(IsPort, "is no port; 1 to 65535 are"));
  app.add_option("--scenario", options.scenario, "what is simulated; 'list' names all")
      ->option_text("NAME|FILE");
  app.set_version_flag("--version", std::string("stmon ") + STMON_VERSION);
}

constexpr const char* kCheckFooter =
    "\nPrints one line, with -v more, and ends like a monitoring plugin:\n"
    "0 OK, 1 WARNING, 2 CRITICAL, 3 UNKNOWN. A RANGE is a least level (10),\n"
    "or START:END with ~ for no start, alerting outside it, with @ inside.\n"
    "Example:\n"
    "  stmon check 192.0.2.10 -w 10 -c 5 --ignore-tray bypass";

void DescribeThreshold(CLI::App& app, const char* names, Threshold& threshold, const char* what) {
  app.add_option_function<std::string>(
         names, [&threshold](const std::string& text) { ParseThreshold(text, threshold); }, what)
      ->option_text("RANGE")
      ->check(Must(
          [](const std::string& text) {
            Threshold ignored;
            return ParseThreshold(text, ignored);
          },
          "is no range of levels"));
}

void DescribeCheck(CLI::App& app, CheckOptions& options) {
  app.name("stmon check");
  app.description("Asks a printer how it is, as a monitoring plugin.");
  app.footer(kCheckFooter);
  app.add_option("PRINTER", options.ask.printer, "HOST or HOST:PORT, port 9100 unless given")
      ->option_text(" ")
      ->required()
      ->check(Must(IsTarget, kNoTarget));
  DescribeThreshold(app, "-w,--warning", options.rules.warning, "of paper in per cent, each tray");
  DescribeThreshold(app, "-c,--critical", options.rules.critical, "likewise");
  app.add_option("--ignore", options.rules.ignoredReasons,
                 "what does not count (toner-low); may be repeated")
      ->option_text("REASON")
      ->expected(1)
      ->take_all()
      ->check(
          Must(IsReasonKeyword, "is no reason; --json of a printer and the catalogue have them"));
  app.add_option_function<std::vector<std::string>>(
         "--ignore-tray",
         [&options](const std::vector<std::string>& names) {
           for (const std::string& name : names)
             options.rules.ignoredTrays.push_back(TrayNamed(name));
         },
         "a tray that does not count; may be repeated")
      ->option_text("1..5|bypass|multi")
      ->expected(1)
      ->take_all()
      ->check(Must([](const std::string& name) { return TrayNamed(name) != 0; }, "is no tray"));
  app.add_option("--misses", options.misses, "polls before silence is told, default 1")
      ->option_text("N")
      ->check(CLI::Range(1, 100));
  app.add_option("--offline-as", options.ask.offlineAs, "what being offline is, default critical")
      ->option_text("ok|warning|critical|unknown")
      ->check(CLI::IsMember({"ok", "warning", "critical", "unknown"}));
  options.ask.timeout = 10;  // as plugins have it
  app.add_option("-t,--timeout", options.ask.timeout, "for the whole run, default 10")
      ->option_text("SECONDS")
      ->check(Seconds(0.1, 3600));
  app.add_option("--lang", options.ask.language, "of the words, default from the locale")
      ->option_text("CODE")
      ->check(Must([](const std::string& text) { return FindLanguage(text) != nullptr; },
                   "is not one of " + LanguageCodes()));
  app.add_flag("-v,--verbose", options.verbose, "a report after the line");
  app.set_version_flag("-V,--version", std::string("stmon ") + STMON_VERSION);
}

std::vector<std::string> GivenOptions(const CLI::App& app) {
  std::vector<std::string> given;
  for (const CLI::Option* option : app.get_options()) {
    if (option->count() > 0) given.push_back(option->get_name());
  }
  return given;
}

// "--reply=" would take the next argument for its value.
std::string FindEmptyValue(const std::vector<std::string>& arguments) {
  for (const std::string& argument : arguments) {
    if (argument == "--") break;
    if (argument.starts_with("--") && argument.find('=') == argument.size() - 1)
      return argument + " has no value";
  }
  return {};
}

Parsed WrongUsage(const CLI::App& app, const std::string& what) {
  return {"", what + ".\n'" + app.get_name() + " --help' shows the options."};
}

Parsed Parse(CLI::App& app, std::vector<std::string> arguments) {
  const std::string wrong = FindEmptyValue(arguments);
  if (!wrong.empty()) return WrongUsage(app, wrong);
  for (CLI::Option* option : app.get_options()) {
    if (option->get_items_expected_min() > 0)
      option->check(Must(IsValue, "is no value: it is empty or begins like an option"));
  }
  std::reverse(arguments.begin(), arguments.end());  // parse() takes them from the back
  try {
    app.parse(std::move(arguments));
  } catch (const CLI::CallForHelp&) {
    return {app.help(), ""};
  } catch (const CLI::CallForVersion& version) {
    return {version.what() + std::string("\n"), ""};
  } catch (const CLI::ParseError& error) {
    return WrongUsage(app, CleanUtf8(error.what()));
  }
  return {};
}

}  // namespace

Parsed ParseCommandLine(std::vector<std::string> arguments, Options& options) {
  CLI::App app;
  Describe(app, options);
  const Parsed parsed = Parse(app, std::move(arguments));
  if (!parsed.output.empty() || !parsed.complaint.empty()) return parsed;
  const std::string clash = FindClash(options, GivenOptions(app));
  return clash.empty() ? Parsed{} : WrongUsage(app, clash);
}

Parsed ParseCheckLine(std::vector<std::string> arguments, CheckOptions& options) {
  CLI::App app;
  DescribeCheck(app, options);
  return Parse(app, std::move(arguments));
}

}  // namespace stmon
