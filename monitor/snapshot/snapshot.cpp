#include "snapshot/snapshot.h"

#include <algorithm>

#include "snapshot/device_id.h"
#include "snapshot/outcome.h"
#include "wire/reply_frame.h"
#include "words/labels.h"
#include "words/own_texts.h"

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
  if (snapshot.source.deviceId.empty()) return;
  const std::string text = PlainDeviceId(snapshot.source.deviceId);
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
  const bool arrived =
      outcome == Outcome::Answered || outcome == Outcome::CutOff || outcome == Outcome::StillComing;
  if (!arrived) return {};
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
  if (fields.currentTray != 0) snapshot.currentTray = fields.currentTray;
  if (fields.currentBin != 0 && fields.currentBin != BinUnknown)
    snapshot.currentBin = fields.currentBin;
}

TrayState StateOf(const Tray& tray) {
  constexpr uint32_t kEmptyLevel = 1;  // and below, as the library takes it
  if (tray.paper == PaperTrayMissing) return TrayState::NotInPlace;
  if (tray.paper == PaperNone || (tray.level && *tray.level <= kEmptyLevel))
    return TrayState::Empty;
  return tray.paper != 0 || tray.level ? TrayState::Paper : TrayState::Unknown;
}

// A level is a percentage or a number whose meaning nobody knows; that of a tray that is out, or
// without any paper, is what it was before.
std::optional<uint32_t> PercentOf(const Tray& tray) {
  if (tray.paper == PaperNone) return 0;
  const bool known = tray.state != TrayState::NotInPlace && tray.level && *tray.level <= 100;
  return known ? tray.level : std::nullopt;
}

// A field of the record means something only when its block was in the reply.
void TakeBlocks(Snapshot& snapshot, RecordFields fields, const std::vector<Block>& blocks) {
  snapshot.trays = std::move(fields.trays);
  std::erase_if(snapshot.trays, [](const Tray& tray) { return tray.id == 0; });
  for (Tray& tray : snapshot.trays) {
    tray.paperName = PaperLabel(tray.paper);
    if (!Has(blocks, 'Z')) tray.level.reset();
    tray.state = StateOf(tray);
    tray.percent = PercentOf(tray);
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

// ---- What is the matter ----------------------------------------------------------------------

constexpr uint32_t kNoPaper = 32, kTrayNotPlaced = 33, kMisfeedAtTray = 44;  // status codes

// The status code that says what the tray's state is; 0 when nothing is the matter.
uint32_t TrayStatus(TrayState state) {
  if (state == TrayState::NotInPlace) return kTrayNotPlaced;
  return state == TrayState::Empty ? kNoPaper : 0;
}

// Some status codes speak of the tray in use; what is the matter with it and is not reported is
// found here.
void AddTrayInUse(std::vector<Condition>& conditions, const Snapshot& snapshot) {
  const uint32_t id = *snapshot.currentTray;
  for (Condition& condition : conditions) {
    const uint32_t code = condition.reason->code;
    if (code == kNoPaper || code == kTrayNotPlaced || code == kMisfeedAtTray) condition.tray = id;
  }
  const auto tray = std::find_if(snapshot.trays.begin(), snapshot.trays.end(),
                                 [&](const Tray& each) { return each.id == id; });
  const uint32_t code = tray == snapshot.trays.end() ? 0 : TrayStatus(tray->state);
  const bool reported =
      std::any_of(conditions.begin(), conditions.end(),
                  [&](const Condition& condition) { return condition.reason->code == code; });
  if (code != 0 && !reported) conditions.push_back(TrayCondition(code, id));
}

void TakeConditions(Snapshot& snapshot, const std::vector<uint32_t>& codes) {
  auto& conditions = snapshot.conditions;
  if (snapshot.told) {
    conditions = ReportedConditions(codes);
    if (snapshot.currentTray) AddTrayInUse(conditions, snapshot);
    if (!snapshot.online) conditions.push_back(OfflineCondition(snapshot.source.offlineAs));
  }
  if (!IsGood(snapshot)) conditions.push_back(NoAnswerCondition());
  RankConditions(conditions);
  snapshot.verdict = Judge(conditions);
}

// ---- What the library says about it -----------------------------------------------------------

using Codes = std::vector<uint32_t>;

Texts TextsOf(const Snapshot& snapshot, const Codes& codes, const Language& language) {
  if (codes[0] == kOtherCode) return {};
  const auto& options = snapshot.options;
  const bool duplex =
      options && std::any_of(options->begin(), options->end(),
                             [](const Option& option) { return option.code == OptionDuplex; });
  const StatusSample sample(codes, duplex);
  Texts texts = IsFlat(snapshot) ? AskTexts(sample.flat, language, codes[0])
                                 : AskTexts(sample.list, language);
  FillTexts(texts, codes[0], duplex, language);
  return texts;
}

std::string IconOf(const Snapshot& snapshot, const Codes& codes) {
  if (codes[0] == kOtherCode) return "BMP_ERR_CAUTION";
  const StatusSample sample(codes, false);
  return IsFlat(snapshot) ? AskIcon(sample.flat) : AskIcon(sample.list);
}

// A mild condition's headline is "ready", which an offline printer is not.
std::string Headline(const Snapshot& snapshot) {
  const auto& conditions = snapshot.conditions;
  if (Judge(conditions) < Verdict::CannotPrint) {
    for (const Condition& condition : conditions) {
      if (condition.reason->code == kOfflineCode) return condition.texts.brief;
    }
  }
  if (!snapshot.texts.brief.empty() || conditions.empty()) return snapshot.texts.brief;
  return ConditionText(conditions[0], *snapshot.source.language);
}

// The words are those of what decides, and of nothing else that the record tells.
void TakeWords(Snapshot& snapshot) {
  Codes codes;
  for (Condition& condition : snapshot.conditions) {
    const uint32_t code = condition.reason->code;
    condition.texts = TextsOf(snapshot, {code}, *snapshot.source.language);
    if (condition.dominant && std::find(codes.begin(), codes.end(), code) == codes.end())
      codes.push_back(code);
  }
  if (codes.empty()) codes.push_back(0);
  snapshot.texts = TextsOf(snapshot, codes, *snapshot.source.language);
  snapshot.icon = IconOf(snapshot, codes);
  snapshot.headline = Headline(snapshot);
  if (!snapshot.source.everyLanguage) return;
  for (const Language& language : kLanguages)
    snapshot.allTexts.push_back(TextsOf(snapshot, codes, language));
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
  return snapshot;
}

Snapshot ReadExchange(Source source, Exchange exchange) {
  Snapshot snapshot = NewSnapshot(std::move(source));
  snapshot.exchange = std::move(exchange);
  snapshot.trouble = TroubleText(snapshot.exchange, snapshot.source.query.empty());
  const auto blocks = FillRecords(snapshot);
  snapshot.told = Has(blocks, 'S');
  Codes codes;
  if (snapshot.told) {
    RecordFields fields = ChosenFields(snapshot);
    codes = std::move(fields.codes);
    TakeStatus(snapshot, fields);
    TakeBlocks(snapshot, std::move(fields), blocks);
  } else if (snapshot.trouble.empty()) {
    snapshot.trouble = "the reply has no status block, so the printer's state is not known.";
  }
  TakeConditions(snapshot, codes);
  TakeWords(snapshot);
  return snapshot;
}

bool IsGood(const Snapshot& snapshot) {
  return snapshot.told && snapshot.exchange.outcome == Outcome::Answered;
}

}  // namespace stmon
