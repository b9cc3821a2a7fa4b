/* Compiling this is the test: the headers are plain C. */
#include "stmdata/languages.h"
#include "stmdata/stmdata.h"

typedef uint32_t(STM_CALL* QueryFunction)(uint32_t, char*, uint32_t*);
const QueryFunction stm_header_alone = CreateQueryCommand;
const LocaleRow* const stm_languages_alone = LocaleTable;
