/* Linux only: the few platform functions and types that a caller of libstmdata.so needs.

   They bear the names, meanings and calling convention (callee removes the arguments) that they
   have on Windows, so that one caller's source serves both systems; on Windows <windows.h> has
   them. */
#ifndef STMDATA_HOST_H
#define STMDATA_HOST_H

#ifndef _WIN32

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define STM_CALL __attribute__((stdcall))
#define STM_HOST_API __attribute__((visibility("default")))

typedef uint32_t DWORD;
typedef uint32_t UINT;
typedef int32_t BOOL;
typedef void* HGLOBAL;
typedef struct HINSTANCE__* HINSTANCE;

#define ERROR_SUCCESS 0
#define ERROR_INVALID_HANDLE 6
#define ERROR_INSUFFICIENT_BUFFER 122
#define ERROR_INVALID_ADDRESS 487

/* The calling thread's last error, 0 until set. */
STM_HOST_API DWORD STM_CALL GetLastError(void);
STM_HOST_API void STM_CALL SetLastError(DWORD code);

#define GMEM_FIXED 0x0000u
#define GMEM_ZEROINIT 0x0040u
#define GPTR (GMEM_FIXED | GMEM_ZEROINIT)

/* A fixed memory block of `bytes` bytes, zero-filled with GMEM_ZEROINIT; its handle is its address.
   Null when there is no memory. Released with GlobalFree; free() does as well. */
STM_HOST_API HGLOBAL STM_CALL GlobalAlloc(UINT flags, uint32_t bytes);

/* Releases the block; null is allowed. Result: null. */
STM_HOST_API HGLOBAL STM_CALL GlobalFree(HGLOBAL block);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* !_WIN32 */

#endif
