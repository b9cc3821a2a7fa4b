#include "report/catalogue.h"

#include "report/json.h"

namespace stmon {
namespace {

constexpr uint32_t kHighestCode = 999;  // 1000 closes the library's table

StatusWords AskWords(uint32_t code, const Language& language) {
  const StatusSample plain(code, false);
  const StatusSample duplex(code, true);
  return {&language, AskTexts(plain.list, language), AskTexts(duplex.list, language),
          AskTexts(plain.flat, language, code), AskTexts(duplex.flat, language, code)};
}

bool Same(const Texts& left, const Texts& right) {
  return left.brief == right.brief && left.detail == right.detail;
}

void AddTexts(std::string& report, const char* label, const Texts& texts) {
  report += std::string("  ") + label + "  " + (texts.brief.empty() ? "(no text)" : texts.brief);
  report += '\n';
  std::string detail = texts.detail;
  for (size_t at = 0; !detail.empty();) {
    const size_t end = detail.find('\n', at);
    report += "                    " + detail.substr(at, end == std::string::npos ? end : end - at);
    report += '\n';
    if (end == std::string::npos) break;
    at = end + 1;
  }
}

void AddWords(std::string& report, const StatusWords& words) {
  const std::string name = words.language->code;
  AddTexts(report, (name + "              ").c_str(), words.list);
  if (!Same(words.listDuplex, words.list))
    AddTexts(report, (name + " duplex unit  ").c_str(), words.listDuplex);
  if (!Same(words.flat, words.list))
    AddTexts(report, (name + " flat record  ").c_str(), words.flat);
  if (!Same(words.flatDuplex, words.flat))
    AddTexts(report, (name + " flat, duplex ").c_str(), words.flatDuplex);
}

}  // namespace

std::vector<CatalogueEntry> AskCatalogue(const Language* only) {
  std::vector<CatalogueEntry> catalogue;
  for (uint32_t code = 0; code <= kHighestCode; ++code) {
    StatusRow row{};
    if (!AskRow(code, row)) continue;
    const StatusSample sample(code, false);
    CatalogueEntry& entry = catalogue.emplace_back();
    entry.code = code;
    entry.level = row.level;
    entry.reason = &ReasonOf(code);
    entry.icon = AskIcon(sample.list);
    for (const Language& language : kLanguages) {
      if (!only || only == &language) entry.words.push_back(AskWords(code, language));
    }
  }
  return catalogue;
}

std::string CatalogueText(const std::vector<CatalogueEntry>& catalogue) {
  std::string report;
  for (const CatalogueEntry& entry : catalogue) {
    report += std::to_string(entry.code) + "  level " + std::to_string(entry.level) + "  " +
              Keyword(*entry.reason) + "  " + entry.icon + "\n";
    for (const StatusWords& words : entry.words)
      AddWords(report, words);
  }
  return report;
}

std::string CatalogueJson(const std::vector<CatalogueEntry>& catalogue) {
  std::string report;
  for (const CatalogueEntry& entry : catalogue) {
    Json json = NewDocument("catalogue");
    json["code"] = entry.code;
    json["status_level"] = entry.level;
    json["reason"] = Keyword(*entry.reason);
    json["severity"] = SeverityWord(entry.reason->severity);
    json["icon"] = entry.icon;
    for (const StatusWords& words : entry.words) {
      json["texts"][words.language->code] = {{"list", TextsJson(words.list)},
                                             {"list_duplex", TextsJson(words.listDuplex)},
                                             {"flat", TextsJson(words.flat)},
                                             {"flat_duplex", TextsJson(words.flatDuplex)}};
    }
    report += json.dump() + "\n";
  }
  return report;
}

}  // namespace stmon
