// The blocks that tell the printer's configuration: V version texts, M number, E printer language
// in use, F resident fonts.
#pragma once

#include <cstdint>

#include "records/block.h"
#include "records/room.h"

namespace stm {

// Each parses the text of a block.
void ParseVersionBlock(const Block& block, Filling to);
void ParseNumberBlock(const Block& block, Filling to);
void ParseEmulationBlock(const Block& block, Filling to);
void ParseFontBlock(const Block& block, Filling to);

}  // namespace stm
