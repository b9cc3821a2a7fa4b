#include "report/json.h"
#include "report/reports.h"
#include "snapshot/outcome.h"
#include "words/clock.h"
#include "words/labels.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

template <class Items, class Convert>
Json ListJson(const Items& items, Convert convert) {
  Json list = Json::array();
  for (const auto& item : items)
    list.push_back(convert(item));
  return list;
}

Json CleanOrNull(const std::string& text) {
  return text.empty() ? Json() : Json(CleanUtf8(text));
}

// As the Printer MIB tells it; null for what it has no alert for.
Json AlertJson(const Condition& condition) {
  const Reason& reason = *condition.reason;
  if (reason.alert == 0) return nullptr;
  Json json{{"code", reason.alert}, {"name", AlertName(reason.alert)}, {"group", reason.group}};
  json["supply_type"] = reason.supply == 0 ? Json() : Json(reason.supply);
  json["severity"] = condition.severity == Severity::Error     ? Json("critical")
                     : condition.severity == Severity::Warning ? Json("warning")
                                                               : Json();
  return json;
}

Json ConditionJson(const Condition& condition, const Language& language) {
  Json json = FindingJson(condition, language);
  json["known"] = condition.known;
  json["dominant"] = condition.dominant;
  json["rank"] = condition.rank;
  json["texts"] = TextsJson(condition.texts);
  json["status_level"] = condition.row.level == 0 ? Json() : Json(condition.row.level);
  json["alert"] = AlertJson(condition);
  json["detected_error_state"] = ErrorBitNames(condition.reason->errorBits);
  return json;
}

Json IdentityJson(const std::optional<Identity>& identity) {
  if (!identity) return nullptr;
  return {{"maker", BytesOrNull(identity->maker)},
          {"model", BytesOrNull(identity->model)},
          {"description", BytesOrNull(identity->description)},
          {"model_code", OrNull(identity->modelCode)},
          {"languages", ListJson(identity->languages, LanguageJson)}};
}

// What follows from the conditions; all of it is unknown when nobody was asked.
void AddVerdict(Json& json, const Snapshot& snapshot) {
  const bool asked = snapshot.exchange.outcome != Outcome::NotAsked;
  const auto& conditions = snapshot.conditions;
  json["exit_status"] = static_cast<int>(snapshot.verdict);
  json["verdict"] = asked ? Json(VerdictWord(snapshot.verdict)) : Json();
  json["printer_state"] = asked ? Json(StateWord(conditions)) : Json();
  json["printer_state_reasons"] = asked ? Json(StateReasons(conditions)) : Json::array();
  json["language"] = snapshot.source.language->code;
  json["status"] = asked ? Json(snapshot.headline) : Json();
  json["texts"] = TextsJson(snapshot.texts);
  json["icon"] = asked ? Json(snapshot.icon) : Json();
  json["dominant"] = DominantCodes(conditions);
  json["why"] = asked ? Json(WhyText(conditions)) : Json();
  json["conditions"] = ListJson(conditions, [&](const Condition& condition) {
    return ConditionJson(condition, *snapshot.source.language);
  });
}

void AddEquipment(Json& json, const Snapshot& snapshot) {
  json["online"] = snapshot.told ? Json(snapshot.online) : Json();
  json["tray_in_use"] = OrNull(snapshot.currentTray);
  json["bin_in_use"] = OrNull(snapshot.currentBin);
  json["trays"] = ListJson(snapshot.trays, TrayJson);
  json["bins"] = ListJson(snapshot.bins, BinJson);
  json["options"] = ListJson(snapshot.options.value_or(std::vector<Option>()), OptionJson);
  json["versions"] = ListJson(snapshot.versions, EscapeBytes);
  json["number"] = OrNull(snapshot.number);
  json["printer_language"] = snapshot.language ? LanguageJson(*snapshot.language) : Json();
  json["font_codes"] = snapshot.fonts;
  json["fonts"] = ListJson(snapshot.fontNames, EscapeBytes);
}

}  // namespace

Json BytesOrNull(const std::string& bytes) {
  return bytes.empty() ? Json() : Json(EscapeBytes(bytes));
}

Json FindingJson(const Condition& condition, const Language& language) {
  const char* colour = TonerColour(condition.reason->code);
  return {{"code", OrNull(condition.code)},
          {"reason", Keyword(*condition.reason, condition.severity)},
          {"severity", SeverityWord(condition.severity)},
          {"colour", *colour ? Json(colour) : Json()},
          {"tray", OrNull(condition.tray)},
          {"text", ConditionText(condition, language)}};
}

Json TrayJson(const Tray& tray) {
  return {{"id", tray.id},
          {"name", TrayLabel(tray.id)},
          {"paper_code", tray.paper},
          {"paper", tray.paper == 0 ? Json() : Json(tray.paperName)},
          {"state", TrayStateWord(tray.state)},
          {"level", OrNull(tray.percent)}};
}

Json BinJson(const Bin& bin) {
  return {{"id", bin.id}, {"name", BinLabel(bin.id)}, {"state", bin.state}};
}

Json OptionJson(const Option& option) {
  return {
      {"code", option.code}, {"name", OptionLabel(option.code)}, {"value", OrNull(option.value)}};
}

Json LanguageJson(uint32_t code) {
  return {{"code", code}, {"name", LanguageLabel(code)}};
}

std::string JsonReport(const Snapshot& snapshot, bool with_bytes) {
  Json json = NewDocument("report");
  json["source"] = CleanOrNull(snapshot.source.name);
  json["time"] = UtcText(snapshot.when);
  json["outcome"] = OutcomeWord(snapshot.exchange.outcome);
  json["milliseconds"] = snapshot.source.query.empty() ? Json() : Json(snapshot.took.count());
  json["trouble"] = CleanOrNull(snapshot.trouble);
  json["record"] = snapshot.source.kind == RecordKind::Flat ? "flat" : "list";
  AddVerdict(json, snapshot);
  AddEquipment(json, snapshot);
  json["device_id"] = IdentityJson(snapshot.identity);
  for (size_t i = 0; i < snapshot.allTexts.size(); ++i)
    json["all_texts"][kLanguages[i].code] = TextsJson(snapshot.allTexts[i]);
  if (with_bytes) json["raw"] = RawJson(snapshot);
  return json.dump() + "\n";
}

}  // namespace stmon
