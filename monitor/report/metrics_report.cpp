#include <cstdio>

#include "report/reports.h"
#include "words/labels.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

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

// Prometheus wants the samples of one name together, after one HELP and one TYPE line.
struct Writer {
  std::string text;
  std::string printer;  // label and value, as it stands in every sample
};

void Describe(Writer& writer, const char* name, const char* help) {
  writer.text += std::string("# HELP ") + name + " " + help + "\n# TYPE " + name + " gauge\n";
}

void Sample(Writer& writer, const char* name, const std::string& labels, const std::string& value) {
  writer.text += std::string(name) + "{" + writer.printer + labels + "} " + value + "\n";
}

void Single(Writer& writer, const char* name, const char* help, const std::string& value) {
  Describe(writer, name, help);
  Sample(writer, name, "", value);
}

std::string Seconds(std::chrono::duration<double> time) {
  char text[32];
  std::snprintf(text, sizeof text, "%.3f", time.count());
  return text;
}

void AddConditions(Writer& writer, const Snapshot& snapshot) {
  constexpr const char* kName = "stmon_condition";
  Describe(writer, kName, "1 for each condition that the printer reports.");
  for (const Condition& condition : snapshot.conditions) {
    const std::string code = condition.code ? std::to_string(*condition.code) : "";
    Sample(writer, kName,
           ",code=\"" + code + "\",reason=\"" + condition.reason->keyword + "\",severity=\"" +
               SeverityWord(condition.severity) + "\"",
           "1");
  }
}

void AddTrays(Writer& writer, const Snapshot& snapshot) {
  constexpr const char* kName = "stmon_tray_level";
  bool described = false;
  for (const Tray& tray : snapshot.trays) {
    if (!tray.level) continue;
    if (!described) Describe(writer, kName, "Paper level of a tray as the printer reports it.");
    described = true;
    Sample(writer, kName,
           ",tray=\"" + std::to_string(tray.id) + "\",name=\"" + TrayLabel(tray.id) + "\"",
           std::to_string(*tray.level));
  }
}

}  // namespace

std::string MetricsReport(const Snapshot& snapshot, const LastAnswer& last_answer) {
  Writer writer{"", "printer=\"" + LabelValue(snapshot.source.name) + "\""};
  const bool up = IsGood(snapshot);
  Single(writer, "stmon_up", "1 when the printer answered the latest poll.", up ? "1" : "0");
  Single(writer, "stmon_verdict",
         "0 fine, 1 needs attention soon, 2 cannot print, 3 unknown or no response.",
         std::to_string(static_cast<int>(snapshot.verdict)));
  Single(writer, "stmon_poll_duration_seconds", "How long the latest poll took.",
         Seconds(snapshot.took));
  if (last_answer) {
    Single(writer, "stmon_last_answer_timestamp_seconds",
           "When the printer last answered, in seconds since 1970.",
           Seconds(last_answer->time_since_epoch()));
    Single(writer, "stmon_last_answer_age_seconds",
           "Age of the last good answer when this was written.",
           Seconds(snapshot.when - *last_answer));
  }
  if (!up) return writer.text;
  Single(writer, "stmon_online", "1 when the printer says that it is online.",
         snapshot.online ? "1" : "0");
  AddConditions(writer, snapshot);
  AddTrays(writer, snapshot);
  return writer.text;
}

}  // namespace stmon
