// The pictures that the library carries.
#pragma once

#include "platform/windows_api.h"

namespace stm {

// A new bitmap, released with DeleteObject; null when the library has none of that name.
HBITMAP LoadModuleBitmap(const char* name);

// A shared icon, which is not released; null when the library has none of that name.
HICON LoadModuleIcon(const char* name);

}  // namespace stm
