// What the library asks of the system. On Windows this is the system itself; elsewhere functions of
// our own with the same names and meanings stand in (folder linux/).
#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include "stmdata/host.h"
#endif
