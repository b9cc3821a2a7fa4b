// The walk over a readback reply.
#pragma once

#include <cstdint>

#include "records/room.h"

namespace stm {

// What a reply of `length` bytes gave.
struct ReplyResult {
  uint32_t walked;      // 1, or 0 when the bytes are no reply
  uint32_t parseFlags;  // group bits of the blocks that were parsed
};

ReplyResult ReadReply(Filling to, const char* reply, int32_t length);

}  // namespace stm
