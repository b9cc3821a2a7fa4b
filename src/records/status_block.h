// The S block: status codes, online flag, tray and bin in use.
#pragma once

#include <cstdint>

#include "records/scanners.h"
#include "stmdata/records.h"

namespace stm {

enum : uint32_t { StatusClassReady = 0, StatusClassWarning = 1, StatusClassError = 2 };

// The class of a status code; codes that no row lists are errors.
uint32_t StatusClass(uint32_t code);

// Parses the block, its end left out, into `record`.
void ParseStatusBlock(const Input& block, PrnInfoEx* record);

}  // namespace stm
