#include <cstdint>
#include <vector>

#include "platform/soft/reference.h"

namespace vorlex::gdi::soft::reference {
namespace {

struct Copied {
  int64_t x;
  int64_t y;
  uint32_t pixel;
};

}  // namespace

void Blit(const Surface& destination, int64_t x, int64_t y, int64_t width, int64_t height, const Surface& source,
          int64_t sourceX, int64_t sourceY) {
  if (destination.Empty() || source.Empty()) return;
  const Box wanted = Intersect(BoxFromExtent(x, y, width, height), BoundsOf(destination));
  std::vector<Copied> copied;
  for (int64_t row = wanted.top; row < wanted.bottom; ++row) {
    for (int64_t column = wanted.left; column < wanted.right; ++column) {
      const int64_t fromX = column - x + sourceX;
      const int64_t fromY = row - y + sourceY;
      if (source.Contains(fromX, fromY)) copied.push_back({column, row, source.At(fromX, fromY)});
    }
  }
  for (const Copied& pixel : copied) destination.At(pixel.x, pixel.y) = pixel.pixel;
}

}  // namespace vorlex::gdi::soft::reference
