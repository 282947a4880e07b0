#include "memory_bitmap.h"
#include "surface_fixture.h"
#include "vorlex/Enums.h"

using namespace vorlex;
using namespace vorlex::testing;

namespace {

// Pixel (x, y) of a test picture: red x, green y, blue 0x80, so every copied
// pixel tells where it came from.
uint32_t PicturePixel(int x, int y) { return Rgb(static_cast<uint32_t>(x), static_cast<uint32_t>(y), 0x80); }

// A w x h test picture, every pixel from PicturePixel.
gdi::Pixels TestPicture(int w, int h) {
  gdi::Pixels p;
  p.width = w;
  p.height = h;
  for (int y = 0; y < h; ++y) {
    for (int x = 0; x < w; ++x) p.argb.push_back(PicturePixel(x, y));
  }
  return p;
}

class DrawBitmapTest : public SurfaceTest {
 protected:
  gdi::Pixels Draw(const PictureBox& picture, int32_t alignment, int32_t tile, int16_t offset = 0, int16_t rivets = 0) {
    Surface().PictureAlignment = alignment;
    Surface().PictureTile = tile;
    Surface().PictureOffset = offset;
    Surface().RivetsStyle = rivets;
    Surface().DrawBitmap(picture);
    return Read();
  }
  // The bounding box of picture pixels on the surface (black is background).
  static gdi::RECT Painted(const gdi::Pixels& p) {
    gdi::RECT box{p.width, p.height, -1, -1};
    for (int y = 0; y < p.height; ++y) {
      for (int x = 0; x < p.width; ++x) {
        if (p.At(x, y) == 0) continue;
        box.left = std::min(box.left, x);
        box.top = std::min(box.top, y);
        box.right = std::max(box.right, x + 1);
        box.bottom = std::max(box.bottom, y + 1);
      }
    }
    return box;
  }
};

void ExpectRect(const gdi::RECT& r, int l, int t, int rr, int b) {
  EXPECT_EQ(r.left, l);
  EXPECT_EQ(r.top, t);
  EXPECT_EQ(r.right, rr);
  EXPECT_EQ(r.bottom, b);
}

}  // namespace

TEST_F(DrawBitmapTest, EachAlignmentPlacesThePicture) {
  // Area 10..30 x 4..20 (20 x 16), picture 6 x 4, offset 2.
  const struct {
    int32_t alignment;
    int x, y;
  } cases[] = {{vxCenterCenter, 17, 10}, {vxCenterLeft, 12, 10}, {vxCenterRight, 22, 10},
               {vxTopCenter, 17, 6},     {vxTopLeft, 12, 6},     {vxTopRight, 22, 6},
               {vxBottomCenter, 17, 14}, {vxBottomLeft, 12, 14}, {vxBottomRight, 22, 14}};
  Init(40, 24);
  const PictureBox picture(TestPicture(6, 4));
  for (const auto& c : cases) {
    Fill(0);
    SetRect(10, 4, 30, 20);
    const gdi::Pixels p = Draw(picture, c.alignment, vxNoneTile, 2);
    ExpectRect(Painted(p), c.x, c.y, c.x + 6, c.y + 4);
    EXPECT_EQ(p.At(c.x, c.y), PicturePixel(0, 0)) << "alignment " << c.alignment;
    EXPECT_EQ(p.At(c.x + 5, c.y + 3), PicturePixel(5, 3)) << "alignment " << c.alignment;
  }
}

TEST_F(DrawBitmapTest, OffsetIsAMarginAndDoesNothingOnACentredAxis) {
  Init(40, 24);
  const PictureBox picture(TestPicture(6, 4));
  SetRect(10, 4, 30, 20);
  ExpectRect(Painted(Draw(picture, vxTopLeft, vxNoneTile, 5)), 15, 9, 21, 13);
  Fill(0);
  ExpectRect(Painted(Draw(picture, vxCenterCenter, vxNoneTile, 5)), 17, 10, 23, 14);
}

TEST_F(DrawBitmapTest, AlignmentOutsideTheTableCopiesToTheOrigin) {
  Init(40, 24);
  const PictureBox picture(TestPicture(6, 4));
  SetRect(10, 4, 30, 20);
  ExpectRect(Painted(Draw(picture, 9, vxNoneTile, 5)), 0, 0, 6, 4);
}

