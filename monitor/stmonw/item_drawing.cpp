#include "stmonw/item_drawing.h"

#include <algorithm>

#include "stmonw/printer_picture.h"

namespace stmonw {
namespace {

constexpr int kIconSize = 32;   // pixels of the library's icons
constexpr int kPaperSize = 12;  // of its paper pictures
constexpr int kLineMargin = 3;  // pixels
constexpr UINT kWrapped = DT_WORDBREAK | DT_NOPREFIX;

// What is drawn into `dc` between Begin and End appears at once.
struct Canvas {
  HDC dc;
  RECT area;  // from 0, 0
  HBITMAP bitmap;
  HGDIOBJ before;
};

Canvas Begin(const DRAWITEMSTRUCT& item, HBRUSH ground) {
  const RECT& place = item.rcItem;
  Canvas canvas;
  canvas.area = {0, 0, place.right - place.left, place.bottom - place.top};
  canvas.dc = CreateCompatibleDC(item.hDC);
  canvas.bitmap = CreateCompatibleBitmap(item.hDC, canvas.area.right, canvas.area.bottom);
  canvas.before = SelectObject(canvas.dc, canvas.bitmap);
  FillRect(canvas.dc, &canvas.area, ground);
  SetBkMode(canvas.dc, TRANSPARENT);
  return canvas;
}

void End(const Canvas& canvas, const DRAWITEMSTRUCT& item) {
  BitBlt(item.hDC, item.rcItem.left, item.rcItem.top, canvas.area.right, canvas.area.bottom,
         canvas.dc, 0, 0, SRCCOPY);
  SelectObject(canvas.dc, canvas.before);
  DeleteObject(canvas.bitmap);
  DeleteDC(canvas.dc);
}

// A line of a list in its colours.
Canvas BeginLine(const DRAWITEMSTRUCT& item) {
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  const Canvas canvas = Begin(item, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  SetTextColor(canvas.dc, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  return canvas;
}

void EndLine(const Canvas& canvas, const DRAWITEMSTRUCT& item) {
  if (item.itemState & ODS_FOCUS) DrawFocusRect(canvas.dc, &canvas.area);
  End(canvas, item);
}

void Stretch(HDC to, const RECT& place, HBITMAP bitmap) {
  BITMAP size;
  if (!bitmap || GetObjectW(bitmap, sizeof size, &size) == 0) return;
  HDC from = CreateCompatibleDC(to);
  HGDIOBJ before = SelectObject(from, bitmap);
  SetStretchBltMode(to, HALFTONE);
  SetBrushOrgEx(to, 0, 0, nullptr);
  StretchBlt(to, place.left, place.top, place.right - place.left, place.bottom - place.top, from, 0,
             0, size.bmWidth, size.bmHeight, SRCCOPY);
  SelectObject(from, before);
  DeleteDC(from);
}

// A square of `size` in the middle of the height.
RECT Square(const RECT& area, int left, int size) {
  const int top = (area.bottom - size) / 2;
  return {left, top, left + size, top + size};
}

void PutIcon(HDC dc, const RECT& place, const std::string& name) {
  HICON icon = name.empty() ? nullptr : PatLoadIcon(name.c_str());
  if (!icon) return;
  DrawIconEx(dc, place.left, place.top, icon, place.right - place.left, place.bottom - place.top, 0,
             nullptr, DI_NORMAL);
}

void PutWord(const Canvas& canvas, int left, int right, const std::wstring& text) {
  RECT place = {left, 0, right, canvas.area.bottom};
  DrawTextW(canvas.dc, text.c_str(), -1, &place,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace

int Scaled(int pixels) {
  HDC screen = GetDC(nullptr);
  const int dots = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return MulDiv(pixels, dots, 96);
}

void DrawPictureItem(const DRAWITEMSTRUCT& item, HBITMAP picture) {
  const Canvas canvas = Begin(item, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  Stretch(canvas.dc, canvas.area, picture);
  End(canvas, item);
}

void DrawIconItem(const DRAWITEMSTRUCT& item, const std::string& icon) {
  const Canvas canvas = Begin(item, GetSysColorBrush(COLOR_3DFACE));
  PutIcon(canvas.dc, Square(canvas.area, 0, Scaled(kIconSize)), icon);
  End(canvas, item);
}

void DrawTextItem(const DRAWITEMSTRUCT& item, const std::wstring& text, HFONT font) {
  constexpr UINT kFormat = DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL | DT_END_ELLIPSIS;
  const Canvas canvas = Begin(item, GetSysColorBrush(COLOR_3DFACE));
  HGDIOBJ before = SelectObject(canvas.dc, font);
  SetTextColor(canvas.dc, GetSysColor(COLOR_WINDOWTEXT));
  RECT needed = canvas.area;
  DrawTextW(canvas.dc, text.c_str(), -1, &needed, kFormat | DT_CALCRECT);
  RECT place = canvas.area;
  place.top = std::max<LONG>((canvas.area.bottom - needed.bottom) / 2, 0);
  DrawTextW(canvas.dc, text.c_str(), -1, &place, kFormat);
  SelectObject(canvas.dc, before);
  End(canvas, item);
}

int WrappedHeight(HWND list, const std::wstring& text, HFONT font) {
  RECT area;
  GetClientRect(list, &area);
  // The scroll bar may come with a later line.
  area.right -= GetSystemMetrics(SM_CXVSCROLL) + 2 * Scaled(kLineMargin);
  HDC dc = GetDC(list);
  HGDIOBJ before = SelectObject(dc, font);
  const int height = DrawTextW(dc, text.c_str(), -1, &area, kWrapped | DT_CALCRECT);
  SelectObject(dc, before);
  ReleaseDC(list, dc);
  return height + Scaled(kLineMargin);
}

void DrawWrappedItem(const DRAWITEMSTRUCT& item, const std::wstring& text, HFONT font) {
  const Canvas canvas = BeginLine(item);
  HGDIOBJ before = SelectObject(canvas.dc, font);
  RECT place = canvas.area;
  InflateRect(&place, -Scaled(kLineMargin), 0);
  DrawTextW(canvas.dc, text.c_str(), -1, &place, kWrapped);
  SelectObject(canvas.dc, before);
  EndLine(canvas, item);
}

void DrawTrayItem(const DRAWITEMSTRUCT& item, const TrayLine& line, HFONT font) {
  const Canvas canvas = BeginLine(item);
  HGDIOBJ before = SelectObject(canvas.dc, font);
  // Paper picture, name, paper, level icon, level.
  const int width = canvas.area.right;
  const int gap = Scaled(6);
  const int name = gap + Scaled(kPaperSize) + gap;
  const int paper = width * 46 / 100;
  const int icon = width * 71 / 100;
  const int level = icon + Scaled(kIconSize) + gap;
  if (!line.paperBitmap.empty()) {
    HBITMAP bitmap = PatLoadBitmap(line.paperBitmap.c_str());
    Stretch(canvas.dc, Square(canvas.area, gap, Scaled(kPaperSize)), bitmap);
    DeleteObject(bitmap);
  }
  PutWord(canvas, name, paper - gap, line.name);
  PutWord(canvas, paper, line.level.empty() ? width : icon - gap, line.paper);
  PutIcon(canvas.dc, Square(canvas.area, icon, Scaled(kIconSize)), line.levelIcon);
  PutWord(canvas, level, width, line.level);

  SelectObject(canvas.dc, before);
  EndLine(canvas, item);
}

}  // namespace stmonw
