/* Linux only: the few platform functions and types that a caller of libstmdata.so needs.

   They bear the names and meanings that they have on Windows, where <windows.h> has them, so that
   one caller's source serves both systems. In 32 bits they also have the calling convention of
   Windows: the callee removes the arguments. */
#ifndef STMDATA_HOST_H
#define STMDATA_HOST_H

#ifndef _WIN32

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __i386__
#define STM_CALL __attribute__((stdcall))
#else
#define STM_CALL /* 64-bit systems have one calling convention */
#endif
#define STM_HOST_API __attribute__((visibility("default")))

typedef uint32_t DWORD;
typedef uint32_t UINT;
typedef int32_t BOOL;
typedef void* HGLOBAL;
typedef struct HINSTANCE__* HINSTANCE;
typedef struct HWND__* HWND;
typedef struct HBITMAP__* HBITMAP;
typedef struct HICON__* HICON;
typedef void* HGDIOBJ;

typedef struct BITMAP { /* 24 bytes, 32 with 64-bit pointers */
  int32_t bmType;
  int32_t bmWidth;
  int32_t bmHeight;
  int32_t bmWidthBytes;
  uint16_t bmPlanes;
  uint16_t bmBitsPixel;
  void* bmBits;
} BITMAP;
typedef struct HRSRC__* HRSRC;
typedef uint16_t LANGID;
typedef uint32_t LCID;
typedef uint16_t WCHAR; /* a UTF-16 unit */

#define ERROR_SUCCESS 0
#define ERROR_INVALID_HANDLE 6
#define ERROR_INVALID_PARAMETER 87
#define ERROR_INSUFFICIENT_BUFFER 122
#define ERROR_INVALID_ADDRESS 487
#define ERROR_INVALID_FLAGS 1004
#define ERROR_RESOURCE_NAME_NOT_FOUND 1814
#define ERROR_RESOURCE_LANG_NOT_FOUND 1815

/* The calling thread's last error, 0 until set. */
STM_HOST_API DWORD STM_CALL GetLastError(void);
STM_HOST_API void STM_CALL SetLastError(DWORD code);

#define GMEM_FIXED 0x0000u
#define GMEM_ZEROINIT 0x0040u
#define GPTR (GMEM_FIXED | GMEM_ZEROINIT)

/* A fixed memory block of `bytes` bytes, zero-filled with GMEM_ZEROINIT; its handle is its address.
   Null when there is no memory. Released with GlobalFree; free() does as well. */
STM_HOST_API HGLOBAL STM_CALL GlobalAlloc(UINT flags, size_t bytes);

/* Releases the block; null is allowed. Result: null. */
STM_HOST_API HGLOBAL STM_CALL GlobalFree(HGLOBAL block);

/* ---- Bitmaps and icons -----------------------------------------------------------------------
   What PatLoadBitmap and PatLoadIcon hand out. Handles of windows and bitmaps are numbers, not
   addresses: a null, foreign or released one is refused. A process can have 4096 at a time. Icons
   are shared and not released. */

/* Raster operations of PrnPart: what becomes of a destination pixel. */
#define SRCCOPY 0x00CC0020u    /* source */
#define SRCPAINT 0x00EE0086u   /* source or destination */
#define SRCAND 0x008800C6u     /* source and destination */
#define MERGEPAINT 0x00BB0226u /* not source, or destination */

/* Releases a bitmap. Result: 1, or 0 when there is no such bitmap or a device context holds it. */
STM_HOST_API BOOL STM_CALL DeleteObject(HGDIOBJ object);

/* Describes a bitmap as a display with 32 bits per pixel has it.
   size    bytes at `buffer`, at least sizeof(BITMAP)
   buffer  null asks for the size alone
   Result  sizeof(BITMAP), or 0 when there is no such bitmap or `size` is too small */
STM_HOST_API int32_t STM_CALL GetObjectA(HGDIOBJ object, int32_t size, void* buffer);

