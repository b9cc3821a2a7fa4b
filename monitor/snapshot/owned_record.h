// The list-based record as its owner keeps it: zero-filled at first, its strings and lists released
// at the end.
#pragma once

#include "stmdata/release.h"

namespace stmon {

struct Record : PrnInfoEx {
  Record() : PrnInfoEx{} {
    recordTag = PrnInfoExTag;
    structSize = PrnInfoExSize;
  }
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;
  ~Record() { ReleasePrnInfoEx(this); }
};

}  // namespace stmon
