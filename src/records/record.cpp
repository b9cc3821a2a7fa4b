#include "records/record.h"

#include <initializer_list>

#include "records/item_list.h"
#include "records/record_text.h"

namespace stm {

namespace {

void ReleaseContents(const PrnInfoEx& record, Room* room) {
  for (char* text : {record.modelName, record.manufacturer, record.description, record.versionText1,
                     record.versionText2, record.versionText3})
    ReleaseText(text, room);
  FreeItemList(record.statusList, room);
  FreeItemList(record.emulationList, room);
  FreeItemList(record.fontList, room);
  FreeItemList(record.trayList, room);
  FreeItemList(record.binList, room);
  FreeItemList(record.optionList, room);
}

}  // namespace

// What lies in the room goes with it.
uint32_t FreePrnInfoEx(TemporaryRecord* temporary) {
  if (!temporary) return 2;
  if (temporary->room.overflowed) ReleaseContents(temporary->record, &temporary->room);
  GlobalFree(temporary);
  return 0;
}

}  // namespace stm
