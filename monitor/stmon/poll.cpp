#include "stmon/poll.h"

#include <algorithm>
#include <optional>
#include <thread>

#include "picture/picture.h"
#include "report/reports.h"
#include "report/watch.h"
#include "system/files.h"
#include "system/streams.h"
#include "system/terminal.h"
#include "wire/full_query.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

constexpr int kTrouble = static_cast<int>(Verdict::Unknown);
constexpr size_t kLongestMetrics = 65536;  // bytes; a report has about three thousand

// The words are those of monitoring plug-ins.
Severity OfflineSeverity(const std::string& word) {
  if (word == "ok") return Severity::Report;
  if (word == "warning") return Severity::Warning;
  return word == "unknown" ? Severity::Unknown : Severity::Error;
}

Source SourceOf(const Options& options, std::string name) {
  Source source;
  source.name = std::move(name);
  source.deviceId = options.deviceId;
  source.kind = options.record == "flat" ? RecordKind::Flat : RecordKind::List;
  source.language = &ChosenLanguage(options);
  source.offlineAs = OfflineSeverity(options.offlineAs);
  // What changes is told in one language.
  source.everyLanguage = options.language == "all" && options.watch == 0;
  return source;
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

// '-' is standard output. Result: the file could be written; if not, that has been told. What could
// not be printed is told at the end.
bool WriteFile(const std::string& name, const std::string& bytes) {
  if (name == "-") {
    Print(bytes);
    return true;
  }
  const std::string trouble = WriteWholeFile(name, bytes);
  if (!trouble.empty()) Fail("cannot write " + CleanUtf8(name) + ": " + trouble + ".");
  return trouble.empty();
}

// The last answer of an earlier run, from the metrics that it left.
LastAnswer EarlierAnswer(const Options& options, const Snapshot& snapshot) {
  std::string metrics;
  if (!IsPlainFile(options.metricsFile) ||
      !ReadWholeFile(options.metricsFile, kLongestMetrics, metrics).empty())
    return {};
  return ReadLastAnswer(metrics, snapshot);
}

// Writes the files that the options ask for. Result: all could be written.
bool WriteFiles(const Options& options, const Snapshot& snapshot, const LastAnswer& last_answer) {
  const std::string& reply = snapshot.exchange.reply;
  bool written = true;
  if (!options.saveFile.empty() && !reply.empty()) written = WriteFile(options.saveFile, reply);
  if (!options.metricsFile.empty()) {
    const LastAnswer told = last_answer ? last_answer : EarlierAnswer(options, snapshot);
    written &= WriteFile(options.metricsFile, MetricsReport(snapshot, told));
  }
  return written;
}

// In a terminal as coloured text, or in words where it has no colours or is narrow; elsewhere as
// the bytes of a file.
void PrintPicture(const Image& image, const Snapshot& snapshot) {
  constexpr int kFewestColumns = 60;  // of fewer nobody makes a printer
  constexpr int kMostColumns = 100;   // more make it larger, not clearer
  const Terminal terminal = OutputTerminal();
  if (terminal.columns == 0) {
    Print(EncodePng(image));
  } else if (terminal.colours && terminal.columns >= kFewestColumns) {
    Print(HalfBlocks(image, std::min(terminal.columns, kMostColumns), terminal.trueColour));
  } else {
    Print(snapshot.headline + "\n");
  }
}

// Result: the picture could be shown, or there is nothing to show.
bool ShowPicture(const Options& options, const Snapshot& snapshot) {
  if (options.pictureFile.empty() || !snapshot.told) return true;
  const bool flat = snapshot.source.kind == RecordKind::Flat;
  if (options.pictureFile.ends_with(".svg"))
    return WriteFile(options.pictureFile,
                     flat ? DrawVector(*snapshot.flat) : DrawVector(*snapshot.record));
  const Image image = flat ? DrawPicture(*snapshot.flat) : DrawPicture(*snapshot.record);
  if (image.pixels.empty()) {
    Fail("the picture could not be drawn.");
    return false;
  }
  if (options.pictureFile != "-") return WriteFile(options.pictureFile, EncodePng(image));
  PrintPicture(image, snapshot);
  return true;
}

void PrintReport(const Options& options, const Snapshot& snapshot) {
  if (options.json) {
    Print(JsonReport(snapshot, options.raw));
    return;
  }
  if (snapshot.told || snapshot.identity) Print(TextReport(snapshot));
  if (options.raw) Print("\n" + RawReport(snapshot));
}

// Result: the exit status.
int ReportOnce(const Options& options, const Snapshot& snapshot) {
  LastAnswer last_answer;
  if (IsGood(snapshot)) last_answer = snapshot.when;
  const bool written = WriteFiles(options, snapshot, last_answer);
  if (!FillsOutput(options)) PrintReport(options, snapshot);
  const bool drawn = ShowPicture(options, snapshot);
  if (!snapshot.trouble.empty()) Fail(CleanUtf8(snapshot.source.name + ": " + snapshot.trouble));
  return written && drawn ? static_cast<int>(snapshot.verdict) : kTrouble;
}

// Polls until the process is ended from outside, one query at a time; the connection is closed
// between polls, since a printer serves one at a time and others want to print.
int WatchOn(const Options& options, const Target& target, const std::string& name) {
  const auto interval = std::chrono::milliseconds(static_cast<int64_t>(options.watch * 1000));
  Watch watch;
  watch.misses = options.misses;
  for (uint64_t poll = 0;; ++poll) {
    const Snapshot snapshot = AskNetwork(options, target, name);
    const bool first_answer = IsGood(snapshot) && !watch.good;
    const bool was_silent = IsSilent(watch);
    const auto events = Observe(watch, snapshot, std::chrono::steady_clock::now());
    for (const Event& event : events) {
      // A printer that answers at once needs no line before its first report.
      if (event.kind == EventKind::First && !was_silent) continue;
      Print(options.json ? EventJson(event, snapshot) : EventText(event, snapshot));
    }
    const bool bytes_wanted = options.raw && !events.empty();
    const bool due = options.reportEvery > 0 && poll % options.reportEvery == 0;
    if (options.json) {
      if (first_answer || due || bytes_wanted) Print(JsonReport(snapshot, bytes_wanted));
    } else {
      if (first_answer || due) Print(TextReport(snapshot) + "\n");
      if (bytes_wanted) Print(RawReport(snapshot));
    }
    if (!OutputTrouble().empty()) return kTrouble;
    // A file that cannot be written from the start is a mistake; later the disk may be full for a
    // while.
    const bool written = WriteFiles(options, snapshot, LastAnswerOf(watch));
    if (!written && poll == 0) return kTrouble;
    std::this_thread::sleep_for(NextWait(watch, interval));
  }
}

}  // namespace

int Fail(const std::string& message) {
  Complain("stmon: " + message + "\n");
  return kTrouble;
}

const Language& ChosenLanguage(const Options& options) {
  const Language* language = FindLanguage(options.language);
  return language ? *language : UserLanguage();
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

int ShowDeviceId(const Options& options) {
  const Snapshot snapshot = ReadIdentity(SourceOf(options, ""));
  const Identity& identity = *snapshot.identity;
  if (identity.maker.empty() && identity.model.empty() && identity.description.empty() &&
      identity.languages.empty()) {
    return Fail(
        "the Device ID has none of the fields MFG:, CMD:, MDL: and DES:, nor their long names.");
  }
  return ReportOnce(options, snapshot);
}

int ShowReply(const Options& options) {
  return ReportOnce(options, AskFile(options));
}

int Poll(const Options& options, const Target& target, const std::string& name) {
  if (options.watch > 0) return WatchOn(options, target, name);
  return ReportOnce(options, AskNetwork(options, target, name));
}

}  // namespace stmon