TEST_F(DrawBitmapTest, ALargerPictureShowsItsTopLeftPartAtTheAreasTopLeft) {
  Init(40, 24);
  const PictureBox picture(TestPicture(30, 20));
  SetRect(10, 4, 20, 12);  // 10 x 8
  const gdi::Pixels p = Draw(picture, vxCenterCenter, vxNoneTile);
  ExpectRect(Painted(p), 10, 4, 20, 12);
  EXPECT_EQ(p.At(10, 4), PicturePixel(0, 0));
  EXPECT_EQ(p.At(19, 11), PicturePixel(9, 7));
}

TEST_F(DrawBitmapTest, RivetsInsetTheAreaBySevenIgnoringTheBorder) {
  Init(40, 30);
  const PictureBox picture(TestPicture(30, 30));
  SetRect(0, 0, 20, 20);
  Surface().BorderWidth = 3;
  const gdi::Pixels p = Draw(picture, vxTopLeft, vxNoneTile, 0, vxRaisedRivets);
  ExpectRect(Painted(p), 7, 7, 13, 13);  // 6 pixels wide
}

TEST_F(DrawBitmapTest, HorizontalTilingIsVerticallyCentredAndCutAtTheEnd) {
  Init(40, 24);
  const PictureBox picture(TestPicture(6, 4));
  SetRect(2, 2, 22, 20);  // 20 wide: tiles at 2, 8, 14 and a 2-pixel piece at 20
  const gdi::Pixels p = Draw(picture, vxTopLeft, vxHorizontalTile, 5);
  ExpectRect(Painted(p), 2, 9, 22, 13);
  EXPECT_EQ(p.At(8, 9), PicturePixel(0, 0));
  EXPECT_EQ(p.At(20, 9), PicturePixel(0, 0));
  EXPECT_EQ(p.At(21, 12), PicturePixel(1, 3));
}

TEST_F(DrawBitmapTest, VerticalTilingIsHorizontallyCentred) {
  Init(40, 24);
  const PictureBox picture(TestPicture(6, 4));
  SetRect(0, 0, 20, 10);  // tiles at y 0, 4 and a 2-pixel piece at 8
  const gdi::Pixels p = Draw(picture, vxBottomRight, vxVerticalTile, 3);
  ExpectRect(Painted(p), 7, 0, 13, 10);
  EXPECT_EQ(p.At(7, 8), PicturePixel(0, 0));
  EXPECT_EQ(p.At(12, 9), PicturePixel(5, 1));
}

TEST_F(DrawBitmapTest, BothTilingCoversTheAreaColumnByColumn) {
  Init(40, 24);
  const PictureBox picture(TestPicture(6, 4));
  SetRect(1, 1, 14, 10);  // 13 x 9
  const gdi::Pixels p = Draw(picture, vxCenterCenter, vxBothTile);
  ExpectRect(Painted(p), 1, 1, 14, 10);
  EXPECT_EQ(p.At(13, 9), PicturePixel(0, 0));
  EXPECT_EQ(p.At(7, 5), PicturePixel(0, 0));
  EXPECT_EQ(p.At(12, 8), PicturePixel(5, 3));
}

TEST_F(DrawBitmapTest, AnEmptyPictureDrawsNothingTiledOrNot) {
  Init(20, 20);
  const PictureBox picture(TestPicture(0, 0));
  SetRect(0, 0, 20, 20);
  for (int32_t tile : {vxNoneTile, vxHorizontalTile, vxVerticalTile, vxBothTile}) {
    for (uint32_t v : Draw(picture, vxTopLeft, tile).argb) ASSERT_EQ(v, 0u) << "tile " << tile;
  }
}

TEST_F(DrawBitmapTest, TileValuesAboveThreeDrawNothing) {
  Init(20, 20);
  const PictureBox picture(TestPicture(4, 4));
  SetRect(0, 0, 20, 20);
  for (uint32_t v : Draw(picture, vxTopLeft, 4).argb) ASSERT_EQ(v, 0u);
}
