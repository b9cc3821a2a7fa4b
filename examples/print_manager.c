/* The print manager's road: its own record of names into both printer records, and on to texts. */
#include <stdio.h>

#include "stmdata/release.h"
#include "stmdata/stmdata.h"

#define COUNT_OF(array) (uint32_t)(sizeof(array) / sizeof *(array))

static const PMInputTray upper = {"Tray 1", 0x400, 0, "A4", NULL, STM_ABSENT, STM_ABSENT};
static const PMInputTray lower = {"Tray 2", 0x010, 0, NULL, NULL, 297, 420};
static const PMOption duplex = {164};
static const PMStatusItem noPaper = {0, 32};
static const void* const trays[] = {&upper, &lower};
static const void* const options[] = {&duplex};
static const void* const statuses[] = {&noPaper};

int main(void) {
  const uint32_t groups =
      GroupStatus | GroupModelInfo | GroupTrays | GroupOptions | GroupStatusList;
  const PMStatusInfo state = {0x00000002, STM_ABSENT}; /* one of the error bits, online */
  const PMModelInfo model = {"ZENTA C210", "1.02", STM_ABSENT};
  const PMItemGroup trayGroup = {COUNT_OF(trays), trays, 2};
  const PMItemGroup optionGroup = {COUNT_OF(options), options, STM_ABSENT};
  const PMItemGroup statusGroup = {COUNT_OF(statuses), statuses, STM_ABSENT};
  PMPrnInfo manager = {0};
  PrnInfoEx record = {0};
  PrnInfoEx earlier = {0};
  static PrnInfo flat;
  const TrayNode* tray;
  uint32_t size = 64;
  uint32_t equal = 0;
  uint8_t code = 0;
  char language[] = "EN";
  char text[256];

  manager.statusInfo = &state;
  manager.modelInfo = &model;
  manager.inputTrayInfo = &trayGroup;
  manager.optionInfo = &optionGroup;
  manager.statusListInfo = &statusGroup;
  if (!PatSetPMPrnInfoToPrnInfo(&record, &manager, groups)) return 1;
  if (!PatSetPMPrnInfoToPrnInfo_0(&flat, &manager, groups)) return 1;

  PatSetLocale(language);
  if (bGetDesName(record.modelName, text, &code)) printf("%s, model code %u\n", text, code);
  if (PatGetSimpleString_Ex(&record, text, sizeof text)) printf("Status: %s\n", text);
  if (PatGetDeviceName(duplex.deviceCode, text, &size)) printf("Installed: %s\n", text);
  for (tray = record.trayList; tray; tray = tray->next) {
    PatGetPaperName_Ex(&record, tray->paperCode, text);
    printf("Tray id %u: %s, %u %%%s\n", (unsigned)tray->trayId, text, (unsigned)tray->paperLevel,
           tray->trayId == record.currentTray ? ", in use" : "");
  }
  printf("The flat record counts %u trays and %s a duplex unit.\n", (unsigned)flat.trayCount,
         flat.hasDuplex ? "has" : "lacks");

  /* The same question a poll later: did anything change that is worth a redraw? */
  PatSetPMPrnInfoToPrnInfo(&earlier, &manager, groups);
  record.trayList->paperLevel = 25;
  PatCmpPrnInfoEX(&earlier, &record, groups, &equal);
  printf("After a few pages the records %s.\n", equal ? "still agree" : "differ");
  ReleasePrnInfoEx(&record);
  ReleasePrnInfoEx(&earlier);
  return 0;
}