/* Writes a bitmap's pixels, 0x00RRGGBB, top row first; GetObjectA tells how many.
   count   pixels that `pixels` can take
   Result  1, or 0 and nothing written when there is no such bitmap or it has more pixels */
STM_HOST_API BOOL STM_CALL HostReadBitmap(HBITMAP bitmap, uint32_t* pixels, uint32_t count);

/* Writes an icon's pixels, 0xFFRRGGBB or 0 where it is transparent, top row first.
   count   pixels that `pixels` can take
   width, height  receive the size in pixels, whatever `count` is; 32 x 32 for the library's icons
   Result  1, or 0 and no pixel written when there is no such icon or it has more pixels */
STM_HOST_API BOOL STM_CALL HostReadIcon(HICON icon, uint32_t* pixels, uint32_t count,
                                        int32_t* width, int32_t* height);

/* ---- Picture dialog --------------------------------------------------------------------------
   The dialog that PatDrawPrinterBitmap draws into: controls in memory, nothing on a screen. A
   control must not be drawn or read on one thread while another draws to it. */

/* An empty dialog, released with HostDestroyDialog; null without memory. */
STM_HOST_API HWND STM_CALL HostCreateDialog(void);

/* Adds a white picture control of `width` x `height` pixels, 1 to 32767 each.
   Result  1; 0 for no such dialog, a size outside the limits, an identifier in use, no memory */
STM_HOST_API BOOL STM_CALL HostAddPicture(HWND dialog, int32_t controlId, int32_t width,
                                          int32_t height);

/* The pixels of a picture control, 0x00RRGGBB, top row first, `width` pixels a row. The caller may
   write them. They belong to the dialog and live as long.
   width, height  receive the control's size; null when it is not wanted
   Result  null when there is no such dialog or control */
STM_HOST_API uint32_t* STM_CALL HostPicturePixels(HWND dialog, int32_t controlId, int32_t* width,
                                                  int32_t* height);

/* Releases a dialog with its controls. Result: 1, or 0 when there is no such dialog. */
STM_HOST_API BOOL STM_CALL HostDestroyDialog(HWND dialog);

/* ---- Language --------------------------------------------------------------------------------
   A language id is (sublanguage << 10) | primary language. The thread's language is that of the
   environment (LC_ALL, LC_MESSAGES, LANG, the first one set), as it was when the library was
   loaded, until the thread sets another. The library's texts that follow "the thread's language"
   follow this one, and fall back to English. */

/* Sets the calling thread's language; 0 returns to the environment's. Result: the language set. */
STM_HOST_API LANGID STM_CALL SetThreadUILanguage(LANGID language);
STM_HOST_API LANGID STM_CALL GetThreadUILanguage(void);

#define CP_ACP 0u /* the code page of the texts in the thread's language */

/* Converts a text of code page 932, 1250, 1252 or CP_ACP to UTF-16.
   flags   0
   count   bytes at `text`, or -1 for all up to and with the terminator
   size    units that `buffer` can take; 0 asks for the number needed
   Result  units written. 0: GetLastError is 122 too small, 87 other code page or bad argument,
           1004 bad flags. Bytes that stand for nothing become U+30FB in code page 932. */
STM_HOST_API int32_t STM_CALL MultiByteToWideChar(UINT codePage, DWORD flags, const char* text,
                                                  int32_t count, WCHAR* buffer, int32_t size);

/* ---- Resources of the library ----------------------------------------------------------------
   For what PatFindResource and PatLoadResource return. The bytes are the library's constant data;
   nothing is released. */

/* The bytes of a resource that PatLoadResource returned; null for null. */
STM_HOST_API void* STM_CALL LockResource(HGLOBAL data);

/* The size in bytes of a resource that PatFindResource returned; 0 for anything else. The module is
   not looked at: there is one. */
STM_HOST_API DWORD STM_CALL SizeofResource(HINSTANCE module, HRSRC resource);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* !_WIN32 */

#endif
