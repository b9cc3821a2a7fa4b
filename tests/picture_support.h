// A dialog with a picture control, and the pixels of controls and bitmaps, on both systems. Pixels
// are 0x00RRGGBB, top row first.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "doctest/doctest.h"
#include "support.h"

namespace test {

struct Pixels {
  int32_t width = 0;
  int32_t height = 0;
  std::vector<uint32_t> at;

  bool operator==(const Pixels& other) const = default;
};

inline Pixels Plain(int32_t width, int32_t height, uint32_t colour) {
  return {width, height, std::vector<uint32_t>(static_cast<size_t>(width * height), colour)};
}

#ifdef _WIN32
// Reads (or writes) the pixels of a device context through a bitmap with 32 bits a pixel.
inline void CopyPixels(HDC context, Pixels& pixels, bool write) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = pixels.width;
  info.bmiHeader.biHeight = -pixels.height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  const HDC memory = CreateCompatibleDC(context);
  const HBITMAP section = CreateDIBSection(context, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  REQUIRE(section);
  const HGDIOBJ previous = SelectObject(memory, section);
  const size_t bytes = pixels.at.size() * sizeof(uint32_t);
  if (write) {
    std::memcpy(bits, pixels.at.data(), bytes);
    BitBlt(context, 0, 0, pixels.width, pixels.height, memory, 0, 0, SRCCOPY);
  } else {
    BitBlt(memory, 0, 0, pixels.width, pixels.height, context, 0, 0, SRCCOPY);
    GdiFlush();
    std::memcpy(pixels.at.data(), bits, bytes);
    for (uint32_t& pixel : pixels.at)
      pixel &= 0x00FFFFFF;
  }
  SelectObject(memory, previous);
  DeleteObject(section);
  DeleteDC(memory);
}
#endif

// Windows need a display there; tests that draw into one are skipped where there is none.
inline bool HasWindows() {
#ifdef _WIN32
  const HWND window =
      CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  return window && DestroyWindow(window);
#else
  return true;
#endif
}

class PictureDialog {
 public:
  static constexpr int32_t kControl = 1009;

  // The control shows `colour` at first.
  PictureDialog(int32_t width, int32_t height, uint32_t colour = 0x00FFFFFF)
      : width_(width), height_(height) {
#ifdef _WIN32
    handle_ = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, width, height, nullptr, nullptr, nullptr,
                            nullptr);
    REQUIRE(handle_);
    CreateWindowA("STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, width, height, handle_,
                  reinterpret_cast<HMENU>(kControl), nullptr, nullptr);
    // An active window would be managed, and its end waits two seconds where no manager runs.
    ShowWindow(handle_, SW_SHOWNOACTIVATE);
#else
    handle_ = HostCreateDialog();
    REQUIRE(HostAddPicture(handle_, kControl, width, height));
#endif
    write(Plain(width, height, colour));
  }
  PictureDialog(const PictureDialog&) = delete;
  PictureDialog& operator=(const PictureDialog&) = delete;
  ~PictureDialog() {
#ifdef _WIN32
    DestroyWindow(handle_);
#else
    HostDestroyDialog(handle_);
#endif
  }

  HWND handle() const {
    return handle_;
  }

  Pixels read() const {
    Pixels pixels = Plain(width_, height_, 0);
#ifdef _WIN32
    copy(pixels, false);
#else
    const uint32_t* from = HostPicturePixels(handle_, kControl, nullptr, nullptr);
    pixels.at.assign(from, from + pixels.at.size());
#endif
    return pixels;
  }

  void write(Pixels pixels) {
#ifdef _WIN32
    copy(pixels, true);
#else
    uint32_t* to = HostPicturePixels(handle_, kControl, nullptr, nullptr);
    std::copy(pixels.at.begin(), pixels.at.end(), to);
#endif
  }

 private:
#ifdef _WIN32
  void copy(Pixels& pixels, bool toControl) const {
    const HWND control = GetDlgItem(handle_, kControl);
    const HDC context = GetDC(control);
    CopyPixels(context, pixels, toControl);
    ReleaseDC(control, context);
  }
#endif

  HWND handle_ = nullptr;
  int32_t width_;
  int32_t height_;
};

// The pixels of one of the library's bitmaps.
inline Pixels ReadBitmap(const char* name) {
  const HBITMAP bitmap = PatLoadBitmap(name);
  BITMAP size{};
  REQUIRE(GetObjectA(bitmap, sizeof size, &size));
  Pixels pixels = Plain(size.bmWidth, size.bmHeight, 0);
#ifdef _WIN32
  const HDC context = CreateCompatibleDC(nullptr);
  const HGDIOBJ previous = SelectObject(context, bitmap);
  CopyPixels(context, pixels, false);
  SelectObject(context, previous);
  DeleteDC(context);
#else
  REQUIRE(HostReadBitmap(bitmap, pixels.at.data(), static_cast<uint32_t>(pixels.at.size())));
#endif
  DeleteObject(bitmap);
  return pixels;
}

// FNV-1a over the pixels' three colour bytes.
inline uint32_t Checksum(const Pixels& pixels) {
  uint32_t sum = 2166136261u;
  for (uint32_t pixel : pixels.at) {
    for (int shift = 0; shift < 24; shift += 8)
      sum = (sum ^ (pixel >> shift & 0xFF)) * 16777619u;
  }
  return sum;
}

// Writes an image that shows what a failed comparison is about; its name says which.
inline void WriteImage(const std::string& name, const Pixels& pixels) {
  if (std::FILE* file = std::fopen((name + ".ppm").c_str(), "wb")) {
    std::fprintf(file, "P6\n%d %d\n255\n", static_cast<int>(pixels.width),
                 static_cast<int>(pixels.height));
    for (uint32_t pixel : pixels.at) {
      const uint8_t rgb[] = {static_cast<uint8_t>(pixel >> 16), static_cast<uint8_t>(pixel >> 8),
                             static_cast<uint8_t>(pixel)};
      std::fwrite(rgb, 1, sizeof rgb, file);
    }
    std::fclose(file);
  }
}

// On a miss writes got, wanted and difference (black where they agree) beside the test program.
inline bool SamePixels(const std::string& name, const Pixels& got, const Pixels& wanted) {
  if (got == wanted) return true;
  WriteImage(name + "-got", got);
  WriteImage(name + "-wanted", wanted);
  if (got.at.size() == wanted.at.size()) {
    Pixels difference = got;
    for (size_t i = 0; i < got.at.size(); ++i)
      difference.at[i] ^= wanted.at[i];
    WriteImage(name + "-difference", difference);
  }
  return false;
}

}  // namespace test
