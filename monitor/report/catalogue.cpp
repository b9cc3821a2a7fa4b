#include "report/catalogue.h"

#include "nlohmann/json.hpp"
#include "words/reasons.h"
#include "words/texts.h"

namespace stmon {
namespace {

constexpr uint32_t kHighestCode = 999;  // 1000 closes the library's table

struct Variants {
  Texts list, listDuplex, flat, flatDuplex;
};

Variants AskAll(uint32_t code, const Language& language) {
  const StatusSample plain(code, false);
  const StatusSample duplex(code, true);
  return {AskTexts(plain.list, language), AskTexts(duplex.list, language),
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

void AddLanguage(std::string& report, uint32_t code, const Language& language) {
  const Variants texts = AskAll(code, language);
  const std::string name = language.code;
  AddTexts(report, (name + "              ").c_str(), texts.list);
  if (!Same(texts.listDuplex, texts.list))
    AddTexts(report, (name + " duplex unit  ").c_str(), texts.listDuplex);
  if (!Same(texts.flat, texts.list))
    AddTexts(report, (name + " flat record  ").c_str(), texts.flat);
  if (!Same(texts.flatDuplex, texts.flat))
    AddTexts(report, (name + " flat, duplex ").c_str(), texts.flatDuplex);
}

nlohmann::ordered_json TextsJson(const Texts& texts) {
  return {{"short", texts.brief}, {"detail", texts.detail}};
}

StatusRow RowOf(uint32_t code) {
  PrnInfo info{};
  info.statusCode = code;
  StatusRow row{};
  PatGetPrinterStatus(&info, &row);
  return row;
}

}  // namespace

std::vector<uint32_t> KnownCodes() {
  std::vector<uint32_t> codes;
  for (uint32_t code = 0; code <= kHighestCode; ++code) {
    PrnInfo info{};
    info.statusCode = code;
    StatusRow row{};
    if (PatGetPrinterStatus(&info, &row) == 1) codes.push_back(code);
  }
  return codes;
}

std::string CatalogueText(const Language* only) {
  std::string report;
  for (const uint32_t code : KnownCodes()) {
    const StatusSample sample(code, false);
    report += std::to_string(code) + "  level " + std::to_string(RowOf(code).level) + "  " +
              Keyword(ReasonOf(code)) + "  " + AskIcon(sample.list) + "\n";
    for (const Language* language = kLanguages; language->code; ++language) {
      if (!only || only == language) AddLanguage(report, code, *language);
    }
  }
  return report;
}

std::string CatalogueJson(const Language* only) {
  std::string report;
  for (const uint32_t code : KnownCodes()) {
    const StatusSample sample(code, false);
    nlohmann::ordered_json json{{"code", code},
                                {"level", RowOf(code).level},
                                {"reason", Keyword(ReasonOf(code))},
                                {"icon", AskIcon(sample.list)}};
    for (const Language* language = kLanguages; language->code; ++language) {
      if (only && only != language) continue;
      const Variants texts = AskAll(code, *language);
      json["texts"][language->code] = {{"list", TextsJson(texts.list)},
                                       {"list_duplex", TextsJson(texts.listDuplex)},
                                       {"flat", TextsJson(texts.flat)},
                                       {"flat_duplex", TextsJson(texts.flatDuplex)}};
    }
    report += json.dump() + "\n";
  }
  return report;
}

}  // namespace stmon
