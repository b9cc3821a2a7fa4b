/* The library without an import library: on Windows by the ordinals of its exports, which never
   change, elsewhere by their names. */
#include <stdio.h>

#include "stmdata/stmdata.h"

#ifdef _WIN32
typedef HMODULE Library;
#else
#include <dlfcn.h>
typedef void* Library;
#endif

typedef void (*AnyFunction)(void);
typedef uint32_t(STM_CALL* ReadReply)(PrnInfo*, const char*, int32_t);
typedef uint32_t(STM_CALL* SimpleString)(const PrnInfo*, char*, int32_t);
typedef uint32_t(STM_CALL* DllVersion)(PatVersionInfo*);

static Library OpenLibrary(void) {
#ifdef _WIN32
  return LoadLibraryA("stmdata.dll");
#else
  return dlopen("libstmdata.so", RTLD_NOW);
#endif
}

static AnyFunction Find(Library library, unsigned ordinal, const char* name) {
  AnyFunction function;
#ifdef _WIN32
  function = (AnyFunction)GetProcAddress(library, (const char*)(uintptr_t)ordinal);
#else
  *(void**)&function = dlsym(library, name);
#endif
  if (!function) fprintf(stderr, "The library lacks %s, ordinal %u.\n", name, ordinal);
  return function;
}

int main(void) {
  static const char reply[] = "\033S\r32\r0\r1\r1\n\033 ";
  static PrnInfo record;
  PatVersionInfo version;
  char text[128];
  ReadReply readReply;
  SimpleString simpleString;
  DllVersion dllVersion;
  Library library = OpenLibrary();
  if (!library) {
    fprintf(stderr, "The library cannot be loaded.\n");
    return 1;
  }
  readReply = (ReadReply)Find(library, 102, "SetPrnInfoFromReadbackCmd");
  simpleString = (SimpleString)Find(library, 20, "PatGetSimpleString");
  dllVersion = (DllVersion)Find(library, 42, "PatGetDllVersion");
  if (!readReply || !simpleString || !dllVersion) return 1;

  if (!dllVersion(&version)) return 1;
  printf("First version word: %08x\n", (unsigned)version.versionWord1);
  if (!readReply(&record, reply, (int32_t)(sizeof reply - 1))) return 1;
  if (!simpleString(&record, text, sizeof text)) return 1;
  printf("Status %u: %s\n", (unsigned)record.statusCode, text);
  return 0;
}
