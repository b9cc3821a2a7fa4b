#include "resources/module.h"

#include "stmdata/stmdata.h"

namespace {

// Written once, when the loader attaches the library and no thread can have called it yet.
HINSTANCE moduleHandle = nullptr;
constexpr DWORD kProcessAttach = 1;

}  // namespace

HINSTANCE stm::ModuleHandle() {
  return moduleHandle;
}

extern "C" BOOL STM_CALL DllMain(HINSTANCE module, DWORD reason, void*) {
  if (reason == kProcessAttach) moduleHandle = module;
  return 1;
}
