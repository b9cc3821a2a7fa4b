// The blocks of the paper path: T paper sizes and Z paper levels of the input trays, L output bins.
#pragma once

#include <cstdint>

#include "records/scanners.h"
#include "stmdata/records.h"

namespace stm {

// Each parses the block at `block` into `record` and returns how many bytes of the reply it took.
uint16_t ParseTrayBlock(const Input& block, PrnInfoEx* record);
uint16_t ParseLevelBlock(const Input& block, PrnInfoEx* record);
uint16_t ParseBinBlock(const Input& block, PrnInfoEx* record);

}  // namespace stm
