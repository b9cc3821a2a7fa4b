#include "status/last_error.h"

#include <atomic>

#include "platform/shared_value.h"
#include "stmdata/stmdata.h"

namespace {
std::atomic<uint32_t> lastError{PatErrorNone};
}

void stm::SetPatError(uint32_t error) {
  SetShared(lastError, error);
}

uint32_t STM_CALL PatGetError(void) {
  return lastError.load(std::memory_order_relaxed);
}
