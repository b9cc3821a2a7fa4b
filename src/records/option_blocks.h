// The blocks of the optional units: A and C answer one question each, D lists letters with bit
// sets.
#pragma once

#include <cstdint>

#include "records/scanners.h"
#include "stmdata/records.h"

namespace stm {

// Each parses the block at `block` into `record` and returns how many bytes of the reply it took.
uint16_t ParsePresenceBlock(const Input& block, PrnInfoEx* record, uint16_t optionCode);
uint16_t ParseOptionBlock(const Input& block, PrnInfoEx* record);

// The A block tells of option 4, the C block of the duplex unit.
inline uint16_t ParseOption4Block(const Input& block, PrnInfoEx* record) {
  return ParsePresenceBlock(block, record, 4);
}
inline uint16_t ParseDuplexBlock(const Input& block, PrnInfoEx* record) {
  return ParsePresenceBlock(block, record, OptionDuplex);
}

}  // namespace stm
