#include "platform/linux/bitmaps.h"

#include <algorithm>

namespace stm {

Bytes BytesOf(HRSRC resource) {
  return {static_cast<const uint8_t*>(LockResource(LoadResource(nullptr, resource))),
          SizeofResource(nullptr, resource)};
}

Bytes ResourceBytes(HINSTANCE module, const char* name, const char* type) {
  return BytesOf(name ? FindResourceA(module, name, type) : nullptr);
}

}  // namespace stm

extern "C" {

HBITMAP STM_CALL LoadBitmapA(HINSTANCE module, const char* name) {
  const stm::Bytes bytes = stm::ResourceBytes(module, name, RT_BITMAP);
  stm::Dib dib;
  if (!stm::ReadDib(bytes.data, bytes.size, &dib)) return nullptr;
  auto* bitmap = stm::NewObject<stm::Bitmap>();
  if (bitmap) bitmap->dib = dib;
  return stm::HandleOf<HBITMAP>(bitmap);
}

BOOL STM_CALL DeleteObject(HGDIOBJ object) {
  stm::Bitmap* bitmap = stm::Find<stm::Bitmap>(object);
  if (!bitmap || bitmap->selected) return 0;
  stm::ReleaseObject(bitmap);
  return 1;
}

int32_t STM_CALL GetObjectA(HGDIOBJ object, int32_t size, void* buffer) {
  constexpr auto needed = static_cast<int32_t>(sizeof(BITMAP));
  const stm::Bitmap* bitmap = stm::Find<stm::Bitmap>(object);
  if (!bitmap) return 0;
  if (!buffer) return needed;
  if (size < needed) return 0;
  *static_cast<BITMAP*>(buffer) = {.bmType = 0,
                                   .bmWidth = bitmap->dib.width,
                                   .bmHeight = bitmap->dib.height,
                                   .bmWidthBytes = bitmap->dib.width * 4,
                                   .bmPlanes = 1,
                                   .bmBitsPixel = 32,
                                   .bmBits = nullptr};
  return needed;
}

BOOL STM_CALL HostReadBitmap(HBITMAP handle, uint32_t* pixels, uint32_t count) {
  const stm::Bitmap* bitmap = stm::Find<stm::Bitmap>(handle);
  if (!bitmap || !pixels) return 0;
  const auto [width, height] = std::pair(bitmap->dib.width, bitmap->dib.height);
  if (static_cast<uint32_t>(width) * static_cast<uint32_t>(height) > count) return 0;
  return stm::PaintDib(bitmap->dib, {pixels, width, height}, {0, 0, width, height, 0, 0}, SRCCOPY);
}
}
