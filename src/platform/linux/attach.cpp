// Does at load what the system's loader does on Windows: tells the library its module.
#include "stmdata/stmdata.h"

namespace {

// There is one module; its address tells it apart from null, nothing reads through it.
char module;

__attribute__((constructor)) void AttachProcess() {
  DllMain(reinterpret_cast<HINSTANCE>(&module), 1, nullptr);
}

}  // namespace
