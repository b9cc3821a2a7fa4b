// The blocks that tell the printer's configuration: V version texts, M number, E printer language
// in use, F resident fonts.
#pragma once

#include <cstdint>

#include "records/scanners.h"
#include "stmdata/records.h"

namespace stm {

// A version text's block: six characters and the zero byte. Who fills such a text from elsewhere
// gives it this much at least, since a reply writes over what is there.
constexpr uint32_t kVersionBytes = 7;

// Each parses a block, its end left out, into `record`.
void ParseVersionBlock(const Input& block, PrnInfoEx* record);
void ParseNumberBlock(const Input& block, PrnInfoEx* record);
void ParseEmulationBlock(const Input& block, PrnInfoEx* record);
void ParseFontBlock(const Input& block, PrnInfoEx* record);

}  // namespace stm
