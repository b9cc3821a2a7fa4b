// Draws the picture into a control of a dialog, layer by layer.
#include "picture/latest_list.h"
#include "platform/windows_api.h"
#include "resources/resource_access.h"
#include "status/parts_table.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

enum : uint32_t {
  DrawWithRopSet = 0x1,   // the second pass uses ropSet instead of ropClear
  SkipFirstPass = 0x100,  // only the second pass is drawn
};

struct Control {
  HWND dialog;
  int32_t id;
};

// The bitmap at its own size to the origin of `target`. Result: whether it was drawn.
bool BlitBitmap(HDC target, HBITMAP bitmap, uint32_t rop) {
  const HDC source = CreateCompatibleDC(target);
  if (!source) return false;
  const HGDIOBJ previous = SelectObject(source, bitmap);
  BITMAP size{};
  GetObjectA(bitmap, sizeof size, &size);
  const bool drawn = BitBlt(target, 0, 0, size.bmWidth, size.bmHeight, source, 0, 0, rop);
  SelectObject(source, previous);
  DeleteDC(source);
  return drawn;
}

// Everything that a blit needs is had and given back within it, so that a layer that cannot be
// drawn costs no other layer. Result: whether it was drawn.
bool BlitLayer(const Control& control, const char* bitmapName, uint32_t rop) {
  if (rop == 0) return false;
  const HWND window = GetDlgItem(control.dialog, control.id);
  if (!window) return false;
  const HDC target = GetDC(window);
  if (!target) return false;
  bool drawn = false;
  if (const HBITMAP bitmap = LoadModuleBitmap(bitmapName)) {
    drawn = BlitBitmap(target, bitmap, rop);
    DeleteObject(bitmap);
  }
  ReleaseDC(window, target);
  return drawn;
}

// The parts are asked for without a record; the answer is complete all the same, but it leaves
// PatGetError at PatErrorNullRecord.
void DrawPicture(const Control& control, uint32_t flags) {
  bool first = true;
  for (const uint8_t code : LatestList()) {
    if (code == 0 || code >= kPartCount) continue;
    PrnPart part;
    PatGetPrnParts(nullptr, code, &part);
    const uint32_t firstRop = first ? SRCCOPY : part.ropSet;
    const uint32_t secondRop = flags & DrawWithRopSet ? part.ropSet : part.ropClear;
    bool drawn = false;
    if (!(flags & SkipFirstPass)) {
      drawn = BlitLayer(control, part.bitmapName, firstRop);
      first = false;
    }
    // To draw a layer again with the same operation would change no pixel.
    if (!drawn || firstRop != secondRop) BlitLayer(control, part.bitmapName, secondRop);
  }
}

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatDrawPrinterBitmap(HWND dialog, uint32_t, int32_t controlId, uint32_t flags,
                                       uint32_t, uint32_t) {
  stm::DrawPicture({dialog, controlId}, flags);
  return 1;
}

uint32_t STM_CALL PatDrawPrinterBitmap_Ex(HWND dialog, uint32_t, int32_t controlId, uint32_t flags,
                                          uint32_t, uint32_t) {
  stm::DrawPicture({dialog, controlId}, flags);
  return 1;
}
