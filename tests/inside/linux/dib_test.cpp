#include <algorithm>

#include "doctest/doctest.h"

#include "platform/linux/dib.h"
#include "platform/windows_api.h"
#include "support.h"

using namespace std::string_literals;

using stm::Dib;
using stm::DibPlain;
using stm::DibRle4;
using stm::DibRle8;
using stm::Placement;

namespace {

// Palette entry n is the colour of the letter that stands for n: 'a' + n; black is written '.'.
uint32_t ColourOf(char letter) {
  return letter == '.' ? 0 : static_cast<uint32_t>(letter) * 0x010203;
}

std::string Little(uint32_t value, size_t bytes) {
  std::string text;
  for (; bytes > 0; --bytes, value >>= 8)
    text += static_cast<char>(value);
  return text;
}

struct Header {
  int32_t width;
  int32_t height;
  uint32_t depth;
  uint32_t compression;
  uint32_t colours;
};

std::string Packed(const Header& header, const std::string& bits, uint32_t headerSize = 40) {
  std::string bytes = Little(headerSize, 4) + Little(static_cast<uint32_t>(header.width), 4) +
                      Little(static_cast<uint32_t>(header.height), 4) + Little(1, 2) +
                      Little(header.depth, 2) + Little(header.compression, 4) + Little(0, 12) +
                      Little(header.colours, 4) + Little(0, 4);
  for (uint32_t i = 0; i < header.colours; ++i)
    bytes += Little(ColourOf(static_cast<char>('a' + i)), 3) + '\xFF';
  return bytes + bits;
}

// The frame as text, a '/' after each row.
std::string Text(const std::vector<uint32_t>& pixels, size_t width) {
  std::string text;
  for (size_t i = 0; i < pixels.size(); ++i) {
    char letter = '.';
    for (char c = 'a'; c <= 'z'; ++c) {
      if (ColourOf(c) == pixels[i]) letter = c;
    }
    if (letter == '.' && pixels[i] != 0) letter = pixels[i] == 0x00FFFFFF ? '#' : '?';
    text += letter;
    if ((i + 1) % width == 0) text += '/';
  }
  return text;
}

// The bitmap of bytes that hold one.
template <class Bytes>
Dib Whole(Bytes&& bytes) {
  Dib dib{};
  REQUIRE(stm::ReadDib(reinterpret_cast<const uint8_t*>(bytes.data()),
                       static_cast<uint32_t>(bytes.size()), &dib));
  return dib;
}

struct PictureCase {
  const char* why;
  Header header;
  std::string bits;
  std::string expected;
};

const PictureCase kPictures[] = {
    {"runs, bottom row first", {4, 2, 8, DibRle8, 4}, "\4\1\0\0\4\2\0\1"s, "cccc/bbbb/"},
    {"a run of two indices in turn", {5, 1, 4, DibRle4, 4}, "\5\x12\0\1"s, "bcbcb/"},
    {"single pixels, odd count, padded",
     {4, 2, 8, DibRle8, 4},
     "\0\3\1\2\3\0\1\0\0\0\4\1\0\1"s,
     "bbbb/bcda/"},
    {"single nibbles, padded to two bytes",
     {6, 1, 4, DibRle4, 4},
     "\0\5\x12\x31\x20\0\1\x33\0\1"s,
     "bcdbcd/"},
    {"a run past the row's end stays in its row",
     {3, 2, 4, DibRle4, 4},
     "\xFF\x12\3\x33\0\0\3\x22\0\1"s,
     "ccc/bcb/"},
    {"single pixels past the row's end",
     {2, 2, 8, DibRle8, 4},
     "\0\4\1\2\3\3\1\3\0\0\2\1\0\1"s,
     "bb/bc/"},
    {"rows past the last", {2, 1, 8, DibRle8, 4}, "\2\1\0\0\2\2\0\0\2\3\0\1"s, "bb/"},
    {"the rest of a short row is black", {4, 1, 8, DibRle8, 4}, "\1\2\0\0\0\1"s, "c.../"},
    {"what a jump passes is black", {3, 3, 8, DibRle8, 4}, "\1\1\0\2\1\1\1\2\0\1"s, ".../..c/b../"},
    {"a jump out of the frame", {3, 2, 8, DibRle8, 4}, "\1\1\0\2\xFF\xFF\1\2\0\1"s, ".../b../"},
    {"a jump past the row's end within the frame",
     {3, 2, 8, DibRle8, 4},
     "\1\1\0\2\xFF\0\1\2\0\0\1\3\0\1"s,
     "d../b../"},
    {"no end marker", {3, 2, 8, DibRle8, 4}, "\3\1"s, ".../bbb/"},
    {"nothing at all", {3, 2, 4, DibRle4, 4}, ""s, ".../.../"},
    {"half a step", {3, 1, 8, DibRle8, 4}, "\1\1\2"s, "b../"},
    {"half a jump", {3, 1, 8, DibRle8, 4}, "\1\1\0\2\1"s, "b../"},
    {"single pixels cut off", {5, 1, 8, DibRle8, 4}, "\0\5\1\2\3"s, "bcd../"},
    {"single nibbles cut off", {8, 1, 4, DibRle4, 4}, "\0\7\x12\x31"s, "bcdb..../"},
    {"an odd count without its pad", {3, 1, 8, DibRle8, 4}, "\0\3\1\2\3"s, "bcd/"},
    {"an index above the palette", {4, 1, 8, DibRle8, 2}, "\2\1\2\2\0\1"s, "bb../"},
    {"a nibble above the palette", {4, 1, 4, DibRle4, 2}, "\4\x1F\0\1"s, "b.b./"},
    {"plain, 1 bit", {10, 2, 1, DibPlain, 2}, "\x80\x40\0\0\1\x80\0\0"s, "aaaaaaabba/baaaaaaaab/"},
    {"plain, 4 bits", {3, 2, 4, DibPlain, 4}, "\x12\x30\0\0\x32\x10\0\0"s, "dcb/bcd/"},
    {"plain, 8 bits, top row first", {3, -2, 8, DibPlain, 4}, "\1\2\3\0\3\2\1"s, "bcd/dcb/"},
    {"plain, 24 bits",
     {1, 2, 24, DibPlain, 0},
     Little(ColourOf('x'), 4) + Little(ColourOf('y'), 3),
     "y/x/"},
    {"plain rows cut off are black", {4, 2, 8, DibPlain, 4}, "\1\2\3\1\1\2\3"s, "..../bcdb/"},
};

}  // namespace

