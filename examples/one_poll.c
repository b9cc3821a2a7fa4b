/* One poll, from the query to the picture. With the name of a file as argument it keeps the picture
   there (PPM). */
#include <stdio.h>
#include <string.h>

#include "stmdata/release.h"
#include "stmdata/stmdata.h"

/* What the printer answers: no paper, black toner nearly empty, online, tray 1 and bin 1 in use; A4
   in tray 1, which is empty, and B4 in tray 2. */
static const char answer[] =
    "\033S\r32,68\r0\r1\r1\n"
    "\033T\r1\r6\r2\r4\n"
    "\033Z\r1\r0\r2\r75\n"
    "\033 ";

/* Sends the query and receives the reply: the part that the library leaves to its caller. */
static int32_t Ask(const char* query, uint32_t length, char* reply, size_t capacity) {
  (void)query;
  printf("Query:   %u bytes\n", (unsigned)length);
  if (sizeof answer - 1 > capacity) return 0;
  memcpy(reply, answer, sizeof answer - 1);
  return (int32_t)(sizeof answer - 1);
}

static int Poll(PrnInfoEx* record) {
  char query[64]; /* 42 bytes are enough for every query and its zero */
  uint32_t length = sizeof query;
  char reply[4096];
  int32_t received;
  if (!CreateQueryCommand(GroupTrays | GroupOptions, query, &length)) return 0;
  received = Ask(query, length, reply, sizeof reply);
  return received > 0 && SetPrnInfoExFromReadbackCmd(record, reply, received);
}

static void Tell(const PrnInfoEx* record) {
  char language[] = "EN"; /* writable: PatSetLocale puts capitals there */
  char text[512];
  StatusRow row;
  PatSetLocale(language);
  if (PatGetSimpleString_Ex(record, text, sizeof text)) printf("Status:  %s\n", text);
  if (PatGetDetailString_Ex(record, text, sizeof text)) printf("To do:   %s\n", text);
  if (PatGetErrParts_Ex(record, text)) printf("Icon:    %s\n", text);
  if (PatGetPrinterStatus_Ex(record, &row)) printf("First:   status %u\n", (unsigned)row.code);
}

static void TellTrays(const PrnInfoEx* record) {
  const TrayNode* tray;
  for (tray = record->trayList; tray; tray = tray->next) {
    char paper[8], icon[12];
    PatGetPaperName_Ex(record, tray->paperCode, paper);
    PatGetIconName(1, tray->paperLevel, icon, sizeof icon);
    printf("Tray id %u: %s, %u %%, %s%s\n", (unsigned)tray->trayId, paper,
           (unsigned)tray->paperLevel, icon, tray->trayId == record->currentTray ? ", in use" : "");
  }
}

/* The drawing takes the part list of the latest composition in the process. */
static int Draw(const PrnInfoEx* record, HWND dialog, int control) {
  PrnBitmap parts;
  int i;
  if (!PatGetPrnBitmap_Ex(record, &parts)) return 0;
  printf("Parts:  ");
  for (i = 0; i < 16 && parts.partCodes[i]; ++i)
    printf(" %u", (unsigned)parts.partCodes[i]);
  printf("\n");
  PatDrawPrinterBitmap_Ex(dialog, 0, control, 0x1, 0, 0);
  return 1;
}

#ifndef _WIN32
static int Show(const PrnInfoEx* record, const char* file_name) {
  enum { Picture = 1000 };
  HWND dialog = HostCreateDialog();
  int32_t width = 0, height = 0, i;
  int done = HostAddPicture(dialog, Picture, 320, 200) && Draw(record, dialog, Picture);
  const uint32_t* pixels = HostPicturePixels(dialog, Picture, &width, &height);
  FILE* file = done && pixels && file_name ? fopen(file_name, "wb") : NULL;
  if (file) {
    fprintf(file, "P6 %d %d 255\n", (int)width, (int)height);
    for (i = 0; i < width * height; ++i)
      fprintf(file, "%c%c%c", pixels[i] >> 16 & 0xFF, pixels[i] >> 8 & 0xFF, pixels[i] & 0xFF);
    fclose(file);
  }
  HostDestroyDialog(dialog);
  return done;
}
#else
/* On Windows the control is one of the program's own dialog; without one only the list is shown. */
static int Show(const PrnInfoEx* record, const char* file_name) {
  (void)file_name;
  return Draw(record, NULL, 0);
}
#endif

int main(int count, char** arguments) {
  PrnInfoEx record = {0}; /* all zero before its first use; kept from poll to poll */
  int told = Poll(&record);
  if (told) {
    Tell(&record);
    TellTrays(&record);
    told = Show(&record, count > 1 ? arguments[1] : NULL);
  }
  ReleasePrnInfoEx(&record);
  return told ? 0 : 1;
}
