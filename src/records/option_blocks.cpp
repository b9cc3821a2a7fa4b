#include "records/option_blocks.h"

#include "records/item_list.h"

namespace stm {
namespace {

struct MaskRow {
  uint32_t mask;
  uint16_t code;
};

constexpr MaskRow kMasksO[] = {
    {0x1, 5}, {0x2, 6}, {0x4, 9}, {0x8, 10}, {0x10, 14}, {0, 0},
};
constexpr MaskRow kMasksB[] = {
    {0x1, 7},
    {0x2, 15},
    {0x4, 13},
    {0, 0},
};
constexpr MaskRow kMasksF[] = {
    {0x1, 11},  // stapler
    {0x2, 12},  // puncher
    {0, 0},
};
constexpr MaskRow kMasksT[] = {
    {0x1, 16},   {0x2, 17},   {0x4, 104},  {0x8, 103}, {0x10, 101},
    {0x20, 102}, {0x40, 105}, {0x80, 106}, {0, 0},
};

enum class OptionKind : uint8_t { Code, CodeWithValue, CodePerMask };

struct OptionRow {
  char letter;
  OptionKind kind;
  uint16_t code;
  const MaskRow* masks;  // closed by a row of mask 0
};

constexpr OptionRow kOptionLetters[] = {
    {'D', OptionKind::CodeWithValue, OptionDuplex, nullptr},  // duplex unit
    {'H', OptionKind::Code, 3, nullptr},                      //
    {'M', OptionKind::Code, 3, nullptr},                      //
    {'A', OptionKind::Code, 4, nullptr},                      //
    {'O', OptionKind::CodePerMask, 0, kMasksO},               //
    {'B', OptionKind::CodePerMask, 0, kMasksB},               //
    {'F', OptionKind::CodePerMask, 0, kMasksF},               // finisher
    {'T', OptionKind::CodePerMask, 0, kMasksT},               //
};

const OptionRow* FindOptionRow(char letter) {
  for (const OptionRow& row : kOptionLetters) {
    if (row.letter == letter) return &row;
  }
  return nullptr;
}

// A value has room for four bytes, the first one lowest; an entry's further bytes are ignored.
uint32_t ReadValue(Input& entries) {
  uint32_t value = 0;
  for (uint32_t bit = 0; Left(entries) > 0; bit += 8) {
    const auto byte = static_cast<uint8_t>(Peek(entries));
    Skip(entries, 1);
    if (byte == kCarriageReturn) break;
    if (bit < 32) value |= uint32_t{byte} << bit;
  }
  return value;
}

OptionNode** TailOf(OptionNode** link) {
  while (*link)
    link = &(*link)->next;
  return link;
}

// The list as it is written: the latest node, and the link behind it.
struct OptionCursor {
  OptionNode* node;
  OptionNode** link;
};

// Writes the option into the cursor's node, or into the next one when that is taken. Without memory
// the option is lost.
void AddOption(OptionCursor& cursor, Filling to, uint16_t code, uint16_t value) {
  if (cursor.node->optionCode != 0) {
    OptionNode* next = NextItem(cursor.link, to.room);
    if (!next) return;
    cursor.node = next;
  }
  cursor.node->optionCode = code;
  cursor.node->optionValue = value;
  ++to.record->optionCount;
}

}  // namespace

//   1B 'A' CR  '1' LF     '0' means absent, anything else present
//
// Nodes of code 0 are not counted: a list of such nodes only is replaced.
void ParsePresenceBlock(const Input& block, Filling to, uint16_t optionCode) {
  if (Peek(FieldsOf(block)) == '0') return;
  if (to.record->optionCount != 0 && FindItem(to.record->optionList, optionCode)) return;
  auto* added = NewItem<OptionNode>(to.room);
  if (!added) return;
  added->optionCode = optionCode;
  if (to.record->optionCount == 0)
    to.record->optionList = FreeItemList(to.record->optionList, to.room);
  *TailOf(&to.record->optionList) = added;
  ++to.record->optionCount;
}

//   1B 'D' CR  F : 03 CR D : 01 00 00 00 LF
//              | | value, one to four raw bytes
//              | separator, any byte
//              letter
//
// Every known letter opens a node; it keeps code 0 when the value selects none of its masks.
void ParseOptionBlock(const Input& block, Filling to) {
  to.record->optionCount = 0;
  OptionCursor cursor{nullptr, &to.record->optionList};
  Input entries = FieldsOf(block);
  if (Left(entries) > 0 && entries.end[-1] == kLineFeed) --entries.end;
  while (Left(entries) > 0) {
    const OptionRow* row = FindOptionRow(Peek(entries));
    Skip(entries, 2);
    const uint32_t value = ReadValue(entries);
    if (!row) continue;
    cursor.node = NextItem(cursor.link, to.room);
    if (!cursor.node) continue;
    switch (row->kind) {
      case OptionKind::Code:
        AddOption(cursor, to, row->code, 0);
        break;
      case OptionKind::CodeWithValue:
        AddOption(cursor, to, row->code, static_cast<uint16_t>(value));
        break;
      case OptionKind::CodePerMask:
        for (const MaskRow* mask = row->masks; mask->mask != 0; ++mask) {
          if (value & mask->mask) AddOption(cursor, to, mask->code, 0);
        }
        break;
    }
  }
  *cursor.link = FreeItemList(*cursor.link, to.room);
}

}  // namespace stm
