// BitBlt with SRCCOPY.

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {
namespace {

using soft::Box;
using soft::Surface;

// Copies the source box to the destination box of the same size. The rows go
// through a buffer so that a copy within one bitmap reads every pixel before
// any is overwritten.
void CopyPixels(const Surface& destination, const Box& to, const Surface& source, const Box& from) {
  const auto width = static_cast<size_t>(to.Width());
  std::vector<uint32_t> buffer(width * static_cast<size_t>(to.Height()));
  for (int64_t row = 0; row < from.Height(); ++row) {
    const uint32_t* begin = &source.At(from.left, from.top + row);
    std::copy(begin, begin + width, buffer.begin() + static_cast<std::ptrdiff_t>(row * to.Width()));
  }
  for (int64_t row = 0; row < to.Height(); ++row) {
    const auto offset = static_cast<std::ptrdiff_t>(row * to.Width());
    std::copy(buffer.begin() + offset, buffer.begin() + offset + static_cast<std::ptrdiff_t>(width),
              &destination.At(to.left, to.top + row));
  }
}

}  // namespace

BOOL BitBlt(HDC dest, int x, int y, int width, int height, HDC src, int srcX, int srcY, DWORD rop) {
  const auto lock = soft::LockObjects();
  if (rop != SRCCOPY) return soft::kFalse;  // the only raster operation softgdi does
  const auto to = soft::FindTarget(dest);
  const auto from = soft::FindTarget(src);
  if (!to || !from || from->surface.Empty()) return soft::kFalse;  // the screen has nothing to read
  // Both boxes put in order the same way; only pixels whose source and
  // destination both lie on their bitmaps are copied.
  const Box wanted = soft::BoxFromExtent(x, y, width, height);
  const int64_t shiftX = int64_t{srcX} - x;
  const int64_t shiftY = int64_t{srcY} - y;
  const Box sourceInDest = soft::Offset(soft::BoundsOf(from->surface), -shiftX, -shiftY);
  const Box target = soft::Intersect(soft::Intersect(wanted, soft::BoundsOf(to->surface)), sourceInDest);
  if (target.Empty() || to->surface.Empty()) return soft::kTrue;
  CopyPixels(to->surface, target, from->surface, soft::Offset(target, shiftX, shiftY));
  return soft::kTrue;
}

}  // namespace vorlex::gdi
