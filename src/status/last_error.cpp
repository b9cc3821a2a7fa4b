#include "status/last_error.h"

#include <atomic>

#include "stmdata/stmdata.h"

namespace {
std::atomic<uint32_t> lastError{PatErrorNone};
}

void stm::SetPatError(uint32_t error) {
  lastError.store(error, std::memory_order_relaxed);
}

uint32_t STM_CALL PatGetError(void) {
  return lastError.load(std::memory_order_relaxed);
}
