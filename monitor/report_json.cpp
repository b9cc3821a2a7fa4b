#include <ctime>

#include "nlohmann/json.hpp"
#include "reports.h"
#include "safe_text.h"

namespace stmon {
namespace {

using Json = nlohmann::ordered_json;

// "2001-02-03T04:05:06Z"
std::string UtcText(std::chrono::system_clock::time_point when) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
  std::tm parts{};
#ifdef _WIN32
  gmtime_s(&parts, &seconds);
#else
  gmtime_r(&seconds, &parts);
#endif
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
  return text;
}

Json ConditionJson(const Condition& condition) {
  Json json{{"code", condition.code}, {"known", condition.known}};
  if (condition.known) json["level"] = condition.row.level;
  return json;
}

Json TrayJson(const Tray& tray) {
  Json json{{"id", tray.id}, {"name", TrayLabel(tray.id)}, {"paper_code", tray.paper}};
  if (tray.level) json["level"] = *tray.level;
  return json;
}

}  // namespace

std::string JsonReport(const Snapshot& snapshot) {
  Json json;
  json["source"] = CleanUtf8(snapshot.source);
  json["time"] = UtcText(snapshot.when);
  json["milliseconds"] = snapshot.took.count();
  json["outcome"] = OutcomeWord(snapshot.exchange.outcome);
  if (!snapshot.trouble.empty()) json["trouble"] = CleanUtf8(snapshot.trouble);
  json["exit_status"] = static_cast<int>(snapshot.verdict);
  if (snapshot.told) {
    json["online"] = snapshot.online;
    json["conditions"] = Json::array();
    for (const Condition& condition : snapshot.conditions)
      json["conditions"].push_back(ConditionJson(condition));
    if (snapshot.current_tray) json["tray_in_use"] = *snapshot.current_tray;
    if (snapshot.current_bin) json["bin_in_use"] = *snapshot.current_bin;
    json["trays"] = Json::array();
    for (const Tray& tray : snapshot.trays)
      json["trays"].push_back(TrayJson(tray));
    json["bins"] = Json::array();
    for (const Bin& bin : snapshot.bins)
      json["bins"].push_back({{"id", bin.id}, {"state", bin.state}});
  }
  return json.dump() + "\n";
}

}  // namespace stmon
