// Where the nodes and texts of a record come from: each is a zero-filled global block of its own,
// since the caller releases them one by one. A record that lives inside one call brings room for
// them instead and saves these allocations; what does not fit there is a global block as well.
#pragma once

#include <cstdint>

#include "platform/windows_api.h"
#include "stmdata/records.h"

namespace stm {

struct Room {
  uint32_t taken;   // bytes in use from the start; the rest is zero
  bool overflowed;  // what did not fit came from global memory
  alignas(void*) uint8_t bytes[1200];
};

inline bool HasBlock(const Room& room, const void* block) {
  const auto offset = reinterpret_cast<uintptr_t>(block) - reinterpret_cast<uintptr_t>(room.bytes);
  return offset < sizeof room.bytes;
}

// A zero-filled block, from `room` when there is one with as much left; null without memory.
inline void* TakeBlock(Room* room, size_t size) {
  if (room && size <= sizeof room->bytes - room->taken) {
    void* block = room->bytes + room->taken;
    room->taken += static_cast<uint32_t>(size + alignof(void*) - 1) & ~(alignof(void*) - 1);
    return block;
  }
  if (room) room->overflowed = true;
  return GlobalAlloc(GPTR, size);
}

// Releases a block. What lies in `room` stays taken until the room goes.
inline void ReleaseBlock(Room* room, void* block) {
  if (!room || !HasBlock(*room, block)) GlobalFree(block);
}

// A record that is being filled, and where its blocks come from.
struct Filling {
  PrnInfoEx* record;
  Room* room;  // null: from global memory
};

}  // namespace stm
