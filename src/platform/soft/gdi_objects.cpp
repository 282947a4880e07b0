// Creating and deleting bitmaps, brushes and pens.

#include <cstdint>
#include <new>

#include "platform/gdi.h"
#include "platform/soft/brush_paint.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {
namespace {

using soft::Handle;

// Larger bitmaps fail as an allocation failure would.
constexpr int64_t kMaxBitmapPixels = int64_t{1} << 26;
// Hatch styles up to this bound are accepted; those past HS_DIAGCROSS make a
// solid brush, as gdi32 does.
constexpr int kHatchStyleBound = 12;
// PS_DASH .. PS_INSIDEFRAME.
constexpr int kLastKnownPenStyle = 6;

// The format CreateCompatibleBitmap gives: the screen's 32 bpp, or that of the
// bitmap a memory DC holds (monochrome for its default bitmap).
int CompatibleBitsPerPixel(const soft::DeviceContext& dc) {
  if (dc.screen) return 32;
  const soft::Bitmap* held = soft::Objects().Get<soft::Bitmap>(dc.bitmap);
  return held != nullptr ? held->bitsPerPixel : 32;
}

Handle NewBitmap(int32_t width, int32_t height, int bitsPerPixel) {
  soft::Bitmap bitmap;
  bitmap.width = width;
  bitmap.height = height;
  bitmap.bitsPerPixel = bitsPerPixel;
  try {
    bitmap.pixels.assign(static_cast<size_t>(int64_t{width} * height), 0x000000);
  } catch (const std::bad_alloc&) {
    return 0;
  }
  return soft::Objects().Add(std::move(bitmap));
}

}  // namespace

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) {
  const auto lock = soft::LockObjects();
  soft::ObjectTable& table = soft::Objects();
  const soft::DeviceContext* context = soft::FindDc(dc);
  if (context == nullptr) return nullptr;
  // A negative extent counts by its size, as gdi32 takes it.
  const int64_t columns = width < 0 ? -int64_t{width} : width;
  const int64_t rows = height < 0 ? -int64_t{height} : height;
  if (columns == 0 || rows == 0) return soft::HandleOf<HBITMAP>(table.StockBitmap());
  if (columns > kMaxBitmapPixels || rows > kMaxBitmapPixels || columns * rows > kMaxBitmapPixels) return nullptr;
  return soft::HandleOf<HBITMAP>(
      NewBitmap(static_cast<int32_t>(columns), static_cast<int32_t>(rows), CompatibleBitsPerPixel(*context)));
}

HBRUSH CreateSolidBrush(COLORREF color) {
  const auto lock = soft::LockObjects();
  return soft::HandleOf<HBRUSH>(soft::Objects().Add(soft::Brush{color, -1}));
}

HBRUSH CreateHatchBrush(int style, COLORREF color) {
  const auto lock = soft::LockObjects();
  if (style < 0 || style >= kHatchStyleBound) return nullptr;
  const int hatch = style < soft::kHatchStyleCount ? style : -1;
  return soft::HandleOf<HBRUSH>(soft::Objects().Add(soft::Brush{color, hatch}));
}

// softgdi draws solid and null pens. The dashed styles and PS_INSIDEFRAME fail
// rather than draw wrongly; a style GDI does not know is taken as PS_SOLID, as
// gdi32 does. A negative width counts by its size.
HPEN CreatePen(int style, int width, COLORREF color) {
  const auto lock = soft::LockObjects();
  if (style > PS_SOLID && style <= kLastKnownPenStyle && style != PS_NULL) return nullptr;
  const int drawnStyle = style == PS_NULL ? PS_NULL : PS_SOLID;
  const int32_t magnitude = width == INT32_MIN ? INT32_MAX : (width < 0 ? -width : width);
  return soft::HandleOf<HPEN>(soft::Objects().Add(soft::Pen{drawnStyle, magnitude, color}));
}

BOOL DeleteObject(HGDIOBJ object) {
  const auto lock = soft::LockObjects();
  return soft::Objects().Delete(soft::ValueOf(object)) ? soft::kTrue : soft::kFalse;
}

}  // namespace vorlex::gdi