TEST_CASE("a bitmap's bytes become pixels, whatever they are") {
  for (const PictureCase& row : kPictures) {
    CAPTURE(row.why);
    const std::string bytes = Packed(row.header, row.bits);
    test::GuardedBytes guarded(bytes);
    const Dib dib = Whole(guarded);
    std::vector<uint32_t> pixels(static_cast<size_t>(dib.width * dib.height), 0xA5A5A5A5);
    CHECK(stm::PaintDib(dib, {pixels.data(), dib.width, dib.height},
                        {0, 0, dib.width, dib.height, 0, 0}, SRCCOPY));
    CHECK(Text(pixels, static_cast<size_t>(dib.width)) == row.expected);
  }
}

TEST_CASE("headers that describe no picture are refused") {
  struct Case {
    const char* why;
    Header header;
    uint32_t headerSize;
    bool accepted;
  };
  const Case cases[] = {
      {"the plain case", {2, 2, 8, DibRle8, 2}, 40, true},
      {"a larger side than any bitmap", {32768, 1, 8, DibRle8, 2}, 40, false},
      {"no width", {0, 2, 8, DibRle8, 2}, 40, false},
      {"a negative width", {-2, 2, 8, DibRle8, 2}, 40, false},
      {"no height", {2, 0, 8, DibRle8, 2}, 40, false},
      {"the most negative height", {2, INT32_MIN, 8, DibPlain, 2}, 40, false},
      {"a huge height", {2, INT32_MAX, 8, DibPlain, 2}, 40, false},
      {"run lengths with the top row first", {2, -2, 8, DibRle8, 2}, 40, false},
      {"RLE4 at 8 bits", {2, 2, 8, DibRle4, 2}, 40, false},
      {"RLE8 at 4 bits", {2, 2, 4, DibRle8, 2}, 40, false},
      {"an unknown compression", {2, 2, 8, 3, 2}, 40, false},
      {"an unknown depth", {2, 2, 16, DibPlain, 2}, 40, false},
      {"an older, shorter header", {2, 2, 8, DibRle8, 2}, 12, false},
      {"a header longer than the bytes", {2, 2, 8, DibRle8, 2}, 0xFFFFFFFF, false},
      {"more colours than an index selects", {2, 2, 8, DibRle8, 257}, 40, false},
  };
  Dib dib;
  for (const Case& row : cases) {
    CAPTURE(row.why);
    const std::string bytes = Packed(row.header, "", row.headerSize);
    CHECK(stm::ReadDib(reinterpret_cast<const uint8_t*>(bytes.data()),
                       static_cast<uint32_t>(bytes.size()), &dib) == row.accepted);
  }
  const std::string whole = Packed({2, 2, 8, DibRle8, 2}, "");
  for (size_t size = 0; size < whole.size(); ++size) {
    test::GuardedBytes cut(whole.substr(0, size));
    CHECK_FALSE(stm::ReadDib(reinterpret_cast<const uint8_t*>(cut.data()),
                             static_cast<uint32_t>(size), &dib));
  }
  CHECK_FALSE(stm::ReadDib(nullptr, 100, &dib));
}

