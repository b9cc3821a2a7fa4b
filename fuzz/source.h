// Structured input for the fuzz targets: values, texts and whole records drawn from the bytes of
// the fuzzer. What is drawn lies in blocks of its exact size, so that a read too far is noticed.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <set>
#include <vector>

#include "stmdata/release.h"

namespace fuzz {

inline void Require(bool holds) {
  if (!holds) __builtin_trap();
}

class Source {
 public:
  Source(const uint8_t* data, size_t size) : at_(data), left_(size) { kept_.reserve(64); }

  bool Empty() const { return left_ == 0; }

  // Zero when the input is used up.
  uint8_t Byte() {
    if (left_ == 0) return 0;
    --left_;
    return *at_++;
  }
  uint32_t Below(uint32_t limit) { return Byte() % limit; }
  uint32_t Word() {
    uint32_t word = 0;
    for (int i = 0; i < 4; ++i)
      word = word << 8 | Byte();
    return word;
  }
  // Mostly a small number, now and then the absent mark or any word.
  uint32_t Number() {
    const uint8_t choice = Byte();
    if (choice == 0xFF) return STM_ABSENT;
    if (choice == 0xFE) return Word();
    return choice;
  }

  // A block of zeros or, with Keep, of the bytes; kept until the source goes.
  void* Block(size_t size) {
    kept_.push_back(std::make_unique<uint8_t[]>(size));
    return kept_.back().get();
  }
  void* Keep(const void* bytes, size_t size) {
    void* const block = Block(size);
    if (size > 0) std::memcpy(block, bytes, size);
    return block;
  }
  template <class Item>
  Item* Keep(const Item& item) {
    return static_cast<Item*>(Keep(&item, sizeof item));
  }

  // One of the names, a text of raw bytes, null, or `absent` (null where all-ones is no address
  // that may be handed in).
  template <size_t Count>
  const char* Text(const char* const (&names)[Count], const char* absent) {
    const uint32_t choice = Byte();
    if (choice < Count)
      return static_cast<char*>(Keep(names[choice], std::strlen(names[choice]) + 1));
    if (choice == 0xFF) return absent;
    if (choice == 0xFE) return nullptr;
    const size_t length = choice % 48 + (choice == 0xFD ? 300 : 0);
    auto* const text = static_cast<char*>(Block(length + 1));
    for (size_t i = 0; i < length; ++i)
      text[i] = static_cast<char>(Byte());
    return text;
  }

