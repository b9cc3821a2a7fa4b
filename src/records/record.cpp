#include "records/record.h"

#include <initializer_list>

#include "records/item_list.h"

namespace stm {

uint32_t FreePrnInfoEx(PrnInfoEx* record) {
  if (!record) return 2;
  for (char* text : {record->modelName, record->manufacturer, record->description,
                     record->versionText1, record->versionText2, record->versionText3}) {
    if (text) GlobalFree(text);
  }
  FreeItemList(record->statusList);
  FreeItemList(record->emulationList);
  FreeItemList(record->fontList);
  FreeItemList(record->trayList);
  FreeItemList(record->binList);
  FreeItemList(record->optionList);
  GlobalFree(record);
  return 0;
}

}  // namespace stm
