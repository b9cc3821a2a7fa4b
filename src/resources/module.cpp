#include "resources/module.h"

#include <atomic>

#include "platform/shared_value.h"
#include "stmdata/stmdata.h"

namespace {

std::atomic<HINSTANCE> moduleHandle{nullptr};
constexpr DWORD kProcessAttach = 1;

}  // namespace

HINSTANCE stm::ModuleHandle() {
  return moduleHandle.load(std::memory_order_relaxed);
}

extern "C" BOOL STM_CALL DllMain(HINSTANCE module, DWORD reason, void*) {
  if (reason == kProcessAttach) stm::SetShared(moduleHandle, module);
  return 1;
}
