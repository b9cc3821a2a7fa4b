#include "status/trays.h"

#include "status/record_view.h"

namespace stm {
namespace {

// False, and `found` untouched, when no tray has the id.
bool FindTray(TrayView view, uint32_t id, TrayPaper* found) {
  for (TrayPaper tray; TakeNext(&view, &tray);) {
    if (tray.trayId != id) continue;
    *found = tray;
    return true;
  }
  return false;
}

uint32_t IsPresent(const TrayView& view, uint32_t id) {
  TrayPaper tray;
  return FindTray(view, id, &tray) && tray.paperCode != PaperTrayMissing;
}

uint32_t IsListed(const TrayView& view, uint32_t id) {
  TrayPaper tray;
  return FindTray(view, id, &tray);
}

}  // namespace

uint32_t IsTrayPresent(const PrnInfo* info, uint32_t tray) {
  return IsPresent(ViewTrays(*info), tray);
}

uint32_t IsTrayPresent_Ex(const PrnInfoEx* info, uint32_t tray) {
  return IsPresent(ViewTrays(*info), tray);
}

uint32_t HasTray(const PrnInfo* info, uint32_t tray) {
  return IsListed(ViewTrays(*info), tray);
}

uint32_t HasTray_Ex(const PrnInfoEx* info, uint32_t tray) {
  return IsListed(ViewTrays(*info), tray);
}

}  // namespace stm
