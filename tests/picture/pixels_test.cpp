// The pieces under every decoder: bit-mask channels widened to eight bits,
// the picture size limit, and drawing decoded pixels over others.

#include <gtest/gtest.h>

#include "decode_helpers.h"
#include "picture/channel_mask.h"
#include "picture/composite.h"

using namespace vorlex;
using namespace vorlex::picture_test;
using picture::ChannelMask;

TEST(ChannelMask, FiveBitsRepeatTheirTopThree) {
  const ChannelMask mask(0x7C00);
  EXPECT_EQ(mask.Level(0x0000), 0u);
  EXPECT_EQ(mask.Level(0x0400), 0x08u);
  EXPECT_EQ(mask.Level(0x4000), 0x84u);
  EXPECT_EQ(mask.Level(0x7C00), 0xFFu);
  EXPECT_EQ(mask.Level(0x83FF), 0u);  // other bits do not count
}

TEST(ChannelMask, SixBitsRepeatTheirTopTwo) {
  const ChannelMask mask(0x07E0);
  EXPECT_EQ(mask.Level(0x0020), 0x04u);
  EXPECT_EQ(mask.Level(0x0400), 0x82u);
  EXPECT_EQ(mask.Level(0x07E0), 0xFFu);
}

TEST(ChannelMask, OneBitIsAllOrNothing) {
  const ChannelMask mask(0x80000000u);
  EXPECT_EQ(mask.Level(0x80000000u), 0xFFu);
  EXPECT_EQ(mask.Level(0x7FFFFFFFu), 0u);
}

TEST(ChannelMask, MoreThanEightBitsKeepTheTopEight) {
  const ChannelMask mask(0xFFFF0000u);
  EXPECT_EQ(mask.Level(0xABCD0000u), 0xABu);
}

TEST(ChannelMask, EmptyMaskIsZero) { EXPECT_EQ(ChannelMask(0).Level(0xFFFFFFFFu), 0u); }

TEST(PictureSize, NotPositiveOrOverTheLimitIsRefused) {
  EXPECT_INVALID_PICTURE(picture::NewImage(0, 5));
  EXPECT_INVALID_PICTURE(picture::NewImage(5, 0));
  EXPECT_INVALID_PICTURE(picture::NewImage(-1, 5));
  EXPECT_INVALID_PICTURE(picture::NewImage(int64_t{1} << 26, 2));
  EXPECT_INVALID_PICTURE(picture::NewImage((int64_t{1} << 13) + 1, int64_t{1} << 13));
  EXPECT_INVALID_PICTURE(picture::NewImage(int64_t{1} << 40, int64_t{1} << 40));
  EXPECT_INVALID_PICTURE(picture::NewImage(int64_t{1} << 31, 1));
}

TEST(PictureSize, ExactlyTheLimitIsAllowed) {
  const picture::Image image = picture::NewImage(int64_t{1} << 16, int64_t{1} << 10);
  EXPECT_EQ(image.pixels.size(), size_t{1} << 26);
  EXPECT_EQ(image.opaque.size(), size_t{1} << 26);
}

TEST(PictureSize, NewPictureIsOpaqueBlack) {
  const picture::Image image = picture::NewImage(3, 2);
  EXPECT_EQ(Of(image), (Decoded{3, 2, std::vector<uint32_t>(6, 0)}));
  EXPECT_EQ(OpaqueOf(image), std::vector<int>(6, 1));
  EXPECT_FALSE(image.HasTransparency());
}

namespace {

// A 2 x 2 picture: 1 2 / 3 and a transparent pixel.
picture::Image TwoByTwo() {
  picture::Image image = picture::NewImage(2, 2);
  image.pixels = {1, 2, 3, 4};
  image.SetTransparent(1, 1);
  return image;
}

gdi::Pixels Paper(int width, int height) {
  gdi::Pixels p;
  p.width = width;
  p.height = height;
  p.argb.assign(static_cast<size_t>(width * height), 9);
  return p;
}

std::vector<uint32_t> Drawn(int32_t x, int32_t y) {
  gdi::Pixels target = Paper(3, 3);
  picture::DrawImage(TwoByTwo(), x, y, target);
  return target.argb;
}

}  // namespace

TEST(DrawImage, OpaquePixelsReplaceTransparentOnesLeave) {
  EXPECT_EQ(Drawn(1, 1), (std::vector<uint32_t>{9, 9, 9, 9, 1, 2, 9, 3, 9}));
  EXPECT_TRUE(TwoByTwo().HasTransparency());
}

TEST(DrawImage, WhatFallsOutsideIsCut) {
  EXPECT_EQ(Drawn(-1, -1), (std::vector<uint32_t>{9, 9, 9, 9, 9, 9, 9, 9, 9}));
  EXPECT_EQ(Drawn(-1, 0), (std::vector<uint32_t>{2, 9, 9, 9, 9, 9, 9, 9, 9}));
  EXPECT_EQ(Drawn(2, 2), (std::vector<uint32_t>{9, 9, 9, 9, 9, 9, 9, 9, 1}));
  EXPECT_EQ(Drawn(0, -1), (std::vector<uint32_t>{3, 9, 9, 9, 9, 9, 9, 9, 9}));
}

TEST(DrawImage, FarOutsideDrawsNothing) {
  for (auto [x, y] : {std::pair{3, 0}, std::pair{0, 3}, std::pair{-2, 0}, std::pair{-2147483647 - 1, -2147483647 - 1},
                      std::pair{2147483647, 2147483647}}) {
    EXPECT_EQ(Drawn(x, y), std::vector<uint32_t>(9, 9)) << x << "," << y;
  }
}
