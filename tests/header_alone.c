/* Compiling this is the test: the header is plain C. */
#include "stmdata/stmdata.h"

typedef uint32_t(STM_CALL* QueryFunction)(uint32_t, char*, uint32_t*);
const QueryFunction stm_header_alone = CreateQueryCommand;