TEST_CASE("a blit is clipped to the frame, the bitmap and its rectangle") {
  // Run, pair and single pixels: every way of painting meets every edge.
  const std::string packed =
      Packed({4, 3, 4, DibRle4, 16}, "\4\x11\0\0\4\x23\0\0\0\4\x45\x67\0\1"s);
  const std::string plain =
      Packed({4, 3, 4, DibPlain, 16}, "\x11\x11\0\0\x23\x23\0\0\x45\x67\0\0"s);
  struct Case {
    const char* why;
    Placement placement;
    const char* expected;
  };
  const Case cases[] = {
      {"in full", {1, 1, 4, 3, 0, 0}, "....../.efgh./.cdcd./.bbbb./"},
      {"out at the left and top", {-2, -1, 4, 3, 0, 0}, "cd..../bb..../....../....../"},
      {"out at the left", {-1, 1, 4, 3, 0, 0}, "....../fgh.../dcd.../bbb.../"},
      {"out at the top", {0, -1, 4, 3, 0, 0}, "cdcd../bbbb../....../....../"},
      {"out at the right and bottom", {4, 2, 4, 3, 0, 0}, "....../....../....ef/....cd/"},
      {"from inside the bitmap, one pixel", {3, 0, 1, 1, 2, 1}, "...c../....../....../....../"},
      {"wider than the bitmap", {0, 0, 100, 100, 3, 2}, "b...../....../....../....../"},
      {"from before the bitmap", {0, 0, 3, 2, -1, -1}, "....../.ef.../....../....../"},
      {"no width", {0, 0, 0, 3, 0, 0}, "....../....../....../....../"},
      {"a negative height", {0, 2, 4, -2, 0, 0}, "....../....../....../....../"},
      {"beside the frame", {6, 0, 4, 3, 0, 0}, "....../....../....../....../"},
      {"the largest numbers",
       {INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN},
       "....../....../....../....../"},
      {"the smallest numbers",
       {INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX},
       "....../....../....../....../"},
  };
  for (const Case& row : cases) {
    CAPTURE(row.why);
    for (const std::string& bytes : {packed, plain}) {
      const Dib dib = Whole(bytes);
      std::vector<uint32_t> pixels(24, 0);
      CHECK(stm::PaintDib(dib, {pixels.data(), 6, 4}, row.placement, SRCCOPY));
      CHECK(Text(pixels, 6) == row.expected);
    }
  }
}

TEST_CASE("raster operations combine source and destination bit by bit") {
  // One pixel each as a run, in a pair and alone, so that no way of painting is left out.
  const uint32_t source = ColourOf('c');
  const uint32_t destination = 0x00F0335A;
  struct Case {
    uint32_t rop;
    uint32_t expected;
  };
  const Case cases[] = {
      {SRCCOPY, source},
      {SRCPAINT, source | destination},
      {SRCAND, source & destination},
      {MERGEPAINT, ~source | destination},
      {0x00660046, source ^ destination},   // exclusive or
      {0x00440328, source & ~destination},  // source and not destination
      {0x00000042, 0},                      // black
      {0x00FF0062, 0xFFFFFFFF},             // white
  };
  for (const std::string& bits : {"\1\x22\0\1"s, "\1\x23\0\1"s, "\0\3\x22\x20\0\1"s}) {
    const std::string bytes = Packed({1, 1, 4, DibRle4, 4}, bits);
    const Dib dib = Whole(bytes);
    for (const Case& row : cases) {
      CAPTURE(row.rop);
      uint32_t pixel = destination;
      CHECK(stm::PaintDib(dib, {&pixel, 1, 1}, {0, 0, 1, 1, 0, 0}, row.rop));
      CHECK(pixel == (row.expected & 0x00FFFFFF));
    }
    uint32_t pixel = destination;
    CHECK_FALSE(stm::PaintDib(dib, {&pixel, 1, 1}, {0, 0, 1, 1, 0, 0}, 0x00F00021));
    CHECK(pixel == destination);
  }
}

