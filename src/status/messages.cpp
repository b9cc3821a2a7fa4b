// What a record says in words. The twins share tables and bodies; how each picks its status, tests
// for offline and fetches texts shows where a function stands twice, once for each record.
#include <cstring>

#include "records/item_list.h"
#include "records/row_index.h"
#include "resources/chosen_language.h"
#include "resources/strings.h"
#include "status/dominant_status.h"
#include "status/last_error.h"
#include "status/message_tables.h"
#include "status/priority_table.h"
#include "status/record_view.h"
#include "status/status_table.h"
#include "status/trays.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// A caller's buffer, and the chosen language as it was when the question came: another thread may
// choose another one before the answer is complete.
struct Target {
  char* buffer;
  int32_t size;
  LANGID language;
};

Target EmptiedTarget(char* buffer, int32_t size) {
  if (buffer && size > 0) buffer[0] = '\0';
  return {buffer, size, SelectedLanguage()};
}

using Loader = Loaded (*)(uint32_t id, const Target& target);

Loaded LoadInThreadLanguage(uint32_t id, const Target& target) {
  return LoadModuleString(id, target.buffer, target.size);
}

Loaded LoadInChosenLanguage(uint32_t id, const Target& target) {
  return LoadStringIn(target.language, id, target.buffer, target.size);
}

uint32_t Tell(Loader load, uint32_t id, const Target& target) {
  return load(id, target) != Loaded::None ? 1 : FailWith(PatErrorText);
}

// ---- The status to talk about -------------------------------------------------------------------

struct Statement {
  uint32_t code;
  bool offline;  // says that the printer is offline, whatever the code
  Loader load;
};

// An offline printer is said to be offline unless something is wrong with it. Whether something is,
// the code of a flat record tells, and the error flag of a list-based one.
Statement State(const PrnInfo& info, uint32_t code) {
  return {code, !info.online && code <= kLastMildCode, LoadInThreadLanguage};
}

Statement State(const PrnInfoEx& info, uint32_t code) {
  return {code, !info.online && !info.hasError, LoadInChosenLanguage};
}

const StatusRow& FindRow(const Statement& statement) {
  return statement.offline ? kOfflineRow : FindStatusRow(statement.code);
}

uint32_t ShortCode(const PrnInfo& info) {
  return HasSeveralStatuses(info) ? GetDominantStatus(info) : OwnStatus(info);
}

uint32_t ShortCode(const PrnInfoEx& info) {
  return GetDominantStatus(info);
}

template <class Record>
uint32_t TellShort(const Record& info, const Target& target) {
  const Statement statement = State(info, ShortCode(info));
  return Tell(statement.load, FindRow(statement).simpleId, target);
}

// ---- Toner colours ------------------------------------------------------------------------------

constexpr size_t kSuffixSize = 52;
constexpr int32_t kColourNameSize = 50;

struct Suffix {
  char text[kSuffixSize];
  size_t length;
  uint32_t codePage;
};

// A name for which there is no room is left out whole.
void AddToSuffix(Suffix& suffix, const char* name) {
  const size_t length = std::strlen(name);
  if (length >= kSuffixSize - suffix.length) return;
  std::memcpy(suffix.text + suffix.length, name, length + 1);
  suffix.length += length;
}

constexpr bool IsTonerCode(uint32_t code) {
  return code >= StatusFirstToner && code <= StatusLastToner;
}

uint32_t ColourOf(uint32_t tonerCode) {
  return (tonerCode - StatusFirstToner) % kColours;
}

// Of statuses that share a priority all are about toners, or none is.
static_assert([] {
  for (const PriorityRow& row : kPriorityTable) {
    for (const PriorityRow& other : kPriorityTable) {
      if (row.priority == other.priority && IsTonerCode(row.code) != IsTonerCode(other.code))
        return false;
    }
  }
  return true;
}());

