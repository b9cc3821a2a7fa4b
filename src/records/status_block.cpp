#include "records/status_block.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "records/item_list.h"
#include "records/reply_tables.h"

namespace stm {
namespace {

struct StatusClassRow {
  uint32_t code;
  uint32_t statusClass;
};

constexpr StatusClassRow kStatusClasses[] = {
    //  code  class
    {0, 0},            // ready
    {4, 1},            // toner nearly empty
    {5, 1},            // fuser cleaner nearly due
    {6, 1},            // fusing oil nearly empty
    {8, 1},            // PCU nearly due
    {9, 1},            // maintenance
    {10, 1},           // fusing unit
    {16, 0},           // adjusting
    {17, 0},           // warming up
    {18, 0},           // energy saver
    {19, 0},           // self check
    {25, 2},           // waste toner full
    {26, 2},           // fusing oil empty
    {28, 2},           // fuser cleaner due
    {31, 2},           // paper type
    {32, 2},           // no paper
    {33, 2},           // tray not placed properly
    {34, 2},           // output full
    {36, 2},           // cover open
    {37, 2},           // cover open
    {38, 2},           // toner not placed properly
    {39, 2},           // back cover open
    {40, 2},           // fusing oil not placed properly
    {42, 2},           // PCU not placed properly
    {43, 2},           // fuser cleaner not placed properly
    {44, 2},           // misfeed
    {45, 2},           // misfeed
    {46, 2},           // misfeed
    {48, 2},           // service calls 48 to 64
    {49, 2},           //
    {50, 2},           //
    {51, 2},           //
    {52, 2},           //
    {53, 2},           //
    {54, 2},           //
    {55, 2},           //
    {56, 2},           //
    {57, 2},           //
    {58, 2},           //
    {59, 2},           //
    {60, 2},           //
    {61, 2},           //
    {62, 2},           //
    {63, 2},           //
    {64, 2},           //
    {65, 2},           // toner nearly empty, by colour
    {66, 2},           //
    {67, 2},           //
    {68, 2},           //
    {69, 2},           // toner empty, by colour
    {70, 2},           //
    {71, 2},           //
    {72, 2},           //
    {73, 2},           // toner not placed properly, by colour
    {74, 2},           //
    {75, 2},           //
    {76, 2},           //
    {0xFFFFFFFFu, 2},  // closing row: every other code
};

constexpr uint32_t kOtherClass = std::end(kStatusClasses)[-1].statusClass;

// The classes by their codes.
constexpr auto kClassOfCode = [] {
  constexpr uint32_t kHighestCode = std::end(kStatusClasses)[-2].code;
  std::array<uint8_t, kHighestCode + 1> classes;
  classes.fill(kOtherClass);
  for (const StatusClassRow& row : kStatusClasses) {
    if (row.code <= kHighestCode) classes[row.code] = static_cast<uint8_t>(row.statusClass);
  }
  return classes;
}();

constexpr uint32_t kFieldLimit = 64;

// Every "," and the CR behind the codes count one code each.
uint32_t CountCodes(const Field& codes) {
  const auto commas = std::count(codes.text.begin(), codes.text.end(), ',');
  return static_cast<uint32_t>(commas) + (codes.delimiter == kCarriageReturn);
}

}  // namespace

uint32_t StatusClass(uint32_t code) {
  return code < kClassOfCode.size() ? kClassOfCode[code] : kOtherClass;
}

//   1B 'S' CR  4 , 5 CR  0 CR  2 CR  3 LF
//              codes     |     |     output bin in use, may be missing
//                        |     tray in use
//                        online flag, 0 means online
void ParseStatusBlock(const Block& block, Filling to) {
  Input fields = BodyOf(block);
  const Field codes = ScanField(fields, kFieldLimit, kCarriageReturn);
  RebuildItemList(to.record->statusList, to.record->statusCount, CountCodes(codes), to.room);
  to.record->hasError = 0;
  Input codeFields{codes.text.data(), codes.text.data() + codes.text.size()};
  for (StatusNode* node = to.record->statusList; node; node = node->next) {
    node->code = static_cast<uint16_t>(ParseDecimal(ScanField(codeFields, 8, ',').text));
    if (StatusClass(node->code) == StatusClassError) to.record->hasError = 1;
  }

  const char onlineFlag = Peek(fields);
  to.record->online = ParseDecimal({&onlineFlag, 1}) == 0;
  Skip(fields, 2);

  const Field tray = ReadField(fields, kFieldLimit, kCarriageReturn, kEscape);
  to.record->currentTray = static_cast<uint16_t>(LookupNameCode<kTrayLetters>(tray.text));
  to.record->currentBin = 0;
  const bool trayCut = tray.delimiter == '\0' && Left(fields) > 0;
  if (tray.delimiter == kCarriageReturn || trayCut) {
    const Field bin = ReadField(fields, kFieldLimit, kEscape);
    to.record->currentBin = static_cast<uint16_t>(LookupNameCode<kBinNumbers>(bin.text));
  }
}

}  // namespace stm