TEST_CASE("runs of every length are combined pixel by pixel") {
  for (int32_t length = 1; length <= 80; ++length) {
    CAPTURE(length);
    std::string bits = "\0\1"s;
    bits.insert(0, 1, '\1');
    bits.insert(0, 1, static_cast<char>(length));
    const std::string bytes = Packed({length, 1, 8, DibRle8, 2}, bits);
    const Dib dib = Whole(bytes);
    const uint32_t source = ColourOf('b');
    // Every pixel has a colour of its own, so that none is taken for its neighbour.
    std::vector<uint32_t> before(static_cast<size_t>(length + 2));
    for (size_t i = 0; i < before.size(); ++i)
      before[i] = 0x00030201 * static_cast<uint32_t>(i);
    for (uint32_t rop : {SRCCOPY, SRCPAINT, SRCAND, MERGEPAINT, 0x00660046u}) {
      std::vector<uint32_t> expected = before;
      for (size_t i = 1; i + 1 < expected.size(); ++i) {
        const uint32_t d = before[i];
        expected[i] = rop == SRCCOPY      ? source
                      : rop == SRCPAINT   ? source | d
                      : rop == SRCAND     ? source & d
                      : rop == MERGEPAINT ? (~source & 0x00FFFFFF) | d
                                          : source ^ d;
      }
      std::vector<uint32_t> pixels = before;
      CHECK(stm::PaintDib(dib, {pixels.data(), length + 2, 1}, {1, 0, length, 1, 0, 0}, rop));
      CHECK(pixels == expected);
    }
  }
}

TEST_CASE("lines that change nothing are passed over, and no others") {
  // 'c' is above the palette: black, which leaves every pixel as it is.
  const PictureCase cases[] = {
      {"alike above and below a part",
       {3, 8, 8, DibRle8, 2},
       "\3\2\0\0\3\2\0\0\3\2\0\0\2\2\1\1\0\0\3\2\0\0\3\2\0\0\3\2\0\0\3\2\0\1"s,
       ".../.../.../.../..b/.../.../.../"},
      {"more of them than lines",
       {2, 2, 8, DibRle8, 2},
       "\2\2\0\0\2\2\0\0\2\2\0\0\2\2\0\0\2\2\0\0"s,
       "../../"},
      {"alike, but of a part",
       {2, 4, 8, DibRle8, 2},
       "\2\1\0\0\2\1\0\0\2\1\0\0\2\1\0\0\2\2\0\0"s,
       "bb/bb/bb/bb/"},
      {"alike up to their last run",
       {4, 3, 8, DibRle8, 2},
       "\2\2\2\2\0\0\2\2\2\2\0\0\2\2\2\1\0\0"s,
       "..bb/..../..../"},
      {"alike as bytes, but begun by a jump",
       {2, 4, 8, DibRle8, 2},
       "\0\2\1\0\1\2\0\0\1\2\0\0\1\2\0\0\1\2\1\1\0\0"s,
       ".b/../../../"},
  };
  for (const PictureCase& row : cases) {
    CAPTURE(row.why);
    const std::string bytes = Packed(row.header, row.bits);
    test::GuardedBytes guarded(bytes);
    const Dib dib = Whole(guarded);
    std::vector<uint32_t> pixels(static_cast<size_t>(dib.width * dib.height), 0);
    CHECK(stm::PaintDib(dib, {pixels.data(), dib.width, dib.height},
                        {0, 0, dib.width, dib.height, 0, 0}, SRCPAINT));
    CHECK(Text(pixels, static_cast<size_t>(dib.width)) == row.expected);
    // Hidden lines count as well: only the two topmost rows are in the frame.
    std::vector<uint32_t> top(static_cast<size_t>(dib.width * 2), 0);
    CHECK(stm::PaintDib(dib, {top.data(), dib.width, 2}, {0, 0, dib.width, 2, 0, 0}, SRCPAINT));
    CHECK(std::equal(top.begin(), top.end(), pixels.begin()));
  }
}
