// Tray questions of the detail texts and the picture. All of them look at the first tray of an id.
#pragma once

#include <cstdint>

#include "status/record_view.h"

namespace stm {

// Whether the tray is listed, in place or not.
bool IsTrayListed(TrayView trays, uint32_t id);

// Whether it is listed and in place.
bool IsTrayPresent(TrayView trays, uint32_t id);

// Whether a tray in place has no paper left.
bool HasRunDown(const TrayLevel& tray, const TrayView& trays);

}  // namespace stm
