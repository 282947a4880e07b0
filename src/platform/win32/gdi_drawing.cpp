// Lines, ellipses, rectangle fills and focus rectangles forwarded to gdi32 and
// user32.
#include "platform/gdi.h"
// After the seam: <windows.h> defines macros with the names the seam declares.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace vorlex::gdi {
namespace {

::RECT ToWin32(const RECT& r) { return ::RECT{r.left, r.top, r.right, r.bottom}; }

}  // namespace

BOOL MoveToEx(HDC dc, int x, int y, POINT* previous) {
  ::POINT old{};
  const BOOL ok = ::MoveToEx(reinterpret_cast<::HDC>(dc), x, y, &old);
  if (ok && previous != nullptr) {
    previous->x = static_cast<int32_t>(old.x);
    previous->y = static_cast<int32_t>(old.y);
  }
  return ok;
}

BOOL LineTo(HDC dc, int x, int y) { return ::LineTo(reinterpret_cast<::HDC>(dc), x, y); }

BOOL Ellipse(HDC dc, int left, int top, int right, int bottom) {
  return ::Ellipse(reinterpret_cast<::HDC>(dc), left, top, right, bottom);
}

int FillRect(HDC dc, const RECT* rect, HBRUSH brush) {
  if (rect == nullptr) return ::FillRect(reinterpret_cast<::HDC>(dc), nullptr, reinterpret_cast<::HBRUSH>(brush));
  const ::RECT r = ToWin32(*rect);
  return ::FillRect(reinterpret_cast<::HDC>(dc), &r, reinterpret_cast<::HBRUSH>(brush));
}

BOOL DrawFocusRect(HDC dc, const RECT* rect) {
  if (rect == nullptr) return ::DrawFocusRect(reinterpret_cast<::HDC>(dc), nullptr);
  const ::RECT r = ToWin32(*rect);
  return ::DrawFocusRect(reinterpret_cast<::HDC>(dc), &r);
}

}  // namespace vorlex::gdi
