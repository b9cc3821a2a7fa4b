#include "picture/picture.h"

#include <algorithm>
#include <string_view>

#include "doctest/doctest.h"
#include "picture/vector.h"
#include "words/texts.h"

namespace {

std::vector<std::string> GroupsOf(const std::string& svg) {
  constexpr std::string_view kStart = "<g id=\"";
  std::vector<std::string> names;
  for (size_t at = svg.find(kStart); at != std::string::npos; at = svg.find(kStart, at)) {
    at += kStart.size();
    names.push_back(svg.substr(at, svg.find('"', at) - at));
  }
  return names;
}

}  // namespace

TEST_CASE("a picture shows its state and becomes PNG and half blocks") {
  const stmon::Image ready = stmon::DrawPicture(stmon::StatusSample(0, false).list);
  const stmon::Image cover = stmon::DrawPicture(stmon::StatusSample(37, false).list);
  REQUIRE(ready.pixels.size() == 320u * 200u);
  CHECK(ready.pixels != cover.pixels);
  CHECK(stmon::DrawPicture(stmon::StatusSample(37, false).flat).pixels == cover.pixels);
  CHECK(stmon::EncodePng(ready).starts_with("\x89PNG\r\n"));
  for (const bool true_colour : {false, true}) {
    const std::string text = stmon::HalfBlocks(ready, 80, true_colour);
    CHECK(std::count(text.begin(), text.end(), '\n') == 25);
    CHECK(text.ends_with("\033[0m\n"));
  }
}

TEST_CASE("a picture as SVG has the groups of its layers, in their order") {
  const std::string svg = stmon::DrawVector(stmon::StatusSample(37, false, 2).list);
  CHECK(GroupsOf(svg) == std::vector<std::string>{"P_BASE", "BASE2", "F_COVER"});
  CHECK(svg.starts_with("<?xml"));
  CHECK(svg.ends_with("  </g>\n</svg>\n"));
  CHECK(stmon::DrawVector(stmon::StatusSample(37, false, 2).flat) == svg);
}

TEST_CASE("every part but a mask has its group, and every group is a part's") {
  std::vector<std::string> drawn;
  for (uint8_t code = 1; code <= 67; ++code) {
    PrnBitmap bitmap{};
    bitmap.partCodes[0] = code;
    const auto groups = GroupsOf(stmon::VectorParts(bitmap));
    drawn.insert(drawn.end(), groups.begin(), groups.end());
  }
  auto named = GroupsOf(stmon::kPrinterArtwork);
  std::sort(drawn.begin(), drawn.end());
  std::sort(named.begin(), named.end());
  CHECK(drawn.size() == 35);
  CHECK(drawn == named);
}

TEST_CASE("names without an icon of their own get the nearest one") {
  CHECK(stmon::DrawIcon("ICO_ERR_POWEROFF").pixels == stmon::DrawIcon("ICO_OFFLINE").pixels);
  CHECK(stmon::DrawIcon("BMP_ERR_CAUTION").pixels == stmon::DrawIcon("ICO_ERR_CAUTION").pixels);
  CHECK(stmon::DrawIcon("ICO_ONLINE").pixels.size() == 32u * 32u);
  CHECK(stmon::DrawIcon("ICO_NOBODY").pixels.empty());
}
