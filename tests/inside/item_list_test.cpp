#include "records/item_list.h"

#include "doctest/doctest.h"
#include "records/record.h"
#include "support.h"

namespace {

using Codes = std::vector<uint32_t>;

// A list of options with these codes.
OptionNode* OptionsOf(const Codes& codes) {
  OptionNode* head = nullptr;
  OptionNode** link = &head;
  for (uint32_t code : codes) {
    *link = stm::NewItem<OptionNode>();
    (*link)->optionCode = static_cast<uint16_t>(code);
    link = &(*link)->next;
  }
  return head;
}

Codes CodesOf(const OptionNode* head) {
  return test::Values(head, &OptionNode::optionCode);
}

}  // namespace

TEST_CASE("a list with room for its entries has a node at least, each of its own size") {
  struct {
    const char* why;
    Codes held;
    uint32_t count;
    uint32_t newCount;
    Codes expected;
  } const rows[] = {
      {"for no entry, before any", {}, 0, 0, {}}, {"for no entry", {7}, 1, 0, {0}},
      {"for more", {7, 8}, 2, 3, {0, 0, 0}},      {"for less", {7, 8}, 2, 1, {0}},
      {"for as many", {7, 8}, 2, 2, {7, 8}},      {"for as many as the count says", {7}, 2, 2, {7}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.why);
    OptionNode* head = OptionsOf(row.held);
    uint32_t count = row.count;
    stm::RebuildItemList(head, count, row.newCount, nullptr);
    CHECK(count == row.newCount);
    CHECK(CodesOf(head) == row.expected);
    for (const OptionNode& node : stm::Items(head))
      CHECK(node.nodeSize == sizeof node);
    stm::FreeItemList(head);
  }
  CHECK(stm::FreePrnInfoEx(nullptr) == 2);
}

TEST_CASE("nodes are found by index and by their 16-bit key") {
  OptionNode* head = OptionsOf({0, 4, 4, 1});
  CHECK(stm::ItemAt(head, 0) == head);
  CHECK(stm::ItemAt(head, 3)->optionCode == 1);
  CHECK(stm::ItemAt(head, 4) == nullptr);
  CHECK(stm::FindItem(head, 0) == head);
  CHECK(stm::FindItem(head, 4) == head->next);
  CHECK(stm::FindItem(head, 9) == nullptr);
  CHECK(stm::FindItem(head, 0x10004) == nullptr);
  stm::FreeItemList(head);
}

TEST_CASE("a chain that leads back into itself is walked, cut and left, but not released twice") {
  OptionNode* head = OptionsOf({1, 2, 3});
  OptionNode* const nodes[] = {head, head->next, head->next->next};
  nodes[2]->next = nodes[1];
  CHECK(stm::FindItem(head, 9) == nullptr);
  CHECK(stm::ItemAt(head, stm::kLongestWalk - 1) == nodes[1]);
  CHECK(stm::ItemAt(head, stm::kLongestWalk) == nullptr);
  CHECK(stm::FreeItemList(head) == nullptr);
  stm::ListWriter<OptionNode> list = stm::BeginList(head);
  CHECK(stm::KeepItem(list) == nodes[0]);
  CHECK(stm::KeepItem(list) == nodes[1]);
  stm::EndList(list);
  CHECK(CodesOf(head) == Codes{1, 2});
  for (OptionNode* node : nodes)
    GlobalFree(node);
}

TEST_CASE("a list is written over its old nodes, as they are or emptied, then into new ones") {
  struct {
    const char* why;
    Codes held;
    uint32_t kept;
    uint32_t emptied;
    Codes expected;
  } const rows[] = {
      {"nothing into nothing", {}, 0, 0, {}},
      {"nothing", {7, 8}, 0, 0, {}},
      {"less than there is", {7, 8, 9}, 1, 1, {7, 0}},
      {"as much as there is", {7, 8}, 1, 1, {7, 0}},
      {"more, the old ones kept", {7, 8}, 3, 1, {7, 8, 0, 0}},
      {"more, the old ones emptied", {7, 8}, 0, 3, {0, 0, 0}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.why);
    OptionNode* head = OptionsOf(row.held);
    const OptionNode* const old = head;
    stm::ListWriter<OptionNode> list = stm::BeginList(head);
    for (uint32_t i = 0; i < row.kept; ++i)
      stm::KeepItem(list)->optionValue = 1;
    for (uint32_t i = 0; i < row.emptied; ++i)
      CHECK(stm::NextItem(list)->optionValue == 0);
    stm::EndList(list);
    CHECK(CodesOf(head) == row.expected);
    if (old && !row.expected.empty()) CHECK(head == old);
    stm::FreeItemList(head);
  }
}

TEST_CASE("a node of another size is not written over but replaced") {
  OptionNode* head = OptionsOf({7});
  head->next = reinterpret_cast<OptionNode*>(stm::NewItem<EmulationNode>());
  stm::ListWriter<OptionNode> list = stm::BeginList(head);
  stm::NextItem(list);
  OptionNode* added = stm::NextItem(list);
  CHECK(added->nodeSize == sizeof(OptionNode));
  CHECK(added->next->nodeSize == sizeof(EmulationNode));
  stm::EndList(list);
  CHECK(test::Values(head, &OptionNode::nodeSize) == Codes(2, sizeof(OptionNode)));
  stm::FreeItemList(head);
}

TEST_CASE("blocks come from the room as long as it lasts, zero-filled, then from global memory") {
  stm::Room room{};
  stm::Room before{};
  void* blocks[sizeof room.bytes / 272 + 1];
  for (void*& block : blocks) {
    block = stm::TakeBlock(&room, 271);
    CHECK(stm::HasBlock(room, block) == (&block != std::end(blocks) - 1));
    CHECK(room.overflowed != stm::HasBlock(room, block));
    CHECK(std::memcmp(block, before.bytes, 271) == 0);
    std::memset(block, 0xA5, 271);
  }
  CHECK(!stm::HasBlock(room, room.bytes - 1));
  CHECK(!stm::HasBlock(room, room.bytes + sizeof room.bytes));
  for (void* block : blocks)
    stm::ReleaseBlock(&room, block);
}
