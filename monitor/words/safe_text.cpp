#include "words/safe_text.h"

#include <vector>

#include "stmdata/stmdata.h"
#include "utf8.h"

namespace stmon {
namespace {

constexpr char kHexDigits[] = "0123456789ABCDEF";
constexpr uint32_t kReplacement = 0xFFFD;

// C0 and C1 controls, with which a printer could write anywhere on a terminal, and the characters
// that turn the direction of writing or hide text, with which it could make a line read otherwise.
bool IsControl(uint32_t point) {
  if (point == '\n') return false;
  return point < 0x20 || (point >= 0x7F && point < 0xA0) || (point >= 0x200B && point <= 0x200F) ||
         (point >= 0x2028 && point <= 0x202E) || (point >= 0x2066 && point <= 0x2069) ||
         point == 0xFEFF;
}

}  // namespace

std::string EscapeBytes(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    const auto value = static_cast<uint8_t>(byte);
    if (byte == '\\') {
      text += "\\\\";
    } else if (value >= 0x20 && value < 0x7F) {
      text += byte;
    } else {
      text += "\\x";
      text += kHexDigits[value >> 4];
      text += kHexDigits[value & 15];
    }
  }
  return text;
}

std::string CleanUtf8(std::string_view text) {
  std::string clean;
  const std::string valid = utf8::replace_invalid(text, kReplacement);
  for (auto at = valid.begin(); at != valid.end();) {
    const uint32_t point = utf8::unchecked::next(at);
    utf8::unchecked::append(IsControl(point) ? kReplacement : point, std::back_inserter(clean));
  }
  return clean;
}

std::string ToUtf8(std::string_view text, uint32_t code_page) {
  if (text.empty()) return {};
  const auto size = static_cast<int>(text.size());
  const int units = MultiByteToWideChar(code_page, 0, text.data(), size, nullptr, 0);
  if (units <= 0) return EscapeBytes(text);
  std::vector<WCHAR> wide(static_cast<size_t>(units));
  MultiByteToWideChar(code_page, 0, text.data(), size, wide.data(), units);
  std::u16string points(wide.begin(), wide.end());
  std::string result;
  utf8::unchecked::utf16to8(points.begin(), points.end(), std::back_inserter(result));
  return CleanUtf8(result);
}

std::string HexBytes(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    const auto value = static_cast<uint8_t>(byte);
    if (!text.empty()) text += ' ';
    text += kHexDigits[value >> 4];
    text += kHexDigits[value & 15];
  }
  return text;
}

size_t DisplayWidth(std::string_view utf8_text) {
  size_t width = 0;
  const std::string valid = utf8::replace_invalid(utf8_text, kReplacement);
  for (auto at = valid.begin(); at != valid.end();) {
    const uint32_t point = utf8::unchecked::next(at);
    if (point >= 0x300 && point < 0x370) continue;  // combining marks stand on what came before
    if (point == 0xFF9E || point == 0xFF9F) {       // half-width voicing marks
      ++width;
      continue;
    }
    const bool wide =
        (point >= 0x1100 && point <= 0x115F) || (point >= 0x2E80 && point <= 0xA4CF) ||
        (point >= 0xAC00 && point <= 0xD7A3) || (point >= 0xF900 && point <= 0xFAFF) ||
        (point >= 0xFE30 && point <= 0xFE6F) || (point >= 0xFF00 && point <= 0xFF60) ||
        (point >= 0xFFE0 && point <= 0xFFE6);
    width += wide ? 2 : 1;
  }
  return width;
}

std::string Padded(std::string_view utf8_text, size_t columns) {
  std::string text(utf8_text);
  const size_t width = DisplayWidth(text);
  if (width < columns) text.append(columns - width, ' ');
  return text;
}

}  // namespace stmon
