#include "records/status_block.h"

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

constexpr uint32_t kCopyLimit = 256;
constexpr uint16_t kFieldLimit = 64;

// The block as the fields are read: its LF, or the ESC of the end marker that closes it, stands at
// the end as an ESC.
struct StatusCopy {
  char text[kCopyLimit + 1];
  uint32_t length;    // bytes kept
  uint16_t consumed;  // bytes taken of the reply
};

StatusCopy CopyStatusBlock(const Input& block) {
  StatusCopy copy;
  Input rest = block;
  copy.length = 0;
  copy.consumed = kCopyLimit;
  while (copy.length < kCopyLimit && Left(rest) > 0) {
    const bool lineEnd = Peek(rest) == kLineFeed;
    const bool endMarker = BlockLetter(rest) == ' ';
    copy.text[copy.length] = lineEnd ? kEscape : Peek(rest);
    if (lineEnd || endMarker) {
      copy.consumed = static_cast<uint16_t>(copy.length + (lineEnd ? 1 : 2));
      ++copy.length;
      break;
    }
    ++copy.length;
    Skip(rest, 1);
  }
  copy.text[copy.length] = '\0';
  return copy;
}

uint32_t CountCodes(const char* field, uint32_t length) {
  uint32_t count = 0;
  for (uint32_t i = 0; i < length; ++i)
    count += field[i] == ',' || field[i] == kCarriageReturn;
  return count;
}

}  // namespace

uint32_t StatusClass(uint32_t code) {
  const StatusClassRow* row = kStatusClasses;
  while (row->code != code && row->code != 0xFFFFFFFFu)
    ++row;
  return row->statusClass;
}

//   1B 'S' CR  4 , 5 CR  0 CR  2 CR  3 LF
//              codes     |     |     output bin in use, may be missing
//                        |     tray in use
//                        online flag, 0 means online
uint16_t ParseStatusBlock(const Input& block, PrnInfoEx* record) {
  const StatusCopy copy = CopyStatusBlock(block);
  Input fields{copy.text, copy.text + copy.length};
  Skip(fields, 3);

  char codes[kFieldLimit];
  const uint32_t codesLength = ScanField(fields, kCarriageReturn, kFieldLimit, codes);
  Skip(fields, codesLength);
  RebuildItemList(record->statusList, record->statusCount, CountCodes(codes, codesLength));
  record->hasError = 0;

  Input codeFields{codes, codes + codesLength};
  for (StatusNode* node = record->statusList; node; node = node->next) {
    char code[8];
    Skip(codeFields, ScanField2(codeFields, ',', kCarriageReturn, sizeof code, code));
    node->code = static_cast<uint16_t>(ParseDecimal(code));
    if (StatusClass(node->code) == StatusClassError) record->hasError = 1;
  }

  const char onlineFlag[2] = {Peek(fields), '\0'};
  record->online = ParseDecimal(onlineFlag) == 0;
  Skip(fields, 2);

  const auto tray = ReadField<kFieldLimit>(fields, kCarriageReturn, kEscape);
  record->currentTray = static_cast<uint16_t>(LookupNameCode(tray.text, kTrayLetters));
  if (tray.delimiter == kEscape) {
    record->currentBin = 0;
  } else {
    const auto bin = ReadField<kFieldLimit>(fields, kEscape);
    record->currentBin = static_cast<uint16_t>(LookupNameCode(bin.text, kBinNumbers));
  }
  return copy.consumed;
}

}  // namespace stm
