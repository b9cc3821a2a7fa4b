#include "report/json.h"
#include "report/reports.h"
#include "snapshot/outcome.h"
#include "words/clock.h"
#include "words/labels.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

// As a row of prtAlertTable would have it.
Json CodeJson(const std::optional<uint32_t>& code) {
  return code ? Json(*code) : Json(nullptr);
}

Json AlertJson(const Condition& condition) {
  const Reason& reason = *condition.reason;
  Json json{{"code", reason.alert}, {"name", AlertName(reason.alert)}, {"group", reason.group}};
  if (reason.supply != 0) json["supply_type"] = reason.supply;
  if (condition.severity != Severity::Report)
    json["severity"] = condition.severity == Severity::Error ? "critical" : "warning";
  return json;
}

Json ConditionJson(const Condition& condition) {
  const Reason& reason = *condition.reason;
  Json json{{"code", CodeJson(condition.code)},
            {"known", condition.known},
            {"dominant", condition.dominant},
            {"rank", condition.rank}};
  json["texts"] = TextsJson(condition.texts);
  if (condition.row.level != 0) json["level"] = condition.row.level;
  json["severity"] = SeverityWord(condition.severity);
  json["reason"] = Keyword(reason, condition.severity);
  if (const char* colour = TonerColour(reason.code); *colour) json["colour"] = colour;
  if (condition.tray) json["tray"] = *condition.tray;
  if (reason.alert != 0) json["alert"] = AlertJson(condition);
  if (reason.errorBits != 0) json["detected_error_state"] = ErrorBitNames(reason.errorBits);
  return json;
}

Json TrayJson(const Tray& tray) {
  Json json{{"id", tray.id}, {"name", TrayLabel(tray.id)}, {"paper_code", tray.paper}};
  if (tray.paper != 0) json["paper"] = tray.paperName;
  json["state"] = TrayStateWord(tray.state);
  if (tray.percent) json["level"] = *tray.percent;
  return json;
}

Json OptionJson(const Option& option) {
  Json json{{"code", option.code}, {"name", OptionLabel(option.code)}};
  if (option.value && *option.value != 0) json["value"] = *option.value;
  return json;
}

Json LanguageJson(uint32_t code) {
  return {{"code", code}, {"name", LanguageLabel(code)}};
}

Json IdentityJson(const Identity& identity) {
  Json json = Json::object();
  if (!identity.maker.empty()) json["maker"] = EscapeBytes(identity.maker);
  if (!identity.model.empty()) json["model"] = EscapeBytes(identity.model);
  if (!identity.description.empty()) json["description"] = EscapeBytes(identity.description);
  if (identity.modelCode) json["model_code"] = *identity.modelCode;
  for (const uint32_t code : identity.languages)
    json["languages"].push_back(LanguageJson(code));
  return json;
}

// What the printer did not tell has no key: nobody shall take a default for its answer.
void AddState(Json& json, const Snapshot& snapshot) {
  json["online"] = snapshot.online;
  json["printer_state"] = StateWord(snapshot.conditions);
  json["printer_state_reasons"] = StateReasons(snapshot.conditions);
  json["language"] = snapshot.source.language->code;
  json["status"] = snapshot.headline;
  json["texts"] = TextsJson(snapshot.texts);
  json["icon"] = snapshot.icon;
  json["dominant"] = DominantCodes(snapshot.conditions);
  json["why"] = WhyText(snapshot.conditions);
  json["conditions"] = Json::array();
  for (const Condition& condition : snapshot.conditions)
    json["conditions"].push_back(ConditionJson(condition));
  if (snapshot.currentTray) json["tray_in_use"] = *snapshot.currentTray;
  if (snapshot.currentBin) json["bin_in_use"] = *snapshot.currentBin;
  for (const Tray& tray : snapshot.trays)
    json["trays"].push_back(TrayJson(tray));
  for (const Bin& bin : snapshot.bins)
    json["bins"].push_back({{"id", bin.id}, {"state", bin.state}});
}

void AddEquipment(Json& json, const Snapshot& snapshot) {
  if (snapshot.options) {
    json["options"] = Json::array();
    for (const Option& option : *snapshot.options)
      json["options"].push_back(OptionJson(option));
  }
  for (const std::string& version : snapshot.versions)
    json["versions"].push_back(EscapeBytes(version));
  if (snapshot.number) json["number"] = *snapshot.number;
  if (snapshot.language) json["printer_language"] = LanguageJson(*snapshot.language);
  if (!snapshot.fonts.empty()) json["font_codes"] = snapshot.fonts;
  for (const std::string& name : snapshot.fontNames)
    json["fonts"].push_back(EscapeBytes(name));
}

}  // namespace

std::string JsonReport(const Snapshot& snapshot, bool with_bytes) {
  Json json;
  if (!snapshot.source.name.empty()) json["source"] = CleanUtf8(snapshot.source.name);
  json["time"] = UtcText(snapshot.when);
  json["outcome"] = OutcomeWord(snapshot.exchange.outcome);
  if (snapshot.took.count() != 0) json["milliseconds"] = snapshot.took.count();
  if (!snapshot.trouble.empty()) json["trouble"] = CleanUtf8(snapshot.trouble);
  json["exit_status"] = static_cast<int>(snapshot.verdict);
  if (snapshot.identity) json["device_id"] = IdentityJson(*snapshot.identity);
  if (snapshot.told) {
    json["record"] = snapshot.source.kind == RecordKind::Flat ? "flat" : "list";
    AddState(json, snapshot);
    for (size_t i = 0; i < snapshot.allTexts.size(); ++i)
      json["all_texts"][kLanguages[i].code] = TextsJson(snapshot.allTexts[i]);
    AddEquipment(json, snapshot);
  }
  if (with_bytes) json["raw"] = RawJson(snapshot);
  return json.dump() + "\n";
}

}  // namespace stmon
