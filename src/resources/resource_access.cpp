// The library's bitmaps by name.
#include "platform/windows_api.h"
#include "resources/module.h"
#include "stmdata/stmdata.h"

HRSRC STM_CALL PatFindResource(const char* name) {
  return FindResourceA(stm::ModuleHandle(), name, RT_BITMAP);
}

HGLOBAL STM_CALL PatLoadResource(HRSRC resource) {
  return LoadResource(stm::ModuleHandle(), resource);
}
