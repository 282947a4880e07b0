#pragma once
// The pixels a drawing call writes, and the plain way to write them: one pixel
// at a time through a paint, spans and single pixels clipped to the bitmap
// first (spans.h writes whole spans at once). Coordinates are 64-bit so that
// any sum or difference of two 32-bit GDI coordinates is exact.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/gdi.h"

namespace vorlex::gdi::soft {

// COLORREF 0x00BBGGRR to a pixel 0x00RRGGBB; the flag byte is ignored.
constexpr uint32_t PixelOf(COLORREF color) {
  return ((color & 0xFFu) << 16) | (color & 0xFF00u) | ((color >> 16) & 0xFFu);
}

struct Surface {
  int64_t width = 0;
  int64_t height = 0;
  uint32_t* pixels = nullptr;

  bool Empty() const { return pixels == nullptr || width <= 0 || height <= 0; }
  bool Contains(int64_t x, int64_t y) const { return x >= 0 && y >= 0 && x < width && y < height; }
  // Callers clip first.
  uint32_t& At(int64_t x, int64_t y) const { return pixels[static_cast<size_t>(y * width + x)]; }
};

// Calls paint(x, y, pixel) for the pixels of row y with x in [x0, x1) that lie
// on the surface.
template <class Paint>
void PaintSpan(const Surface& surface, int64_t y, int64_t x0, int64_t x1, const Paint& paint) {
  if (surface.Empty() || y < 0 || y >= surface.height) return;
  const int64_t first = std::max<int64_t>(x0, 0);
  const int64_t end = std::min<int64_t>(x1, surface.width);
  for (int64_t x = first; x < end; ++x) paint(x, y, surface.At(x, y));
}

template <class Paint>
void PaintPixel(const Surface& surface, int64_t x, int64_t y, const Paint& paint) {
  if (!surface.Empty() && surface.Contains(x, y)) paint(x, y, surface.At(x, y));
}

// Paints every pixel one colour.
struct SolidPaint {
  uint32_t pixel;
  void operator()(int64_t, int64_t, uint32_t& target) const { target = pixel; }
};

// Inverts every pixel (R2_NOT).
struct InvertPaint {
  void operator()(int64_t, int64_t, uint32_t& target) const { target ^= 0x00FFFFFFu; }
};

}  // namespace vorlex::gdi::soft
