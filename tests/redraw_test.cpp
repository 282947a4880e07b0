// Whole-bar renders checked at pixels in the window.

#include <gtest/gtest.h>

#include "error_matchers.h"
#include "fake_services.h"
#include "solid_bmp.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Picture.h"
#include "vorlex/Vorlex.h"

using namespace vorlex;
using namespace vorlex::testing;

namespace {
constexpr uint32_t Rgb(uint32_t r, uint32_t g, uint32_t b) { return (r << 16) | (g << 8) | b; }
constexpr uint32_t kSilver = Rgb(192, 192, 192);
constexpr uint32_t kGrey = Rgb(128, 128, 128);
constexpr uint32_t kWhitePixel = Rgb(255, 255, 255);
constexpr uint32_t kRedPixel = Rgb(255, 0, 0);
constexpr uint32_t kBluePixel = Rgb(0, 0, 255);

// A 100 x 50 bar without a border: one user unit is one pixel across, half a pixel down.
class RedrawTest : public ::testing::Test {
 protected:
  RedrawTest() : site(100, 50) {
    auto fake = std::make_unique<FakeDisks>();
    disks = fake.get();
    site.SetDisks(std::move(fake));
    control = std::make_unique<Vorlex>(site);
    control->InitProperties();
    control->put_BorderStyle(vxNoneBorder);
    control->put_BorderWidth(0);  // the layout subtracts the width even without a border
    site.ClearRecords();
  }
  // Adds a block over [left, right) x [bottom, top) in user units, coloured.
  int AddBlock(int16_t left, int16_t right, int16_t top, int16_t bottom, OLE_COLOR color) {
    control->AddBlock();
    const Variant b(control->get_Blocks());
    control->put_BlockBarLeft(left, b);
    control->put_BlockBarRight(right, b);
    control->put_BlockBarTop(top, b);
    control->put_BlockBarBottom(bottom, b);
    control->put_BlockColor(color, b);
    return control->get_Blocks();
  }
  WindowImage Paint() {
    control->Refresh();
    return site.Snapshot();
  }

  HeadlessSite site;
  FakeDisks* disks = nullptr;
  std::unique_ptr<Vorlex> control;
};
}  // namespace

