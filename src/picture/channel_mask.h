#pragma once
// One colour channel of a 16- or 32-bit pixel, given by its bit mask, widened
// to eight bits by repeating its top bits (five bits abcde give abcdeabc).

#include <cstdint>

namespace vorlex::picture {

class ChannelMask {
 public:
  explicit ChannelMask(uint32_t mask);
  uint32_t Level(uint32_t pixel) const;  // 0..255

 private:
  uint32_t mask_;
  int shift_ = 0;  // of the channel's lowest bit that is kept
  int bits_ = 0;   // kept, at most 8
};

// 0x00RRGGBB of a pixel value under red, green and blue masks.
class PixelMasks {
 public:
  PixelMasks(uint32_t red, uint32_t green, uint32_t blue) : red_(red), green_(green), blue_(blue) {}
  uint32_t Colour(uint32_t pixel) const {
    return (red_.Level(pixel) << 16) | (green_.Level(pixel) << 8) | blue_.Level(pixel);
  }

 private:
  ChannelMask red_;
  ChannelMask green_;
  ChannelMask blue_;
};

}  // namespace vorlex::picture
