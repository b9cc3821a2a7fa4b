#include "stmonw/printer_picture.h"

namespace stmonw {
namespace {

constexpr int kCanvasId = 1;
// Each layer is drawn with the raster operation of its kind in both passes.
constexpr uint32_t kDrawWithRopSet = 0x1;

HBITMAP Draw(HWND dialog, int control_id, bool& drawn) {
  HWND canvas = GetDlgItem(dialog, control_id);
  HDC screen = GetDC(canvas);
  const RECT whole = {0, 0, kPictureWidth, kPictureHeight};
  FillRect(screen, &whole, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  drawn = GetPixel(screen, 0, 0) == RGB(255, 255, 255) &&
          GetPixel(screen, kPictureWidth - 1, kPictureHeight - 1) == RGB(255, 255, 255);
  PatDrawPrinterBitmap_Ex(dialog, 0, static_cast<uint32_t>(control_id), kDrawWithRopSet, 0, 0);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, kPictureWidth, kPictureHeight);
  if (HDC memory = bitmap ? CreateCompatibleDC(screen) : nullptr) {
    HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, kPictureWidth, kPictureHeight, screen, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    DeleteDC(memory);
  }
  ReleaseDC(canvas, screen);
  return bitmap;
}

}  // namespace

HWND CreateEasel(HINSTANCE instance) {
  // The system keeps the pixels of a layered window, wherever it stands. It is shown only
  // while it is drawn into, beyond the left edge of all screens.
  const int left = GetSystemMetrics(SM_XVIRTUALSCREEN) - 2 * kPictureWidth;
  HWND easel =
      CreateWindowExW(WS_EX_LAYERED | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, L"STATIC", L"", WS_POPUP,
                      left, 0, kPictureWidth, kPictureHeight, nullptr, nullptr, instance, nullptr);
  SetLayeredWindowAttributes(easel, 0, 255, LWA_ALPHA);
  CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, kPictureWidth, kPictureHeight,
                  easel, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kCanvasId)), instance,
                  nullptr);
  return easel;
}

PrnBitmap ComposePicture(const PrnInfoEx& record) {
  PrnBitmap parts{};
  PatGetPrnBitmap_Ex(&record, &parts);
  return parts;
}

HBITMAP DrawPicture(HWND easel, HWND dialog, int control_id) {
  ShowWindow(easel, SW_SHOWNOACTIVATE);
  UpdateWindow(easel);
  bool drawn = false;
  HBITMAP bitmap = Draw(easel, kCanvasId, drawn);
  ShowWindow(easel, SW_HIDE);
  if (drawn) return bitmap;
  // Layers that come one by one before everybody's eyes are better than no picture.
  DeleteObject(bitmap);
  return Draw(dialog, control_id, drawn);
}

}  // namespace stmonw
