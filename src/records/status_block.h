// The S block: status codes, online flag, tray and bin in use.
#pragma once

#include <cstdint>

#include "records/block.h"
#include "records/room.h"

namespace stm {

enum : uint32_t { StatusClassReady = 0, StatusClassWarning = 1, StatusClassError = 2 };

// The class of a status code; codes that no row lists are errors.
uint32_t StatusClass(uint32_t code);

// Parses the block, its end left out.
void ParseStatusBlock(const Block& block, Filling to);

}  // namespace stm
