#include "resources/strings.h"

#include <cstring>

#include "platform/string_block.h"
#include "platform/windows_api.h"
#include "resources/chosen_language.h"
#include "resources/module.h"

namespace stm {
namespace {

// A text is made whole at first, and what fits is copied. This is room for every text of the
// library in every code page.
constexpr int kRoomForAnyText = 512;

StringEntry FindLocalizedEntry(uint32_t id, LANGID language) {
  HINSTANCE module = ModuleHandle();
  HRSRC resource =
      FindResourceExA(module, RT_STRING, MAKEINTRESOURCEA(StringBlockOf(id)), language);
  const void* block = resource ? LockResource(LoadResource(module, resource)) : nullptr;
  if (!block) return {nullptr, 0};
  return FindStringEntry(block, SizeofResource(module, resource), id);
}

// How many bytes a character takes that begins with this one.
size_t WidthOf(UINT codePage, char first) {
  const auto byte = static_cast<uint8_t>(first);
  if (codePage != CP_UTF8) return IsDBCSLeadByteEx(codePage, byte) ? 2 : 1;
  return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// Copies what fits of `length` bytes.
Loaded Deliver(UINT codePage, const char* text, int length, char* buffer, int32_t size) {
  const auto whole = static_cast<size_t>(length);
  const auto room = static_cast<size_t>(size - 1);
  const size_t kept = whole <= room ? whole : CountWholeCharacters(codePage, text, room);
  std::memcpy(buffer, text, kept);
  buffer[kept] = '\0';
  return kept == whole ? Loaded::Whole : Loaded::Part;
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

Loaded LoadModuleString(uint32_t id, char* buffer, int32_t size) {
  if (!buffer || size <= 0) return Loaded::None;
  char text[kRoomForAnyText];
  const int length = LoadStringA(ModuleHandle(), id, text, sizeof text);
  const Loaded loaded = Deliver(CP_ACP, text, length, buffer, size);
  return buffer[0] ? loaded : Loaded::None;
}

Loaded LoadLocalizedString(uint32_t id, char* buffer, int32_t size) {
  return LoadStringIn(SelectedLanguage(), id, buffer, size);
}

Loaded LoadStringIn(LANGID language, uint32_t id, char* buffer, int32_t size) {
  if (!buffer || size <= 0) return Loaded::None;
  const StringEntry entry = FindLocalizedEntry(id, language);
  if (!entry.units) return Loaded::None;
  const UINT codePage = CodePageOf(language);
  if (codePage == kNoCodePage) return Loaded::None;
  char text[kRoomForAnyText];
  int length = 0;
  // The system's call takes an empty text for an error.
  if (entry.length > 0)
    length =
        WideCharToMultiByte(codePage, 0, reinterpret_cast<const WCHAR*>(entry.units),
                            static_cast<int>(entry.length), text, sizeof text, nullptr, nullptr);
  return Deliver(codePage, text, length, buffer, size);
}

}  // namespace stm
