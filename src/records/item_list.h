// Item lists: singly linked nodes, each a zero-filled block of its own. A list is its head pointer;
// the record's count field beside it may disagree with the chain, so every operation ends at the
// chain's end and none trusts a count.
#pragma once

#include <cstdint>

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

// A zero-filled node, or null without memory.
template <class Node>
Node* NewItem(Room* room = nullptr) {
  auto* node = static_cast<Node*>(TakeBlock(room, sizeof(Node)));
  if (node) node->nodeSize = sizeof(Node);
  return node;
}

// Releases every node. Result: null, the empty list.
template <class Node>
Node* FreeItemList(Node* head, Room* room = nullptr) {
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

// Appends zero-filled nodes until the list holds `count`; stops early without memory.
template <class Node>
void GrowItemList(Node** link, uint32_t count) {
  for (uint32_t held = 0; held < count; ++held, link = &(*link)->next) {
    if (!*link) *link = NewItem<Node>();
    if (!*link) return;
  }
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

template <class Node>
Node* ItemAt(Node* head, uint32_t index) {
  while (head && index-- > 0)
    head = head->next;
  return head;
}

// The first node with the key; a key above 65535 matches none.
template <class Node>
Node* FindItem(Node* head, uint32_t key) {
  while (head && KeyOf(*head) != key)
    head = head->next;
  return head;
}

// Brings a list from `oldCount` to `newCount` nodes; kept nodes keep place and contents. A new
// count of 0 releases the list. Without memory the list stays shorter.
template <class Node>
Node* ResizeItemList(Node* head, uint32_t oldCount, uint32_t newCount) {
  if (newCount > oldCount) {
    GrowItemList(&head, newCount);
  } else if (newCount == 0 && oldCount != 0) {
    return FreeItemList(head);
  } else if (newCount < oldCount) {
    if (Node* last = ItemAt(head, newCount - 1)) last->next = FreeItemList(last->next);
  }
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
  for (Node** link = &head; *link; link = &(*link)->next) {
    if (*link != node) continue;
    *link = node->next;
    GlobalFree(node);
    break;
  }
  return head;
}

template <class Node>
uint32_t CountItems(const Node* head) {
  uint32_t count = 0;
  for (; head; head = head->next)
    ++count;
  return count;
}

}  // namespace stm
