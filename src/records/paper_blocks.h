// The blocks of the paper path: T paper sizes and Z paper levels of the input trays, L output bins.
#pragma once

#include <cstdint>

#include "records/block.h"
#include "records/room.h"

namespace stm {

// Each parses the text of a block.
void ParseTrayBlock(const Block& block, Filling to);
void ParseLevelBlock(const Block& block, Filling to);
void ParseBinBlock(const Block& block, Filling to);

}  // namespace stm
