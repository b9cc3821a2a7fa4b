#include "snapshot/snapshot.h"

#include <algorithm>

#include "snapshot/ranking.h"
#include "wire/reply_frame.h"

namespace stmon {
namespace {

struct OutcomeRow {
  Outcome outcome;
  const char* word;
  const char* trouble;  // what happened and what to do; null when nothing did
};

constexpr OutcomeRow kOutcomes[] = {
    {Outcome::Answered, "answered", nullptr},
    {Outcome::NotAsked, "not-asked", nullptr},
    {Outcome::NameUnknown, "name-unknown",
     "no such host. Check the name, or give the printer's IP address."},
    {Outcome::Refused, "refused",
     "connection refused. The host is there, but nothing listens at this port; is it the printer, "
     "and "
     "is the port right?"},
    {Outcome::Unreachable, "unreachable", "cannot be reached. Check the network and the address."},
    {Outcome::ConnectTimeout, "connect-timeout",
     "no answer to the connection attempt. Is the printer switched on and connected?"},
    {Outcome::SendFailed, "send-failed",
     "connected, but the query could not be sent. Try again; if it stays so, restart the printer."},
    {Outcome::Silent, "silent",
     "connected, but no answer within the time-out. The printer may be busy: try again, or allow "
     "more "
     "with --timeout."},
    {Outcome::ClosedEarly, "closed",
     "the connection was closed without an answer. Is it a printer of this family?"},
    {Outcome::Reset, "reset",
     "the connection was reset without an answer. The printer may be serving someone else: try "
     "again."},
    {Outcome::CutOff, "cut-off",
     "the reply stops before its end marker. What is shown arrived before that; try again."},
    {Outcome::NotAReply, "not-a-reply",
     "the answer is not a readback reply. Is it a printer of this family? --raw shows the bytes."},
    {Outcome::TooLong, "too-long",
     "64 KiB without an end marker: not a readback reply; the rest was not read. --raw shows the "
     "beginning."},
    {Outcome::Unreadable, "unreadable", "cannot be read."},
};

const OutcomeRow& RowOf(Outcome outcome) {
  for (const OutcomeRow& row : kOutcomes) {
    if (row.outcome == outcome) return row;
  }
  return kOutcomes[0];
}

std::string TroubleText(const Exchange& exchange) {
  const OutcomeRow& row = RowOf(exchange.outcome);
  if (!row.trouble) return {};
  return exchange.detail.empty() ? row.trouble : row.trouble + (" (" + exchange.detail + ")");
}

// Only whole blocks go to the library: of a block that was cut off, nobody knows what it meant to
// say.
std::string WholeBlocks(const std::vector<Block>& blocks) {
  std::string bytes;
  for (const Block& block : blocks) {
    if (!block.whole) break;
    bytes += block.bytes;
  }
  return bytes;
}

bool Has(const std::vector<Block>& blocks, char letter) {
  return std::any_of(blocks.begin(), blocks.end(),
                     [&](const Block& block) { return block.whole && block.letter == letter; });
}

Condition LookUp(uint32_t code) {
  Condition condition;
  condition.code = code;
  PrnInfo probe{};
  probe.structSize = PrnInfoSize;
  probe.statusCode = code >= 49 && code <= 64 ? 48 : code;  // service calls share one row
  condition.known = PatGetPrinterStatus(&probe, &condition.row) == 1;
  condition.reason = &ReasonOf(code);
  return condition;
}

const Condition* Find(const Snapshot& snapshot, uint32_t code) {
  for (const Condition& condition : snapshot.conditions) {
    if (condition.code == code) return &condition;
  }
  return nullptr;
}

// Codes without a rank come last; the first of them stands for the printer when there is no other.
void Rank(Snapshot& snapshot) {
  std::vector<uint32_t> codes;
  for (const Condition& condition : snapshot.conditions)
    codes.push_back(condition.code);
  const auto groups = RankCodes(codes);
  const auto last = static_cast<uint32_t>(groups.size()) + 1;
  for (Condition& condition : snapshot.conditions) {
    condition.rank = last;
    for (uint32_t i = 0; i < groups.size(); ++i) {
      const auto& group = groups[i];
      if (std::find(group.begin(), group.end(), condition.code) != group.end())
        condition.rank = i + 1;
    }
  }
  std::stable_sort(
      snapshot.conditions.begin(), snapshot.conditions.end(),
      [](const Condition& left, const Condition& right) { return left.rank < right.rank; });
  if (!groups.empty()) {
    snapshot.dominant = groups[0];
  } else if (!snapshot.conditions.empty()) {
    snapshot.dominant = {snapshot.conditions[0].code};
  }
}

Texts TextsOfCode(const Snapshot& snapshot, uint32_t code) {
  const auto& options = snapshot.options;
  const bool duplex = options && std::any_of(options->begin(), options->end(), [](const Option& o) {
                        return o.code == OptionDuplex;
                      });
  const StatusSample sample(code, duplex);
  const Language& language = *snapshot.source.language;
  return snapshot.source.kind == RecordKind::Flat ? AskTexts(sample.flat, language, code)
                                                  : AskTexts(sample.list, language);
}

void TakeTexts(Snapshot& snapshot) {
  snapshot.texts = TextsIn(snapshot, *snapshot.source.language);
  snapshot.icon = snapshot.source.kind == RecordKind::Flat ? AskIcon(*snapshot.flat)
                                                           : AskIcon(*snapshot.record);
  for (Condition& condition : snapshot.conditions) {
    if (condition.known) condition.texts = TextsOfCode(snapshot, condition.code);
  }
  // The library takes a printer whose codes it does not know for ready; the exit status does not,
  // and words and icon must agree with it.
  const Condition* dominant = Find(snapshot, snapshot.dominant.empty() ? 0 : snapshot.dominant[0]);
  if (dominant && !dominant->known) {
    snapshot.texts = {};
    snapshot.icon = "BMP_ERR_CAUTION";
  }
}

RecordFields ChosenFields(const Snapshot& snapshot) {
  return snapshot.source.kind == RecordKind::Flat ? FieldsOf(*snapshot.flat)
                                                  : FieldsOf(*snapshot.record);
}

void TakeStatus(Snapshot& snapshot, const RecordFields& fields) {
  snapshot.online = fields.online;
  snapshot.hasError = fields.hasError;
  for (const uint32_t code : fields.codes) {
    const bool repeated = std::any_of(snapshot.conditions.begin(), snapshot.conditions.end(),
                                      [&](const Condition& other) { return other.code == code; });
    if (!repeated) snapshot.conditions.push_back(LookUp(code));
  }
  Rank(snapshot);
  if (fields.currentTray != 0) snapshot.currentTray = fields.currentTray;
  if (fields.currentBin != 0 && fields.currentBin != BinUnknown)
    snapshot.currentBin = fields.currentBin;
}

std::vector<std::string> FontNames(const std::vector<Block>& blocks) {
  std::vector<std::string> names;
  for (const Block& block : blocks) {
    if (block.letter == 'F' && block.whole) names = Fields(block);
  }
  return names;
}

// A field of the record means something only when its block was in the reply.
void TakeBlocks(Snapshot& snapshot, const RecordFields& fields, const std::vector<Block>& blocks) {
  for (Tray tray : fields.trays) {
    if (tray.id == 0) continue;
    if (!Has(blocks, 'Z')) tray.level.reset();
    snapshot.trays.push_back(tray);
  }
  snapshot.bins = fields.bins;
  for (const std::string& version : fields.versions) {
    if (!version.empty()) snapshot.versions.push_back(version);
  }
  if (Has(blocks, 'M')) snapshot.number = fields.number;
  if (Has(blocks, 'E')) snapshot.language = fields.language;
  snapshot.fonts = fields.fonts;
  snapshot.fontNames = FontNames(blocks);
  if (Has(blocks, 'A') || Has(blocks, 'C') || Has(blocks, 'D')) snapshot.options = fields.options;
}

void ReadDeviceId(Snapshot& snapshot) {
  const std::string& text = snapshot.source.deviceId;
  if (text.empty()) return;
  const auto length = static_cast<uint32_t>(text.size());
  SetModelInfoExFromDeviceID(snapshot.record.get(), text.c_str(), length);
  SetModelInfoFromDeviceID(snapshot.flat.get(), text.c_str(), length);
  const RecordFields fields = ChosenFields(snapshot);
  Identity identity{fields.maker, fields.model, fields.description, {}, fields.languages};
  if (!fields.model.empty() || !fields.description.empty()) {
    if (fields.modelCode != ModelUnknown) identity.modelCode = fields.modelCode;
  }
  snapshot.identity = identity;
}

Snapshot NewSnapshot(Source source) {
  Snapshot snapshot;
  snapshot.source = std::move(source);
  snapshot.when = std::chrono::system_clock::now();
  snapshot.flat->structSize = PrnInfoSize;
  ReadDeviceId(snapshot);
  return snapshot;
}

// The dominant condition decides. A code that nobody knows is of the error class: beside a harmless
// dominant one it still asks for attention.
Verdict Judge(const Snapshot& snapshot) {
  if (!snapshot.told || snapshot.exchange.outcome != Outcome::Answered) return Verdict::Unknown;
  if (!snapshot.online) return Verdict::CannotPrint;
  Verdict verdict = Verdict::Fine;
  if (!snapshot.dominant.empty()) {
    const Condition* dominant = Find(snapshot, snapshot.dominant[0]);
    const Severity severity = dominant ? dominant->reason->severity : Severity::Report;
    if (severity == Severity::Warning) verdict = Verdict::Attention;
    if (severity == Severity::Error) verdict = Verdict::CannotPrint;
  }
  for (const Condition& condition : snapshot.conditions) {
    if (!condition.known) verdict = std::max(verdict, Verdict::Attention);
  }
  return verdict;
}

// A mild condition's headline is "ready" for an offline printer as well; that of code 0 tells.
std::string OfflineText(const Snapshot& snapshot) {
  StatusSample sample(0, false);
  sample.list.online = 0;
  sample.flat.online = 0;
  const Language& language = *snapshot.source.language;
  return snapshot.source.kind == RecordKind::Flat ? AskTexts(sample.flat, language, 0).brief
                                                  : AskTexts(sample.list, language).brief;
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
  snapshot.trouble = TroubleText(snapshot.exchange);
  const auto outcome = snapshot.exchange.outcome;
  if (outcome != Outcome::Answered && outcome != Outcome::CutOff) return snapshot;

  const auto blocks = SplitBlocks(snapshot.exchange.reply);
  const std::string bytes = WholeBlocks(blocks);
  const auto length = static_cast<int32_t>(bytes.size());
  SetPrnInfoExFromReadbackCmd(snapshot.record.get(), bytes.data(), length);
  SetPrnInfoFromReadbackCmd(snapshot.flat.get(), bytes.data(), length);
  snapshot.told = Has(blocks, 'S');
  if (!snapshot.told) {
    if (snapshot.trouble.empty())
      snapshot.trouble = "the reply has no status block, so the printer's state is not known.";
    return snapshot;
  }
  const RecordFields fields = ChosenFields(snapshot);
  TakeStatus(snapshot, fields);
  TakeBlocks(snapshot, fields, blocks);
  TakeTexts(snapshot);
  snapshot.verdict = Judge(snapshot);
  return snapshot;
}

Texts TextsIn(const Snapshot& snapshot, const Language& language) {
  if (snapshot.source.kind == RecordKind::List) return AskTexts(*snapshot.record, language);
  const uint32_t dominant = snapshot.dominant.empty() ? 0 : snapshot.dominant[0];
  return AskTexts(*snapshot.flat, language, dominant);
}

// Mild conditions all read "ready"; what to do about them says more.
std::string ConditionText(const Condition& condition) {
  if (!condition.known) return "Unknown condition, code " + std::to_string(condition.code);
  const bool mild = condition.reason->severity != Severity::Error;
  const Texts& texts = condition.texts;
  std::string text = mild && !texts.detail.empty() ? texts.detail : texts.brief;
  std::replace(text.begin(), text.end(), '\n', ' ');
  if (text.empty()) text = Keyword(*condition.reason);
  const std::string colour = TonerColour(condition.code);
  return mild || colour.empty() ? text : text + " (" + colour + ")";
}

std::string StatusText(const Snapshot& snapshot) {
  const bool mild =
      !snapshot.conditions.empty() && snapshot.conditions[0].reason->severity != Severity::Error;
  if (mild && !snapshot.online) return OfflineText(snapshot);
  if (!snapshot.texts.brief.empty()) return snapshot.texts.brief;
  const Condition* dominant = Find(snapshot, snapshot.dominant.empty() ? 0 : snapshot.dominant[0]);
  if (dominant) return ConditionText(*dominant);
  return snapshot.online ? "online" : "offline";
}

std::vector<std::string> StateReasons(const Snapshot& snapshot) {
  std::vector<std::string> keywords;
  const auto add = [&](const Reason& reason) {
    const std::string keyword = Keyword(reason);
    if (keyword == "none") return;
    if (std::find(keywords.begin(), keywords.end(), keyword) == keywords.end())
      keywords.push_back(keyword);
  };
  for (const Condition& condition : snapshot.conditions)
    add(*condition.reason);
  if (snapshot.told && !snapshot.online) add(ReasonOf(kOfflineCode));
  if (keywords.empty()) keywords.push_back("none");
  return keywords;
}

const char* OutcomeWord(Outcome outcome) {
  return RowOf(outcome).word;
}

}  // namespace stmon
