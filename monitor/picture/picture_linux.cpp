// The library's dialogs in memory: it draws into one as into any other.
#ifndef _WIN32

#include "picture/picture_system.h"

namespace stmon {
namespace {

constexpr int32_t kControl = 1;
constexpr int32_t kWidth = 320;
constexpr int32_t kHeight = 200;
constexpr uint32_t kDrawPlainly = 0x1;  // both passes with the part's own operation
constexpr uint32_t kOpaque = 0xFF000000;

}  // namespace

// The library draws the list that it composed last, so that the argument is not needed here.
Image DrawParts(const PrnBitmap&) {
  Image image;
  const HWND dialog = HostCreateDialog();
  if (!dialog) return image;
  if (HostAddPicture(dialog, kControl, kWidth, kHeight)) {
    PatDrawPrinterBitmap_Ex(dialog, 0, kControl, kDrawPlainly, 0, 0);
    if (const uint32_t* pixels = HostPicturePixels(dialog, kControl, &image.width, &image.height)) {
      image.pixels.assign(pixels, pixels + image.width * image.height);
      for (uint32_t& pixel : image.pixels)
        pixel |= kOpaque;  // the fourth byte of a drawn pixel is 0
    }
  }
  HostDestroyDialog(dialog);
  return image;
}

Image ReadIcon(const char* name) {
  Image image;
  const HICON icon = PatLoadIcon(name);
  if (!icon) return image;
  HostReadIcon(icon, nullptr, 0, &image.width, &image.height);  // tells the size alone
  image.pixels.resize(static_cast<size_t>(image.width * image.height));
  const auto count = static_cast<uint32_t>(image.pixels.size());
  if (!HostReadIcon(icon, image.pixels.data(), count, &image.width, &image.height))
    image.pixels.clear();
  return image;
}

}  // namespace stmon

#endif