// A line of its own with a name for each code, in the order of the codes.
Suffix FlatSuffix(const DominantStatuses& statuses) {
  Suffix suffix{{}, 0, kFlatNamesCodePage};
  if (!IsTonerCode(statuses.codes[0])) return suffix;
  AddToSuffix(suffix, "\n");
  for (uint32_t i = 0; i < statuses.count; ++i)
    AddToSuffix(suffix, kColourNames[ColourOf(statuses.codes[i])].flatName);
  return suffix;
}

// Each colour once, in the order of the colours; the text before it ends its line itself.
Suffix ListSuffix(const DominantStatuses& statuses, LANGID language) {
  Suffix suffix{};
  bool flagged[kColours] = {};
  for (uint32_t i = 0; i < statuses.count; ++i) {
    if (IsTonerCode(statuses.codes[i])) flagged[ColourOf(statuses.codes[i])] = true;
  }
  for (uint32_t colour = 0; colour < kColours; ++colour) {
    if (!flagged[colour]) continue;
    char name[kColourNameSize] = "";  // stays so where the language lacks the name
    LoadStringIn(language, kColourNames[colour].messageId, name, kColourNameSize);
    AddToSuffix(suffix, name);
  }
  if (suffix.length > 0) suffix.codePage = CodePageOf(language);
  return suffix;
}

// Appends what fits, cut between characters.
void AppendSuffix(const Suffix& suffix, const Target& target) {
  const size_t length = std::strlen(target.buffer);
  const size_t room = static_cast<size_t>(target.size) - length - 1;
  const size_t kept = suffix.length <= room
                          ? suffix.length
                          : CountWholeCharacters(suffix.codePage, suffix.text, room);
  std::memcpy(target.buffer + length, suffix.text, kept);
  target.buffer[length + kept] = '\0';
}

// A text that was cut has no place for a suffix, even where a few bytes were left free.
uint32_t TellStatement(const Statement& statement, const Suffix& suffix, const Target& target) {
  const Loaded loaded = statement.load(FindRow(statement).detailId, target);
  if (loaded == Loaded::None) return FailWith(PatErrorText);
  const bool wantsSuffix = suffix.length > 0 && !statement.offline;
  if (wantsSuffix && loaded == Loaded::Whole) AppendSuffix(suffix, target);
  return 1;
}

// ---- Trays --------------------------------------------------------------------------------------

constexpr uint32_t kNoTray = 0xFFFFFFFF;

// Whether a tray is missing or has no paper; `exempt` may have none.
bool NeedsTray(const TrayView& trays, LevelView levels, uint32_t exempt) {
  TrayView left = trays;
  for (TrayPaper tray; TakeNext(&left, &tray);) {
    if (tray.paperCode == PaperTrayMissing) return true;
    if (tray.paperCode == PaperNone && tray.trayId != exempt) return true;
  }
  for (TrayLevel tray; TakeNext(&levels, &tray);) {
    if (tray.trayId != exempt && HasRunDown(tray, trays)) return true;
  }
  return false;
}

// ---- Details and recovery -----------------------------------------------------------------------

uint32_t DuplexMessage(const PrnInfoEx& info, uint32_t code) {
  if (!FindItem(info.optionList, OptionDuplex)) return 0;
  return RowOf<kDuplexMessages, &MessageRow::code>(code).messageId;
}

uint32_t TellDetail(PrnInfo& info, const Target& target) {
  if (info.statusCode == StatusReady && NeedsTray(ViewTrays(info), ViewLevels(info), TrayBypass) &&
      LoadInThreadLanguage(kTrayMessage, target) != Loaded::None)
    return 1;
  const DominantStatuses statuses = StatusesOf(info);
  const Statement statement = State(info, statuses.codes[0]);
  // The record's only status becomes the one that is told.
  if (info.statusCount == 1) info.statusList[0] = statement.code;
  return TellStatement(statement, FlatSuffix(statuses), target);
}

