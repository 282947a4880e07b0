#include <gtest/gtest.h>

#include "canvas.h"

namespace vorlex::gdi_conformance {
namespace {

TEST(WritePixels, PutsPixelsAtTheTopLeftAndReadsThemBack) {
  Canvas canvas(4, 3);
  gdi::Pixels in;
  in.width = 2;
  in.height = 2;
  in.argb = {0x112233, 0x445566, 0x778899, 0xAABBCC};
  ASSERT_TRUE(gdi::WritePixels(canvas.dc(), in));
  gdi::Pixels out;
  ASSERT_TRUE(gdi::ReadPixels(canvas.dc(), out));
  EXPECT_EQ(out.At(0, 0), 0x112233u);
  EXPECT_EQ(out.At(1, 0), 0x445566u);
  EXPECT_EQ(out.At(0, 1), 0x778899u);
  EXPECT_EQ(out.At(1, 1), 0xAABBCCu);
  EXPECT_EQ(out.At(2, 0), 0u);
  EXPECT_EQ(out.At(3, 2), 0u);
}

TEST(WritePixels, LeavesOutWhatDoesNotFit) {
  Canvas canvas(2, 2);
  gdi::Pixels in;
  in.width = 3;
  in.height = 3;
  in.argb = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  ASSERT_TRUE(gdi::WritePixels(canvas.dc(), in));
  gdi::Pixels out;
  ASSERT_TRUE(gdi::ReadPixels(canvas.dc(), out));
  EXPECT_EQ(out.argb, (std::vector<uint32_t>{1, 2, 4, 5}));
}

TEST(WritePixels, FailsOnTheScreen) {
  gdi::HDC screen = gdi::GetDC(nullptr);
  gdi::Pixels in;
  in.width = 1;
  in.height = 1;
  in.argb = {1};
  EXPECT_FALSE(gdi::WritePixels(screen, in));
  gdi::ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace vorlex::gdi_conformance
