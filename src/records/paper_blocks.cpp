#include "records/paper_blocks.h"

#include "names/name_index.h"
#include "records/item_list.h"
#include "records/reply_tables.h"

namespace stm {
namespace {

constexpr uint32_t kMostOfField = 7;  // with its delimiter

uint16_t PaperCode(std::string_view value) {
  return static_cast<uint16_t>(LookupNameCode<kPaperSizes>(value));
}

uint16_t Number(std::string_view value) {
  return static_cast<uint16_t>(ParseDecimal(value));
}

// What differs between the blocks: the list with its count, the keys, and where a value goes.
template <class Node>
struct EntryRule {
  Node* PrnInfoEx::*list;
  uint32_t PrnInfoEx::*count;
  int32_t (*idOf)(std::string_view);
  uint16_t Node::*key;
  uint16_t Node::*field;
  uint16_t (*valueOf)(std::string_view);
};

constexpr EntryRule<TrayNode> kTrayRule = {
    &PrnInfoEx::trayList, &PrnInfoEx::trayCount, LookupNameCode<kTrayLetters>,
    &TrayNode::trayId,    &TrayNode::paperCode,  PaperCode,
};
constexpr EntryRule<TrayNode> kLevelRule = {
    &PrnInfoEx::trayList, &PrnInfoEx::trayCount, LookupNameCode<kTrayLetters>,
    &TrayNode::trayId,    &TrayNode::paperLevel, Number,
};
constexpr EntryRule<BinNode> kBinRule = {
    &PrnInfoEx::binList, &PrnInfoEx::binCount, LookupNameCode<kBinNumbers>,
    &BinNode::binId,     &BinNode::binState,   Number,
};

//   1B 'T' CR  1 CR 5 CR  2 CR -1 LF
//              |    value
//              id
//
// Each id and each value is followed by a CR, but for the last value; the CR of the head makes up
// for it, so that there are two CRs an entry.
//
// A value goes to the node that has the entry's id. For an id that no node has, the next node is
// taken, from the head on, and gets this id; when all nodes have been taken, the entry is dropped.
// A CR right before the LF opens an entry whose id and value are empty.
template <const auto& rule>
void ParseEntries(const Block& block, Filling to) {
  RebuildItemList(to.record->*rule.list, to.record->*rule.count, CountCrs(block) / 2, to.room);
  Items next(to.record->*rule.list);

  Fields fields = FieldsOf(block);
  while (!AtEnd(fields)) {
    const auto key = static_cast<uint16_t>(rule.idOf(NextField(fields, kMostOfField)));
    const uint16_t value = rule.valueOf(NextField(fields, kMostOfField));
    auto* node = FindItem(to.record->*rule.list, key);
    if (!node && !next.AtEnd()) {
      node = &*next;
      ++next;
      node->*rule.key = key;
    }
    if (node) node->*rule.field = value;
  }
}

}  // namespace

void ParseTrayBlock(const Block& block, Filling to) {
  ParseEntries<kTrayRule>(block, to);
}

void ParseLevelBlock(const Block& block, Filling to) {
  ParseEntries<kLevelRule>(block, to);
}

void ParseBinBlock(const Block& block, Filling to) {
  ParseEntries<kBinRule>(block, to);
}

}  // namespace stm
