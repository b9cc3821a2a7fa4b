// stmon: asks a colour laser printer how it is, and says it.
#include "report/catalogue.h"
#include "report/gallery.h"
#include "simulator/simulated_printer.h"
#include "stmon/check.h"
#include "stmon/command_line.h"
#include "stmon/poll.h"
#include "system/streams.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

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
  ParseTarget("127.0.0.1:" + options.simulate, target);
  std::string trouble;
  const auto printer = StartPrinter(scenario, target.port, trouble);
  if (!printer)
    return Fail("cannot listen at " + TargetText(target) + ": " + CleanUtf8(trouble) + ".");
  Print("Simulated printer at " + TargetText(target) + ", scenario '" + CleanUtf8(scenario.name) +
        "'. End it with Ctrl-C.\n");
  if (OutputTrouble().empty()) ServeForever(*printer);
  return 0;
}

int PollSimulated(const Options& options, const Scenario& scenario) {
  std::string trouble;
  const auto printer = StartPrinter(scenario, 0, trouble);
  if (!printer) return Fail("cannot start the simulated printer: " + CleanUtf8(trouble) + ".");
  const Target target{"127.0.0.1", PrinterPort(*printer)};
  return Poll(options, target, "simulated printer, scenario '" + scenario.name + "'");
}

// The texts go out all the same, with plainer letters or question marks for those that are missing.
void TellOfCodePage(const Options& options) {
  std::string lacking;
  for (const Language& language : kLanguages) {
    const bool asked = options.language == "all" || &language == &ChosenLanguage(options) ||
                       (options.catalogue && options.language.empty());
    if (asked && !FlatTextsAreWhole(language)) lacking += std::string(" ") + language.code;
  }
  if (lacking.empty()) return;
  Complain(
      "stmon: the flat record's texts come in this system's code page, which may lack letters of" +
      lacking + "; those of --record list are whole.\n");
}

int PrintCatalogue(const Options& options) {
  const auto catalogue = AskCatalogue(FindLanguage(options.language));
  Print(options.json ? CatalogueJson(catalogue) : CatalogueText(catalogue));
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
  if (options.catalogue || options.record == "flat") TellOfCodePage(options);
  if (options.catalogue) return PrintCatalogue(options);
  if (!options.gallery.empty()) return MakeGallery(options);
  if (options.scenario == "list") return ListScenarios();
  if (OnlyDeviceId(options)) return ShowDeviceId(options);
  if (!options.replyFile.empty()) return ShowReply(options);
  if (!options.printer.empty()) {
    Target target;
    ParseTarget(options.printer, target);
    return Poll(options, target, TargetText(target));
  }
  Scenario scenario;
  const std::string wrong =
      LoadScenario(options.scenario.empty() ? "ready" : options.scenario, scenario);
  if (!wrong.empty()) return Fail(wrong);
  return options.simulate.empty() ? PollSimulated(options, scenario) : Simulate(options, scenario);
}

// What could not be written was not told, whatever it was.
int Finish(int status) {
  const std::string trouble = OutputTrouble();
  return trouble.empty() ? status : Fail("cannot write to standard output: " + trouble + ".");
}

}  // namespace
}  // namespace stmon

int main(int count, char** values) {
  stmon::PrepareStreams();
  auto arguments = stmon::Arguments(count, values);
  if (!arguments.empty()) arguments.erase(arguments.begin());
  if (!arguments.empty() && arguments[0] == "check")
    return stmon::Finish(stmon::Check({arguments.begin() + 1, arguments.end()}));
  stmon::Options options;
  const stmon::Parsed parsed = stmon::ParseCommandLine(std::move(arguments), options);
  if (!parsed.complaint.empty()) return stmon::Fail(parsed.complaint);
  stmon::Print(parsed.output);
  return stmon::Finish(parsed.output.empty() ? stmon::Run(options) : 0);
}
