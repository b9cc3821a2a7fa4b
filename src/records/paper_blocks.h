// The blocks of the paper path: T paper sizes and Z paper levels of the input trays, L output bins.
#pragma once

#include <cstdint>

#include "records/room.h"
#include "records/scanners.h"

namespace stm {

// Each parses the text of a block.
void ParseTrayBlock(const Input& block, Filling to);
void ParseLevelBlock(const Input& block, Filling to);
void ParseBinBlock(const Input& block, Filling to);

}  // namespace stm
