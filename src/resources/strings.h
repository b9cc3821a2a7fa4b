// The two string loaders. Both write at most `size` bytes (nothing for 0, negative sizes and a null
// buffer), cut between characters and terminate.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/windows_api.h"

namespace stm {

// What the buffer holds: no text, the beginning of one, or all of it.
enum class Loaded : uint8_t { None, Part, Whole };

// In the thread's language and the system's code page. An empty text counts as none, and so does
// one of which no character fits.
Loaded LoadModuleString(uint32_t id, char* buffer, int32_t size);

// In the language of PatSetLocale and its code page. An empty text is whole. `buffer` is untouched
// when the language lacks the text's block.
Loaded LoadLocalizedString(uint32_t id, char* buffer, int32_t size);

// The same in a language that the caller has asked for once, so that the pieces of an answer agree.
Loaded LoadStringIn(LANGID language, uint32_t id, char* buffer, int32_t size);

// How many bytes of the whole characters at `text` stand within `most` bytes.
size_t CountWholeCharacters(UINT codePage, const char* text, size_t most);

}  // namespace stm
