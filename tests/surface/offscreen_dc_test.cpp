#include "surface_fixture.h"

using namespace vorlex;
using namespace vorlex::testing;

class OffScreenDCTest : public SurfaceTest {};

TEST_F(OffScreenDCTest, InitializeReadsTheDisplayDepth) {
  OffScreenDC& s = Init(8, 4);
  EXPECT_EQ(s.Depth().depth, 32);
  EXPECT_EQ(s.Depth().levels, 256);
  EXPECT_EQ(s.Depth().step, 1);
}

TEST_F(OffScreenDCTest, NewSurfaceIsBlackAndOfTheControlsSize) {
  Init(8, 4);
  const gdi::Pixels p = Read();
  EXPECT_EQ(p.width, 8);
  EXPECT_EQ(p.height, 4);
  for (uint32_t v : p.argb) EXPECT_EQ(v, 0u);
}

TEST_F(OffScreenDCTest, BlastToScreenWithoutArgumentsCopiesTheWholeSurface) {
  Init(8, 4);
  Fill(0x0000FF);
  Surface().BlastToScreen();
  for (uint32_t v : ReadDC(Window()).argb) EXPECT_EQ(v, Rgb(255, 0, 0));
}

TEST_F(OffScreenDCTest, BlastToScreenWritesTheSizeBackAndCopiesInPlace) {
  Init(8, 4);
  Fill(0x0000FF);
  int32_t left = 2;
  int32_t top = 1;
  int32_t width = -1;
  int32_t height = 2;
  Surface().BlastToScreen(left, top, width, height);
  EXPECT_EQ(width, 8);
  EXPECT_EQ(height, 2);
  const gdi::Pixels w = ReadDC(Window());
  EXPECT_EQ(w.At(1, 1), 0u);
  EXPECT_EQ(w.At(2, 1), Rgb(255, 0, 0));
  EXPECT_EQ(w.At(7, 2), Rgb(255, 0, 0));
  EXPECT_EQ(w.At(2, 3), 0u);
}

TEST_F(OffScreenDCTest, BlastToScreenWithWidthZeroCopiesNothing) {
  Init(8, 4);
  Fill(0x0000FF);
  int32_t left = 0;
  int32_t top = 0;
  int32_t width = 0;
  int32_t height = -1;
  Surface().BlastToScreen(left, top, width, height);
  EXPECT_EQ(height, 4);
  for (uint32_t v : ReadDC(Window()).argb) EXPECT_EQ(v, 0u);
}

TEST_F(OffScreenDCTest, BackColorIsInert) {
  OffScreenDC& s = Init(2, 2);
  s.SetBackColor(0x123456);
  EXPECT_EQ(s.BackColor(), 0u);
}

TEST(OffScreenDCLifetime, TeardownOfAnUninitialisedSurfaceDoesNothing) {
  const size_t before = gdi::LiveObjectCount();
  { OffScreenDC surface; }
  EXPECT_EQ(gdi::LiveObjectCount(), before);
}

TEST(OffScreenDCLifetime, TeardownFreesTheContextAndBitmap) {
  gdi::HDC screen = gdi::GetDC(nullptr);
  const size_t before = gdi::LiveObjectCount();
  {
    OffScreenDC surface;
    int32_t w = 16;
    int32_t h = 16;
    surface.Initialize(screen, w, h);
    surface.Right = 16;
    surface.Bottom = 16;
    surface.BorderStyle = 2;
    surface.BorderWidth = 3;
    surface.GradientStyle = 9;
    surface.RivetsStyle = 3;
    surface.FillRectangle();
    surface.FillEllipse();
    surface.DrawBorder();
    EXPECT_GT(gdi::LiveObjectCount(), before);
  }
  EXPECT_EQ(gdi::LiveObjectCount(), before);
  gdi::ReleaseDC(nullptr, screen);
}
