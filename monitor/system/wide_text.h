// UTF-8 as Windows takes it, and back.
#pragma once

#ifdef _WIN32

#include <string>
#include <string_view>

namespace stmon {

std::wstring Wide(std::string_view utf8);
std::string Utf8(std::wstring_view wide);

}  // namespace stmon

#endif
