#include "records/option_blocks.h"

#include <bit>

#include "records/item_list.h"
#include "records/row_index.h"

namespace stm {
namespace {

enum class OptionKind : uint8_t { None, Code, CodeWithValue, CodePerBit };

struct OptionRow {
  char letter;
  OptionKind kind;
  uint32_t bits;      // the bits of the value that stand for a code each
  uint16_t codes[8];  // the code, or those of the bits, the lowest one's first
};

constexpr OptionRow kOptionLetters[] = {
    // letter, kind, bits, codes
    {'D', OptionKind::CodeWithValue, 0, {OptionDuplex}},     // duplex unit
    {'H', OptionKind::Code, 0, {3}},                         //
    {'M', OptionKind::Code, 0, {3}},                         //
    {'A', OptionKind::Code, 0, {4}},                         //
    {'O', OptionKind::CodePerBit, 0x1F, {5, 6, 9, 10, 14}},  //
    {'B', OptionKind::CodePerBit, 0x07, {7, 15, 13}},        //
    {'F', OptionKind::CodePerBit, 0x03, {11, 12}},           // finisher: stapler, puncher
    {'T', OptionKind::CodePerBit, 0xFF, {16, 17, 104, 103, 101, 102, 105, 106}},  //
    {'\0', OptionKind::None, 0, {}},  // closing row: no option
};

constexpr bool EveryBitHasItsCode() {
  for (const OptionRow& row : kOptionLetters) {
    if (row.bits > 0xFF) return false;
    for (uint32_t bit = 0; bit < 8 && row.kind == OptionKind::CodePerBit; ++bit) {
      if ((row.bits >> bit & 1) != (row.codes[bit] != 0)) return false;
    }
  }
  return true;
}
static_assert(EveryBitHasItsCode());

// A value has room for four bytes, the first one lowest; an entry's further bytes are ignored.
uint32_t ReadValue(Input& entries) {
  uint32_t value = 0;
  for (uint32_t bit = 0; Left(entries) > 0; bit += 8) {
    const auto byte = static_cast<uint8_t>(*entries.position++);
    if (byte == kCarriageReturn) break;
    if (bit < 32) value |= uint32_t{byte} << bit;
  }
  return value;
}

}  // namespace

//   1B 'A' CR  '1' LF     '0' means absent, anything else present
//
// A list with the count 0 may still hold nodes, which a D block left with code 0: it is replaced.
void ParsePresenceBlock(const Block& block, Filling to, uint16_t optionCode) {
  if (Peek(BodyOf(block)) == '0') return;
  OptionNode** link = &to.record->optionList;
  if (to.record->optionCount != 0) {
    for (OptionNode& node : Items(*link)) {
      if (node.optionCode == optionCode) return;
      link = &node.next;
    }
  }
  auto* added = NewItem<OptionNode>(to.room);
  if (!added) return;
  added->optionCode = optionCode;
  FreeItemList(*link, to.room);  // at the head all there is, at the tail nothing
  *link = added;
  ++to.record->optionCount;
}

//   1B 'D' CR  F : 03 CR D : 01 00 00 00 LF
//              | | value, one to four raw bytes
//              | separator, any byte
//              letter
//
// Every known letter opens a node; it keeps code 0 when the value has none of the letter's bits.
// Further codes take nodes of their own. Without memory a code is lost.
void ParseOptionBlock(const Block& block, Filling to) {
  to.record->optionCount = 0;
  ListWriter<OptionNode> options = BeginList(to.record->optionList, to.room);
  Input entries = BodyOf(block);
  while (Left(entries) > 0) {
    const OptionRow& row =
        RowOf<kOptionLetters, &OptionRow::letter>(static_cast<uint8_t>(Peek(entries)));
    Skip(entries, 2);
    const uint32_t value = ReadValue(entries);
    if (row.kind == OptionKind::None) continue;
    OptionNode* node = NextItem(options);
    if (!node) continue;
    if (row.kind == OptionKind::CodeWithValue) node->optionValue = static_cast<uint16_t>(value);
    uint32_t bits = row.kind == OptionKind::CodePerBit ? value & row.bits : 1;
    for (const uint16_t* codes = row.codes; bits != 0; bits &= bits - 1) {
      OptionNode* free = node->optionCode == 0 ? node : NextItem(options);
      if (!free) continue;
      node = free;
      node->optionCode = codes[std::countr_zero(bits)];
      ++to.record->optionCount;
    }
  }
  EndList(options);
}

}  // namespace stm
