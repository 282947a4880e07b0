#pragma once
// Half-open pixel rectangles in 64-bit coordinates, and the two ways GDI puts
// an inverted rectangle in order.

#include <algorithm>
#include <cstdint>

#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

struct Box {
  int64_t left = 0;
  int64_t top = 0;
  int64_t right = 0;
  int64_t bottom = 0;

  int64_t Width() const { return right - left; }
  int64_t Height() const { return bottom - top; }
  bool Empty() const { return right <= left || bottom <= top; }
};

// A corner and a signed extent as PatBlt and BitBlt take them. A negative
// extent covers the pixels before the corner, shifted by one: x = 10, width -5
// covers 6..10.
inline Box BoxFromExtent(int64_t x, int64_t y, int64_t width, int64_t height) {
  Box box{x, y, x + width, y + height};
  if (box.left > box.right) box = {box.right + 1, box.top, box.left + 1, box.bottom};
  if (box.top > box.bottom) box = {box.left, box.bottom + 1, box.right, box.top + 1};
  return box;
}

// Corners given in any order, as shapes take them: swapped.
inline Box OrderedBox(int64_t left, int64_t top, int64_t right, int64_t bottom) {
  return {std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom)};
}

inline Box Intersect(const Box& a, const Box& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
}

inline Box Offset(const Box& box, int64_t dx, int64_t dy) {
  return {box.left + dx, box.top + dy, box.right + dx, box.bottom + dy};
}

inline Box BoundsOf(const Surface& surface) { return {0, 0, surface.width, surface.height}; }

// Paints every pixel of a box that lies on the surface.
template <class Paint>
void PaintBox(const Surface& surface, const Box& box, const Paint& paint) {
  const Box visible = Intersect(box, BoundsOf(surface));
  for (int64_t y = visible.top; y < visible.bottom; ++y) PaintSpan(surface, y, visible.left, visible.right, paint);
}

}  // namespace vorlex::gdi::soft
