// Records of the library's own, which live inside one call.
#pragma once

#include "records/room.h"
#include "stmdata/records.h"

namespace stm {

struct TemporaryRecord {
  PrnInfoEx record;
  Room room;
};

// A zero-filled record in a block of its own, or null without memory.
inline TemporaryRecord* NewPrnInfoEx() {
  return static_cast<TemporaryRecord*>(GlobalAlloc(GPTR, sizeof(TemporaryRecord)));
}

// Releases the strings and lists of the record, then its own block. Result: 0, or 2 for a null
// record.
uint32_t FreePrnInfoEx(TemporaryRecord* temporary);

// Copies the fields of the groups; all others keep what they hold. Lists end at their chain's end
// and at the array's capacity, whatever the counts say; a count is copied as it stands.
void ConvertToPrnInfo(const PrnInfoEx& source, PrnInfo* target, uint32_t groups);

}  // namespace stm
