#include "picture/channel_mask.h"

namespace vorlex::picture {

ChannelMask::ChannelMask(uint32_t mask) : mask_(mask) {
  if (mask == 0) return;
  int low = 0;
  while (((mask >> low) & 1u) == 0) ++low;
  int high = 31;
  while (((mask >> high) & 1u) == 0) --high;
  const int width = high - low + 1;
  bits_ = width > 8 ? 8 : width;
  shift_ = low + (width - bits_);
}

uint32_t ChannelMask::Level(uint32_t pixel) const {
  if (bits_ == 0) return 0;
  const uint32_t value = ((pixel & mask_) >> shift_) & ((1u << bits_) - 1);
  uint32_t level = 0;
  int filled = 0;
  while (filled < 8) {
    level = (level << bits_) | value;
    filled += bits_;
  }
  return level >> (filled - 8);
}

}  // namespace vorlex::picture
