// The blocks of the paper path: T paper sizes and Z paper levels of the input trays, L output bins.
#pragma once

#include <cstdint>

#include "records/scanners.h"
#include "stmdata/records.h"

namespace stm {

// Each parses a block, its end left out, into `record`.
void ParseTrayBlock(const Input& block, PrnInfoEx* record);
void ParseLevelBlock(const Input& block, PrnInfoEx* record);
void ParseBinBlock(const Input& block, PrnInfoEx* record);

}  // namespace stm
