#include "resources/module.h"

#include <atomic>

#include "stmdata/stmdata.h"

namespace {

std::atomic<HINSTANCE> moduleHandle{nullptr};
constexpr DWORD kProcessAttach = 1;

}  // namespace

HINSTANCE stm::ModuleHandle() {
  return moduleHandle.load(std::memory_order_relaxed);
}

extern "C" BOOL STM_CALL DllMain(HINSTANCE module, DWORD reason, void*) {
  if (reason == kProcessAttach) moduleHandle.store(module, std::memory_order_relaxed);
  return 1;
}
