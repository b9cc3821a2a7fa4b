#include "picture/vector.h"

#include <string_view>

namespace stmon {
namespace {

constexpr std::string_view kGroupStart = "  <g id=\"";
constexpr std::string_view kGroupEnd = "\n  </g>\n";

std::string_view Group(std::string_view artwork, const std::string& name) {
  const size_t start = artwork.find(std::string(kGroupStart) + name + '"');
  if (start == std::string_view::npos) return {};
  return artwork.substr(start, artwork.find(kGroupEnd, start) + kGroupEnd.size() - start);
}

// Masks have no group: a group covers what lies below it.
std::string GroupName(const std::string& bitmap) {
  if (bitmap.starts_with("BMP_P_")) return bitmap.substr(4);
  return bitmap.starts_with("BMP_PR_") ? bitmap.substr(7) : "";
}

}  // namespace

std::string VectorParts(const PrnBitmap& bitmap) {
  const std::string_view artwork = kPrinterArtwork;
  std::string text(artwork.substr(0, artwork.find(kGroupStart)));
  text += "  <rect class=\"white\" width=\"320\" height=\"200\"/>\n";
  for (const uint8_t code : bitmap.partCodes) {
    PrnPart part{};
    PatGetPrnParts(nullptr, code, &part);
    const std::string name = GroupName(part.bitmapName);
    if (!name.empty()) text += Group(artwork, name);
  }
  return text + "</svg>\n";
}

}  // namespace stmon
