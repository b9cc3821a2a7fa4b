// What the tests share: memory that ends at an unreadable page, poisoned records, markers in both
// error values, and the release of a caller's record.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "stmdata/release.h"

#ifndef _WIN32
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace test {

constexpr uint8_t kPoison = 0xA5;
constexpr DWORD kMarker = 0x5A5A;

// A copy of bytes whose end is the end of readable memory: one byte further faults.
class GuardedBytes {
 public:
  explicit GuardedBytes(std::string_view bytes) : size_(bytes.size()) {
    const size_t page = 4096;
    readable_ = (size_ + page - 1) / page * page + page;
#ifdef _WIN32
    base_ = static_cast<char*>(VirtualAlloc(nullptr, readable_ + page, MEM_RESERVE, PAGE_NOACCESS));
    VirtualAlloc(base_, readable_, MEM_COMMIT, PAGE_READWRITE);
#else
    base_ = static_cast<char*>(
        mmap(nullptr, readable_ + page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    mprotect(base_, readable_, PROT_READ | PROT_WRITE);
#endif
    std::memset(base_, kPoison, readable_);
    if (size_ > 0) std::memcpy(data(), bytes.data(), size_);
  }
  GuardedBytes(const GuardedBytes&) = delete;
  GuardedBytes& operator=(const GuardedBytes&) = delete;
  ~GuardedBytes() {
#ifdef _WIN32
    VirtualFree(base_, 0, MEM_RELEASE);
#else
    munmap(base_, readable_ + 4096);
#endif
  }

  char* data() {
    return base_ + readable_ - size_;
  }
  int32_t size() const {
    return static_cast<int32_t>(size_);
  }
  bool neighboursUntouched() const {
    for (const char* p = base_; p < base_ + readable_ - size_; ++p) {
      if (static_cast<uint8_t>(*p) != kPoison) return false;
    }
    return true;
  }

 private:
  size_t size_;
  size_t readable_;
  char* base_;
};

// A list-based record as a caller owns it: zero-filled at first, released at the end.
struct Record : PrnInfoEx {
  Record() : PrnInfoEx{} {}
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;
  ~Record() { ReleasePrnInfoEx(this); }
};

// An empty reply is no reply.
inline uint32_t Parse(Record& record, std::string_view reply) {
  if (reply.empty()) return SetPrnInfoExFromReadbackCmd(&record, "", 0);
  GuardedBytes bytes(reply);
  return SetPrnInfoExFromReadbackCmd(&record, bytes.data(), bytes.size());
}

// Calls `visit` with every beginning of `bytes`, the empty one and the whole included, each ending
// where readable memory ends.
template <class Visit>
void ForEveryCut(std::string_view bytes, Visit visit) {
  for (size_t length = 0; length <= bytes.size(); ++length) {
    GuardedBytes cut(bytes.substr(0, length));
    visit(cut);
  }
}

// The part of a reply that its whole blocks make up, and those that are too long.
inline std::string_view WholeBlocks(std::string_view reply) {
  size_t end = 0;
  while (reply.size() - end > 1 && reply[end] == '\033') {
    const std::string_view rest = reply.substr(end);
    const size_t marker = rest.find("\033 ");
    const size_t line = rest.find('\n');
    const size_t most = rest[1] == 'S' ? 256 : 255;
    if (marker == 0) {
      end += 2;
    } else if (rest[1] == 'S' && marker < line && marker < most) {
      end += marker + 2;
    } else if (line < most) {
      end += line + 1;
    } else {
      if (rest.size() >= most) end += most;
      break;
    }
  }
  return reply.substr(0, end);
}

// A list's keys or values in order, for comparison with what is expected.
template <class Node, class Value>
std::vector<uint32_t> Values(const Node* head, Value Node::*field) {
  std::vector<uint32_t> values;
  for (; head; head = head->next)
    values.push_back(head->*field);
  return values;
}

}  // namespace test
