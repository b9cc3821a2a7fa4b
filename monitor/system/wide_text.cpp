#ifdef _WIN32

#include "system/wide_text.h"

#include <windows.h>

#include <algorithm>

namespace stmon {

std::wstring Wide(std::string_view utf8) {
  const int length = static_cast<int>(utf8.size());
  const int units =
      length > 0 ? MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0) : 0;
  std::wstring wide(static_cast<size_t>(std::max(units, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), units);
  return wide;
}

std::string Utf8(std::wstring_view wide) {
  const int units = static_cast<int>(wide.size());
  const int size =
      units > 0 ? WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr)
                : 0;
  std::string text(static_cast<size_t>(std::max(size, 0)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, text.data(), size, nullptr, nullptr);
  return text;
}

}  // namespace stmon

#endif
