// Icons: a group names its image, and the image is a bitmap of colours with a mask of one bit a
// pixel behind it, 1 where the icon is transparent.
#include <atomic>

#include "platform/linux/bitmaps.h"

namespace {

struct Icon : stm::Object {
  static constexpr stm::Kind kKind = stm::Kind::Icon;
  stm::Dib colors;
  const uint8_t* mask;
};

// A group is a header of 6 bytes and a row of 14 bytes an image, which ends with the image's id.
// The library's groups have one image each, and it is the one that is taken.
constexpr uint32_t kGroupIdAt = 6 + 12;
constexpr uint32_t kGroupSize = kGroupIdAt + 2;

uint32_t MaskStride(const stm::Dib& colors) {
  return (static_cast<uint32_t>(colors.width) + 31) / 32 * 4;
}

// The header counts the rows of colours and mask together. Images with bytes missing are refused.
bool ReadIcon(const stm::Bytes& bytes, Icon* icon) {
  stm::Dib dib;
  if (!stm::ReadDib(bytes.data, bytes.size, &dib)) return false;
  if (dib.compression != stm::DibPlain || dib.topDown || dib.height % 2 != 0) return false;
  dib.height /= 2;
  const auto width = static_cast<uint64_t>(dib.width);
  const auto height = static_cast<uint64_t>(dib.height);
  const uint64_t colorBytes = (width * dib.bitsPerPixel + 31) / 32 * 4 * height;
  const uint64_t maskBytes = MaskStride(dib) * height;
  if (static_cast<uint64_t>(dib.end - dib.bits) < colorBytes + maskBytes) return false;
  icon->colors = dib;
  icon->mask = dib.bits + colorBytes;
  return true;
}

bool IsTransparent(const Icon& icon, int32_t x, int32_t y) {
  const uint32_t row = static_cast<uint32_t>(icon.colors.height - 1 - y);
  return icon.mask[row * MaskStride(icon.colors) + static_cast<uint32_t>(x) / 8] >> (7 - x % 8) & 1;
}

// Loaded icons are shared and live as long as the process. They fill the places from the first on,
// as many as the library has icons.
constexpr uint32_t kMostIcons = 16;
std::atomic<Icon*> loadedIcons[kMostIcons];

// The mask tells which icon it is. Threads that load the same icon at once meet at the same empty
// place: one of them enters its own, which is complete by then, and the others take that one.
const Icon* SharedIcon(const Icon& read) {
  Icon* own = nullptr;
  for (std::atomic<Icon*>& place : loadedIcons) {
    Icon* icon = place.load(std::memory_order_acquire);
    if (!icon) {
      if (!own && !(own = stm::NewObject<Icon>())) return nullptr;
      own->colors = read.colors;
      own->mask = read.mask;
      if (place.compare_exchange_strong(icon, own, std::memory_order_acq_rel)) return own;
    }
    if (icon->mask != read.mask) continue;
    if (own) stm::ReleaseObject(own);
    return icon;
  }
  if (own) stm::ReleaseObject(own);
  return nullptr;
}

}  // namespace

extern "C" {

HICON STM_CALL LoadIconA(HINSTANCE module, const char* name) {
  const stm::Bytes group = stm::ResourceBytes(module, name, RT_GROUP_ICON);
  if (group.size < kGroupSize) return nullptr;
  const auto id = static_cast<uint16_t>(group.data[kGroupIdAt] | group.data[kGroupIdAt + 1] << 8);
  Icon read{};
  if (!ReadIcon(stm::ResourceBytes(module, MAKEINTRESOURCEA(id), RT_ICON), &read)) return nullptr;
  return stm::HandleOf<HICON>(SharedIcon(read));
}

BOOL STM_CALL HostReadIcon(HICON handle, uint32_t* pixels, uint32_t count, int32_t* width,
                           int32_t* height) {
  const Icon* icon = stm::Find<Icon>(handle);
  if (!icon) return 0;
  const int32_t w = icon->colors.width;
  const int32_t h = icon->colors.height;
  if (width) *width = w;
  if (height) *height = h;
  if (!pixels || static_cast<uint32_t>(w) * static_cast<uint32_t>(h) > count) return 0;
  stm::PaintDib(icon->colors, {pixels, w, h}, {0, 0, w, h, 0, 0}, SRCCOPY);
  for (int32_t y = 0; y < h; ++y) {
    for (int32_t x = 0; x < w; ++x, ++pixels)
      *pixels = IsTransparent(*icon, x, y) ? 0 : *pixels | 0xFF000000u;
  }
  return 1;
}
}
