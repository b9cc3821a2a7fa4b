// The blocks of the optional units: A and C answer one question each, D lists letters with bit
// sets.
#pragma once

#include <cstdint>

#include "records/room.h"
#include "records/scanners.h"

namespace stm {

// Each parses the text of a block.
void ParsePresenceBlock(const Input& block, Filling to, uint16_t optionCode);
void ParseOptionBlock(const Input& block, Filling to);

// The A block tells of option 4, the C block of the duplex unit.
inline void ParseOption4Block(const Input& block, Filling to) {
  ParsePresenceBlock(block, to, 4);
}
inline void ParseDuplexBlock(const Input& block, Filling to) {
  ParsePresenceBlock(block, to, OptionDuplex);
}

}  // namespace stm
