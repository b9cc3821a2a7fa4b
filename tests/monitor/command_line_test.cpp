// What the command line takes and what it refuses: a mistake must not end like a fine printer.
#include <algorithm>
#include <set>
#include <sstream>

#include "doctest/doctest.h"
#include "stmon/command_line.h"

namespace {

using Arguments = std::vector<std::string>;

// Empty when the line is taken.
std::string Complaint(const Arguments& arguments) {
  stmon::Options options;
  const stmon::Parsed parsed = stmon::ParseCommandLine(arguments, options);
  CHECK(parsed.output.empty());
  return parsed.complaint;
}

struct Sample {
  std::string name;
  Arguments arguments;
};

const Sample kSamples[] = {
    {"PRINTER", {"192.0.2.10"}},
    {"--reply", {"--reply", "reply.bin"}},
    {"--device-id", {"--device-id", "MFG:A;"}},
    {"--record", {"--record", "flat"}},
    {"--lang", {"--lang", "DE"}},
    {"--lang all", {"--lang", "all"}},
    {"--catalogue", {"--catalogue"}},
    {"--save-reply", {"--save-reply", "reply.bin"}},
    {"--save-reply -", {"--save-reply", "-"}},
    {"--json", {"--json"}},
    {"--raw", {"--raw"}},
    {"--watch", {"--watch", "5"}},
    {"--misses", {"--misses", "3"}},
    {"--report-every", {"--report-every", "10"}},
    {"--picture", {"--picture", "state.png"}},
    {"--picture -", {"--picture", "-"}},
    {"--gallery", {"--gallery", "pages"}},
    {"--metrics", {"--metrics", "stmon.prom"}},
    {"--metrics -", {"--metrics", "-"}},
    {"--timeout", {"--timeout", "2"}},
    {"--offline-as", {"--offline-as", "ok"}},
    {"--simulate", {"--simulate", "9100"}},
    {"--scenario", {"--scenario", "ready"}},
    {"--scenario list", {"--scenario", "list"}},
};

// Each option with those above it: x goes with it, . does not, = is the same one twice.
const char* const kPairs[] = {
    "PRINTER         ",                         //
    "--reply         .",                        //
    "--device-id     xx",                       //
    "--record        xxx",                      //
    "--lang          xxxx",                     //
    "--lang all      xx.x=",                    //
    "--catalogue     ....xx",                   //
    "--save-reply    xx.xxx.",                  //
    "--save-reply -  xx.x...=",                 //
    "--json          xxxxxxxx.",                //
    "--raw           xx.xxx.x.x",               //
    "--watch         x..xx..x.xx",              //
    "--misses        ...........x",             //
    "--report-every  ...........x.",            //
    "--picture       xx.xxx.xxxx...",           //
    "--picture -     xx.x...x......=",          //
    "--gallery       ................",         //
    "--metrics       xx.xxx.xxxxx..xx.",        //
    "--metrics -     xx.x...x......x..=",       //
    "--timeout       x..xxx.xxxxx..xx.xx",      //
    "--offline-as    xx.xxx.xxxxx..xx.xxx",     //
    "--simulate      .....................",    //
    "--scenario      ..xxxx.xxxxx..xx.xxxxx",   //
    "--scenario list ......................=",  //
};

std::string PairMark(const Sample& one, const Sample& other) {
  if (one.arguments[0] == other.arguments[0]) return "=";
  Arguments both = one.arguments;
  both.insert(both.end(), other.arguments.begin(), other.arguments.end());
  const std::string complaint = Complaint(both);
  if (complaint.empty()) return "x";
  CAPTURE(complaint);
  CHECK(complaint.find(" go") != std::string::npos);
  return ".";
}

}  // namespace

