#include <algorithm>
#include <utility>

#include "report/reports.h"
#include "words/labels.h"
#include "words/phrases.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

using Row = std::vector<std::string>;  // its columns

// The rows as lines, their columns two blanks apart. `widths`: the least that the columns take.
std::vector<std::string> Aligned(const std::vector<Row>& rows, std::vector<size_t> widths = {}) {
  for (const Row& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], DisplayWidth(row[i]));
  }
  std::vector<std::string> lines;
  for (const Row& row : rows) {
    std::string& line = lines.emplace_back();
    for (size_t i = 0; i < row.size(); ++i)
      line += Padded(row[i], widths[i] == 0 ? 0 : widths[i] + 2);
    line.resize(line.find_last_not_of(' ') + 1);
  }
  return lines;
}

// A report under way: rows of a label and a value.
struct Report {
  const Snapshot& snapshot;
  const Language& language;
  std::vector<Row> rows;
};

std::string Say(const Report& report, Phrase phrase) {
  return stmon::Say(phrase, report.language);
}

// Of the widest label that a row may have, so that all reports in a language look alike.
size_t LabelWidth(const Language& language) {
  size_t width = 0;
  for (int label = 0; label <= static_cast<int>(Phrase::Fonts); ++label)
    width = std::max(width, DisplayWidth(stmon::Say(static_cast<Phrase>(label), language)));
  return width;
}

void AddRow(Report& report, Phrase label, std::string value) {
  report.rows.push_back({Say(report, label), std::move(value)});
}

// One row each; the label stands in the first.
void AddList(Report& report, std::string label, const std::vector<std::string>& values) {
  for (const std::string& value : values)
    report.rows.push_back({std::exchange(label, ""), value});
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::string Joined(const std::vector<std::string>& values) {
  std::string text;
  for (const std::string& value : values)
    text += (text.empty() ? "" : ", ") + value;
  return text;
}

template <class Item, class Name>
std::string Names(const std::vector<Item>& items, Name name) {
  std::vector<std::string> names;
  for (const Item& item : items)
    names.push_back(name(item));
  return Joined(names);
}

void AddIdentity(Report& report, const Identity& identity) {
  if (!identity.model.empty()) AddRow(report, Phrase::Model, EscapeBytes(identity.model));
  if (!identity.maker.empty()) AddRow(report, Phrase::Maker, EscapeBytes(identity.maker));
  if (!identity.description.empty() && identity.description != identity.model)
    AddRow(report, Phrase::Description, EscapeBytes(identity.description));
  if (!identity.languages.empty()) {
    AddRow(report, Phrase::Speaks, Names(identity.languages, [&](uint32_t code) {
             return LanguageLabel(code, report.language);
           }));
  }
}

void AddStatus(Report& report) {
  const Snapshot& snapshot = report.snapshot;
  AddRow(report, Phrase::Status, snapshot.headline);
  AddList(report, "", Lines(snapshot.texts.detail));
  const Language* language = kLanguages;
  for (const Texts& texts : snapshot.allTexts) {
    AddList(report, std::string("  ") + language->code, Lines(texts.brief + "\n" + texts.detail));
    ++language;
  }
  AddRow(report, Phrase::Online, Say(report, snapshot.online ? Phrase::Yes : Phrase::No));
}

// A single known condition is told in full by the status line.
void AddConditions(Report& report) {
  const auto& conditions = report.snapshot.conditions;
  const bool toldAlready = conditions.size() == 1 && conditions[0].known && !conditions[0].tray;
  if (toldAlready) return;
  std::vector<Row> rows;
  for (const Condition& condition : conditions) {
    rows.push_back({condition.code ? std::to_string(*condition.code) : "-",
                    SeverityLabel(condition.severity, report.language),
                    ConditionText(condition, report.language)});
  }
  AddList(report, Say(report, Phrase::Conditions), Aligned(rows));
}

void AddTrays(Report& report) {
  const Snapshot& snapshot = report.snapshot;
  const std::string in_use = Say(report, Phrase::InUse);
  std::vector<Row> rows;
  for (const Tray& tray : snapshot.trays) {
    const std::string level = LevelLabel(tray.paper, tray.level, report.language);
    rows.push_back({TrayLabel(tray.id, report.language), PaperLabel(tray.paper, report.language),
                    level.empty() ? "" : stmon::Say(Phrase::Level, report.language, {level}),
                    snapshot.currentTray == tray.id ? in_use : ""});
  }
  AddList(report, Say(report, Phrase::Trays), Aligned(rows));
  rows.clear();
  for (const Bin& bin : snapshot.bins) {
    rows.push_back({BinLabel(bin.id, report.language), BinStateLabel(bin.state, report.language),
                    snapshot.currentBin == bin.id ? in_use : ""});
  }
  AddList(report, Say(report, Phrase::Bins), Aligned(rows));
}

void AddEquipment(Report& report) {
  const Snapshot& snapshot = report.snapshot;
  if (snapshot.options) {
    const std::string names = Names(*snapshot.options, [&](const Option& option) {
      return OptionLabel(option.code, report.language);
    });
    AddRow(report, Phrase::Options, names.empty() ? Say(report, Phrase::None) : names);
  }
  if (snapshot.language)
    AddRow(report, Phrase::PrinterLanguage, LanguageLabel(*snapshot.language, report.language));
  if (!snapshot.versions.empty())
    AddRow(report, Phrase::Versions, Names(snapshot.versions, EscapeBytes));
  if (snapshot.number) AddRow(report, Phrase::Number, std::to_string(*snapshot.number));
  if (!snapshot.fontNames.empty())
    AddRow(report, Phrase::Fonts, Names(snapshot.fontNames, EscapeBytes));
}

}  // namespace

std::string TextReport(const Snapshot& snapshot) {
  Report report{snapshot, *snapshot.source.language, {}};
  if (!snapshot.source.name.empty())
    AddRow(report, Phrase::Printer, CleanUtf8(snapshot.source.name));
  if (snapshot.identity) AddIdentity(report, *snapshot.identity);
  if (snapshot.told) {
    AddStatus(report);
    AddConditions(report);
    AddTrays(report);
    AddEquipment(report);
  }
  std::string text;
  for (const std::string& line : Aligned(report.rows, {LabelWidth(report.language)}))
    text += line + "\n";
  return text;
}

}  // namespace stmon
