// The two string loaders. Both write at most `size` bytes (nothing for 0, negative sizes and a null
// buffer), cut between characters and terminate.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/windows_api.h"

namespace stm {

// In the thread's language and the system's code page. Result: bytes written without the
// terminator; 0 without a text.
int32_t LoadModuleString(uint32_t id, char* buffer, int32_t size);

// In the language of PatSetLocale and its code page. Result: 1, also for an empty text; 0 and
// `buffer` untouched when the language lacks the text's block.
uint32_t LoadLocalizedString(uint32_t id, char* buffer, int32_t size);

// The same in a language that the caller has asked for once, so that the pieces of an answer agree.
uint32_t LoadStringIn(LANGID language, uint32_t id, char* buffer, int32_t size);

// A character of any code page takes this many bytes at most: of UTF-8, that is.
inline constexpr size_t kWidestCharacter = 4;

// How many bytes of the whole characters at `text` stand within `most` bytes.
size_t CountWholeCharacters(UINT codePage, const char* text, size_t most);

}  // namespace stm
