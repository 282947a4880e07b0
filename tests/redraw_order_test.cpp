// The order in which a redraw paints a whole bar: background, border, caption,
// control picture, the blocks of pass 1, the on-top blocks of pass 2. Each
// layer is checked where the next one covers it and where it does not.

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "solid_bmp.h"
#include "vorlex/Font.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Picture.h"
#include "vorlex/Vorlex.h"

using namespace vorlex;

namespace {

constexpr uint32_t kWhitePixel = 0xFFFFFF;
constexpr uint32_t kBlackPixel = 0x000000;
constexpr uint32_t kBluePixel = 0x0000FF;
constexpr uint32_t kGreenPixel = 0x00FF00;
constexpr uint32_t kRedPixel = 0xFF0000;

// 200 x 100 pixels, white, two pixels a unit across; a wide black caption across
// the middle; a 40 x 100 blue picture in the centre; block 1 red and on top over
// 100..103, block 2 green over 90..109.
class PaintingOrder : public ::testing::Test {
 protected:
  PaintingOrder() : site(200, 100) {
    control.InitProperties();
    control.put_Redraw(VARIANT_FALSE);
    control.put_BorderStyle(vxNoneBorder);
    control.put_BorderWidth(0);
    control.put_BackColor(0xFFFFFF);
    control.put_ForeColor(0x000000);
    auto font = std::make_shared<Font>("Tahoma", 20);
    font->SetBold(true);
    control.putref_Font(font);
    control.put_Caption("MMMMMMMMMMMMMMMM");
    const std::vector<uint8_t> bmp = vorlex::testing::SolidBmp(40, 100, kBluePixel);
    control.putref_Picture(LoadPictureFromMemory(bmp.data(), bmp.size()));
    control.put_PictureAlignment(vxCenterCenter);
    AddBlock(50, 52, kRedPixel);
    control.put_BlockOnTop(VARIANT_TRUE, Variant(1));
    AddBlock(45, 55, kGreenPixel);
    control.put_Redraw(VARIANT_TRUE);
    image = site.Snapshot();
  }
  void AddBlock(int16_t left, int16_t right, uint32_t rgb) {
    control.AddBlock();
    const Variant b(control.get_Blocks());
    control.put_BlockBarLeft(left, b);
    control.put_BlockBarRight(right, b);
    // OLE colours are 0x00BBGGRR.
    control.put_BlockColor(((rgb & 0xFF) << 16) | (rgb & 0xFF00) | ((rgb >> 16) & 0xFF), b);
  }
  // Whether every pixel of columns [x0, x1) is rgb.
  bool ColumnsAre(int x0, int x1, uint32_t rgb) const {
    for (int x = x0; x < x1; ++x) {
      for (int y = 0; y < image.height; ++y) {
        if (image.At(x, y) != rgb) return false;
      }
    }
    return true;
  }
  int CountInColumns(int x0, int x1, uint32_t rgb) const {
    int count = 0;
    for (int x = x0; x < x1; ++x) {
      for (int y = 0; y < image.height; ++y) count += image.At(x, y) == rgb ? 1 : 0;
    }
    return count;
  }

  HeadlessSite site;
  Vorlex control{site};
  WindowImage image;
};

}  // namespace

TEST_F(PaintingOrder, TheCaptionIsDrawnOverTheBackgroundBesideThePicture) {
  EXPECT_GT(CountInColumns(20, 80, kBlackPixel), 50);
  EXPECT_GT(CountInColumns(20, 80, kWhitePixel), 50);
  EXPECT_GT(CountInColumns(120, 180, kBlackPixel), 50);
}

TEST_F(PaintingOrder, ThePictureCoversTheCaption) {
  EXPECT_TRUE(ColumnsAre(80, 90, kBluePixel));
  EXPECT_TRUE(ColumnsAre(110, 120, kBluePixel));
}

TEST_F(PaintingOrder, TheFirstPassCoversThePicture) {
  EXPECT_TRUE(ColumnsAre(90, 100, kGreenPixel));
  EXPECT_TRUE(ColumnsAre(104, 110, kGreenPixel));
}

TEST_F(PaintingOrder, TheSecondPassCoversTheFirstEvenFromALowerIndex) { EXPECT_TRUE(ColumnsAre(100, 104, kRedPixel)); }

// Blocks measure from the border's inner edge, so a block from 0 leaves the border seen.
TEST_F(PaintingOrder, ABlockFromZeroStartsInsideTheBorder) {
  control.put_BorderStyle(vxFlat);
  control.put_BorderWidth(3);
  control.put_BlockBarLeft(0, Variant(2));
  const WindowImage w = site.Snapshot();
  EXPECT_NE(w.At(2, 50), kGreenPixel);
  EXPECT_EQ(w.At(3, 50), kGreenPixel);
}