TEST_F(RedrawTest, WithoutBlocksPaintsTheBackgroundAndCopiesIt) {
  const WindowImage w = Paint();
  ASSERT_EQ(w.width, 100);
  EXPECT_EQ(w.At(0, 0), kSilver);
  EXPECT_EQ(w.At(99, 49), kSilver);
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(RedrawTest, TheDefaultInsetBorderFramesTheBar) {
  control->put_BorderStyle(vxInset);
  control->put_BorderWidth(1);
  const WindowImage w = Paint();
  EXPECT_EQ(w.At(0, 0), kGrey);
  EXPECT_EQ(w.At(50, 0), kGrey);
  EXPECT_EQ(w.At(99, 49), kWhitePixel);
  EXPECT_EQ(w.At(50, 25), kSilver);
}

TEST_F(RedrawTest, ABlockCoversItsRectangle) {
  AddBlock(10, 30, 100, 0, 0x0000FF);
  const WindowImage w = Paint();
  EXPECT_EQ(w.At(10, 0), kRedPixel);
  EXPECT_EQ(w.At(29, 49), kRedPixel);
  EXPECT_EQ(w.At(9, 25), kSilver);
  EXPECT_EQ(w.At(30, 25), kSilver);
}

TEST_F(RedrawTest, HigherIndexPaintsOverLowerAndOnTopPaintsLast) {
  AddBlock(0, 50, 100, 0, 0x0000FF);
  AddBlock(25, 75, 100, 0, 0xFF0000);
  EXPECT_EQ(Paint().At(40, 25), kBluePixel);
  control->put_BlockOnTop(VARIANT_TRUE, Variant(1));
  EXPECT_EQ(Paint().At(40, 25), kRedPixel);
}

TEST_F(RedrawTest, AnOnTopValueNeitherZeroNorMinusOneIsNeverDrawn) {
  AddBlock(0, 50, 100, 0, 0x0000FF);
  control->put_BlockOnTop(1, Variant(1));
  EXPECT_EQ(Paint().At(10, 25), kSilver);
}

TEST_F(RedrawTest, OnlyTheCanonicalTrueMakesABlockVisible) {
  AddBlock(0, 50, 100, 0, 0x0000FF);
  control->put_BlockVisible(1, Variant(1));
  EXPECT_EQ(Paint().At(10, 25), kSilver);
}

TEST_F(RedrawTest, DisabledReplacesEveryColourButTheBackground) {
  AddBlock(0, 50, 100, 0, 0x0000FF);
  control->put_DisabledColor(0x00FF00);
  control->put_Enabled(VARIANT_FALSE);
  const WindowImage w = Paint();
  EXPECT_EQ(w.At(10, 25), Rgb(0, 255, 0));
  EXPECT_EQ(w.At(80, 25), kSilver);
}

TEST_F(RedrawTest, ACircleBlockGetsNoBorder) {
  AddBlock(0, 40, 100, 20, 0x0000FF);
  control->put_BlockShapeStyle(vxCircle, Variant(1));
  control->put_BlockBorderStyle(vxRaised, Variant(1));
  const WindowImage w = Paint();
  EXPECT_EQ(w.At(20, 20), kRedPixel);
  EXPECT_EQ(w.At(20, 0), kRedPixel);  // the outline is the block colour, no white edge
  EXPECT_EQ(w.At(0, 0), kSilver);
}

TEST_F(RedrawTest, ANegativeBarValueHidesTheBlockAndSkipsItsText) {
  AddBlock(0, 40, 100, 0, 0x0000FF);
  disks->disks["C:\\"] = {1, 1, 1, 2};
  control->put_BlockText("!disk free:c!", Variant(1));
  control->put_BlockBarLeft(-1, Variant(1));
  control->put_BlockHPercentage("untouched", Variant(1));
  disks->queries = 0;
  EXPECT_EQ(Paint().At(10, 25), kSilver);
  EXPECT_EQ(disks->queries, 0);
  EXPECT_EQ(control->get_BlockHPercentage(Variant(1)), "untouched");
}

TEST_F(RedrawTest, EachRedrawWritesThePercentages) {
  AddBlock(0, 40, 100, 50, 0x0000FF);
  Paint();
  EXPECT_EQ(control->get_BlockHPercentage(Variant(1)), "40");
  EXPECT_EQ(control->get_BlockVPercentage(Variant(1)), "50");
}

TEST_F(RedrawTest, ResizingTokensRewriteTheBlockBeforeItsRectangle) {
  AddBlock(0, 10, 100, 0, 0x0000FF);
  disks->disks["C:\\"] = {1, 1, 63, 100};  // 37 % used
  control->put_BlockText("!show horizontal ratio used:c!", Variant(1));
  const WindowImage w = Paint();
  EXPECT_EQ(control->get_BlockBarRight(Variant(1)), 37);
  EXPECT_EQ(w.At(36, 25) & 0xFF0000, 0xFF0000u);
  EXPECT_EQ(w.At(38, 25), kSilver);
}

TEST_F(RedrawTest, RedrawFalseLeavesTheWindowAsItWas) {
  const WindowImage before = Paint();
  control->put_Redraw(VARIANT_FALSE);
  control->put_BackColor(0x0000FF);
  EXPECT_EQ(Paint().pixels, before.pixels);
  control->put_Redraw(VARIANT_TRUE);  // its setter paints at once
  EXPECT_EQ(site.Snapshot().At(50, 25), kRedPixel);
}

TEST_F(RedrawTest, EqualRangeEndsPaintNotEvenTheBackground) {
  control->put_BackColor(0xFF0000);
  const WindowImage before = Paint();
  ASSERT_EQ(before.At(50, 25), kBluePixel);
  control->put_VMaxValue(0);
  control->put_BackColor(0x0000FF);
  EXPECT_EQ(Paint().pixels, before.pixels);
}

TEST_F(RedrawTest, ResizeReplacesTheSurfaceWithoutDrawing) {
  Paint();
  site.ClearRecords();
  site.SetClientSize(120, 40);
  EXPECT_EQ(site.Paints(), 0);
  const WindowImage w = Paint();
  EXPECT_EQ(w.width, 120);
  EXPECT_EQ(w.At(119, 39), kSilver);
}

TEST_F(RedrawTest, SystemColoursAreTranslatedForBackColorOnly) {
  control->put_BackColor(0x80000005);  // window background: white in the classic scheme
  EXPECT_EQ(Paint().At(50, 25), kWhitePixel);
}

TEST_F(RedrawTest, TheUnitSizesOfTheLastRedrawStay) {
  control->put_HMaxValue(50);
  control->put_VMaxValue(25);
  Paint();
  AddBlock(10, 20, 25, 0, 0x0000FF);
  control->put_BlockClickable(VARIANT_TRUE, Variant(1));
  site.ClearRecords();
  // 2 pixels a unit both ways; the hit test measures down from a fixed 100.
  control->UserControl_MouseUp(1, 0, 30.0f, 160.0f);
  EXPECT_EQ(site.RaisedEvents(), std::vector<std::string>{"BlockClicked 1"});
}

// The outer size is (picture + 2 x border) x 15 twips; the container's resize
// then gives the client that size in pixels.
TEST_F(RedrawTest, PictureAutoSizeResizesTheControlToThePicture) {
  const std::vector<uint8_t> bmp = SolidBmp(40, 30, 0x0000FF);
  control->put_BorderStyle(vxFlat);
  control->put_BorderWidth(2);
  control->putref_Picture(LoadPictureFromMemory(bmp.data(), bmp.size()));
  control->put_PictureAutoSize(vxBothAutoSize);
  EXPECT_EQ(site.OuterWidthTwips(), 660);
  EXPECT_EQ(site.OuterHeightTwips(), 510);
  const WindowImage w = Paint();
  EXPECT_EQ(w.width, 44);
  EXPECT_EQ(w.height, 34);
  EXPECT_EQ(w.At(2, 2), kBluePixel);  // the picture fills the inner rectangle
  EXPECT_EQ(w.At(41, 31), kBluePixel);
}

TEST_F(RedrawTest, PictureAutoSizeOfWidthLeavesTheHeight) {
  const std::vector<uint8_t> bmp = SolidBmp(40, 30, 0x0000FF);
  control->putref_Picture(LoadPictureFromMemory(bmp.data(), bmp.size()));
  control->put_PictureAutoSize(vxWidthAutoSize);
  EXPECT_EQ(site.OuterWidthTwips(), 600);
  EXPECT_EQ(site.OuterHeightTwips(), 750);
}
