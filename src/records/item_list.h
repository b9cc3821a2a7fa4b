// Item lists: singly linked nodes, each a zero-filled block of its own. A list is its head pointer;
// the record's count field beside it may disagree with the chain, so every operation ends at the
// chain's end and none trusts a count. A chain that the caller linked may lead back into itself:
// who walks one does it through `Items`, which ends all the same.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "records/room.h"
#include "stmdata/records.h"

namespace stm {

// The key of each kind of node: the first field of its own.
inline uint16_t KeyOf(const StatusNode& node) {
  return node.code;
}
inline uint16_t KeyOf(const TrayNode& node) {
  return node.trayId;
}
inline uint16_t KeyOf(const BinNode& node) {
  return node.binId;
}
inline uint16_t KeyOf(const OptionNode& node) {
  return node.optionCode;
}
inline uint16_t KeyOf(const FontNode& node) {
  return node.fontCode;
}
inline uint16_t KeyOf(const EmulationNode& node) {
  return node.emulationCode;
}

// Where a walk ends at the latest. A list is shorter, so that a chain which goes on to there is
// known for one that does not end.
inline constexpr uint32_t kLongestWalk = 65536;
inline constexpr uint32_t kLongestList = kLongestWalk - 1;

// A walk along a chain, of `most` nodes at most: a range, or a cursor that stands on a node until
// it is at the end.
template <class Node>
class Items {
 public:
  explicit Items(Node* head, uint32_t most = kLongestWalk)
      : node_(most > 0 ? head : nullptr), left_(std::min(most, kLongestWalk)) {}

  Items begin() const { return *this; }
  std::default_sentinel_t end() const { return {}; }

  bool operator==(std::default_sentinel_t) const { return AtEnd(); }
  bool AtEnd() const { return !node_; }
  Node& operator*() const { return *node_; }
  Node* operator->() const { return node_; }
  Items& operator++() {
    node_ = --left_ > 0 ? node_->next : nullptr;
    return *this;
  }

 private:
  Node* node_;
  uint32_t left_;
};

template <class Node>
Node* ItemAt(Node* head, uint32_t index) {
  for (Node& node : Items(head)) {
    if (index-- == 0) return &node;
  }
  return nullptr;
}

// The first node with the key; a key above 65535 matches none.
template <class Node>
Node* FindItem(Node* head, uint32_t key) {
  for (Node& node : Items(head)) {
    if (KeyOf(node) == key) return &node;
  }
  return nullptr;
}

// A zero-filled node, or null without memory.
template <class Node>
Node* NewItem(Room* room = nullptr) {
  auto* node = static_cast<Node*>(TakeBlock(room, sizeof(Node)));
  if (node) node->nodeSize = sizeof(Node);
  return node;
}

// Releases every node. Result: null, the empty list. A chain that does not end stays its owner's: a
// node that it leads back to would be released twice.
template <class Node>
Node* FreeItemList(Node* head, Room* room = nullptr) {
  if (ItemAt(head, kLongestList)) return nullptr;
  while (head) {
    Node* next = head->next;
    ReleaseBlock(room, head);
    head = next;
  }
  return nullptr;
}

// A list as it is written, from its head on: the nodes that are there are used again, in their
// order, then new ones are added. What is not used again is released at the end.
template <class Node>
struct ListWriter {
  Node** link;  // to the next node
  Room* room;
};

template <class Node>
ListWriter<Node> BeginList(Node*& head, Room* room = nullptr) {
  return {&head, room};
}

// The next node as it is; zero-filled when it is a new one, null without memory.
template <class Node>
Node* KeepItem(ListWriter<Node>& list) {
  if (!*list.link) *list.link = NewItem<Node>(list.room);
  Node* node = *list.link;
  if (node) list.link = &node->next;
  return node;
}

// The next node, emptied; null without memory. A node of another size, which only a caller can have
// made, is not written to: a new one goes before it, and the end releases it.
template <class Node>
Node* NextItem(ListWriter<Node>& list) {
  Node* node = *list.link;
  if (node && node->nodeSize == sizeof(Node)) {
    Node* next = node->next;
    *node = {};
    node->next = next;
    node->nodeSize = sizeof(Node);
  } else {
    Node* added = NewItem<Node>(list.room);
    if (!added) return nullptr;
    added->next = node;
    *list.link = node = added;
  }
  list.link = &node->next;
  return node;
}

template <class Node>
void EndList(const ListWriter<Node>& list) {
  *list.link = FreeItemList(*list.link, list.room);
}

// Builds a list of `count` nodes, and of one when `count` is 0. Without memory it is empty and its
// count 0, so that the next time builds it.
template <class Node>
void BuildItemList(Node*& head, uint32_t& count, Room* room) {
  ListWriter<Node> list = BeginList(head, room);
  for (uint32_t left = std::max(count, 1u); left > 0; --left) {
    if (NextItem(list)) continue;
    head = FreeItemList(head, room);
    count = 0;
    return;
  }
}

// Makes room for `newCount` entries: a list of as many is kept with its contents, any other is
// released and built anew.
template <class Node>
void RebuildItemList(Node*& head, uint32_t& count, uint32_t newCount, Room* room) {
  if (newCount == count) return;
  head = FreeItemList(head, room);
  count = newCount;
  BuildItemList(head, count, room);
}

}  // namespace stm
