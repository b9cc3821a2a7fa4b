/* A printer's reply, from its bytes to what the user reads. */
#include <stdio.h>

#include "stmdata/stmdata.h"

/* Ready and online, tray 1 and bin 1 in use; B4 in tray 1. */
static const char reply[] = "\033S\r0\r0\r1\r1\n\033T\r1\r5\n\033 ";

/* The nodes of a list-based record belong to its owner. */
#define RELEASE_LIST(head)     \
  while (head) {               \
    void* next = (head)->next; \
    GlobalFree(head);          \
    (head) = next;             \
  }

int main(void) {
  PrnInfoEx record = {0};
  const TrayNode* tray;
  uint32_t querySize = 0;
  char language[] = "EN";
  char text[128];

  /* What a monitor would send; the first call tells the length. */
  CreateQueryCommand(GroupTrays | GroupStatus, NULL, &querySize);
  printf("The query for status and trays has %u bytes.\n", (unsigned)querySize);

  if (!SetPrnInfoExFromReadbackCmd(&record, reply, (int32_t)(sizeof reply - 1))) {
    fprintf(stderr, "The reply cannot be read.\n");
    return 1;
  }
  PatSetLocale(language);
  if (PatGetSimpleString_Ex(&record, text, sizeof text)) printf("Status: %s\n", text);
  for (tray = record.trayList; tray; tray = tray->next) {
    if (!PatGetPaperName_Ex(&record, tray->paperCode, text)) continue;
    printf("Tray id %u holds %s%s.\n", (unsigned)tray->trayId, text,
           tray->trayId == record.currentTray ? " and is in use" : "");
  }
  RELEASE_LIST(record.statusList)
  RELEASE_LIST(record.trayList)
  return 0;
}
