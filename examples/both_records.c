/* The same replies in both records, and the same question asked of each. */
#include <stdio.h>

#include "stmdata/release.h"
#include "stmdata/stmdata.h"

struct Case {
  const char* about;
  const char* reply;
  int32_t length;
};

#define REPLY(bytes) bytes, sizeof bytes - 1

static const struct Case cases[] = {
    {"offline, no paper in tray 1", REPLY("\033S\r0\r1\r1\n\033T\r1\r-1\n\033 ")},
    {"offline, energy saver and no paper", REPLY("\033S\r18,32\r1\r1\n\033 ")},
    {"black and cyan toner empty", REPLY("\033S\r72,69\r0\r1\n\033 ")},
};

/* Texts for the user in one line; bytes that are not ASCII as their numbers. */
static void Print(const char* who, const char* text) {
  printf("  %s ", who);
  for (; *text; ++text) {
    const unsigned char byte = (unsigned char)*text;
    if (byte == '\n') {
      printf(" / ");
    } else if (byte < 0x80) {
      putchar(byte);
    } else {
      printf("<%02X>", byte);
    }
  }
  printf("\n");
}

int main(void) {
  char language[] = "EN";
  size_t i;
  PatSetLocale(language);
  for (i = 0; i < sizeof cases / sizeof *cases; ++i) {
    static const PrnInfo empty;
    PrnInfo flat = empty;
    PrnInfoEx list = {0};
    char text[256];
    if (!SetPrnInfoFromReadbackCmd(&flat, cases[i].reply, cases[i].length)) return 1;
    if (!SetPrnInfoExFromReadbackCmd(&list, cases[i].reply, cases[i].length)) return 1;
    printf("%s\n", cases[i].about);
    if (PatGetDetailString(&flat, text, sizeof text)) Print("flat:", text);
    if (PatGetDetailString_Ex(&list, text, sizeof text)) Print("list:", text);
    ReleasePrnInfoEx(&list);
  }
  return 0;
}
