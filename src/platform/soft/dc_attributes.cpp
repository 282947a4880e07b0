// SetBkMode, SetBkColor, SetTextColor and GetDeviceCaps.

#include "platform/gdi.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {
namespace {

constexpr COLORREF kInvalidColor = 0xFFFFFFFF;  // CLR_INVALID
constexpr int kBitsPerPixel = 32;               // every softgdi device is 32 bpp, one plane
constexpr int kPlanes = 1;
constexpr int kPixelsPerInch = 96;

soft::DeviceContext* FindDc(HDC dc) { return soft::Objects().Get<soft::DeviceContext>(soft::ValueOf(dc)); }

}  // namespace

int SetBkMode(HDC dc, int mode) {
  const auto lock = soft::LockObjects();
  soft::DeviceContext* context = FindDc(dc);
  if (context == nullptr || (mode != TRANSPARENT && mode != OPAQUE)) return 0;
  const int previous = context->bkMode;
  context->bkMode = mode;
  return previous;
}

COLORREF SetBkColor(HDC dc, COLORREF color) {
  const auto lock = soft::LockObjects();
  soft::DeviceContext* context = FindDc(dc);
  if (context == nullptr) return kInvalidColor;
  const COLORREF previous = context->bkColor;
  context->bkColor = color;
  return previous;
}

COLORREF SetTextColor(HDC dc, COLORREF color) {
  const auto lock = soft::LockObjects();
  soft::DeviceContext* context = FindDc(dc);
  if (context == nullptr) return kInvalidColor;
  const COLORREF previous = context->textColor;
  context->textColor = color;
  return previous;
}

// A memory DC reports its device, the screen, whatever bitmap it holds.
int GetDeviceCaps(HDC dc, int index) {
  const auto lock = soft::LockObjects();
  if (FindDc(dc) == nullptr) return 0;
  if (index == BITSPIXEL) return kBitsPerPixel;
  if (index == PLANES) return kPlanes;
  if (index == LOGPIXELSY) return kPixelsPerInch;
  return 0;
}

}  // namespace vorlex::gdi
