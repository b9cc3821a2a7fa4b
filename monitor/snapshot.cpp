#include "snapshot.h"

#include <algorithm>

#include "reply_frame.h"

namespace stmon {
namespace {

struct OutcomeRow {
  Outcome outcome;
  const char* word;
  const char* trouble;  // what happened and what to do; null when nothing did
};

constexpr OutcomeRow kOutcomes[] = {
    {Outcome::Answered, "answered", nullptr},
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
  Condition condition{.code = code};
  PrnInfo probe{};
  probe.structSize = PrnInfoSize;
  probe.statusCode = code >= 49 && code <= 64 ? 48 : code;  // service calls share one row
  condition.known = PatGetPrinterStatus(&probe, &condition.row) == 1;
  condition.reason = &ReasonOf(code);
  return condition;
}

void ReadStatus(Snapshot& snapshot, const Record& record) {
  snapshot.online = record.online == 1;
  snapshot.has_error = record.hasError == 1;
  uint32_t left = record.statusCount;
  for (const StatusNode* node = record.statusList; node && left > 0; node = node->next, --left) {
    const uint32_t code = node->code;
    const bool repeated = std::any_of(snapshot.conditions.begin(), snapshot.conditions.end(),
                                      [&](const Condition& other) { return other.code == code; });
    if (!repeated) snapshot.conditions.push_back(LookUp(code));
  }
  if (record.currentTray != 0) snapshot.current_tray = record.currentTray;
  if (record.currentBin != 0 && record.currentBin != BinUnknown)
    snapshot.current_bin = record.currentBin;
}

void ReadTrays(Snapshot& snapshot, const Record& record, bool levels_told) {
  uint32_t left = record.trayCount;
  for (const TrayNode* node = record.trayList; node && left > 0; node = node->next, --left) {
    if (node->trayId == 0) continue;
    Tray tray{.id = node->trayId, .paper = node->paperCode, .level = {}};
    if (levels_told) tray.level = node->paperLevel;
    snapshot.trays.push_back(tray);
  }
}

void ReadBins(Snapshot& snapshot, const Record& record) {
  uint32_t left = record.binCount;
  for (const BinNode* node = record.binList; node && left > 0; node = node->next, --left)
    snapshot.bins.push_back({node->binId, node->binState});
}

const Condition* Find(const Snapshot& snapshot, uint32_t code) {
  for (const Condition& condition : snapshot.conditions) {
    if (condition.code == code) return &condition;
  }
  return nullptr;
}

// A code that nobody knows is chosen only when there is no other.
void ChooseDominant(Snapshot& snapshot) {
  const Condition* worst = nullptr;
  for (const Condition& condition : snapshot.conditions) {
    const bool better =
        !worst || condition.known > worst->known ||
        (condition.known == worst->known && condition.reason->severity > worst->reason->severity);
    if (better) worst = &condition;
  }
  if (worst) snapshot.dominant = {worst->code};
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

}  // namespace

std::string BuildQuery() {
  constexpr uint32_t kGroups = GroupStatus | GroupStatusList | GroupTrays | GroupBins;
  uint32_t size = 0;
  CreateQueryCommand(kGroups, nullptr, &size);
  std::string query(size + 1, '\0');
  ++size;
  if (CreateQueryCommand(kGroups, query.data(), &size) != 1) size = 0;
  query.resize(size);
  return query;
}

Snapshot ReadExchange(std::string source, std::string query, Exchange exchange) {
  Snapshot snapshot;
  snapshot.source = std::move(source);
  snapshot.query = std::move(query);
  snapshot.exchange = std::move(exchange);
  snapshot.when = std::chrono::system_clock::now();
  snapshot.trouble = TroubleText(snapshot.exchange);
  const auto outcome = snapshot.exchange.outcome;
  if (outcome != Outcome::Answered && outcome != Outcome::CutOff) return snapshot;

  const auto blocks = SplitBlocks(snapshot.exchange.reply);
  const std::string bytes = WholeBlocks(blocks);
  Record& record = *snapshot.record;
  SetPrnInfoExFromReadbackCmd(&record, bytes.data(), static_cast<int32_t>(bytes.size()));
  snapshot.told = Has(blocks, 'S');
  if (!snapshot.told) {
    if (snapshot.trouble.empty())
      snapshot.trouble =
          "the reply has no status block, so nothing is known of the printer's state.";
    return snapshot;
  }
  ReadStatus(snapshot, record);
  ReadTrays(snapshot, record, Has(blocks, 'Z'));
  ReadBins(snapshot, record);
  ChooseDominant(snapshot);
  snapshot.verdict = Judge(snapshot);
  return snapshot;
}

std::string TrayLabel(uint32_t id) {
  if (id == TrayBypass) return "Bypass tray";
  if (id == 2) return "Multi-purpose tray";
  if (id >= 3 && id <= 7) return "Tray " + std::to_string(id - 2);
  return "Tray with id " + std::to_string(id);
}

std::string PaperLabel(uint32_t code) {
  if (code == 0) return {};
  if (code == PaperNone) return "no paper";
  if (code == PaperTrayMissing) return "not in place";
  return "paper code " + std::to_string(code);
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
