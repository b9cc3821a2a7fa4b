// What a print manager's item means in the codes of the records. Both conversions ask here; where a
// code is stored, and what differs between the records, is their own business.
#pragma once

#include <cstdint>
#include <cstring>

#include "records/presence.h"
#include "stmdata/records.h"

namespace stm {

inline constexpr char kMaker[] = "ORLEX";

// Status codes that the state bits stand for.
inline constexpr uint32_t kStatusReady = 0;
inline constexpr uint32_t kStatusWarmingUp = 17;
inline constexpr uint32_t kStatusEnergySaver = 18;

// Whether the group has a count and an array; the count may be 0.
inline bool HasItems(const PMItemGroup* group) {
  return IsPresent(group) && IsPresent(group->count) && IsPresent(group->items);
}

// A copy of the item at `index`, below the group's count. An absent item pointer counts as an item
// whose fields are all absent: the caller said that something is there, not what.
template <class Item>
Item ItemOf(const PMItemGroup& group, uint32_t index) {
  Item item;
  if (IsPresent(group.items[index])) {
    std::memcpy(&item, group.items[index], sizeof item);
  } else {
    std::memset(&item, 0xFF, sizeof item);
  }
  return item;
}

// The group flags with the Device ID's bit replaced by the model's: here both mean the same.
uint32_t EffectiveGroups(uint32_t groups);

// The state flags that `statusBits` tells; each 0 or 1.
struct PrinterState {
  uint8_t offline;
  uint8_t online;
  uint8_t hasError;
  uint8_t printing;
  uint8_t noResponse;
};
PrinterState StateOf(uint32_t statusBits);

// The code of the name or, where that is absent, of the alternative name. A name that no row has
// does not lead on to the alternative.
uint32_t TrayCode(const PMInputTray& tray);
uint32_t BinCode(const PMOutputBin& bin);
uint32_t EmulationCode(const PMEmulation& emulation);
uint32_t FontCode(const PMFont& font);
uint8_t ModelCode(const char* modelName);

// The code by size, else by name. A size that no row has keeps `earlier`, the code held so far.
uint32_t PaperCode(const PMInputTray& tray, uint32_t earlier);

// Per cent.
uint32_t PaperLevel(const PMInputTray& tray);

// 2 when bit 0 is set, else 1.
uint32_t BinState(uint32_t stateFlags);

// 0 without a device code; a device that no row has keeps `earlier`.
uint32_t OptionCode(const PMOption& option, uint32_t earlier);

}  // namespace stm
