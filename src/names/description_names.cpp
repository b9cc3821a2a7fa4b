#include "names/description_names.h"

#include <cstring>

#include "platform/windows_api.h"
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
