// Description names of models, and the library's own version.
#include <cstring>

#include "platform/windows_api.h"
#include "pm/description_names.h"
#include "stmdata/stmdata.h"

uint32_t STM_CALL bGetDesName(const char* key, char* desName, uint8_t* modelCode) {
  if (!key || !desName || !modelCode) return 0;
  const stm::DesName* row = stm::kDesNameTable;
  while (row->key && lstrcmpA(key, row->key) != 0)
    ++row;
  if (!row->key) return 0;
  std::memcpy(desName, row->desName, std::strlen(row->desName) + 1);
  *modelCode = row->modelCode;
  return 1;
}

// Fixed words, kept apart from the module's version resource: callers compare them.
uint32_t STM_CALL PatGetDllVersion(PatVersionInfo* version) {
  if (!version) return 0;
  version->versionWord1 = 0x01010000;
  version->versionWord2 = 0x01010000;
  version->versionWord3 = 0x00000100;
  version->versionWord4 = 0x01000000;
  version->versionWord5 = 0x00000002;
  version->versionWord6 = 0x000A001E;
  return 1;
}
