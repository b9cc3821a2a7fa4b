#include "reports.h"
#include "safe_text.h"

namespace stmon {
namespace {

constexpr size_t kLabelWidth = 12;  // columns

void AddRow(std::string& report, std::string_view label, std::string_view value) {
  report += label;
  report.append(label.size() < kLabelWidth ? kLabelWidth - label.size() : 1, ' ');
  report += value;
  report += '\n';
}

std::string Padded(std::string text, size_t width) {
  const size_t columns = DisplayWidth(text);
  if (columns < width) text.append(width - columns, ' ');
  return text;
}

std::string ConditionText(const Condition& condition) {
  const std::string code = "code " + std::to_string(condition.code);
  return condition.known ? code + ", level " + std::to_string(condition.row.level)
                         : code + ", unknown to this program";
}

std::string TrayText(const Tray& tray, bool in_use) {
  std::string text = Padded(TrayLabel(tray.id), 20) + Padded(PaperLabel(tray.paper), 16);
  if (tray.level) text += "level " + std::to_string(*tray.level);
  if (in_use) text = Padded(text, 48) + "in use";
  text.resize(text.find_last_not_of(' ') + 1);
  return text;
}

std::string BinText(const Bin& bin, bool in_use) {
  const std::string name = bin.id == BinUnknown ? "unknown" : std::to_string(bin.id);
  std::string text = Padded("Bin " + name, 20) + "state " + std::to_string(bin.state);
  if (in_use) text = Padded(text, 48) + "in use";
  return text;
}

}  // namespace

std::string TextReport(const Snapshot& snapshot) {
  std::string report;
  AddRow(report, "Printer", CleanUtf8(snapshot.source));
  if (!snapshot.told) return report;
  const char* label = "Status";
  for (const Condition& condition : snapshot.conditions) {
    AddRow(report, label, ConditionText(condition));
    label = "";
  }
  AddRow(report, "Online", snapshot.online ? "yes" : "no");
  label = "Trays";
  for (const Tray& tray : snapshot.trays) {
    AddRow(report, label, TrayText(tray, snapshot.current_tray == tray.id));
    label = "";
  }
  label = "Bins";
  for (const Bin& bin : snapshot.bins) {
    AddRow(report, label, BinText(bin, snapshot.current_bin == bin.id));
    label = "";
  }
  return report;
}

}  // namespace stmon
