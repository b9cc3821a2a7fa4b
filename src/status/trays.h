// Tray questions on a record, asked by the detail texts and the picture. Result: 1 or 0; all of
// them look at the first tray of that id.
#pragma once

#include <cstdint>

#include "stmdata/records.h"

namespace stm {

// Whether the tray is listed and in place.
uint32_t IsTrayPresent(const PrnInfo* info, uint32_t tray);
uint32_t IsTrayPresent_Ex(const PrnInfoEx* info, uint32_t tray);

// Whether the tray is listed, in place or not.
uint32_t HasTray(const PrnInfo* info, uint32_t tray);
uint32_t HasTray_Ex(const PrnInfoEx* info, uint32_t tray);

}  // namespace stm
