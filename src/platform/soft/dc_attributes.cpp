// SetBkMode, SetBkColor, SetTextColor and GetDeviceCaps.

#include <utility>

#include "platform/gdi.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {
namespace {

constexpr COLORREF kInvalidColor = 0xFFFFFFFF;  // CLR_INVALID
constexpr int kBitsPerPixel = 32;               // every softgdi device is 32 bpp, one plane
constexpr int kPlanes = 1;
constexpr int kPixelsPerInch = 96;

// Sets one of the DC's colours; the previous one, or CLR_INVALID for no DC.
COLORREF ExchangeColor(HDC dc, COLORREF soft::DeviceContext::*field, COLORREF color) {
  soft::DeviceContext* context = soft::FindDc(dc);
  if (context == nullptr) return kInvalidColor;
  return std::exchange(context->*field, color);
}

}  // namespace

int SetBkMode(HDC dc, int mode) {
  const auto lock = soft::LockObjects();
  soft::DeviceContext* context = soft::FindDc(dc);
  if (context == nullptr || (mode != TRANSPARENT && mode != OPAQUE)) return 0;
  const int previous = context->bkMode;
  context->bkMode = mode;
  return previous;
}

COLORREF SetBkColor(HDC dc, COLORREF color) {
  const auto lock = soft::LockObjects();
  return ExchangeColor(dc, &soft::DeviceContext::bkColor, color);
}

COLORREF SetTextColor(HDC dc, COLORREF color) {
  const auto lock = soft::LockObjects();
  return ExchangeColor(dc, &soft::DeviceContext::textColor, color);
}

// A memory DC reports its device, the screen, whatever bitmap it holds.
int GetDeviceCaps(HDC dc, int index) {
  const auto lock = soft::LockObjects();
  if (soft::FindDc(dc) == nullptr) return 0;
  if (index == BITSPIXEL) return kBitsPerPixel;
  if (index == PLANES) return kPlanes;
  if (index == LOGPIXELSY) return kPixelsPerInch;
  return 0;
}

}  // namespace vorlex::gdi
