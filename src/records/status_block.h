// The S block: status codes, online flag, tray and bin in use.
#pragma once

#include "records/block.h"
#include "records/room.h"

namespace stm {

void ParseStatusBlock(const Block& block, Filling to);

}  // namespace stm
