#define STBI_WRITE_NO_STDIO
#define STB_IMAGE_WRITE_STATIC
#define STB_IMAGE_WRITE_IMPLEMENTATION
#include "stb/stb_image_write.h"
// after its configuration
#include "picture/picture.h"

namespace stmon {
namespace {

void Append(void* context, void* data, int size) {
  static_cast<std::string*>(context)->append(static_cast<const char*>(data),
                                             static_cast<size_t>(size));
}

}  // namespace

std::string EncodePng(const Image& image) {
  // Pictures are opaque and need no alpha bytes; icons have see-through corners.
  bool opaque = true;
  for (const uint32_t pixel : image.pixels)
    opaque = opaque && pixel >> 24 == 255;
  const int channels = opaque ? 3 : 4;
  std::string bytes;
  for (const uint32_t pixel : image.pixels) {
    bytes += static_cast<char>(pixel >> 16);
    bytes += static_cast<char>(pixel >> 8);
    bytes += static_cast<char>(pixel);
    if (!opaque) bytes += static_cast<char>(pixel >> 24);
  }
  std::string png;
  stbi_write_png_to_func(Append, &png, image.width, image.height, channels, bytes.data(),
                         image.width * channels);
  return png;
}

}  // namespace stmon
