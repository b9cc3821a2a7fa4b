#include "checksum.h"
#include "doctest/doctest.h"
#include "support.h"

TEST_CASE("bitmaps load by name, in any case, and belong to the caller") {
  struct Case {
    const char* name;
    int32_t side[2];
  };
  for (const Case& row : {Case{"BMP_PR_TONER_EC", {320, 200}},
                          {"bmp_p_base", {320, 200}},
                          {"BMP_PAPER_NORMAL", {12, 12}},
                          {"BMP_PAPER_R", {12, 12}}}) {
    CAPTURE(row.name);
    const HBITMAP first = PatLoadBitmap(row.name);
    const HBITMAP second = PatLoadBitmap(row.name);
    BITMAP size{};
    REQUIRE(first);
    CHECK(first != second);
    CHECK(DeleteObject(first));
    CHECK(GetObjectA(second, sizeof size, &size) == sizeof size);
    CHECK(size.bmWidth == row.side[0]);
    CHECK(size.bmHeight == row.side[1]);
    CHECK(size.bmPlanes == 1);
    CHECK(DeleteObject(second));
  }
}

TEST_CASE("icons load by name and are shared") {
  for (const char* name : {"ICO_ONLINE", "ICO_PAP_0", "ico_err_wastoner"}) {
    CAPTURE(name);
    const HICON icon = PatLoadIcon(name);
    CHECK(icon);
    CHECK(PatLoadIcon(name) == icon);
  }
  CHECK(PatLoadIcon("ICO_PAP_0") != PatLoadIcon("ICO_PAP_25"));
}

TEST_CASE("names of no resource, or of one of another kind, load nothing") {
  SetLastError(0);
  for (const char* name : {"ICO_ONLINE", "BMP_ERR_CAUTION", "BMP_P_BASE ", "", "#1"}) {
    CAPTURE(name);
    CHECK_FALSE(PatLoadBitmap(name));
  }
  for (const char* name : {"BMP_P_BASE", "ICO_ERR_POWEROFF", "", "#99"}) {
    CAPTURE(name);
    CHECK_FALSE(PatLoadIcon(name));
  }
  CHECK_FALSE(PatLoadBitmap(nullptr));
  CHECK_FALSE(PatLoadIcon(nullptr));
}

#ifndef _WIN32
TEST_CASE("the pixels of bitmaps and icons can be read") {
  std::vector<uint32_t> pixels(1025, 0xA5A5A5A5);
  const HBITMAP paper = PatLoadBitmap("BMP_PAPER_NORMAL");
  CHECK_FALSE(HostReadBitmap(paper, pixels.data(), 143));
  CHECK_FALSE(HostReadBitmap(paper, nullptr, 144));
  CHECK(pixels[0] == 0xA5A5A5A5);
  CHECK(HostReadBitmap(paper, pixels.data(), 144));
  CHECK(pixels[143] <= 0x00FFFFFF);
  CHECK(pixels[144] == 0xA5A5A5A5);
  CHECK(DeleteObject(paper));

  int32_t width = 0;
  int32_t height = 0;
  pixels.assign(1025, 0xA5A5A5A5);
  const HICON icon = PatLoadIcon("ICO_ERR_JAM");
  CHECK_FALSE(HostReadIcon(icon, nullptr, 1024, nullptr, nullptr));
  CHECK_FALSE(HostReadIcon(icon, pixels.data(), 1023, &width, &height));
  CHECK(pixels[0] == 0xA5A5A5A5);
  CHECK(width == 32);
  CHECK(height == 32);
  REQUIRE(HostReadIcon(icon, pixels.data(), 1024, nullptr, nullptr));
  CHECK(pixels[0] == 0);  // a corner outside the drawing
  CHECK(pixels[16 * 32 + 16] >= 0xFF000000);
  test::Checksum sum;  // of the icon as it was drawn
  sum.Add(pixels.data(), 1024 * sizeof pixels[0]);
  CHECK(sum.value == 0xB947C884);
  CHECK(pixels[1024] == 0xA5A5A5A5);
}
#endif
