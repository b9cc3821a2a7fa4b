// A window that nobody sees has no surface to draw on, so the layers are put together in memory,
// with the operations that the library's table names and in the order of its own drawing.
#ifdef _WIN32

#include <cstring>

#include "picture/picture_system.h"

namespace stmon {
namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 200;
constexpr uint32_t kOpaque = 0xFF000000;

struct Surface {
  HDC context = nullptr;
  HBITMAP bitmap = nullptr;
  HGDIOBJ before = nullptr;
  uint32_t* pixels = nullptr;
};

// White, 32 bits per pixel, top row first.
Surface MakeSurface(int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  Surface surface;
  surface.context = CreateCompatibleDC(nullptr);
  void* bits = nullptr;
  surface.bitmap = CreateDIBSection(surface.context, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (!surface.bitmap) return surface;
  surface.pixels = static_cast<uint32_t*>(bits);
  surface.before = SelectObject(surface.context, surface.bitmap);
  std::memset(bits, 0xFF, static_cast<size_t>(width) * static_cast<size_t>(height) * 4);
  return surface;
}

void FreeSurface(Surface& surface) {
  if (surface.bitmap) {
    SelectObject(surface.context, surface.before);
    DeleteObject(surface.bitmap);
  }
  if (surface.context) DeleteDC(surface.context);
}

void DrawLayer(const Surface& surface, const char* name, DWORD operation) {
  const HBITMAP bitmap = PatLoadBitmap(name);
  if (!bitmap) return;
  const HDC source = CreateCompatibleDC(surface.context);
  const HGDIOBJ before = SelectObject(source, bitmap);
  BitBlt(surface.context, 0, 0, kWidth, kHeight, source, 0, 0, operation);
  SelectObject(source, before);
  DeleteDC(source);
  DeleteObject(bitmap);
}

}  // namespace

Image DrawParts(const PrnBitmap& bitmap) {
  Image image{kWidth, kHeight, {}};
  Surface surface = MakeSurface(kWidth, kHeight);
  if (surface.pixels) {
    bool first = true;
    for (const uint8_t code : bitmap.partCodes) {
      PrnPart part{};
      if (code == 0) continue;
      PatGetPrnParts(nullptr, code, &part);
      if (!part.bitmapName) continue;
      if (first) DrawLayer(surface, part.bitmapName, SRCCOPY);
      first = false;
      DrawLayer(surface, part.bitmapName, part.ropSet);
    }
    GdiFlush();
    image.pixels.assign(surface.pixels, surface.pixels + kWidth * kHeight);
    for (uint32_t& pixel : image.pixels)
      pixel |= kOpaque;
  }
  FreeSurface(surface);
  return image;
}

// An icon is a mask, white where it is transparent, and an image.
Image ReadIcon(const char* name) {
  constexpr int kSize = 32;
  Image image{kSize, kSize, {}};
  const HICON icon = PatLoadIcon(name);
  if (!icon) return image;
  Surface mask = MakeSurface(kSize, kSize);
  Surface colours = MakeSurface(kSize, kSize);
  if (mask.pixels && colours.pixels) {
    DrawIconEx(mask.context, 0, 0, icon, kSize, kSize, 0, nullptr, DI_MASK);
    DrawIconEx(colours.context, 0, 0, icon, kSize, kSize, 0, nullptr, DI_IMAGE);
    GdiFlush();
    for (int i = 0; i < kSize * kSize; ++i) {
      const bool clear = (mask.pixels[i] & 0xFFFFFF) != 0;
      image.pixels.push_back(clear ? 0 : kOpaque | (colours.pixels[i] & 0xFFFFFF));
    }
  }
  FreeSurface(mask);
  FreeSurface(colours);
  return image;
}

}  // namespace stmon

#endif
