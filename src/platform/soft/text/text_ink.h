#pragma once
// How GDI's DIB engine lays a glyph's coverage levels over the pixels under
// it with grayscale font smoothing: level 0 or 1 leaves the pixel, level 16
// is the text colour, and the levels between move each channel from the
// pixel toward the text colour along a ramp that brightens low coverage (its
// gamma), not by straight alpha. The ramp is the table Wine's engine states
// it measured from Windows (black text on a black background).

#include <array>
#include <cstdint>

#include "platform/gdi.h"

namespace vorlex::gdi::soft::text {

class TextInk {
 public:
  explicit TextInk(COLORREF color);

  uint32_t pixel() const { return pixel_; }
  // The pixel `under` (0x00RRGGBB) with a glyph pixel of `level` on it.
  uint32_t Over(uint32_t under, uint8_t level) const;

 private:
  // Per level and channel (blue, green, red): what a channel becomes over
  // a background of 0 and over one of 255.
  struct Range {
    uint8_t low;
    uint8_t high;
  };
  uint32_t pixel_;
  std::array<std::array<Range, 3>, 17> ranges_{};
};

}  // namespace vorlex::gdi::soft::text
