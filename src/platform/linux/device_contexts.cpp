// Device contexts: a window's, drawn to, and memory contexts, drawn from.
#include "platform/linux/bitmaps.h"
#include "platform/linux/dialogs.h"

namespace {

struct WindowContext : stm::Object {
  static constexpr stm::Kind kKind = stm::Kind::WindowContext;
  HWND window;  // may be gone before its context
};

struct MemoryContext : stm::Object {
  static constexpr stm::Kind kKind = stm::Kind::MemoryContext;
  HGDIOBJ bitmap;
};

// What a new memory context holds. The stock bitmap is everyone's, so that it is never marked, and
// known to contexts alone: to all others its handle is a foreign one.
constexpr uintptr_t kStockHandle = 1;
constexpr stm::Dib kOneBlackPixel = {1, 1, false, 1, stm::DibPlain, nullptr, 0, nullptr, nullptr};
stm::Bitmap stockBitmap{{kStockHandle}, kOneBlackPixel, false};

stm::Bitmap* FindSelectable(const void* handle) {
  const bool stock = reinterpret_cast<uintptr_t>(handle) == kStockHandle;
  return stock ? &stockBitmap : stm::Find<stm::Bitmap>(handle);
}

void MarkSelected(HGDIOBJ handle, bool selected) {
  stm::Bitmap* bitmap = FindSelectable(handle);
  if (bitmap != &stockBitmap) bitmap->selected = selected;
}

}  // namespace

extern "C" {

HDC STM_CALL GetDC(HWND window) {
  if (!stm::Find<stm::Picture>(window)) return nullptr;
  auto* context = stm::NewObject<WindowContext>();
  if (context) context->window = window;
  return stm::HandleOf<HDC>(context);
}

int STM_CALL ReleaseDC(HWND window, HDC handle) {
  auto* context = stm::Find<WindowContext>(handle);
  if (!context || context->window != window) return 0;
  stm::ReleaseObject(context);
  return 1;
}

HDC STM_CALL CreateCompatibleDC(HDC) {
  auto* context = stm::NewObject<MemoryContext>();
  if (context) context->bitmap = reinterpret_cast<HGDIOBJ>(kStockHandle);
  return stm::HandleOf<HDC>(context);
}

BOOL STM_CALL DeleteDC(HDC handle) {
  auto* context = stm::Find<MemoryContext>(handle);
  if (!context) return 0;
  MarkSelected(context->bitmap, false);
  stm::ReleaseObject(context);
  return 1;
}

HGDIOBJ STM_CALL SelectObject(HDC handle, HGDIOBJ object) {
  auto* context = stm::Find<MemoryContext>(handle);
  const stm::Bitmap* bitmap = FindSelectable(object);
  if (!context || !bitmap) return nullptr;
  const HGDIOBJ previous = context->bitmap;
  if (object == previous) return previous;
  if (bitmap->selected) return nullptr;
  MarkSelected(previous, false);
  MarkSelected(object, true);
  context->bitmap = object;
  return previous;
}

BOOL STM_CALL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX,
                     int sourceY, DWORD rop) {
  const auto* to = stm::Find<WindowContext>(target);
  const auto* from = stm::Find<MemoryContext>(source);
  const auto* picture = to ? stm::Find<stm::Picture>(to->window) : nullptr;
  if (!picture || !from) return 0;
  return stm::PaintDib(FindSelectable(from->bitmap)->dib, picture->frame,
                       {x, y, width, height, sourceX, sourceY}, rop);
}
}
