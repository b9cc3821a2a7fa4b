// Display names of installed devices.
#include <cstring>

#include "names/device_table.h"
#include "resources/strings.h"
#include "stmdata/stmdata.h"

uint32_t STM_CALL PatGetDeviceName(uint32_t deviceCode, char* name, uint32_t* size) {
  if (!name || !size) return 0;
  const stm::DeviceRow* row = stm::FindDevice(deviceCode);
  if (!row) return 0;
  char text[32];  // every name fits, in every language
  if (stm::LoadLocalizedString(row->nameId, text, sizeof text) == stm::Loaded::None) return 0;
  const auto needed = static_cast<uint32_t>(std::strlen(text) + 1);
  const bool fits = needed <= *size;
  if (fits) std::memcpy(name, text, needed);
  *size = needed;
  return fits;
}
