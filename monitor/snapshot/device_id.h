// The forms of a Device ID that the library does not read.
#pragma once

#include <string>
#include <string_view>

namespace stmon {

// The same fields as the library reads them: long keys (MODEL:) as short ones (MDL:), no blanks or
// line feeds around a field, and each ended by its ";", the last one too.
std::string PlainDeviceId(std::string_view text);

}  // namespace stmon
