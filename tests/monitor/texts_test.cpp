#include "words/texts.h"

#include <sstream>

#include "doctest/doctest.h"
#include "nlohmann/json.hpp"
#include "report/catalogue.h"
#include "report/reports.h"
#include "snapshot/ranking.h"

namespace {

stmon::Snapshot Told(const std::string& status, stmon::RecordKind kind, const char* language,
                     const char* duplex = "0") {
  const std::string reply = "\033S\r" + status + "\r0\r1\r1\n\033C\r" + duplex + "\n\033 ";
  stmon::Source source{"test", "", "", kind, stmon::FindLanguage(language), true};
  return stmon::ReadExchange(source, stmon::JudgeReply(reply));
}

}  // namespace

TEST_CASE("status, detail and icon in the chosen language, as UTF-8") {
  using stmon::RecordKind;
  struct Row {
    std::string status;
    RecordKind kind;
    const char* language;
    const char* brief;
    const char* detail;
    const char* icon;
  };
  const Row rows[] = {
      {"32", RecordKind::List, "EN", "No Paper", "Add paper in the indicated tray.",
       "ICO_ERR_PAPER"},
      {"71,69", RecordKind::List, "EN", "No Toner", "Toner is empty.\nAdd Toner.\nCyan  Yellow",
       "ICO_ERR_TONER"},
      {"32,48", RecordKind::List, "jp", "要ｻｰﾋﾞｽ連絡", nullptr, "ICO_ERR_SERVICE"},
      {"777", RecordKind::List, "EN", "", "", "BMP_ERR_CAUTION"},
      {"777", RecordKind::Flat, "EN", "", "", "BMP_ERR_CAUTION"},
      {"37", RecordKind::Flat, "DE", "Abdeckung offen", nullptr, "ICO_ERR_COVER"},
#ifndef _WIN32  // elsewhere the flat record's texts depend on the system's own code page
      {"71,69", RecordKind::Flat, "EN", "No Toner", "Toner is empty.\nAdd Toner.\nｼｱﾝ  ｲｴﾛ-",
       "ICO_ERR_TONER"},
      {"32", RecordKind::Flat, "CS", "Došel papír", nullptr, "ICO_ERR_PAPER"},
#endif
  };
  for (const Row& row : rows) {
    CAPTURE(row.status);
    CAPTURE(row.language);
    const auto snapshot = Told(row.status, row.kind, row.language);
    CHECK(snapshot.texts.brief == row.brief);
    if (row.detail) CHECK(snapshot.texts.detail == row.detail);
    CHECK(snapshot.icon == row.icon);
  }
}

TEST_CASE("the most important condition is told first, and why it won") {
  const auto snapshot = Told("65,72,777,32,69", stmon::RecordKind::List, "EN");
  CHECK(stmon::DominantCodes(snapshot.conditions) == std::vector<uint32_t>{32});
  std::vector<uint32_t> codes, ranks;
  for (const stmon::Condition& condition : snapshot.conditions) {
    codes.push_back(condition.code.value_or(0));
    ranks.push_back(condition.rank);
  }
  CHECK(codes == std::vector<uint32_t>{32, 72, 69, 65, 777});
  CHECK(ranks == std::vector<uint32_t>{1, 2, 2, 3, 4});
  const auto json = nlohmann::json::parse(stmon::JsonReport(snapshot));
  CHECK(json["dominant"] == nlohmann::json::parse("[32]"));
  CHECK(json["conditions"][1]["colour"] == "black");
  CHECK(json["conditions"][4]["reason"] == "other-warning");
  CHECK(json["all_texts"].size() == std::size(stmon::kLanguages));
  CHECK(stmon::RankCodes({50, 52, 7}) == std::vector<std::vector<uint32_t>>{{50, 52}});
}

TEST_CASE("a duplex unit in the way is told of") {
  const auto plain = Told("46", stmon::RecordKind::List, "EN", "0");
  const auto duplex = Told("46", stmon::RecordKind::List, "EN", "1");
  CHECK(duplex.texts.detail ==
        plain.texts.detail + "\n*To open Top Cover, open Duplex Unit first.");
  CHECK(duplex.conditions[0].texts.detail == duplex.texts.detail);
}

TEST_CASE("the catalogue has every status in every language") {
  const auto catalogue = stmon::AskCatalogue(nullptr);
  std::istringstream lines(stmon::CatalogueJson(catalogue));
  size_t count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    const auto json = nlohmann::json::parse(line);
    CAPTURE(json["code"].get<int>());
    CHECK(json["texts"].size() == std::size(stmon::kLanguages));
    CHECK(json["texts"]["JP"]["list"]["short"] != "");
    // Two states have words in Japanese alone.
    const bool japanese_only = json["code"] == 4 || json["code"] == 34;
    CHECK((json["texts"]["EN"]["list"]["short"] == "") == japanese_only);
  }
  CHECK(count == catalogue.size());
  CHECK(count > 50);
}
