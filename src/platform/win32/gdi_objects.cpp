// Device contexts, bitmaps, brushes, pens, fonts and attributes forwarded to
// gdi32 and user32. The seam's handle types name the same objects as the Win32
// ones.
#include "platform/gdi.h"
// After the seam: <windows.h> defines macros with the names the seam declares.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <atomic>

#include "platform/win32/wide_text.h"

namespace vorlex::gdi {

namespace {
// Objects and contexts created through the seam and not yet deleted. The
// system's own count (GetGuiResources) is not used: Wine always reports 0.
std::atomic<size_t> g_live{0};
std::atomic<size_t> g_created{0};

template <class Handle>
Handle Counted(Handle handle) {
  if (handle) {
    ++g_live;
    ++g_created;
  }
  return handle;
}
BOOL Uncounted(BOOL deleted) {
  if (deleted) --g_live;
  return deleted;
}
}  // namespace

size_t LiveObjectCount() { return g_live; }
size_t CreatedObjectCount() { return g_created; }

HDC GetDC(HWND hwnd) { return reinterpret_cast<HDC>(::GetDC(reinterpret_cast<::HWND>(hwnd))); }

int ReleaseDC(HWND hwnd, HDC dc) { return ::ReleaseDC(reinterpret_cast<::HWND>(hwnd), reinterpret_cast<::HDC>(dc)); }

HDC CreateCompatibleDC(HDC dc) {
  return Counted(reinterpret_cast<HDC>(::CreateCompatibleDC(reinterpret_cast<::HDC>(dc))));
}

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) {
  return Counted(reinterpret_cast<HBITMAP>(::CreateCompatibleBitmap(reinterpret_cast<::HDC>(dc), width, height)));
}

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object) { return ::SelectObject(reinterpret_cast<::HDC>(dc), object); }

BOOL DeleteObject(HGDIOBJ object) { return Uncounted(::DeleteObject(object)); }

BOOL DeleteDC(HDC dc) { return Uncounted(::DeleteDC(reinterpret_cast<::HDC>(dc))); }

BOOL BitBlt(HDC dest, int x, int y, int width, int height, HDC src, int srcX, int srcY, DWORD rop) {
  return ::BitBlt(reinterpret_cast<::HDC>(dest), x, y, width, height, reinterpret_cast<::HDC>(src), srcX, srcY, rop);
}

int GetDeviceCaps(HDC dc, int index) { return ::GetDeviceCaps(reinterpret_cast<::HDC>(dc), index); }

HBRUSH CreateSolidBrush(COLORREF color) { return Counted(reinterpret_cast<HBRUSH>(::CreateSolidBrush(color))); }

HBRUSH CreateHatchBrush(int style, COLORREF color) {
  return Counted(reinterpret_cast<HBRUSH>(::CreateHatchBrush(style, color)));
}

HPEN CreatePen(int style, int width, COLORREF color) {
  return Counted(reinterpret_cast<HPEN>(::CreatePen(style, width, color)));
}

HFONT CreateFontIndirectA(const LOGFONTA* font) {
  if (font == nullptr) return nullptr;
  const ::LOGFONTW wide = win32::WideLogFont(*font);
  return Counted(reinterpret_cast<HFONT>(::CreateFontIndirectW(&wide)));
}

int SetBkMode(HDC dc, int mode) { return ::SetBkMode(reinterpret_cast<::HDC>(dc), mode); }

COLORREF SetBkColor(HDC dc, COLORREF color) { return ::SetBkColor(reinterpret_cast<::HDC>(dc), color); }

}  // namespace vorlex::gdi
