// What the library asks of the system. On Windows this is the system itself; elsewhere functions of
// our own with the same names and meanings stand in (folder linux/).
#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include "stmdata/host.h"

extern "C" {
// Orders two strings; 0 when they are equal. Case counts. Only equality is promised to mean the
// same as on Windows: order is by byte here, by the user's language there.
int32_t STM_CALL lstrcmpA(const char* first, const char* second);
}
#endif
