#pragma once
// A decoded picture: 0x00RRGGBB pixels, top row first, and whether each is
// drawn (opaque) or leaves the destination as it was (transparent).

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorlex::picture {

// The most pixels a picture may have (64 Mi): larger ones are rejected before
// anything is allocated for them. The fuzz build sets a lower limit, so that
// inputs claiming huge pictures do not slow every run down.
#ifndef VORLEX_PICTURE_MAX_PIXELS
#define VORLEX_PICTURE_MAX_PIXELS (uint64_t{1} << 26)
#endif
inline constexpr uint64_t kMaxPixels = VORLEX_PICTURE_MAX_PIXELS;

struct Image {
  int32_t width = 0;
  int32_t height = 0;
  std::vector<uint32_t> pixels;  // 0x00RRGGBB
  std::vector<uint8_t> opaque;   // 1 drawn, 0 transparent

  size_t Index(int32_t x, int32_t y) const {
    return static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x);
  }
  bool Contains(int64_t x, int64_t y) const { return x >= 0 && y >= 0 && x < width && y < height; }
  void Set(int32_t x, int32_t y, uint32_t rgb) { pixels[Index(x, y)] = rgb & 0x00FFFFFFu; }
  void SetTransparent(int32_t x, int32_t y) { opaque[Index(x, y)] = 0; }
  bool HasTransparency() const;
};

// A width x height picture of opaque black. Rejects (error 481) a size that is
// not positive or has more than kMaxPixels pixels.
Image NewImage(int64_t width, int64_t height);

// For pixels decoded as words 0xAARRGGBB: alpha below 128 makes a pixel
// transparent, and the alpha byte is cleared.
void SplitAlpha(Image& image);

}  // namespace vorlex::picture
