#include "resources/strings.h"

#include <algorithm>

#include "platform/string_block.h"
#include "platform/windows_api.h"
#include "resources/chosen_language.h"
#include "resources/module.h"

namespace stm {
namespace {

StringEntry FindLocalizedEntry(uint32_t id, LANGID language) {
  HINSTANCE module = ModuleHandle();
  HRSRC resource =
      FindResourceExA(module, RT_STRING, MAKEINTRESOURCEA(StringBlockOf(id)), language);
  const void* block = resource ? LockResource(LoadResource(module, resource)) : nullptr;
  if (!block) return {nullptr, 0};
  return FindStringEntry(block, SizeofResource(module, resource), id);
}

// Converts as many characters as fit in `capacity` bytes. A unit takes three bytes at most, so that
// a third of what is too much can be dropped at once without dropping too much.
int ConvertWhatFits(UINT codePage, const StringEntry& entry, char* buffer, int capacity) {
  const auto* units = reinterpret_cast<const WCHAR*>(entry.units);
  int count = static_cast<int>(entry.length);
  while (count > 0 && capacity > 0) {
    const int written =
        WideCharToMultiByte(codePage, 0, units, count, buffer, capacity, nullptr, nullptr);
    if (written > 0) return written;
    const int needed = WideCharToMultiByte(codePage, 0, units, count, nullptr, 0, nullptr, nullptr);
    count -= std::max(1, (needed - capacity + 2) / 3);
  }
  return 0;
}

// How many bytes a character takes that begins with this one.
size_t WidthOf(UINT codePage, char first) {
  const auto byte = static_cast<uint8_t>(first);
  if (codePage != CP_UTF8) return IsDBCSLeadByteEx(codePage, byte) ? 2 : 1;
  return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

}  // namespace

size_t CountWholeCharacters(UINT codePage, const char* text, size_t most) {
  if (codePage == CP_ACP) codePage = GetACP();
  size_t at = 0;
  while (at < most) {
    const size_t width = WidthOf(codePage, text[at]);
    if (at + width > most) break;
    at += width;
  }
  return at;
}

// A size of 1 has no room for a character; the system's call would mean something else by it.
int32_t LoadModuleString(uint32_t id, char* buffer, int32_t size) {
  if (!buffer || size <= 0) return 0;
  buffer[0] = '\0';
  if (size == 1) return 0;
  int32_t length = LoadStringA(ModuleHandle(), id, buffer, size);
  // The system may have cut a character in two.
  if (length == size - 1)
    length =
        static_cast<int32_t>(CountWholeCharacters(CP_ACP, buffer, static_cast<size_t>(length)));
  buffer[length] = '\0';
  return length;
}

uint32_t LoadLocalizedString(uint32_t id, char* buffer, int32_t size) {
  return LoadStringIn(SelectedLanguage(), id, buffer, size);
}

uint32_t LoadStringIn(LANGID language, uint32_t id, char* buffer, int32_t size) {
  if (!buffer || size <= 0) return 0;
  StringEntry entry = FindLocalizedEntry(id, language);
  if (!entry.units) return 0;
  const UINT codePage = CodePageOf(language);
  if (codePage == kNoCodePage) return 0;
  entry.length = std::min(entry.length, static_cast<uint32_t>(size));
  buffer[ConvertWhatFits(codePage, entry, buffer, size - 1)] = '\0';
  return 1;
}

}  // namespace stm
