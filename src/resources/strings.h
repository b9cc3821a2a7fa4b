// The two string loaders. Both write at most `size` bytes (nothing for 0, negative sizes and a null
// buffer), cut between characters and terminate.
#pragma once

#include <cstdint>

namespace stm {

// In the thread's language and the system's code page. Result: bytes written without the
// terminator; 0 without a text.
int32_t LoadModuleString(uint32_t id, char* buffer, int32_t size);

// In the language of PatSetLocale and its code page. Result: 1, also for an empty text; 0 and
// `buffer` untouched when the language lacks the text's block.
uint32_t LoadLocalizedString(uint32_t id, char* buffer, int32_t size);

}  // namespace stm
