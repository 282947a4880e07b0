#include "platform/soft/text/polygon_fill.h"

#include <algorithm>
#include <vector>

namespace vorlex::gdi::soft::text {
namespace {

// The smallest integer not below num / den, den > 0.
int64_t CeilDiv(int64_t num, int64_t den) { return num >= 0 ? (num + den - 1) / den : -((-num) / den); }

// Where the edges cross row y: the first column at or right of each crossing,
// in `xs`, which keeps its storage from row to row.
void FindCrossings(std::span<const POINT> corners, int64_t y, std::vector<int64_t>& xs) {
  xs.clear();
  for (size_t i = 0; i < corners.size(); ++i) {
    const POINT a = corners[i];
    const POINT b = corners[(i + 1) % corners.size()];
    const POINT top = a.y <= b.y ? a : b;
    const POINT bottom = a.y <= b.y ? b : a;
    if (top.y == bottom.y || y < top.y || y >= bottom.y) continue;
    const int64_t dy = int64_t{bottom.y} - top.y;
    xs.push_back(CeilDiv(int64_t{top.x} * dy + (y - top.y) * (int64_t{bottom.x} - top.x), dy));
  }
  std::sort(xs.begin(), xs.end());
}

}  // namespace

void FillPolygon(const Surface& surface, std::span<const POINT> corners, const Box& clip, uint32_t pixel) {
  if (corners.size() < 3) return;
  const auto [low, high] =
      std::minmax_element(corners.begin(), corners.end(), [](POINT a, POINT b) { return a.y < b.y; });
  const Box visible = Intersect(clip, BoundsOf(surface));
  const int64_t first = std::max<int64_t>(low->y, visible.top);
  const int64_t end = std::min<int64_t>(high->y, visible.bottom);
  std::vector<int64_t> xs;
  xs.reserve(corners.size());
  for (int64_t y = first; y < end; ++y) {
    FindCrossings(corners, y, xs);
    for (size_t i = 0; i + 1 < xs.size(); i += 2) {
      const int64_t left = std::max(xs[i], visible.left);
      const int64_t right = std::min(xs[i + 1], visible.right);
      for (int64_t x = left; x < right; ++x) surface.At(x, y) = pixel;
    }
  }
}

}  // namespace vorlex::gdi::soft::text
