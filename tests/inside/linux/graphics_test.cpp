#include "doctest/doctest.h"
#include "platform/windows_api.h"
#include "resources/resource_access.h"
#include "support.h"

namespace {

constexpr int32_t kPicture = 7;

// A dialog with one picture control, gone at the end.
struct Dialog {
  HWND handle = HostCreateDialog();
  Dialog(int32_t width, int32_t height) {
    REQUIRE(HostAddPicture(handle, kPicture, width, height));
  }
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  ~Dialog() { HostDestroyDialog(handle); }
  uint32_t* pixels() { return HostPicturePixels(handle, kPicture, nullptr, nullptr); }
  HWND control() { return GetDlgItem(handle, kPicture); }
};

template <class Handle>
Handle Foreign(uintptr_t value) {
  return reinterpret_cast<Handle>(value);
}

std::vector<HDC> TakeEveryHandle() {
  std::vector<HDC> contexts;
  while (const HDC context = CreateCompatibleDC(nullptr)) {
    contexts.push_back(context);
    REQUIRE(contexts.size() <= 4096);
  }
  return contexts;
}

void GiveBack(const std::vector<HDC>& contexts) {
  for (const HDC context : contexts)
    CHECK(DeleteDC(context));
}

}  // namespace

TEST_CASE("a dialog's picture controls are found by their identifiers") {
  int32_t width = 0;
  int32_t height = 0;
  const HWND dialog = HostCreateDialog();
  CHECK(HostAddPicture(dialog, -1, 3, 2));
  CHECK(HostAddPicture(dialog, kPicture, 5, 4));
  CHECK_FALSE(HostAddPicture(dialog, kPicture, 1, 1));
  for (const auto& [w, h] : {std::pair{0, 1}, {1, 0}, {-1, 1}, {32768, 1}, {1, INT32_MAX}})
    CHECK_FALSE(HostAddPicture(dialog, 9, w, h));
  const uint32_t* pixels = HostPicturePixels(dialog, -1, &width, &height);
  REQUIRE(pixels);
  CHECK(width == 3);
  CHECK(height == 2);
  CHECK(std::vector<uint32_t>(pixels, pixels + 6) == std::vector<uint32_t>(6, 0x00FFFFFF));
  CHECK_FALSE(HostPicturePixels(dialog, 9, nullptr, nullptr));

  const HWND control = GetDlgItem(dialog, kPicture);
  const HDC context = GetDC(control);
  CHECK(context);
  CHECK_FALSE(GetDC(dialog));
  CHECK_FALSE(GetDlgItem(control, kPicture));
  CHECK_FALSE(ReleaseDC(dialog, context));
  CHECK_FALSE(DeleteDC(context));
  CHECK(HostDestroyDialog(dialog));
  CHECK_FALSE(HostDestroyDialog(dialog));
  CHECK_FALSE(GetDlgItem(dialog, kPicture));
  CHECK_FALSE(BitBlt(context, 0, 0, 1, 1, nullptr, 0, 0, SRCCOPY));
  CHECK(ReleaseDC(control, context));
  CHECK_FALSE(ReleaseDC(control, context));
}

TEST_CASE("a blit takes the selected bitmap, the stock one of a black pixel at first") {
  Dialog dialog(4, 1);
  const HBITMAP bitmap = stm::LoadModuleBitmap("BMP_PAPER_NORMAL");
  const HDC target = GetDC(dialog.control());
  const HDC source = CreateCompatibleDC(target);
  const HDC other = CreateCompatibleDC(nullptr);
  REQUIRE(bitmap);

  CHECK(BitBlt(target, 2, 0, 9, 9, source, 0, 0, SRCCOPY));
  CHECK(dialog.pixels()[1] == 0x00FFFFFF);
  CHECK(dialog.pixels()[2] == 0);
  CHECK(dialog.pixels()[3] == 0x00FFFFFF);

  const HGDIOBJ stock = SelectObject(source, bitmap);
  CHECK(stock);
  CHECK_FALSE(SelectObject(other, bitmap));
  CHECK_FALSE(DeleteObject(bitmap));
  CHECK_FALSE(SelectObject(target, bitmap));
  CHECK_FALSE(BitBlt(source, 0, 0, 4, 1, source, 0, 0, SRCCOPY));
  CHECK_FALSE(BitBlt(target, 0, 0, 4, 1, target, 0, 0, SRCCOPY));
  std::vector<uint32_t> expected(144);
  REQUIRE(HostReadBitmap(bitmap, expected.data(), 144));
  CHECK(BitBlt(target, 0, 0, 12, 12, source, 0, 5, SRCCOPY));
  CHECK(std::memcmp(dialog.pixels(), &expected[5 * 12], 4 * sizeof(uint32_t)) == 0);

  BITMAP size;
  CHECK(GetObjectA(bitmap, sizeof size - 1, &size) == 0);
  CHECK(GetObjectA(bitmap, 0, nullptr) == STM_EITHER(24, 32));
  CHECK(GetObjectA(bitmap, sizeof size, &size) == STM_EITHER(24, 32));
  CHECK(size.bmWidth == 12);
  CHECK(SelectObject(source, stock) == static_cast<HGDIOBJ>(bitmap));
  CHECK(SelectObject(other, bitmap) == stock);
  CHECK(DeleteDC(other));
  CHECK(DeleteObject(bitmap));
  CHECK_FALSE(DeleteObject(bitmap));
  CHECK_FALSE(SelectObject(source, bitmap));
  // The stock bitmap is no caller's.
  uint32_t pixel;
  CHECK_FALSE(DeleteObject(stock));
  CHECK(GetObjectA(stock, sizeof size, &size) == 0);
  CHECK_FALSE(HostReadBitmap(static_cast<HBITMAP>(stock), &pixel, 1));
  CHECK(SelectObject(source, stock) == stock);
  CHECK(DeleteDC(source));
  CHECK(ReleaseDC(dialog.control(), target));
}

