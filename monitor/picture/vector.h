// The library's artwork, of which its bitmaps are made, and pictures put together from it.
#pragma once

#include <string>

#include "stmdata/stmdata.h"

namespace stmon {

// An SVG document, zero-terminated: its head, and one group a layer, each named after its bitmap
// without BMP_ or BMP_PR_, and each from its own line to that of its end.
extern const char kPrinterArtwork[];

// An SVG document of the groups that the parts name, in their order.
std::string VectorParts(const PrnBitmap& bitmap);

}  // namespace stmon
