#include <charconv>
#include <cstdio>

#include "report/reports.h"
#include "words/labels.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

constexpr const char* kLastAnswer = "stmon_last_answer_timestamp_seconds";

// A label's value between quotes: backslash, quote and line feed are escaped.
std::string LabelValue(std::string_view text) {
  std::string value;
  for (const char byte : CleanUtf8(text)) {
    if (byte == '\\' || byte == '"') value += '\\';
    if (byte == '\n') {
      value += "\\n";
    } else {
      value += byte;
    }
  }
  return value;
}

std::string Label(const char* name, std::string_view value) {
  return std::string(",") + name + "=\"" + LabelValue(value) + "\"";
}

struct Writer {
  std::string text;
  std::string printer;    // label and value, as it stands in every sample
  const char* name = "";  // of the metric that was described last
};

Writer WriterFor(const Snapshot& snapshot) {
  return {"", "printer=\"" + LabelValue(snapshot.source.name) + "\""};
}

void Describe(Writer& writer, const char* name, const char* help) {
  writer.text += std::string("# HELP ") + name + " " + help + "\n# TYPE " + name + " gauge\n";
  writer.name = name;
}

// Name and labels up to the value. A label is left out rather than empty, which means the same.
std::string Series(const Writer& writer, const std::string& labels) {
  return std::string(writer.name) + "{" + writer.printer + labels + "} ";
}

void Sample(Writer& writer, const std::string& labels, const std::string& value) {
  writer.text += Series(writer, labels) + value + "\n";
}

void Single(Writer& writer, const char* name, const char* help, const std::string& value) {
  Describe(writer, name, help);
  Sample(writer, "", value);
}

std::string Decimal(double value, int places) {
  char text[32];
  std::snprintf(text, sizeof text, "%.*f", places, value);
  return text;
}

std::string Seconds(std::chrono::duration<double> time) {
  return Decimal(time.count(), 3);
}

// A state in so many series as there are values, of which one is 1: that counts over many printers.
void AddVerdict(Writer& writer, Verdict verdict) {
  Describe(writer, "stmon_verdict", "1 for the verdict on the printer, 0 for each other one.");
  for (const Verdict each :
       {Verdict::Fine, Verdict::Attention, Verdict::CannotPrint, Verdict::Unknown})
    Sample(writer, Label("verdict", VerdictWord(each)), each == verdict ? "1" : "0");
}

void AddConditions(Writer& writer, const Snapshot& snapshot) {
  if (snapshot.conditions.empty()) return;
  Describe(writer, "stmon_condition", "1 for each condition of the printer.");
  for (const Condition& condition : snapshot.conditions) {
    std::string labels;
    if (condition.code) labels += Label("code", std::to_string(*condition.code));
    labels += Label("reason", condition.reason->keyword) +
              Label("severity", SeverityWord(condition.severity));
    if (const char* colour = TonerColour(condition.reason->code); *colour)
      labels += Label("colour", colour);
    if (condition.tray) labels += Label("tray", TrayLabel(*condition.tray));
    Sample(writer, labels, "1");
  }
}

void AddTrays(Writer& writer, const Snapshot& snapshot) {
  if (snapshot.trays.empty()) return;
  Describe(writer, "stmon_tray_state",
           "1 for the state of each tray: paper, empty, not-in-place, unknown.");
  bool measured = false;
  for (const Tray& tray : snapshot.trays) {
    measured |= tray.percent.has_value();
    Sample(writer, Label("tray", TrayLabel(tray.id)) + Label("state", TrayStateWord(tray.state)),
           "1");
  }
  if (!measured) return;
  Describe(writer, "stmon_tray_paper_ratio", "How full a tray is, from 0 to 1.");
  for (const Tray& tray : snapshot.trays) {
    if (tray.percent)
      Sample(writer, Label("tray", TrayLabel(tray.id)), Decimal(*tray.percent / 100.0, 2));
  }
}

}  // namespace

std::string MetricsReport(const Snapshot& snapshot, const LastAnswer& last_answer) {
  if (snapshot.exchange.outcome == Outcome::NotAsked) return {};
  Writer writer = WriterFor(snapshot);
  const bool up = IsGood(snapshot);
  Single(writer, "stmon_up", "1 when the printer answered the latest poll.", up ? "1" : "0");
  AddVerdict(writer, snapshot.verdict);
  if (!snapshot.source.query.empty())
    Single(writer, "stmon_poll_duration_seconds", "How long the latest poll took.",
           Seconds(snapshot.took));
  if (last_answer)
    Single(writer, kLastAnswer, "When the printer last answered, in seconds since 1970.",
           Seconds(last_answer->time_since_epoch()));
  if (!up) return writer.text;
  Single(writer, "stmon_online", "1 when the printer says that it is online.",
         snapshot.online ? "1" : "0");
  AddConditions(writer, snapshot);
  AddTrays(writer, snapshot);
  return writer.text;
}

LastAnswer ReadLastAnswer(std::string_view metrics, const Snapshot& snapshot) {
  Writer writer = WriterFor(snapshot);
  writer.name = kLastAnswer;
  const std::string series = "\n" + Series(writer, "");
  const size_t at = metrics.find(series);
  if (at == std::string_view::npos) return {};
  const std::string_view value = metrics.substr(at + series.size());
  double seconds = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), seconds);
  const std::chrono::duration<double> since(seconds);
  // Whatever else the file holds, no answer came before 1970 or after this poll, but for the
  // millisecond that the file's time is rounded to.
  const auto latest = snapshot.when.time_since_epoch() + std::chrono::milliseconds(1);
  const bool good = error == std::errc() && seconds >= 0 && since <= latest;
  if (!good) return {};
  return std::chrono::system_clock::time_point(
      std::chrono::duration_cast<std::chrono::system_clock::duration>(since));
}

}  // namespace stmon
