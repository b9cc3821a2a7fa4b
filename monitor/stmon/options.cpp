#include "stmon/options.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace stmon {
namespace {

// What rules over the other options: each of them goes with it or has no effect beside it.
struct Ruler {
  const char* name;
  bool (*rules)(const Options& options);
};

constexpr Ruler kRulers[] = {
    {"PRINTER", [](const Options& options) { return !options.printer.empty(); }},
    {"--reply", [](const Options& options) { return !options.replyFile.empty(); }},
    {"--device-id alone", OnlyDeviceId},
    {"--catalogue", [](const Options& options) { return options.catalogue; }},
    {"--gallery", [](const Options& options) { return !options.gallery.empty(); }},
    {"--scenario list", [](const Options& options) { return options.scenario == "list"; }},
    {"--simulate", [](const Options& options) { return !options.simulate.empty(); }},
    {"--watch", [](const Options& options) { return options.watch > 0; }},
    {"'-', which has standard output for itself", FillsOutput},
};

struct Row {
  char marks[std::size(kRulers) + 1];  // x: goes with the ruler of that column
  const char* option;
  const char* needed = nullptr;  // another option without which it has no effect
};

constexpr Row kRows[] = {
    // PRINTER
    // |--reply
    // ||--device-id alone
    // |||--catalogue
    // ||||--gallery
    // |||||--scenario list
    // ||||||--simulate
    // |||||||--watch
    // ||||||||'-'
    {"x......xx", "PRINTER"},                    //
    {".x......x", "--reply"},                    //
    {"xxx....x.", "--device-id"},                //
    {"xxx....xx", "--record"},                   //
    {"xxxx...x.", "--lang"},                     //
    {"xx.x.....", "--lang all"},                 //
    {"...x.....", "--catalogue"},                //
    {"xx.....xx", "--save-reply"},               //
    {"xxxx...x.", "--json"},                     //
    {"xx.....x.", "--raw"},                      //
    {"x......x.", "--watch"},                    //
    {"x......x.", "--misses", "--watch"},        //
    {"x......x.", "--report-every", "--watch"},  //
    {"xx......x", "--picture"},                  //
    {"....x....", "--gallery"},                  //
    {"xx.....xx", "--metrics"},                  //
    {"x......xx", "--timeout"},                  //
    {"xx.....xx", "--offline-as"},               //
    {"......x..", "--simulate"},                 //
    {".....xxxx", "--scenario"},                 //
};

// How many results standard output is to take in place of a file.
int ResultsForOutput(const Options& options) {
  const std::string* const names[] = {&options.saveFile, &options.pictureFile,
                                      &options.metricsFile};
  return static_cast<int>(std::count_if(std::begin(names), std::end(names),
                                        [](const std::string* name) { return *name == "-"; }));
}

}  // namespace

bool OnlyDeviceId(const Options& options) {
  return !options.deviceId.empty() && options.printer.empty() && options.replyFile.empty() &&
         options.scenario.empty();
}

bool FillsOutput(const Options& options) {
  return ResultsForOutput(options) > 0;
}

std::vector<std::string> OptionsWithRow() {
  std::vector<std::string> options;
  for (const Row& row : kRows)
    options.push_back(row.option);
  return options;
}

std::string FindClash(const Options& options, std::vector<std::string> given) {
  if (options.language == "all") given.push_back("--lang all");
  const auto is_given = [&](const char* option) {
    return std::find(given.begin(), given.end(), option) != given.end();
  };
  for (const Row& row : kRows) {
    if (!is_given(row.option)) continue;
    if (row.needed && !is_given(row.needed))
      return std::string(row.option) + " goes only with " + row.needed;
    for (size_t i = 0; i < std::size(kRulers); ++i) {
      if (row.marks[i] != 'x' && kRulers[i].rules(options))
        return std::string(row.option) + " does not go with " + kRulers[i].name;
    }
  }
  if (ResultsForOutput(options) > 1) return "only one result can go to standard output, '-'";
  return {};
}

}  // namespace stmon
