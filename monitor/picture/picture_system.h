// What drawing asks of the system.
#pragma once

#include "picture/picture.h"

namespace stmon {

// Draws the part list that was composed last, which `bitmap` holds as well.
Image DrawParts(const PrnBitmap& bitmap);

Image ReadIcon(const char* name);

}  // namespace stmon
