// What the library asks of the system. On Windows this is the system itself; elsewhere functions of
// our own with the same names and meanings stand in (folder linux/).
#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include <pthread.h>

#include "stmdata/host.h"

using HDC = struct HDC__*;

// A lock, free at first. A thread that holds it must not ask for it again.
using SRWLOCK = pthread_mutex_t;
#define SRWLOCK_INIT PTHREAD_MUTEX_INITIALIZER
inline void AcquireSRWLockExclusive(SRWLOCK* lock) {
  pthread_mutex_lock(lock);
}
inline void ReleaseSRWLockExclusive(SRWLOCK* lock) {
  pthread_mutex_unlock(lock);
}

extern "C" {
// Orders two strings; 0 when they are equal. Case counts. Both are by byte here. On Windows they
// are linguistic, in the user's language, where also strings of different bytes may be equal.
int32_t STM_CALL lstrcmpA(const char* first, const char* second);

// Bitmaps are read where the module keeps them; a loaded one is only a view of its bytes. The same
// icon is loaded once.
HBITMAP STM_CALL LoadBitmapA(HINSTANCE module, const char* name);
HICON STM_CALL LoadIconA(HINSTANCE module, const char* name);

HWND STM_CALL GetDlgItem(HWND dialog, int controlId);

// Only picture controls have a device context.
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

#define LOCALE_IDEFAULTANSICODEPAGE 0x1004u
#define CP_UTF8 65001u  // the system's ANSI code page at times, here never
#define MAKEINTRESOURCEA(id) (reinterpret_cast<char*>(static_cast<uintptr_t>(id)))
#define RT_BITMAP MAKEINTRESOURCEA(2)
#define RT_ICON MAKEINTRESOURCEA(3)
#define RT_STRING MAKEINTRESOURCEA(6)
#define RT_GROUP_ICON MAKEINTRESOURCEA(14)

extern "C" {

// Resources: types and names are strings or 16-bit ids in place of the pointer; strings are
// compared without regard to case, "#12" means id 12. The module is not looked at.

// Any language: the thread's, else English, else the first that has the name.
HRSRC STM_CALL FindResourceA(HINSTANCE module, const char* name, const char* type);

// That language, or the neutral ones of it; the neutral language 0 searches like FindResourceA.
HRSRC STM_CALL FindResourceExA(HINSTANCE module, const char* type, const char* name,
                               LANGID language);

HGLOBAL STM_CALL LoadResource(HINSTANCE module, HRSRC resource);

// Text: code pages 932, 1250 and 1252, and CP_ACP, here the one of the thread's language.

// Flags 0 and the page's own default character only. `count` is in UTF-16 units, -1 for up to and
// with the terminator; size 0 asks for the bytes needed.
int32_t STM_CALL WideCharToMultiByte(UINT codePage, DWORD flags, const WCHAR* units, int32_t count,
                                     char* buffer, int32_t size, const char* defaultCharacter,
                                     BOOL* usedDefault);
BOOL STM_CALL IsDBCSLeadByteEx(UINT codePage, uint8_t byte);

// The number of CP_ACP.
UINT STM_CALL GetACP(void);

// In place, CP_ACP.
char* STM_CALL CharUpperA(char* text);

// LOCALE_IDEFAULTANSICODEPAGE only: decimal digits.
int32_t STM_CALL GetLocaleInfoA(LCID locale, DWORD type, char* buffer, int32_t size);

// In the thread's language and CP_ACP; never splits a character.
int32_t STM_CALL LoadStringA(HINSTANCE module, UINT id, char* buffer, int32_t size);

}  // extern "C"
#endif
