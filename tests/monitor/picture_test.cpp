#include "picture/picture.h"

#include <algorithm>

#include "doctest/doctest.h"
#include "words/texts.h"

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
    CHECK(text.ends_with("\x1B[0m\n"));
  }
}

TEST_CASE("names without an icon of their own get the nearest one") {
  CHECK(stmon::DrawIcon("ICO_ERR_POWEROFF").pixels == stmon::DrawIcon("ICO_OFFLINE").pixels);
  CHECK(stmon::DrawIcon("BMP_ERR_CAUTION").pixels == stmon::DrawIcon("ICO_ERR_CAUTION").pixels);
  CHECK(stmon::DrawIcon("ICO_ONLINE").pixels.size() == 32u * 32u);
  CHECK(stmon::DrawIcon("ICO_NOBODY").pixels.empty());
}
