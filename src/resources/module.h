// The library's own module, whose resources it carries.
#pragma once

#include "platform/windows_api.h"

namespace stm {

// Set when the loader attaches the library to a process; null until then.
HINSTANCE ModuleHandle();

}  // namespace stm
