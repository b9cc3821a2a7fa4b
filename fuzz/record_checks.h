// What must be true of a record after any input. A leak is found by
// the sanitizer, which watches every run.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include "stmdata/release.h"

namespace fuzz {

inline void Require(bool condition) {
  if (!condition) std::abort();
}

// Inputs have 64 KB at most: no chain can be longer, and one that is does not end.
constexpr uint32_t kLongestChain = 65536;

template <class Node>
uint32_t Length(const Node* head) {
  uint32_t length = 0;
  for (; head; head = head->next) {
    Require(head->nodeSize == sizeof *head);
    Require(++length <= kLongestChain);
  }
  return length;
}

// A list without entries may hold one empty node.
template <class Node>
void CheckList(uint32_t count, const Node* head) {
  const uint32_t length = Length(head);
  Require(count == length || (count == 0 && length == 1));
}

inline void CheckRecord(const PrnInfoEx& record) {
  CheckList(record.statusCount, record.statusList);
  CheckList(record.trayCount, record.trayList);
  CheckList(record.binCount, record.binList);
  Require(Length(record.fontList) == record.fontCount);
  for (const FontNode* font = record.fontList; font; font = font->next)
    Require(font->fontCode >= 1 && font->fontCode <= 20);
  Require(Length(record.emulationList) == record.emulationCount);
  Length(record.optionList);
  uint32_t options = 0;
  for (const OptionNode* option = record.optionList; option; option = option->next)
    options += option->optionCode != 0;
  Require(options == record.optionCount);
  for (const char* text : {record.versionText1, record.versionText2, record.versionText3})
    Require(!text || std::strlen(text) <= 6);
  for (const char* text : {record.modelName, record.manufacturer, record.description})
    Require(!text || std::strlen(text) <= 251);
  Require(record.online <= 1 && record.hasError <= 1);
}

// The input as a reply: it has a readable byte even when its length is 0.
inline const char* ReplyOf(const uint8_t* data, size_t size) {
  return size > 0 ? reinterpret_cast<const char*>(data) : "";
}

// A reply is walked when it begins with an escape and a letter; the byte 0xFF counts as none.
inline bool IsWalked(const uint8_t* reply, size_t size) {
  return size > 0 && reply[0] == 0x1B && !(size > 1 && reply[1] == 0xFF);
}

constexpr uint8_t kPoison = 0xA5;

// A flat record in which everything is unlike what an input says.
inline PrnInfo PoisonedFlat() {
  PrnInfo record;
  std::memset(&record, kPoison, sizeof record);
  return record;
}

template <size_t Size>
void CheckText(const char (&text)[Size]) {
  Require(static_cast<uint8_t>(text[0]) == kPoison || std::memchr(text, '\0', Size) != nullptr);
}

template <size_t Size>
void CheckUntouched(const uint8_t (&bytes)[Size]) {
  for (uint8_t byte : bytes)
    Require(byte == kPoison);
}

inline void CheckFlat(const PrnInfo& record) {
  CheckText(record.modelName);
  CheckText(record.manufacturer);
  CheckText(record.description);
  CheckText(record.versionText1);
  CheckText(record.versionText2);
  CheckText(record.versionText3);
  CheckUntouched(record.reserved1);
  CheckUntouched(record.reserved2);
  Require(record.structSize == 0xA5A5A5A5 && record.noResponse == 0xA5A5A5A5);
}

}  // namespace fuzz
