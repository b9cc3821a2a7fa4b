// The blocks of the optional units: A and C answer one question each, D lists letters with bit
// sets.
#pragma once

#include <cstdint>

#include "records/block.h"
#include "records/room.h"

namespace stm {

// Each parses the text of a block.
void ParsePresenceBlock(const Block& block, Filling to, uint16_t optionCode);
void ParseOptionBlock(const Block& block, Filling to);

// The A block tells of option 4, the C block of the duplex unit.
inline void ParseOption4Block(const Block& block, Filling to) {
  ParsePresenceBlock(block, to, 4);
}
inline void ParseDuplexBlock(const Block& block, Filling to) {
  ParsePresenceBlock(block, to, OptionDuplex);
}

}  // namespace stm
