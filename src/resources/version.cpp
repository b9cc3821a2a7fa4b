// The library's own version, as a caller asks for it.
#include "stmdata/stmdata.h"

// Fixed words, kept apart from the module's version resource: callers compare them.
uint32_t STM_CALL PatGetDllVersion(PatVersionInfo* version) {
  if (!version) return 0;
  version->versionWord1 = 0x01010000;
  version->versionWord2 = 0x01010000;
  version->versionWord3 = 0x00000100;
  version->versionWord4 = 0x01000000;
  version->versionWord5 = 0x00000002;
  version->versionWord6 = 0x000A001E;
  return 1;
}
