// Smoothed glyph edges: how a level of coverage moves a destination pixel
// toward the text colour, channel by channel, as GDI blends grey text.

#include "platform/soft/text/text_ink.h"

#include "platform/soft/surface.h"
#include "platform/soft/text/glyph_image.h"

namespace vorlex::gdi::soft::text {
namespace {

// The intensity a level of coverage gives, 0 to 255 (about 77 * level^0.43).
constexpr std::array<uint32_t, 17> kRamp = {0,    0x4d, 0x68, 0x7c, 0x8c, 0x9a, 0xa7, 0xb2, 0xbd,
                                            0xc7, 0xd0, 0xd9, 0xe1, 0xe9, 0xf0, 0xf8, 0xff};

// A channel `under` moved toward `text`: a straight line from the text
// channel to the range's end on the side the background lies.
uint32_t Channel(uint32_t under, uint32_t text, uint8_t low, uint8_t high) {
  if (under == text) return under;
  if (under > text) return text + (under - text) * (high - text) / (0xff - text);
  return text - (text - under) * (text - low) / text;
}

}  // namespace

TextInk::TextInk(COLORREF color) : pixel_(PixelOf(color)) {
  const std::array<uint32_t, 3> text = {pixel_ & 0xff, (pixel_ >> 8) & 0xff, (pixel_ >> 16) & 0xff};
  for (size_t level = 0; level < ranges_.size(); ++level) {
    const uint32_t up = kRamp[level];
    const uint32_t down = kRamp[kRamp.size() - 1 - level];
    for (size_t c = 0; c < 3; ++c) {
      ranges_[level][c] = {static_cast<uint8_t>(up * text[c] / 0xff),
                           static_cast<uint8_t>(down + (0xff - down) * text[c] / 0xff)};
    }
  }
}

uint32_t TextInk::Over(uint32_t under, uint8_t level) const {
  if (level <= 1) return under;
  if (level >= kFullLevel) return pixel_;
  const std::array<Range, 3>& r = ranges_[level];
  uint32_t out = 0;
  for (size_t c = 0; c < 3; ++c) {
    const uint32_t shift = 8 * static_cast<uint32_t>(c);
    out |= Channel((under >> shift) & 0xff, (pixel_ >> shift) & 0xff, r[c].low, r[c].high) << shift;
  }
  return out;
}

}  // namespace vorlex::gdi::soft::text
