#include <stdio.h>
#include "stmdata/stmdata.h"

int main(void) {
  static const char reply[] = "\033S\r32\r0\r1\r1\n\033 "; /* what a printer without paper sends */
  static PrnInfo printer;
  char text[64];
  SetPrnInfoFromReadbackCmd(&printer, reply, sizeof reply - 1);
  if (PatGetSimpleString(&printer, text, sizeof text)) printf("The printer says: %s\n", text);
  return 0;
}