 private:
  const uint8_t* at_;
  size_t left_;
  std::vector<std::unique_ptr<uint8_t[]>> kept_;
};

// ---- Records ------------------------------------------------------------------------------------

inline void DrawNumber(Source& source, uint16_t& field) {
  field = static_cast<uint16_t>(source.Number());
}
inline void DrawNode(Source& source, StatusNode& node) {
  DrawNumber(source, node.code);
}
inline void DrawNode(Source& source, EmulationNode& node) {
  DrawNumber(source, node.emulationCode);
}
inline void DrawNode(Source& source, TrayNode& node) {
  DrawNumber(source, node.trayId);
  DrawNumber(source, node.paperCode);
  DrawNumber(source, node.paperLevel);
}
inline void DrawNode(Source& source, BinNode& node) {
  DrawNumber(source, node.binId);
  DrawNumber(source, node.binState);
}
inline void DrawNode(Source& source, OptionNode& node) {
  DrawNumber(source, node.optionCode);
  DrawNumber(source, node.optionValue);
}
inline void DrawNode(Source& source, FontNode& node) {
  DrawNumber(source, node.fontCode);
  DrawNumber(source, node.reserved);
}

// A chain of up to 40 nodes from GlobalAlloc with any contents, and a count that often fits it. Now
// and then the chain leads back into itself; its nodes are then entered into `endless`.
template <class Node>
void DrawList(Source& source, Node*& head, uint32_t& count, std::set<void*>& endless) {
  const uint32_t length = source.Below(4) ? source.Below(6) : source.Below(41);
  std::vector<Node*> nodes;
  Node** link = &head;
  for (uint32_t i = 0; i < length; ++i) {
    auto* node = static_cast<Node*>(GlobalAlloc(GPTR, sizeof(Node)));
    node->nodeSize = sizeof(Node);
    DrawNode(source, *node);
    nodes.push_back(*link = node);
    link = &node->next;
  }
  const uint8_t choice = source.Byte();
  count = choice % 4 ? length : source.Number();
  if (choice < 0xFC || nodes.empty()) return;
  *link = nodes[nodes.size() * (choice - 0xFCu) / 4];
  endless.insert(nodes.begin(), nodes.end());
}

inline char* DrawText(Source& source) {
  const uint8_t length = source.Byte();
  if (length == 0xFF) return reinterpret_cast<char*>(STM_ABSENT_POINTER);
  if (length > 40) return nullptr;
  auto* text = static_cast<char*>(GlobalAlloc(GPTR, length + 1u));
  for (uint8_t i = 0; i < length; ++i)
    text[i] = static_cast<char>(source.Byte());
  return text;
}

template <class Node>
uint32_t Length(const Node* head) {
  uint32_t length = 0;
  for (; head; head = head->next)
    ++length;
  return length;
}

// A list-based record with real chains, released at the end: those without an end by itself, since
// no call releases their nodes.
struct ListRecord : PrnInfoEx {
  ListRecord() : PrnInfoEx{} {}
  ListRecord(const ListRecord&) = delete;
  ListRecord& operator=(const ListRecord&) = delete;
  ~ListRecord() {
    if (!endless_.empty()) {
      TakeNodes(statusList), TakeNodes(trayList), TakeNodes(binList);
      TakeNodes(optionList), TakeNodes(emulationList), TakeNodes(fontList);
      endless_.merge(taken_);
      for (void* node : endless_)
        GlobalFree(node);
    }
    ReleasePrnInfoEx(this);
  }

  // Whether one of its chains, as it was drawn, has no end: calls then take their longest.
  bool IsEndless() const { return !endless_.empty(); }

  void Draw(Source& source) {
    DrawList(source, statusList, statusCount, endless_);
    DrawList(source, trayList, trayCount, endless_);
    DrawList(source, binList, binCount, endless_);
    DrawList(source, optionList, optionCount, endless_);
    DrawList(source, emulationList, emulationCount, endless_);
    DrawList(source, fontList, fontCount, endless_);
    for (char** text :
         {&modelName, &manufacturer, &description, &versionText1, &versionText2, &versionText3})
      *text = DrawText(source);
    for (uint32_t* number :
         {&recordTag, &structSize, &modelInfoNumber, &emulationCode, &currentTray, &currentBin})
      *number = source.Number();
    for (uint8_t* flag : {&offline, &modelCode, &online, &hasError, &printing, &noResponse})
      *flag = source.Below(3) ? source.Byte() & 1 : source.Byte();
  }

 private:
  template <class Node>
  void TakeNodes(Node*& head) {
    for (Node* node = head; node && taken_.insert(node).second;)
      node = node->next;
    head = nullptr;
  }

  std::set<void*> endless_;
  std::set<void*> taken_;
};

// A flat record of any bytes, the numbers among them often small.
inline void DrawFlat(Source& source, PrnInfo& info) {
  uint32_t words[sizeof info / 4];
  const uint8_t fill = source.Byte();
  std::memset(words, fill, sizeof words);
  for (uint32_t left = source.Byte(); left > 0 && !source.Empty(); --left)
    words[(source.Byte() << 8 | source.Byte()) % (sizeof info / 4)] = source.Number();
  std::memcpy(&info, words, sizeof info);
  if (source.Below(8)) info.noResponse = 0;
  if (source.Below(4)) info.statusCount = source.Below(34);
  for (uint32_t i = 0; i < 6; ++i)
    info.statusList[i] = source.Number();
}

}  // namespace fuzz
