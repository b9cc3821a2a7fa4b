// Text in code pages, as the system's functions on Windows convert and load it. Where Windows takes
// the system's ANSI code page, this takes that of the texts in the thread's language.
#include <charconv>
#include <cstring>

#include "platform/linux/code_pages/code_page.h"
#include "platform/linux/environment_language.h"
#include "platform/string_block.h"
#include "platform/windows_api.h"
#include "stmdata/languages.h"

namespace stm {
namespace {

constexpr UINT kWesternPage = 1252;  // of every language that has no row

UINT PageOfLanguage(LANGID language) {
  const LANGID wanted = language == kNeutral ? ThreadTextLanguage() : language;
  for (const LocaleRow& row : LocaleTable) {
    if (row.id == wanted) return row.codePage;
  }
  return kWesternPage;
}

const CodePage* ThreadCodePage() {
  return FindCodePage(GetACP());
}

const CodePage* AskedCodePage(UINT number) {
  return number == CP_ACP ? ThreadCodePage() : FindCodePage(number);
}

int32_t FailWith(DWORD systemError) {
  SetLastError(systemError);
  return 0;
}

// Of bytes or units. The result of a conversion, at most two bytes a unit, is told as a positive
// 32-bit number; a 64-bit process can have longer texts.
constexpr size_t kLongestText = INT32_MAX / 2;

uint32_t CountBytes(const CodePage& page, const uint16_t* units, uint32_t count) {
  uint32_t bytes = 0;
  for (uint32_t unit = 0; unit < count; ++unit)
    bytes += EncodeUnit(page, units[unit]) > 0xFF ? 2 : 1;
  return bytes;
}

struct Conversion {
  uint32_t units;  // taken
  uint32_t bytes;  // written
};

// Converts whole characters as long as they fit. The page comes as a copy: what is written through
// `target` cannot change it, and the loop need not read it again for every unit.
Conversion Convert(const CodePage page, const uint16_t* units, uint32_t count, char* target,
                   uint32_t capacity) {
  uint32_t unit = 0;
  uint32_t bytes = 0;
  for (; unit < count; ++unit) {
    const uint16_t code = EncodeUnit(page, units[unit]);
    if (capacity - bytes < (code > 0xFF ? 2 : 1)) break;
    if (code > 0xFF) target[bytes++] = static_cast<char>(code >> 8);
    target[bytes++] = static_cast<char>(code);
  }
  return {unit, bytes};
}

StringEntry FindText(HINSTANCE module, UINT id) {
  HRSRC resource = FindResourceA(module, MAKEINTRESOURCEA(StringBlockOf(id)), RT_STRING);
  const void* block = LockResource(LoadResource(module, resource));
  if (!block) return {nullptr, 0};
  return FindStringEntry(block, SizeofResource(module, resource), id);
}

}  // namespace
}  // namespace stm

extern "C" {

int32_t STM_CALL WideCharToMultiByte(UINT codePage, DWORD flags, const WCHAR* units, int32_t count,
                                     char* buffer, int32_t size, const char* defaultCharacter,
                                     BOOL* usedDefault) {
  using namespace stm;
  const CodePage* page = AskedCodePage(codePage);
  if (!page || !units || count == 0 || size < 0 || (size > 0 && !buffer) || defaultCharacter ||
      usedDefault)
    return FailWith(ERROR_INVALID_PARAMETER);
  if (flags != 0) return FailWith(ERROR_INVALID_FLAGS);
  size_t whole = static_cast<size_t>(count);
  if (count < 0) {
    for (whole = 0; units[whole++] != 0;) {
    }
  }
  if (whole > kLongestText) return FailWith(ERROR_INVALID_PARAMETER);
  const auto length = static_cast<uint32_t>(whole);
  if (size == 0) return static_cast<int32_t>(CountBytes(*page, units, length));
  const Conversion done = Convert(*page, units, length, buffer, static_cast<uint32_t>(size));
  if (done.units < length) return FailWith(ERROR_INSUFFICIENT_BUFFER);
  return static_cast<int32_t>(done.bytes);
}

int32_t STM_CALL MultiByteToWideChar(UINT codePage, DWORD flags, const char* text, int32_t count,
                                     WCHAR* buffer, int32_t size) {
  using namespace stm;
  const CodePage* page = AskedCodePage(codePage);
  if (!page || !text || count == 0 || size < 0 || (size > 0 && !buffer))
    return FailWith(ERROR_INVALID_PARAMETER);
  if (flags != 0) return FailWith(ERROR_INVALID_FLAGS);
  const size_t whole = count > 0 ? static_cast<size_t>(count) : std::strlen(text) + 1;
  if (whole > kLongestText) return FailWith(ERROR_INVALID_PARAMETER);
  const auto length = static_cast<uint32_t>(whole);
  int32_t written = 0;
  for (uint32_t at = 0; at < length; ++written) {
    if (size > 0 && written == size) return FailWith(ERROR_INSUFFICIENT_BUFFER);
    const auto* bytes = reinterpret_cast<const uint8_t*>(text + at);
    const Decoded decoded = DecodeAt(*page, bytes, length - at);
    if (size > 0) buffer[written] = decoded.unit;
    at += decoded.length;
  }
  return written;
}

BOOL STM_CALL IsDBCSLeadByteEx(UINT codePage, uint8_t byte) {
  const stm::CodePage* page = stm::AskedCodePage(codePage);
  return page && stm::IsLeadByte(*page, byte);
}

UINT STM_CALL GetACP(void) {
  return stm::PageOfLanguage(stm::kNeutral);
}

char* STM_CALL CharUpperA(char* text) {
  const stm::CodePage& page = *stm::ThreadCodePage();
  for (char* at = text; *at; ++at) {
    const bool isDouble = stm::IsLeadByte(page, static_cast<uint8_t>(*at)) && at[1];
    const auto first = static_cast<uint8_t>(at[0]);
    if (isDouble) {
      const auto code = static_cast<uint16_t>(first << 8 | static_cast<uint8_t>(at[1]));
      const uint16_t capital = stm::CapitalOf(page, code);
      *at++ = static_cast<char>(capital >> 8);
      *at = static_cast<char>(capital);
    } else {
      *at = static_cast<char>(stm::CapitalOf(page, first));
    }
  }
  return text;
}

int32_t STM_CALL GetLocaleInfoA(LCID locale, DWORD type, char* buffer, int32_t size) {
  if (type != LOCALE_IDEFAULTANSICODEPAGE) return stm::FailWith(ERROR_INVALID_FLAGS);
  char digits[8] = "";
  std::to_chars(digits, digits + sizeof digits - 1,
                stm::PageOfLanguage(static_cast<LANGID>(locale)));
  const auto needed = static_cast<int32_t>(std::strlen(digits) + 1);
  if (size == 0) return needed;
  if (size < needed || !buffer) return stm::FailWith(ERROR_INSUFFICIENT_BUFFER);
  std::memcpy(buffer, digits, static_cast<size_t>(needed));
  return needed;
}

int32_t STM_CALL LoadStringA(HINSTANCE module, UINT id, char* buffer, int32_t size) {
  if (!buffer || size <= 0) return 0;
  buffer[0] = '\0';
  const stm::StringEntry entry = stm::FindText(module, id);
  if (!entry.units) return 0;
  const uint32_t bytes = stm::Convert(*stm::ThreadCodePage(), entry.units, entry.length, buffer,
                                      static_cast<uint32_t>(size - 1))
                             .bytes;
  buffer[bytes] = '\0';
  return static_cast<int32_t>(bytes);
}
}
