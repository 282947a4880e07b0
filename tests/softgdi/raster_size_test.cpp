// Which size of a bitmap font GDI draws, and by what whole factor it scales
// it. The sizes are those of MS Sans Serif at 96 pixels per inch: cells of 13,
// 16 and 20 pixels with ems of 11, 13 and 16.

#include "platform/soft/text/raster_size.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using vorlex::gdi::soft::text::PickRasterSize;
using vorlex::gdi::soft::text::RasterScale;
using vorlex::gdi::soft::text::RasterSize;

const std::vector<RasterSize> kSizes = {{13, 2}, {16, 3}, {20, 4}};

TEST(SoftRasterSize, NegativeHeightsPickTheLargestEmNotAbove) {
  for (int32_t height : {-8, -10, -11, -12}) EXPECT_EQ(PickRasterSize(kSizes, height), 0u) << height;
  for (int32_t height : {-13, -14, -15}) EXPECT_EQ(PickRasterSize(kSizes, height), 1u) << height;
  for (int32_t height : {-16, -20, -27, -40}) EXPECT_EQ(PickRasterSize(kSizes, height), 2u) << height;
}

TEST(SoftRasterSize, PositiveHeightsPickByCellAndZeroTakesTheFirst) {
  EXPECT_EQ(PickRasterSize(kSizes, 11), 0u) << "below every cell: the smallest";
  EXPECT_EQ(PickRasterSize(kSizes, 15), 0u);
  EXPECT_EQ(PickRasterSize(kSizes, 16), 1u);
  EXPECT_EQ(PickRasterSize(kSizes, 20), 2u);
  EXPECT_EQ(PickRasterSize(kSizes, 0), 0u);
  EXPECT_EQ(PickRasterSize({{20, 4}, {16, 3}, {13, 2}}, -14), 1u) << "the order of the sizes does not matter";
}

TEST(SoftRasterSize, ScalingTakesTheNextMultipleOnlyWhenNearEnough) {
  const RasterSize largest{20, 4};
  EXPECT_EQ(RasterScale(largest, -16), 1);
  EXPECT_EQ(RasterScale(largest, -27), 1) << "31 pixels asked: 40 is too far";
  EXPECT_EQ(RasterScale(largest, -32), 2) << "36 pixels asked: doubling is within a quarter cell less one";
  EXPECT_EQ(RasterScale(largest, -40), 2) << "44 pixels asked: 60 is too far";
  EXPECT_EQ(RasterScale(largest, -52), 3) << "56 pixels asked: 60 is within a quarter cell";
  const RasterSize smallest{13, 2};
  EXPECT_EQ(RasterScale(smallest, 24), 2);
  EXPECT_EQ(RasterScale(smallest, 23), 1) << "doubling waits one pixel longer";
  EXPECT_EQ(RasterScale(smallest, 0), 1);
}

}  // namespace
