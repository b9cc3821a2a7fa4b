// Comparison of 8-bit strings.
#include <cstring>

#include "platform/windows_api.h"

int32_t STM_CALL lstrcmpA(const char* first, const char* second) {
  return std::strcmp(first, second);
}
