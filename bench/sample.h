// What several areas share: replies, walks over a record's blocks, and floors.
#pragma once

#include <cstring>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "bench.h"
#include "stmdata/release.h"

namespace bench {

// A reply with every block, without its status codes: they go between the two halves.
inline constexpr std::string_view kReplyHead = "\033S\r";
inline constexpr std::string_view kReplyTail =
    "\r0\r1\r1\n\033T\rT\r6\r1\r6\r2\r22\r3\r-1\n\033Z\rT\r50\r1\r100\r2\r75\r3\r0\n"
    "\033L\r1\r0\r2\r1\n\033V\rSYS\r1.01\rNPS\r2.00\rNWC\r3."
    "1415\n\033M\r64\n\033E\rNDL\n\033F\rCHUMINCYO\rMINCYO-BOLD\rGOTHIC\rGOTHIC-"
    "MEDIUM\rMARUGOTHIC\rKAISHO\n\033D\rD:1\rO:\x03\rF:\x03\rT:\x03\n\033A\r1\n\033 ";

inline std::string FullReply(std::string_view statuses) {
  return std::string(kReplyHead).append(statuses).append(kReplyTail);
}

inline uint32_t Parse(PrnInfoEx& record, std::string_view reply) {
  return SetPrnInfoExFromReadbackCmd(&record, reply.data(), static_cast<int32_t>(reply.size()));
}
inline uint32_t Parse(PrnInfo& record, std::string_view reply) {
  return SetPrnInfoFromReadbackCmd(&record, reply.data(), static_cast<int32_t>(reply.size()));
}

template <class Node, class Visit>
void VisitNodes(Node* node, Visit visit) {
  for (; node; node = node->next)
    visit(node, sizeof *node);
}

// Calls `visit` with the address and size of every block of the record.
template <class Visit>
void VisitBlocks(const PrnInfoEx& record, Visit visit) {
  for (char* text : {record.modelName, record.manufacturer, record.description})
    if (text) visit(text, std::strlen(text) + 1);
  for (char* text : {record.versionText1, record.versionText2, record.versionText3})
    if (text) visit(text, size_t{7});
  VisitNodes(record.statusList, visit);
  VisitNodes(record.emulationList, visit);
  VisitNodes(record.fontList, visit);
  VisitNodes(record.trayList, visit);
  VisitNodes(record.binList, visit);
  VisitNodes(record.optionList, visit);
}

// As many zero-filled allocations and releases as the record holds blocks, and one copy of the
// input.
struct RecordFloor {
  RecordFloor(const PrnInfoEx& record, std::string_view bytes) : input(bytes) {
    VisitBlocks(record, [this](void*, size_t size) { sizes.push_back(uint32_t(size)); });
    blocks.resize(sizes.size());
    copy.resize(bytes.size());
  }
  void operator()() {
    std::memcpy(copy.data(), input.data(), input.size());
    for (size_t i = 0; i < sizes.size(); ++i)
      blocks[i] = GlobalAlloc(GPTR, sizes[i]);
    Use(copy);
    for (void* block : blocks)
      GlobalFree(block);
  }
  std::string input;
  std::vector<uint32_t> sizes;
  std::vector<void*> blocks;
  std::string copy;
};

// A search through a table of the size of the status table, to its last row, and a copy of the
// bytes of the text.
struct TextFloor {
  explicit TextFloor(const char* source) : size(std::strlen(source) + 1) {
    std::memcpy(text, source, size);
    for (uint32_t row = 0; row < std::size(table); ++row)
      table[row] = {row, row, 0, row};
  }
  void operator()() {
    const StatusRow* row = table;
    while (row->code != last)
      ++row;
    Use(row);
    std::memcpy(copy, text, size);
    Use(copy);
  }
  StatusRow table[58];
  volatile uint32_t last = 57;
  size_t size;
  alignas(64) char text[512];  // copying takes the same instructions wherever the floor stands
  alignas(64) char copy[512];
};

// A part list, cleared.
struct PartListFloor {
  void operator()() {
    std::memset(&list, 0, sizeof list);
    Use(list);
  }
  PrnBitmap list;
};

}  // namespace bench
