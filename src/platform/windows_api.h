// What the library asks of the system. On Windows this is the system itself; elsewhere functions of
// our own with the same names and meanings stand in (folder linux/).
#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include "stmdata/host.h"

using HDC = struct HDC__*;

inline constexpr DWORD SRCCOPY = 0x00CC0020;     // source
inline constexpr DWORD SRCPAINT = 0x00EE0086;    // source or destination
inline constexpr DWORD SRCAND = 0x008800C6;      // source and destination
inline constexpr DWORD MERGEPAINT = 0x00BB0226;  // not source, or destination

extern "C" {
// Orders two strings; 0 when they are equal. Case counts. Only equality is promised to mean the
// same as on Windows: order is by byte here, by the user's language there.
int32_t STM_CALL lstrcmpA(const char* first, const char* second);

// Bitmaps are read where the module keeps them; a loaded one is only a view of its bytes. The same
// icon is loaded once.
HBITMAP STM_CALL LoadBitmapA(HINSTANCE module, const char* name);
HICON STM_CALL LoadIconA(HINSTANCE module, const char* name);

HWND STM_CALL GetDlgItem(HWND dialog, int controlId);

// Windows that have a device context are the picture controls.
HDC STM_CALL GetDC(HWND window);
int STM_CALL ReleaseDC(HWND window, HDC context);

// Memory contexts hold a bitmap to be drawn from; they cannot be drawn to.
HDC STM_CALL CreateCompatibleDC(HDC context);
BOOL STM_CALL DeleteDC(HDC context);
HGDIOBJ STM_CALL SelectObject(HDC context, HGDIOBJ object);

// From a memory context to a window's. Operations with a pattern are refused.
BOOL STM_CALL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX,
                     int sourceY, DWORD rop);
}
#endif