uint32_t TellDetail(const PrnInfoEx& info, const Target& target) {
  const DominantStatuses statuses = StatusesOf(info);
  const Statement statement = State(info, statuses.codes[0]);
  if (!statement.offline) {
    if (statement.code == StatusReady && NeedsTray(ViewTrays(info), ViewLevels(info), kNoTray) &&
        LoadInChosenLanguage(kTrayMessage, target) != Loaded::None)
      return 1;
    // The answer counts as given even where this text cannot be loaded.
    if (const uint32_t message = DuplexMessage(info, statement.code)) {
      LoadInChosenLanguage(message, target);
      return 1;
    }
  }
  return TellStatement(statement, ListSuffix(statuses, target.language), target);
}

// A printer that prints keeps its several codes: the marker is no mild code.
static_assert(StatusSeveralMarker > kLastMildCode);

uint32_t RecoveryCode(const PrnInfo& info) {
  const bool takesFirst = HasSeveralStatuses(info) && !info.noResponse;
  return FoldServiceCall(takesFirst ? info.statusList[0] : OwnStatus(info));
}

uint32_t RecoveryCode(const PrnInfoEx& info) {
  if (info.noResponse) return StatusNoResponse;
  StatusView view = ViewStatus(info);
  uint32_t first = StatusPrinting;
  TakeNext(&view.codes, &first);
  return info.printing && first <= kLastMildCode ? uint32_t{StatusPrinting} : first;
}

uint32_t TellRecovery(uint32_t code, Loader load, const Target& target) {
  return Tell(load, RowOf<kRecoveryTable, &MessageRow::code>(code).messageId, target);
}

uint32_t TellHelpContext(char* context) {
  if (context) context[0] = '\0';
  return FailWith(PatErrorNotFound);
}

int32_t SignedSize(uint32_t size) {
  return static_cast<int32_t>(std::min<uint32_t>(size, INT32_MAX));
}

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatGetSimpleString(const PrnInfo* info, char* buffer, int32_t size) {
  const stm::Target target = stm::EmptiedTarget(buffer, size);
  if (!info) return stm::FailWith(PatErrorNullRecord);
  return stm::TellShort(*info, target);
}

uint32_t STM_CALL PatGetSimpleString_Ex(const PrnInfoEx* info, char* buffer, int32_t size) {
  const stm::Target target = stm::EmptiedTarget(buffer, size);
  if (!info) return stm::FailWith(PatErrorNullRecord);
  return stm::TellShort(*info, target);
}

uint32_t STM_CALL PatGetDetailString(PrnInfo* info, char* buffer, uint32_t size) {
  const stm::Target target = stm::EmptiedTarget(buffer, stm::SignedSize(size));
  if (!info) return stm::FailWith(PatErrorNullRecord);
  return stm::TellDetail(*info, target);
}

uint32_t STM_CALL PatGetDetailString_Ex(const PrnInfoEx* info, char* buffer, int32_t size) {
  const stm::Target target = stm::EmptiedTarget(buffer, size);
  if (!info) return stm::FailWith(PatErrorNullRecord);
  return stm::TellDetail(*info, target);
}

uint32_t STM_CALL PatGetRecoveryString(const PrnInfo* info, char* buffer, int32_t size) {
  const stm::Target target = stm::EmptiedTarget(buffer, size);
  if (!info) return stm::FailWith(PatErrorNullRecord);
  return stm::TellRecovery(stm::RecoveryCode(*info), stm::LoadInThreadLanguage, target);
}

uint32_t STM_CALL PatGetRecoveryString_Ex(const PrnInfoEx* info, char* buffer, int32_t size) {
  const stm::Target target = stm::EmptiedTarget(buffer, size);
  if (!info) return stm::FailWith(PatErrorNullRecord);
  return stm::TellRecovery(stm::RecoveryCode(*info), stm::LoadInChosenLanguage, target);
}

uint32_t STM_CALL PatGetHelpContext(uint32_t, uint32_t, char* context) {
  return stm::TellHelpContext(context);
}

uint32_t STM_CALL PatGetHelpContext_Ex(uint32_t, uint32_t, char* context) {
  return stm::TellHelpContext(context);
}
