#include "records/status_block.h"

#include <algorithm>

#include "names/name_index.h"
#include "records/item_list.h"
#include "records/reply_tables.h"
#include "records/status_classes.h"

namespace stm {
namespace {

// How many bytes a field takes at most, and a code in the first one, their delimiters among them.
constexpr uint32_t kMostOfField = 63;
constexpr uint32_t kMostOfCode = 7;

// Every "," and the CR after the codes count one code each.
uint32_t CountCodes(const Field& codes) {
  const auto commas = std::count(codes.text.begin(), codes.text.end(), ',');
  return static_cast<uint32_t>(commas) + (codes.delimiter == kCarriageReturn);
}

}  // namespace

//   1B 'S' CR  4 , 5 CR  0 CR  2 CR  3 LF
//              codes     |     |     output bin in use, may be missing
//                        |     tray in use
//                        online flag, 0 means online
void ParseStatusBlock(const Block& block, Filling to) {
  Input fields = BodyOf(block);
  const Field codes = ScanField(fields, kMostOfField, kCarriageReturn);
  RebuildItemList(to.record->statusList, to.record->statusCount, CountCodes(codes), to.room);
  to.record->hasError = 0;
  Input codeFields{codes.text.data(), codes.text.data() + codes.text.size()};
  for (StatusNode& node : Items(to.record->statusList)) {
    node.code = static_cast<uint16_t>(ParseDecimal(ScanField(codeFields, kMostOfCode, ',').text));
    if (StatusClass(node.code) == StatusClassError) to.record->hasError = 1;
  }

  const char onlineFlag = Peek(fields);
  to.record->online = ParseDecimal({&onlineFlag, 1}) == 0;
  Skip(fields, 2);

  const Field tray = ScanField(fields, kMostOfField, kCarriageReturn, kEscape);
  to.record->currentTray = static_cast<uint16_t>(LookupNameCode<kTrayLetters>(tray.text));
  to.record->currentBin = 0;
  const bool trayCut = tray.delimiter == '\0' && Left(fields) > 0;
  if (tray.delimiter == kCarriageReturn || trayCut) {
    const Field bin = ScanField(fields, kMostOfField, kEscape);
    to.record->currentBin = static_cast<uint16_t>(LookupNameCode<kBinNumbers>(bin.text));
  }
}

}  // namespace stm
