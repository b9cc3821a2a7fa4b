// Text that came from outside, made fit for a terminal, a JSON document or a metrics file: a
// printer, or whoever poses as one, chooses these bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace stmon {

// Every byte that is not printable ASCII written as \xNN, and a backslash as two: for bytes of
// which nobody knows the code page.
std::string EscapeBytes(std::string_view bytes);

// UTF-8 with control characters (line feed excepted) and broken sequences replaced by U+FFFD.
std::string CleanUtf8(std::string_view text);

// `text` of code page 932, 1250, 1252 or CP_ACP, cleaned likewise.
std::string ToUtf8(std::string_view text, uint32_t code_page);

// "1B 54 0A"
std::string HexBytes(std::string_view bytes);

// Columns that the text takes in a terminal: two for a full-width character, one for the others.
size_t DisplayWidth(std::string_view utf8);

// With blanks after it, up to so many columns.
std::string Padded(std::string_view utf8, size_t columns);

}  // namespace stmon
