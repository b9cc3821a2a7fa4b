/* The release of a list-based record, for its owner: a function of headers alone, no export. */
#ifndef STMDATA_RELEASE_H
#define STMDATA_RELEASE_H

#include <string.h>

#include "stmdata/stmdata.h"

#define STM_RELEASE_LIST(Node, head) \
  while (head) {                     \
    Node* next = (head)->next;       \
    GlobalFree(head);                \
    (head) = next;                   \
  }

#define STM_RELEASE_TEXT(text) \
  if ((uintptr_t)(text) != STM_ABSENT_POINTER) GlobalFree(text);

/* Releases the texts and nodes of a list-based record and fills it with zeros, so that it may be
   used anew. Everything in it must come from this library or from GlobalAlloc; its lists end, and
   its texts may be null or all-ones.
   record  not null; its own block stays the caller's */
static inline void ReleasePrnInfoEx(PrnInfoEx* record) {
  STM_RELEASE_TEXT(record->modelName)
  STM_RELEASE_TEXT(record->manufacturer)
  STM_RELEASE_TEXT(record->description)
  STM_RELEASE_TEXT(record->versionText1)
  STM_RELEASE_TEXT(record->versionText2)
  STM_RELEASE_TEXT(record->versionText3)
  STM_RELEASE_LIST(StatusNode, record->statusList)
  STM_RELEASE_LIST(EmulationNode, record->emulationList)
  STM_RELEASE_LIST(FontNode, record->fontList)
  STM_RELEASE_LIST(TrayNode, record->trayList)
  STM_RELEASE_LIST(BinNode, record->binList)
  STM_RELEASE_LIST(OptionNode, record->optionList)
  memset(record, 0, sizeof *record);
}

#endif
