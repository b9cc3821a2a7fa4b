#include "records/paper_blocks.h"

#include <algorithm>

#include "records/item_list.h"
#include "records/reply_tables.h"

namespace stm {
namespace {

uint16_t PaperCode(std::string_view value) {
  return static_cast<uint16_t>(LookupNameCode(value, kPaperSizes));
}

uint16_t Number(std::string_view value) {
  return static_cast<uint16_t>(ParseDecimal(value));
}

// What differs between the blocks: the list with its count, the keys, and where a value goes.
template <class Node>
struct EntryRule {
  Node* PrnInfoEx::*list;
  uint32_t PrnInfoEx::*count;
  const NameCode* ids;
  uint16_t Node::*key;
  uint16_t Node::*field;
  uint16_t (*valueOf)(std::string_view);
};

constexpr EntryRule<TrayNode> kTrayRule = {
    &PrnInfoEx::trayList, &PrnInfoEx::trayCount, kTrayLetters,
    &TrayNode::trayId,    &TrayNode::paperCode,  PaperCode,
};
constexpr EntryRule<TrayNode> kLevelRule = {
    &PrnInfoEx::trayList, &PrnInfoEx::trayCount, kTrayLetters,
    &TrayNode::trayId,    &TrayNode::paperLevel, Number,
};
constexpr EntryRule<BinNode> kBinRule = {
    &PrnInfoEx::binList, &PrnInfoEx::binCount, kBinNumbers,
    &BinNode::binId,     &BinNode::binState,   Number,
};

// An id and a value, both followed by a CR or the block's end, make an entry.
uint32_t CountEntries(const Input& block) {
  return static_cast<uint32_t>(std::count(block.position, block.end, kCarriageReturn)) / 2;
}

//   1B 'T' CR  1 CR 5 CR  2 CR -1 LF
//              |    value
//              id
//
// Values go to the node with the entry's id. The k-th id that no node has yet takes the k-th node
// from the head; when the nodes are used up, such an entry is dropped. A CR right before the LF
// opens an entry without id and value.
template <const auto& rule>
void ParseEntries(const Input& block, Filling to) {
  RebuildItemList(to.record->*rule.list, to.record->*rule.count, CountEntries(block), to.room);
  auto* cursor = to.record->*rule.list;

  Input fields = FieldsOf(block);
  while (Peek(fields) != '\0') {
    const Field id = ReadField(fields, 8, kCarriageReturn, kLineFeed);
    const Field value = ReadField(fields, 8, kCarriageReturn, kLineFeed);
    const auto key = static_cast<uint16_t>(LookupNameCode(id.text, rule.ids));
    auto* node = FindItem(to.record->*rule.list, key);
    if (!node && cursor) {
      node = cursor;
      cursor = cursor->next;
      node->*rule.key = key;
    }
    if (node) node->*rule.field = rule.valueOf(value.text);
  }
}

}  // namespace

void ParseTrayBlock(const Input& block, Filling to) {
  ParseEntries<kTrayRule>(block, to);
}

void ParseLevelBlock(const Input& block, Filling to) {
  ParseEntries<kLevelRule>(block, to);
}

void ParseBinBlock(const Input& block, Filling to) {
  ParseEntries<kBinRule>(block, to);
}

}  // namespace stm
