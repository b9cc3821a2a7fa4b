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

TEST_CASE("a fresh list has a node at least, each of its own size") {
  TrayNode* one = stm::AllocItemList<TrayNode>(0);
  REQUIRE(one);
  CHECK(one->next == nullptr);
  CHECK(one->nodeSize == sizeof(TrayNode));
  CHECK(stm::FreeItemList(one) == nullptr);
  OptionNode* three = stm::AllocItemList<OptionNode>(3);
  CHECK(test::Values(three, &OptionNode::nodeSize) == Codes(3, sizeof(OptionNode)));
  stm::FreeItemList(three);
  CHECK(stm::FreePrnInfoEx(nullptr) == 2);
}

TEST_CASE("a resized list keeps its first nodes") {
  struct {
    const char* why;
    Codes held;
    uint32_t count;
    Codes expected;
  } const rows[] = {
      {"grow", {7, 8, 9}, 5, {7, 8, 9, 0, 0}},
      {"shrink to the head", {7, 8, 9}, 1, {7}},
      {"equal", {7, 8}, 2, {7, 8}},
      {"from nothing", {}, 2, {0, 0}},
      {"to nothing", {7, 8}, 0, {}},
      {"nothing to nothing", {}, 0, {}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.why);
    OptionNode* head = OptionsOf(row.held);
    OptionNode* resized = stm::ResizeItemList(head, row.count);
    CHECK(CodesOf(resized) == row.expected);
    if (head && row.count > 0) CHECK(resized == head);
    stm::FreeItemList(resized);
  }
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
  OptionNode* stranger = OptionsOf({2});
  nodes[2]->next = nodes[1];
  CHECK(stm::FindItem(head, 9) == nullptr);
  CHECK(stm::ItemAt(head, stm::kLongestWalk - 1) == nodes[1]);
  CHECK(stm::ItemAt(head, stm::kLongestWalk) == nullptr);
  CHECK(stm::RemoveItem(head, stranger) == head);
  CHECK(stm::FreeItemList(head) == nullptr);
  CHECK(stm::ResizeItemList(head, 2) == head);
  CHECK(CodesOf(head) == Codes{1, 2});
  nodes[1]->next = head;
  CHECK(stm::ResizeItemList(head, 5) == head);
  CHECK(CodesOf(head) == Codes{1});
  for (OptionNode* node : {nodes[0], nodes[1], nodes[2], stranger})
    GlobalFree(node);
}

TEST_CASE("no list grows as long as the longest walk") {
  FontNode* fonts = stm::ResizeItemList<FontNode>(nullptr, 0xFFFFFFFF);
  CHECK(stm::ItemAt(fonts, stm::kLongestList - 1));
  CHECK(!stm::ItemAt(fonts, stm::kLongestList));
  stm::FreeItemList(fonts);
}

TEST_CASE("a removed node leaves the others linked; a stranger is left alone") {
  OptionNode* head = OptionsOf({1, 2, 3});
  OptionNode* stranger = OptionsOf({2});
  CHECK(stm::RemoveItem(head, stranger) == head);
  CHECK(CodesOf(head) == Codes{1, 2, 3});
  CHECK(CodesOf(stranger) == Codes{2});
  head = stm::RemoveItem(head, head->next);
  CHECK(CodesOf(head) == Codes{1, 3});
  head = stm::RemoveItem(head, head);
  CHECK(CodesOf(head) == Codes{3});
  CHECK(stm::RemoveItem(head, head) == nullptr);
  stm::FreeItemList(stranger);
}

TEST_CASE("a list that is written anew takes its old nodes, emptied, then new ones") {
  OptionNode* head = stm::AllocItemList<OptionNode>(2);
  OptionNode* const old[] = {head, head->next};
  old[1]->optionCode = old[1]->optionValue = 7;
  OptionNode** link = &head;
  CHECK(stm::NextItem(link, nullptr) == old[0]);
  CHECK(stm::NextItem(link, nullptr) == old[1]);
  CHECK(old[1]->optionCode == 0);
  CHECK(old[1]->optionValue == 0);
  CHECK(old[1]->nodeSize == sizeof(OptionNode));
  old[1]->next = reinterpret_cast<OptionNode*>(stm::NewItem<EmulationNode>());
  OptionNode* added = stm::NextItem(link, nullptr);
  CHECK(added->nodeSize == sizeof(OptionNode));
  CHECK(added->next->nodeSize == sizeof(EmulationNode));  // of another size: left for release
  CHECK(old[1]->next == added);
  CHECK(link == &added->next);
  stm::FreeItemList(head);
}

TEST_CASE("blocks come from the room as long as it lasts, zero-filled, then from global memory") {
  stm::Room room{};
  stm::Room before{};
  void* blocks[sizeof room.bytes / 272 + 1];
  for (void*& block : blocks) {
    block = stm::TakeBlock(&room, 271);
    CHECK(stm::HasBlock(room, block) == (&block != std::end(blocks) - 1));
    CHECK(std::memcmp(block, before.bytes, 271) == 0);
    std::memset(block, 0xA5, 271);
  }
  CHECK(!stm::HasBlock(room, room.bytes - 1));
  CHECK(!stm::HasBlock(room, room.bytes + sizeof room.bytes));
  for (void* block : blocks)
    stm::ReleaseBlock(&room, block);
}
