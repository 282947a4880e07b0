#include "picture/composite.h"

#include <algorithm>

namespace vorlex::picture {

void DrawImage(const Image& image, int32_t x, int32_t y, gdi::Pixels& target) {
  const int64_t left = std::max<int64_t>(0, -int64_t{x});
  const int64_t top = std::max<int64_t>(0, -int64_t{y});
  const int64_t right = std::min<int64_t>(image.width, int64_t{target.width} - x);
  const int64_t bottom = std::min<int64_t>(image.height, int64_t{target.height} - y);
  for (int64_t sy = top; sy < bottom; ++sy) {
    for (int64_t sx = left; sx < right; ++sx) {
      const size_t from = image.Index(static_cast<int32_t>(sx), static_cast<int32_t>(sy));
      if (image.opaque[from] == 0) continue;
      const auto to = static_cast<size_t>((sy + y) * target.width + (sx + x));
      target.argb[to] = image.pixels[from];
    }
  }
}

}  // namespace vorlex::picture
