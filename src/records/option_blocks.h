// The blocks of the optional units: A and C answer one question each, D lists letters with bit
// sets.
#pragma once

#include <cstdint>

#include "records/scanners.h"
#include "stmdata/records.h"

namespace stm {

// Each parses a block, its end left out, into `record`.
void ParsePresenceBlock(const Input& block, PrnInfoEx* record, uint16_t optionCode);
void ParseOptionBlock(const Input& block, PrnInfoEx* record);

// The A block tells of option 4, the C block of the duplex unit.
inline void ParseOption4Block(const Input& block, PrnInfoEx* record) {
  ParsePresenceBlock(block, record, 4);
}
inline void ParseDuplexBlock(const Input& block, PrnInfoEx* record) {
  ParsePresenceBlock(block, record, OptionDuplex);
}

}  // namespace stm
