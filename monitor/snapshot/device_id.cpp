#include "snapshot/device_id.h"

namespace stmon {
namespace {

struct KeyRow {
  std::string_view longKey;
  std::string_view key;
};

constexpr KeyRow kKeys[] = {
    {"MANUFACTURER:", "MFG:"},
    {"COMMAND SET:", "CMD:"},
    {"MODEL:", "MDL:"},
    {"DESCRIPTION:", "DES:"},
};

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

std::string PlainField(std::string_view field) {
  for (const KeyRow& row : kKeys) {
    if (field.starts_with(row.longKey))
      return std::string(row.key).append(field.substr(row.longKey.size()));
  }
  return std::string(field);
}

}  // namespace

std::string PlainDeviceId(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const size_t end = text.find(';');
    const std::string_view field = Trimmed(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (!field.empty()) plain += PlainField(field) + ";";
  }
  return plain;
}

}  // namespace stmon
