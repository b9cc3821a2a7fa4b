// Global memory and the thread's last error.
#include <cstdlib>

#include "platform/windows_api.h"

namespace {
thread_local DWORD threadLastError = ERROR_SUCCESS;
}

extern "C" {

DWORD STM_CALL GetLastError(void) {
  return threadLastError;
}

void STM_CALL SetLastError(DWORD code) {
  threadLastError = code;
}

// Always zero-filled: a caller that forgot GMEM_ZEROINIT must not see another block's bytes.
HGLOBAL STM_CALL GlobalAlloc(UINT, size_t bytes) {
  return std::calloc(bytes ? bytes : 1, 1);
}

HGLOBAL STM_CALL GlobalFree(HGLOBAL block) {
  std::free(block);
  return nullptr;
}
}
