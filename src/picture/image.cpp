#include "picture/image.h"

#include <algorithm>

#include "picture/picture_error.h"

namespace vorlex::picture {

bool Image::HasTransparency() const { return std::find(opaque.begin(), opaque.end(), uint8_t{0}) != opaque.end(); }

Image NewImage(int64_t width, int64_t height) {
  Require(width > 0 && height > 0 && width <= int64_t{1} << 30 && height <= int64_t{1} << 30);
  Require(static_cast<uint64_t>(width) * static_cast<uint64_t>(height) <= kMaxPixels);
  Image image;
  image.width = static_cast<int32_t>(width);
  image.height = static_cast<int32_t>(height);
  const size_t count = static_cast<size_t>(width) * static_cast<size_t>(height);
  image.pixels.assign(count, 0);
  image.opaque.assign(count, 1);
  return image;
}

void SplitAlpha(Image& image) {
  for (size_t i = 0; i < image.pixels.size(); ++i) {
    if ((image.pixels[i] >> 24) < 128) image.opaque[i] = 0;
    image.pixels[i] &= 0x00FFFFFFu;
  }
}

}  // namespace vorlex::picture
