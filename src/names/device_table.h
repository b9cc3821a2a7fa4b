// Installed devices that the print manager reports by number: their display names and option codes.
#pragma once

#include <cstdint>

#include "stmdata/records.h"

namespace stm {

inline constexpr uint32_t kDeviceDuplexUnit = 164;

struct DeviceRow {
  uint32_t deviceCode;
  uint32_t nameId;  // string id
  uint16_t optionCode;
};

inline constexpr DeviceRow kDeviceTable[] = {
    // device           name  option
    {163, 925, 105},                         // option tray
    {kDeviceDuplexUnit, 926, OptionDuplex},  // duplex unit
    {0, 927, 0},                             // closing row: no such device
};

// The device's row, or null; 0 is no device.
inline const DeviceRow* FindDevice(uint32_t deviceCode) {
  for (const DeviceRow* row = kDeviceTable; row->deviceCode; ++row) {
    if (row->deviceCode == deviceCode) return row;
  }
  return nullptr;
}

}  // namespace stm
