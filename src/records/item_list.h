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

// The 16-bit key at offset 8 of each kind of node.
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
      : node_(head), left_(std::min(most, kLongestWalk)) {}

  Items begin() const { return *this; }
  std::default_sentinel_t end() const { return {}; }

  bool operator==(std::default_sentinel_t) const { return AtEnd(); }
  bool AtEnd() const { return !node_ || left_ == 0; }
  Node& operator*() const { return *node_; }
  Node* operator->() const { return node_; }
  Items& operator++() {
    node_ = node_->next;
    --left_;
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

// The next node of a list that is written anew from `link` on: an old node of the right size,
// emptied, or else a new one before it; `link` then leads behind it. Null without memory. What is
// left at the link when all is written is the caller's to release.
template <class Node>
Node* NextItem(Node**& link, Room* room) {
  Node* old = *link;
  if (old && old->nodeSize == sizeof(Node)) {
    Node* next = old->next;
    *old = {};
    old->next = next;
    old->nodeSize = sizeof(Node);
  } else {
    Node* added = NewItem<Node>(room);
    if (!added) return nullptr;
    added->next = old;
    *link = added;
  }
  Node* node = *link;
  link = &node->next;
  return node;
}

// A list of `count` nodes, of one node when `count` is 0; null when memory does not suffice for
// all.
template <class Node>
Node* AllocItemList(uint32_t count, Room* room = nullptr) {
  Node* head = nullptr;
  Node** link = &head;
  for (uint32_t made = 0; made < (count ? count : 1); ++made, link = &(*link)->next) {
    *link = NewItem<Node>(room);
    if (!*link) return FreeItemList(head, room);
  }
  return head;
}

// Brings a list to `count` nodes; kept nodes keep place and contents. A count of 0 releases the
// list. Without memory the list stays shorter.
template <class Node>
Node* ResizeItemList(Node* head, uint32_t count) {
  if (count == 0) return FreeItemList(head);
  Node** link = &head;
  for (uint32_t held = 0; held < std::min(count, kLongestList); ++held) {
    if (!*link) *link = NewItem<Node>();
    if (!*link) return head;
    link = &(*link)->next;
  }
  *link = FreeItemList(*link);
  return head;
}

// Makes room for `newCount` entries: a list of another count is released and built anew, one of the
// same count kept with its contents. Without memory the list is empty and its count 0, so that the
// next time builds it.
template <class Node>
void RebuildItemList(Node*& head, uint32_t& count, uint32_t newCount, Room* room) {
  if (newCount == count) return;
  FreeItemList(head, room);
  head = AllocItemList<Node>(newCount, room);
  count = head ? newCount : 0;
}

// Unlinks and releases `node`; a node of another list is left alone. Result: the head.
template <class Node>
Node* RemoveItem(Node* head, Node* node) {
  Node** link = &head;
  for (Node& held : Items(head)) {
    if (&held == node) {
      *link = node->next;
      GlobalFree(node);
      break;
    }
    link = &held.next;
  }
  return head;
}

}  // namespace stm
