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

// The stock bitmap is everyone's: it is never marked.
void MarkSelected(HGDIOBJ bitmap, bool selected) {
  if (bitmap != stm::StockBitmap()) stm::FindBitmap(bitmap)->selected = selected;
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
  if (context) context->bitmap = stm::StockBitmap();
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
  const stm::Bitmap* bitmap = stm::FindBitmap(object);
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
  return stm::PaintDib(stm::FindBitmap(from->bitmap)->dib, picture->frame,
                       {x, y, width, height, sourceX, sourceY}, rop);
}
}
