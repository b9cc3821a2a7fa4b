/* Releases what a list-based record holds: its nodes and texts belong to its owner. */
#ifndef RELEASE_H
#define RELEASE_H

#include <string.h>

#include "stmdata/stmdata.h"

#define RELEASE_LIST(head)     \
  while (head) {               \
    void* next = (head)->next; \
    GlobalFree(head);          \
    (head) = next;             \
  }

static void Release(PrnInfoEx* record) {
  GlobalFree(record->modelName);
  GlobalFree(record->manufacturer);
  GlobalFree(record->description);
  GlobalFree(record->versionText1);
  GlobalFree(record->versionText2);
  GlobalFree(record->versionText3);
  RELEASE_LIST(record->statusList)
  RELEASE_LIST(record->emulationList)
  RELEASE_LIST(record->fontList)
  RELEASE_LIST(record->trayList)
  RELEASE_LIST(record->binList)
  RELEASE_LIST(record->optionList)
  memset(record, 0, sizeof *record);
}

#endif
