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

// Writes the option into the node of `cursor`, or behind it when that one is taken; the cursor then
// moves there. Without memory the option is lost.
void AddOption(OptionNode*& cursor, uint32_t& count, uint16_t code, uint16_t value) {
  if (cursor->optionCode != 0) {
    OptionNode* added = NewItem<OptionNode>();
    if (!added) return;
    cursor->next = added;
    cursor = added;
  }
  cursor->optionCode = code;
  cursor->optionValue = value;
  ++count;
}

}  // namespace

//   1B 'A' CR  '1' LF     '0' means absent, anything else present
//
// Nodes of code 0 are not counted: a list of such nodes only is replaced.
void ParsePresenceBlock(const Input& block, PrnInfoEx* record, uint16_t optionCode) {
  if (Peek(FieldsOf(block)) == '0') return;
  if (record->optionCount != 0 && FindItem(record->optionList, optionCode)) return;
  OptionNode* added = NewItem<OptionNode>();
  if (!added) return;
  added->optionCode = optionCode;
  if (record->optionCount == 0) record->optionList = FreeItemList(record->optionList);
  *TailOf(&record->optionList) = added;
  ++record->optionCount;
}

//   1B 'D' CR  F : 03 CR D : 01 00 00 00 LF
//              | | value, one to four raw bytes
//              | separator, any byte
//              letter
//
// Every known letter opens a node; it keeps code 0 when the value selects none of its masks.
void ParseOptionBlock(const Input& block, PrnInfoEx* record) {
  record->optionList = FreeItemList(record->optionList);
  record->optionCount = 0;
  OptionNode** tail = &record->optionList;

  Input entries = FieldsOf(block);
  while (Left(entries) > 0) {
    const OptionRow* row = FindOptionRow(Peek(entries));
    Skip(entries, 2);
    const uint32_t value = ReadValue(entries);
    if (!row) continue;
    *tail = NewItem<OptionNode>();
    if (!*tail) continue;
    OptionNode* cursor = *tail;
    switch (row->kind) {
      case OptionKind::Code:
        AddOption(cursor, record->optionCount, row->code, 0);
        break;
      case OptionKind::CodeWithValue:
        AddOption(cursor, record->optionCount, row->code, static_cast<uint16_t>(value));
        break;
      case OptionKind::CodePerMask:
        for (const MaskRow* mask = row->masks; mask->mask != 0; ++mask) {
          if (value & mask->mask) AddOption(cursor, record->optionCount, mask->code, 0);
        }
        break;
    }
    tail = &cursor->next;
  }
}

}  // namespace stm
