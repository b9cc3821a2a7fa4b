// The library's bitmaps and icons by name.
#include "resources/resource_access.h"

#include "resources/module.h"
#include "stmdata/stmdata.h"

HBITMAP stm::LoadModuleBitmap(const char* name) {
  return LoadBitmapA(ModuleHandle(), name);
}

HICON stm::LoadModuleIcon(const char* name) {
  return LoadIconA(ModuleHandle(), name);
}

HRSRC STM_CALL PatFindResource(const char* name) {
  return FindResourceA(stm::ModuleHandle(), name, RT_BITMAP);
}

HGLOBAL STM_CALL PatLoadResource(HRSRC resource) {
  return LoadResource(stm::ModuleHandle(), resource);
}

HBITMAP STM_CALL PatLoadBitmap(const char* name) {
  return stm::LoadModuleBitmap(name);
}

HICON STM_CALL PatLoadIcon(const char* name) {
  return stm::LoadModuleIcon(name);
}
