#include "status/trays.h"

namespace stm {
namespace {

constexpr uint32_t kEmptyLevel = 1;  // this or less is no paper

// False, and `found` untouched, when no tray has the id.
bool FindTray(TrayView trays, uint32_t id, TrayPaper* found) {
  for (TrayPaper tray; TakeNext(&trays, &tray);) {
    if (tray.trayId != id) continue;
    *found = tray;
    return true;
  }
  return false;
}

}  // namespace

bool IsTrayListed(TrayView trays, uint32_t id) {
  TrayPaper tray;
  return FindTray(trays, id, &tray);
}

bool IsTrayPresent(TrayView trays, uint32_t id) {
  TrayPaper tray;
  return FindTray(trays, id, &tray) && tray.paperCode != PaperTrayMissing;
}

bool HasRunDown(const TrayLevel& tray, const TrayView& trays) {
  return tray.paperLevel <= kEmptyLevel && IsTrayPresent(trays, tray.trayId);
}

}  // namespace stm