TEST_CASE("every pair of options goes together or is refused") {
  const char* const* expected = std::begin(kPairs);
  for (const Sample& below : kSamples) {
    std::string line = below.name;
    line.resize(16, ' ');
    for (const Sample* above = kSamples; above != &below; ++above) {
      line += PairMark(*above, below);
      CHECK(line.substr(line.size() - 1) == PairMark(below, *above));
    }
    REQUIRE(expected != std::end(kPairs));
    CHECK(line == *expected++);
  }
  CHECK(expected == std::end(kPairs));
}

TEST_CASE("every option of the help has its row") {
  stmon::Options options;
  std::istringstream help(stmon::ParseCommandLine({"--help"}, options).output);
  std::set<std::string> shown;
  for (std::string word; help >> word;) {
    if (word.starts_with("--") && word.size() > 2) shown.insert(word);
  }
  for (const std::string& option : stmon::OptionsWithRow()) {
    const bool plain = option.find(' ') == std::string::npos;
    if (plain && option != "PRINTER") CHECK(shown.contains(option));
  }
  // What the help's own sentences and examples name is an option as well.
  const auto rows = stmon::OptionsWithRow();
  for (const std::string& option : shown) {
    CAPTURE(option);
    CHECK((option == "--version" || std::find(rows.begin(), rows.end(), option) != rows.end()));
  }
}

struct Line {
  const char* why;
  Arguments arguments;
  const char* complaint;  // a part of it; empty: the line is taken
};

const Line kLines[] = {
    {"nothing at all", {}, ""},
    {"a Device ID beside a poll", {"printer", "--device-id", "MFG:A", "--watch", "1"}, ""},
    {"a Device ID beside the simulated printer",
     {"--scenario", "ready", "--device-id", "MFG:A", "--picture", "a.png"},
     ""},
    {"a Device ID alone asks nobody", {"--device-id", "MFG:A", "--watch", "1"}, "alone"},
    {"a simulated printer in a state", {"--simulate", "9100", "--scenario", "offline"}, ""},
    {"a value after '='", {"--watch=1", "[::1]:9100"}, ""},
    {"standard input", {"--reply", "-"}, ""},
    {"a pipe from here to there", {"--reply", "-", "--picture", "-"}, ""},
    {"no printer", {""}, "PRINTER: '' is not a printer's address"},
    {"no reply", {"--reply", ""}, "--reply: '' is no value"},
    {"no file", {"--metrics", ""}, "--metrics: '' is no value"},
    {"no scenario", {"--scenario", ""}, "--scenario: '' is no value"},
    {"a number is missing", {"--watch", ""}, "--watch: ''"},
    {"the value was forgotten", {"--metrics", "--json"}, "--metrics: '--json' is no value"},
    {"it would be the next argument", {"--metrics=", "printer"}, "--metrics= has no value"},
    {"a flag has none", {"--json="}, "--json= has no value"},
    {"two printers", {"one", "two"}, "two"},
    {"the same twice", {"--reply", "a", "--reply", "b"}, "--reply"},
    {"no such option", {"--scenarios", "a"}, "--scenarios"},
    {"an address with a scheme", {"http://printer"}, "not a printer's address"},
    {"a port out of range", {"--simulate", "65536"}, "no port"},
    {"no such language", {"--lang", "XX"}, "not one of EN DE"},
    {"no such record", {"--record", "both"}, "--record"},
    {"no number", {"--timeout", "nan"}, "from 0.1 to 3600"},
    {"a unit", {"--timeout", "5s"}, "from 0.1 to 3600"},
    {"too short", {"--watch", "0"}, "from 0.1 to 86400"},
    {"too long", {"--timeout", "3601"}, "from 0.1 to 3600"},
};

TEST_CASE("mistakes on the command line are named") {
  for (const Line& row : kLines) {
    CAPTURE(row.why);
    const std::string complaint = Complaint(row.arguments);
    CHECK(complaint.empty() == std::string(row.complaint).empty());
    CAPTURE(complaint);
    CHECK(complaint.find(row.complaint) != std::string::npos);
  }
}
