#include "report/reports.h"
#include "words/labels.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

constexpr size_t kLabelWidth = 14;  // columns

void AddRow(std::string& report, std::string_view label, std::string_view value) {
  report += label;
  report.append(label.size() < kLabelWidth ? kLabelWidth - label.size() : 1, ' ');
  report += value;
  report += '\n';
}

// By columns, which are not bytes as soon as a name is not English.
std::string Padded(std::string text, size_t width) {
  const size_t columns = DisplayWidth(text);
  if (columns < width) text.append(width - columns, ' ');
  return text;
}

std::string TrayText(const Tray& tray, bool in_use) {
  std::string text = Padded(TrayLabel(tray.id), 20) + Padded(tray.paperName, 16);
  if (tray.level) text += "level " + std::to_string(*tray.level);
  if (in_use) text = Padded(text, 48) + "in use";
  text.resize(text.find_last_not_of(' ') + 1);
  return text;
}

std::string BinText(const Bin& bin, bool in_use) {
  std::string text = Padded(BinLabel(bin.id), 20) + "state " + std::to_string(bin.state);
  if (in_use) text = Padded(text, 48) + "in use";
  return text;
}

void AddList(std::string& report, std::string_view label, const std::vector<std::string>& values) {
  for (const std::string& value : values) {
    AddRow(report, label, value);
    label = "";
  }
}

std::string Joined(const std::vector<std::string>& values) {
  std::string text;
  for (const std::string& value : values)
    text += (text.empty() ? "" : ", ") + value;
  return text;
}

template <class Item, class Name>
std::vector<std::string> Names(const std::vector<Item>& items, Name name) {
  std::vector<std::string> names;
  for (const Item& item : items)
    names.push_back(name(item));
  return names;
}

void AddLines(std::string& report, std::string_view label, std::string_view text) {
  while (!text.empty()) {
    const size_t end = text.find('\n');
    AddRow(report, label, text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    label = "";
  }
}

void AddLanguages(std::string& report, const std::vector<Texts>& allTexts) {
  const Language* language = kLanguages;
  for (const Texts& texts : allTexts) {
    AddRow(report, std::string("  ") + language->code, texts.brief);
    AddLines(report, "", texts.detail);
    ++language;
  }
}

// A single known condition is told in full by the status line.
void AddConditions(std::string& report, const Snapshot& snapshot) {
  const char* label = "Conditions";
  const auto& conditions = snapshot.conditions;
  const bool toldAlready = conditions.size() == 1 && conditions[0].known && !conditions[0].tray;
  if (toldAlready) return;
  for (const Condition& condition : snapshot.conditions) {
    AddRow(report, label,
           Padded(condition.code ? std::to_string(*condition.code) : "-", 5) +
               Padded(SeverityWord(condition.severity), 9) + ConditionText(condition));
    label = "";
  }
}

void AddIdentity(std::string& report, const Identity& identity) {
  if (!identity.model.empty()) AddRow(report, "Model", EscapeBytes(identity.model));
  if (!identity.maker.empty()) AddRow(report, "Maker", EscapeBytes(identity.maker));
  if (!identity.description.empty() && identity.description != identity.model)
    AddRow(report, "Described as", EscapeBytes(identity.description));
  if (!identity.languages.empty())
    AddRow(report, "Speaks", Joined(Names(identity.languages, LanguageLabel)));
}

void AddEquipment(std::string& report, const Snapshot& snapshot) {
  if (snapshot.options) {
    const auto names =
        Names(*snapshot.options, [](const Option& option) { return OptionLabel(option.code); });
    AddRow(report, "Options", names.empty() ? "none" : Joined(names));
  }
  if (snapshot.language) AddRow(report, "Language", LanguageLabel(*snapshot.language));
  if (!snapshot.versions.empty())
    AddRow(report, "Versions", Joined(Names(snapshot.versions, EscapeBytes)));
  if (snapshot.number) AddRow(report, "Number", std::to_string(*snapshot.number));
  if (!snapshot.fontNames.empty())
    AddRow(report, "Fonts", Joined(Names(snapshot.fontNames, EscapeBytes)));
}

}  // namespace

std::string TextReport(const Snapshot& snapshot) {
  std::string report;
  if (!snapshot.source.name.empty()) AddRow(report, "Printer", CleanUtf8(snapshot.source.name));
  if (snapshot.identity) AddIdentity(report, *snapshot.identity);
  if (!snapshot.told) return report;
  AddRow(report, "Status", snapshot.headline);
  AddLines(report, "", snapshot.texts.detail);
  AddLanguages(report, snapshot.allTexts);
  AddRow(report, "Online", snapshot.online ? "yes" : "no");
  AddConditions(report, snapshot);
  AddList(report, "Trays", Names(snapshot.trays, [&](const Tray& tray) {
            return TrayText(tray, snapshot.currentTray == tray.id);
          }));
  AddList(report, "Bins", Names(snapshot.bins, [&](const Bin& bin) {
            return BinText(bin, snapshot.currentBin == bin.id);
          }));
  AddEquipment(report, snapshot);
  return report;
}

}  // namespace stmon