TEST_CASE("a block of no bytes is a block") {
  const HGLOBAL block = GlobalAlloc(GMEM_FIXED, 0);
  CHECK(block);
  CHECK_FALSE(GlobalFree(block));
}

TEST_CASE("handles that are none are refused") {
  Dialog dialog(4, 1);
  const HDC target = GetDC(dialog.control());
  const HDC source = CreateCompatibleDC(target);
  const HBITMAP bitmap = stm::LoadModuleBitmap("BMP_P_BASE");
  const auto icon = reinterpret_cast<uintptr_t>(stm::LoadModuleIcon("ICO_ONLINE"));
  const auto resource = reinterpret_cast<uintptr_t>(PatFindResource("BMP_P_BASE"));
  const auto own = reinterpret_cast<uintptr_t>(&dialog);
  // Handles of ours but for their upper half, where there is one.
  const auto above = [](const void* handle) -> uintptr_t {
    return sizeof handle > 4 ? reinterpret_cast<uintptr_t>(handle) + (uint64_t{1} << 32) : 0;
  };
  char buffer[64];
  uint32_t pixels[1024];
  for (const uintptr_t value :
       {uintptr_t{0}, icon, resource, own, uintptr_t{0xFFFFFFFF}, uintptr_t{0x1000},
        above(dialog.control()), above(target), above(source), above(bitmap)}) {
    CAPTURE(value);
    CHECK_FALSE(DeleteObject(Foreign<HGDIOBJ>(value)));
    CHECK_FALSE(GetObjectA(Foreign<HGDIOBJ>(value), sizeof buffer, buffer));
    CHECK_FALSE(SelectObject(source, Foreign<HGDIOBJ>(value)));
    CHECK_FALSE(SelectObject(Foreign<HDC>(value), nullptr));
    CHECK_FALSE(GetDC(Foreign<HWND>(value)));
    CHECK_FALSE(GetDlgItem(Foreign<HWND>(value), kPicture));
    CHECK_FALSE(DeleteDC(Foreign<HDC>(value)));
    CHECK_FALSE(ReleaseDC(dialog.control(), Foreign<HDC>(value)));
    CHECK_FALSE(BitBlt(target, 0, 0, 1, 1, Foreign<HDC>(value), 0, 0, SRCCOPY));
    CHECK_FALSE(BitBlt(Foreign<HDC>(value), 0, 0, 1, 1, source, 0, 0, SRCCOPY));
    CHECK_FALSE(HostReadBitmap(Foreign<HBITMAP>(value), pixels, 1024));
    CHECK_FALSE(HostAddPicture(Foreign<HWND>(value), 1, 1, 1));
    CHECK_FALSE(HostDestroyDialog(Foreign<HWND>(value)));
    if (value != icon)
      CHECK_FALSE(HostReadIcon(Foreign<HICON>(value), pixels, 1024, nullptr, nullptr));
  }
  CHECK(dialog.pixels()[0] == 0x00FFFFFF);
  DeleteDC(source);
  DeleteObject(bitmap);
  ReleaseDC(dialog.control(), target);
}

TEST_CASE("a full table of handles refuses new ones and recovers") {
  const std::vector<HDC> contexts = TakeEveryHandle();
  CHECK(contexts.size() > 4000);
  CHECK_FALSE(HostCreateDialog());
  CHECK_FALSE(stm::LoadModuleBitmap("BMP_P_BASE"));
  GiveBack(contexts);
  const HBITMAP bitmap = stm::LoadModuleBitmap("BMP_P_BASE");
  CHECK(bitmap);
  CHECK(DeleteObject(bitmap));
}

TEST_CASE("a drawing gives every handle back, however few there are") {
  Dialog dialog(4, 1);
  const PrnInfo info{};
  PrnBitmap list;
  REQUIRE(PatGetPrnBitmap(&info, &list) == 1);
  for (size_t left = 0; left < 5; ++left) {
    CAPTURE(left);
    std::vector<HDC> taken = TakeEveryHandle();
    for (size_t i = 0; i < left; ++i) {
      DeleteDC(taken.back());
      taken.pop_back();
    }
    dialog.pixels()[0] = kPicture;
    CHECK(PatDrawPrinterBitmap(dialog.handle, 0, kPicture, 1, 0, 0) == 1);
    // A window's context, a bitmap and a memory context are what a layer takes.
    CHECK((dialog.pixels()[0] != kPicture) == (left >= 3));
    const std::vector<HDC> still = TakeEveryHandle();
    CHECK(still.size() == left);
    GiveBack(still);
    GiveBack(taken);
  }
}
