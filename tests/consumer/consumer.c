/* Built against an installed tree in every way the packages promise. exports.inc has a row
   EXPORT(name) for each function of the module definition, so a function that the header, the
   import library and the library do not all agree on (name, bytes of arguments) fails to compile,
   to link or to load.

   With BARE it needs no C run-time and no start files: for linkers without a run-time of their own.
 */
#include <stmdata/stmdata.h>

typedef void (*Function)(void);

#define EXPORT(name) (Function) name,
static const Function functions[] = {
#include "exports.inc"
};
#undef EXPORT

/* Result: 0 when the library answers as its header says, else the number of the broken promise. */
static int Failure(void) {
  char query[64];
  uint32_t size = sizeof query;
  uint32_t i;
  for (i = 0; i < sizeof functions / sizeof functions[0]; ++i) {
    const volatile Function function = functions[i];
    if (!function) return 1;
  }
  if (CreateQueryCommand(GroupTrays, query, &size) != 1 || query[0] != 0x12) return 2;
  if (size == 0 || size > 41 || query[size] != 0) return 3;
  size = 0;
  if (CreateQueryCommand(GroupTrays, query, &size) != 0) return 4;
  if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || size == 0) return 5;
  return PatGetStatusFromNet(25) == 25 ? 0 : 6;
}

#ifdef BARE
void Start(void) {
  ExitProcess((UINT)Failure());
}
#else
int main(void) {
  return Failure();
}
#endif
