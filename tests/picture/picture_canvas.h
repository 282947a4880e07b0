#pragma once
// A memory device context holding a screen-compatible bitmap filled with one
// colour, for drawing pictures into and reading the result at pixels through
// the GDI seam.

#include <cstdint>
#include <string>

#include "memory_bitmap.h"
#include "platform/gdi.h"
#include "vorlex/Picture.h"

namespace vorlex::picture_test {

// The colour a canvas starts as: what transparent pixels must leave.
inline constexpr uint32_t kPaper = 0x123456;

class PictureCanvas {
 public:
  PictureCanvas(int width, int height, uint32_t paper = kPaper);

  // Picture::Render at (x, y); its result.
  bool Draw(const Picture& picture, int32_t x = 0, int32_t y = 0) const;
  // 0x00RRGGBB of a pixel (0xFFFFFFFF when unreadable).
  uint32_t At(int x, int y) const;
  // A row of pixels as text, one "RRGGBB" per pixel, for messages.
  std::string Row(int y) const;
  gdi::HDC dc() const { return bitmap_.dc(); }

 private:
  vorlex::testing::MemoryBitmap bitmap_;
  mutable gdi::Pixels pixels_;
  mutable bool stale_ = true;
};

}  // namespace vorlex::picture_test
