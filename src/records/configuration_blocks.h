// The blocks that tell the printer's configuration: V version texts, M number, E printer language
// in use, F resident fonts.
#pragma once

#include <cstdint>

#include "records/scanners.h"
#include "stmdata/records.h"

namespace stm {

// Each parses the block at `block` into `record` and returns how many bytes of the reply it took.
uint16_t ParseVersionBlock(const Input& block, PrnInfoEx* record);
uint16_t ParseNumberBlock(const Input& block, PrnInfoEx* record);
uint16_t ParseEmulationBlock(const Input& block, PrnInfoEx* record);
uint16_t ParseFontBlock(const Input& block, PrnInfoEx* record);

}  // namespace stm
