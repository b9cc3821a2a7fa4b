#include "snapshot/snapshot.h"

#include <algorithm>

#include "snapshot/outcome.h"
#include "wire/reply_frame.h"
#include "words/labels.h"

namespace stmon {
namespace {

bool Has(const std::vector<Block>& blocks, char letter) {
  return std::any_of(blocks.begin(), blocks.end(),
                     [&](const Block& block) { return block.whole && block.letter == letter; });
}

// The library keeps the fonts that it knows; people want to see the others as well.
std::vector<std::string> FontNames(const std::vector<Block>& blocks) {
  std::vector<std::string> names;
  for (const Block& block : blocks) {
    if (block.letter == 'F' && block.whole) names = Fields(block);
  }
  return names;
}

bool IsFlat(const Snapshot& snapshot) {
  return snapshot.source.kind == RecordKind::Flat;
}

RecordFields ChosenFields(const Snapshot& snapshot) {
  return IsFlat(snapshot) ? FieldsOf(*snapshot.flat) : FieldsOf(*snapshot.record);
}

// ---- What the printer told --------------------------------------------------------------------

void ReadDeviceId(Snapshot& snapshot) {
  const std::string& text = snapshot.source.deviceId;
  if (text.empty()) return;
  const auto length = static_cast<uint32_t>(text.size());
  SetModelInfoExFromDeviceID(snapshot.record.get(), text.c_str(), length);
  SetModelInfoFromDeviceID(snapshot.flat.get(), text.c_str(), length);
  RecordFields fields = ChosenFields(snapshot);
  const bool named = !fields.model.empty() || !fields.description.empty();
  Identity& identity = snapshot.identity.emplace();
  if (named && fields.modelCode != ModelUnknown) identity.modelCode = fields.modelCode;
  identity.maker = std::move(fields.maker);
  identity.model = std::move(fields.model);
  identity.description = std::move(fields.description);
  identity.languages = std::move(fields.languages);
}

// Fills both records: whichever answers the questions, two polls are compared by the list-based
// one. Result: the blocks of the reply. Only whole ones go to the library: of a block that was cut
// off, nobody knows what it meant to say.
std::vector<Block> FillRecords(Snapshot& snapshot) {
  const Outcome outcome = snapshot.exchange.outcome;
  if (outcome != Outcome::Answered && outcome != Outcome::CutOff) return {};
  auto blocks = SplitBlocks(snapshot.exchange.reply);
  std::string bytes;
  for (const Block& block : blocks) {
    if (!block.whole) break;
    bytes += block.bytes;
  }
  const auto length = static_cast<int32_t>(bytes.size());
  SetPrnInfoExFromReadbackCmd(snapshot.record.get(), bytes.data(), length);
  SetPrnInfoFromReadbackCmd(snapshot.flat.get(), bytes.data(), length);
  return blocks;
}

void TakeStatus(Snapshot& snapshot, const RecordFields& fields) {
  snapshot.online = fields.online;
  snapshot.hasError = fields.hasError;
  snapshot.conditions = ListConditions(fields.codes);
  if (fields.currentTray != 0) snapshot.currentTray = fields.currentTray;
  if (fields.currentBin != 0 && fields.currentBin != BinUnknown)
    snapshot.currentBin = fields.currentBin;
}

// A field of the record means something only when its block was in the reply.
void TakeBlocks(Snapshot& snapshot, RecordFields fields, const std::vector<Block>& blocks) {
  snapshot.trays = std::move(fields.trays);
  std::erase_if(snapshot.trays, [](const Tray& tray) { return tray.id == 0; });
  for (Tray& tray : snapshot.trays) {
    tray.paperName = PaperLabel(tray.paper);
    if (!Has(blocks, 'Z')) tray.level.reset();
  }
  snapshot.bins = std::move(fields.bins);
  snapshot.versions = std::move(fields.versions);
  std::erase(snapshot.versions, "");
  if (Has(blocks, 'M')) snapshot.number = fields.number;
  if (Has(blocks, 'E')) snapshot.language = fields.language;
  snapshot.fonts = std::move(fields.fonts);
  snapshot.fontNames = FontNames(blocks);
  if (Has(blocks, 'A') || Has(blocks, 'C') || Has(blocks, 'D'))
    snapshot.options = std::move(fields.options);
}

// ---- What the library says about it -----------------------------------------------------------

Texts StateTexts(const Snapshot& snapshot, const Language& language) {
  if (!IsFlat(snapshot)) return AskTexts(*snapshot.record, language);
  const auto& conditions = snapshot.conditions;
  return AskTexts(*snapshot.flat, language, conditions.empty() ? 0 : conditions[0].code);
}

Texts SampleTexts(const Snapshot& snapshot, const StatusSample& sample, uint32_t code) {
  const Language& language = *snapshot.source.language;
  return IsFlat(snapshot) ? AskTexts(sample.flat, language, code) : AskTexts(sample.list, language);
}

void TakeConditionTexts(Snapshot& snapshot) {
  const auto& options = snapshot.options;
  const bool duplex =
      options && std::any_of(options->begin(), options->end(),
                             [](const Option& option) { return option.code == OptionDuplex; });
  for (Condition& condition : snapshot.conditions) {
    if (condition.known)
      condition.texts = SampleTexts(snapshot, StatusSample(condition.code, duplex), condition.code);
  }
}

// The library's short text of a mild condition reads "ready" for an offline printer as well. That
// of code 0 reads "offline" then.
std::string OfflineText(const Snapshot& snapshot) {
  StatusSample sample(0, false);
  sample.list.online = 0;
  sample.flat.online = 0;
  return SampleTexts(snapshot, sample, 0).brief;
}

std::string Headline(const Snapshot& snapshot) {
  const auto& conditions = snapshot.conditions;
  const bool mild = !conditions.empty() && conditions[0].reason->severity != Severity::Error;
  if (mild && !snapshot.online) return OfflineText(snapshot);
  if (!snapshot.texts.brief.empty()) return snapshot.texts.brief;
  if (!conditions.empty()) return ConditionText(conditions[0]);
  return snapshot.online ? "online" : "offline";
}

void TakeWords(Snapshot& snapshot) {
  snapshot.texts = StateTexts(snapshot, *snapshot.source.language);
  snapshot.icon = IsFlat(snapshot) ? AskIcon(*snapshot.flat) : AskIcon(*snapshot.record);
  if (snapshot.source.everyLanguage) {
    for (const Language& language : kLanguages)
      snapshot.allTexts.push_back(StateTexts(snapshot, language));
  }
  // The library takes a printer whose codes it does not know for ready; the exit status does not,
  // and words and icon must agree with it.
  if (!snapshot.conditions.empty() && !snapshot.conditions[0].known) {
    snapshot.texts = {};
    snapshot.icon = "BMP_ERR_CAUTION";
  }
  TakeConditionTexts(snapshot);
  snapshot.headline = Headline(snapshot);
}

void TakeNoResponse(Snapshot& snapshot) {
  const StatusSample sample(StatusNoResponse, false);
  snapshot.texts = SampleTexts(snapshot, sample, StatusNoResponse);
  snapshot.icon = IsFlat(snapshot) ? AskIcon(sample.flat) : AskIcon(sample.list);
  snapshot.headline = snapshot.texts.brief;
}

Snapshot NewSnapshot(Source source) {
  Snapshot snapshot;
  snapshot.source = std::move(source);
  snapshot.when = std::chrono::system_clock::now();
  snapshot.flat->structSize = PrnInfoSize;
  ReadDeviceId(snapshot);
  return snapshot;
}

}  // namespace

Snapshot ReadIdentity(Source source) {
  Snapshot snapshot = NewSnapshot(std::move(source));
  snapshot.exchange.outcome = Outcome::NotAsked;
  snapshot.verdict = Verdict::Fine;  // nothing was asked, so nothing is wrong
  return snapshot;
}

Snapshot ReadExchange(Source source, Exchange exchange) {
  Snapshot snapshot = NewSnapshot(std::move(source));
  snapshot.exchange = std::move(exchange);
  snapshot.trouble = TroubleText(snapshot.exchange);
  const auto blocks = FillRecords(snapshot);
  snapshot.told = Has(blocks, 'S');
  if (!snapshot.told) {
    if (snapshot.trouble.empty())
      snapshot.trouble = "the reply has no status block, so the printer's state is not known.";
    TakeNoResponse(snapshot);
    return snapshot;
  }
  RecordFields fields = ChosenFields(snapshot);
  TakeStatus(snapshot, fields);
  TakeBlocks(snapshot, std::move(fields), blocks);
  TakeWords(snapshot);
  if (IsGood(snapshot)) snapshot.verdict = Judge(snapshot.conditions, snapshot.online);
  return snapshot;
}

bool IsGood(const Snapshot& snapshot) {
  return snapshot.told && snapshot.exchange.outcome == Outcome::Answered;
}

}  // namespace stmon
