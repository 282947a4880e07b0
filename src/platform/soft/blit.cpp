#include "platform/soft/blit.h"

#include <cstddef>
#include <cstring>

#include "platform/soft/box.h"

namespace vorlex::gdi::soft {
namespace {

// Copies the source box to the destination box of the same size, a row at a
// time. When both lie on one surface and the destination is lower, the rows go
// bottom up so that no row is overwritten before it is read; within a row
// memmove takes care of the overlap.
void CopyRows(const Surface& destination, const Box& to, const Surface& source, const Box& from) {
  const size_t bytes = static_cast<size_t>(to.Width()) * sizeof(uint32_t);
  const bool bottomUp = destination.pixels == source.pixels && to.top > from.top;
  for (int64_t i = 0; i < to.Height(); ++i) {
    const int64_t row = bottomUp ? to.Height() - 1 - i : i;
    std::memmove(&destination.At(to.left, to.top + row), &source.At(from.left, from.top + row), bytes);
  }
}

}  // namespace

void Blit(const Surface& destination, int64_t x, int64_t y, int64_t width, int64_t height, const Surface& source,
          int64_t sourceX, int64_t sourceY) {
  if (destination.Empty() || source.Empty()) return;
  const int64_t shiftX = sourceX - x;
  const int64_t shiftY = sourceY - y;
  const Box sourceInDestination = Offset(BoundsOf(source), -shiftX, -shiftY);
  const Box wanted = BoxFromExtent(x, y, width, height);
  const Box to = Intersect(Intersect(wanted, BoundsOf(destination)), sourceInDestination);
  if (to.Empty()) return;
  CopyRows(destination, to, source, Offset(to, shiftX, shiftY));
}

}  // namespace vorlex::gdi::soft
