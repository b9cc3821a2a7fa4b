// Icons: a group names its image, and the image is a bitmap of colours, followed by a mask of one
// bit a pixel, 1 where the icon is transparent.
#include "platform/linux/bitmaps.h"

namespace {

struct Icon {
  stm::Dib colours;
  const uint8_t* mask;
};

//   reserved:2 kind:2 count:2, then a row of 14 bytes an image, which ends with the image's id
//   00 00 01 00 01 00
// The library's groups have one image each, and it is the one that is taken.
constexpr uint32_t kGroupKind = 1;
constexpr uint32_t kGroupKindAt = 2;
constexpr uint32_t kGroupIdAt = 6 + 12;
constexpr uint32_t kGroupSize = kGroupIdAt + 2;

uint32_t MaskStride(const stm::Dib& colours) {
  return (static_cast<uint32_t>(colours.width) + 31) / 32 * 4;
}

// The header counts the rows of colours and mask together. Images with bytes missing are refused.
bool ReadImage(const stm::Bytes& bytes, Icon* icon) {
  stm::Dib dib;
  if (!stm::ReadDib(bytes.data, bytes.size, &dib)) return false;
  if (dib.compression != stm::DibPlain || dib.topDown || dib.height % 2 != 0) return false;
  dib.height /= 2;
  const auto width = static_cast<uint64_t>(dib.width);
  const auto height = static_cast<uint64_t>(dib.height);
  const uint64_t colourBytes = (width * dib.bitsPerPixel + 31) / 32 * 4 * height;
  const uint64_t maskBytes = MaskStride(dib) * height;
  if (static_cast<uint64_t>(dib.end - dib.bits) < colourBytes + maskBytes) return false;
  icon->colours = dib;
  icon->mask = dib.bits + colourBytes;
  return true;
}

bool IsTransparent(const Icon& icon, int32_t x, int32_t y) {
  const uint32_t row = static_cast<uint32_t>(icon.colours.height - 1 - y);
  return icon.mask[row * MaskStride(icon.colours) + static_cast<uint32_t>(x) / 8] >> (7 - x % 8) &
         1;
}

// An icon's handle is that of its group among the resources: an icon is the same for everybody, and
// there as long as the library is.
bool ReadIcon(HRSRC handle, Icon* icon) {
  const stm::Bytes group = stm::BytesOf(handle);
  if (group.size < kGroupSize || group.data[kGroupKindAt] != kGroupKind) return false;
  const auto id = static_cast<uint16_t>(group.data[kGroupIdAt] | group.data[kGroupIdAt + 1] << 8);
  return ReadImage(stm::ResourceBytes(nullptr, MAKEINTRESOURCEA(id), RT_ICON), icon);
}

}  // namespace

extern "C" {

HICON STM_CALL LoadIconA(HINSTANCE module, const char* name) {
  const HRSRC group = name ? FindResourceA(module, name, RT_GROUP_ICON) : nullptr;
  Icon icon;
  return ReadIcon(group, &icon) ? reinterpret_cast<HICON>(group) : nullptr;
}

BOOL STM_CALL HostReadIcon(HICON handle, uint32_t* pixels, uint32_t count, int32_t* width,
                           int32_t* height) {
  Icon icon;
  if (!ReadIcon(reinterpret_cast<HRSRC>(handle), &icon)) return 0;
  const int32_t w = icon.colours.width;
  const int32_t h = icon.colours.height;
  if (width) *width = w;
  if (height) *height = h;
  if (!pixels || static_cast<uint32_t>(w) * static_cast<uint32_t>(h) > count) return 0;
  stm::PaintDib(icon.colours, {pixels, w, h}, {0, 0, w, h, 0, 0}, SRCCOPY);
  for (int32_t y = 0; y < h; ++y) {
    for (int32_t x = 0; x < w; ++x, ++pixels)
      *pixels = IsTransparent(icon, x, y) ? 0 : *pixels | 0xFF000000u;
  }
  return 1;
}
}
