// Loaded pictures drawn into a memory device context at their natural size:
// type, size, handle and pixels of each format, and transparency. These facts
// hold on every platform.

#include <gtest/gtest.h>

#include <cstdlib>

#include "decode_helpers.h"
#include "picture_canvas.h"
#include "samples.h"
#include "writers/bmp_writer.h"
#include "writers/ico_writer.h"
#include "writers/jpeg_writer.h"
#include "writers/png_writer.h"

using namespace vorlex;
using namespace vorlex::picture_test;

namespace {

PicturePtr Load(const Bytes& bytes) { return LoadPictureFromMemory(bytes.data(), bytes.size()); }

// Each channel within tolerance.
::testing::AssertionResult Near(uint32_t actual, uint32_t expected, int tolerance) {
  for (int shift : {0, 8, 16}) {
    const int a = static_cast<int>((actual >> shift) & 0xFF);
    const int e = static_cast<int>((expected >> shift) & 0xFF);
    if (std::abs(a - e) > tolerance) {
      return ::testing::AssertionFailure()
             << std::hex << actual << " is not within " << std::dec << tolerance << " of " << std::hex << expected;
    }
  }
  return ::testing::AssertionSuccess();
}

}  // namespace

TEST(RenderPicture, BitmapDrawsEveryPixelAtItsPlace) {
  const PicturePtr picture = Load(Bmp3x2());
  EXPECT_EQ(picture->Type(), kPicTypeBitmap);
  EXPECT_EQ(picture->PixelWidth(), 3);
  EXPECT_EQ(picture->PixelHeight(), 2);
  const PictureCanvas canvas(6, 4);
  EXPECT_TRUE(canvas.Draw(*picture, 2, 1));
  EXPECT_EQ(canvas.Row(0), "123456 123456 123456 123456 123456 123456");
  EXPECT_EQ(canvas.Row(1), "123456 123456 E01020 20C040 3050D0 123456");
  EXPECT_EQ(canvas.Row(2), "123456 123456 FFFFFF 000000 808080 123456");
  EXPECT_EQ(canvas.Row(3), "123456 123456 123456 123456 123456 123456");
}

TEST(RenderPicture, LoadedPicturesHaveDistinctNonzeroHandles) {
  const PicturePtr a = Load(Bmp3x2());
  const PicturePtr b = Load(Bmp3x2());
  const PicturePtr c = Load(Icon4x4());
  EXPECT_NE(a->Handle(), 0u);
  EXPECT_NE(b->Handle(), 0u);
  EXPECT_NE(c->Handle(), 0u);
  EXPECT_NE(a->Handle(), b->Handle());
  EXPECT_NE(a->Handle(), c->Handle());
}

TEST(RenderPicture, DrawingIsCutAtTheEdges) {
  const PicturePtr picture = Load(Bmp3x2());
  const PictureCanvas canvas(2, 2);
  EXPECT_TRUE(canvas.Draw(*picture, -1, 1));
  EXPECT_EQ(canvas.Row(0), "123456 123456");
  EXPECT_EQ(canvas.Row(1), "20C040 3050D0");
}

TEST(RenderPicture, PalettedAndSixteenBitBitmaps) {
  BmpLayout paletted;
  paletted.width = 3;
  paletted.height = 1;
  paletted.bitCount = 4;
  paletted.palette = {kRed, kGreen, kBlue};
  paletted.clrUsed = 3;
  paletted.bits = PackRows(3, {{2, 0, 1}}, 4);
  BmpLayout sixteen;
  sixteen.width = 2;
  sixteen.height = 1;
  sixteen.bitCount = 16;
  sixteen.compression = kBiBitfields;
  sixteen.masks = {0xF800, 0x07E0, 0x001F};
  sixteen.bits = PackRows(2, {{0x8410, 0x0020}}, 16);
  const PictureCanvas canvas(3, 2);
  EXPECT_TRUE(canvas.Draw(*Load(BmpFile(paletted)), 0, 0));
  EXPECT_TRUE(canvas.Draw(*Load(BmpFile(sixteen)), 0, 1));
  EXPECT_EQ(canvas.Row(0), "3050D0 E01020 20C040");
  EXPECT_EQ(canvas.Row(1), "848284 000400 123456");
}

TEST(RenderPicture, RunLengthEncodedBitmapLeavesUnsetPixelsBlack) {
  BmpLayout rle;
  rle.width = 4;
  rle.height = 2;
  rle.bitCount = 8;
  rle.compression = kBiRle8;
  rle.palette = {kWhite, kRed, kBlue};
  rle.clrUsed = 3;
  rle.bits = {2, 1, 0, 0, 0, 3, 2, 1, 2, 0, 0, 1};
  const PictureCanvas canvas(4, 2);
  EXPECT_TRUE(canvas.Draw(*Load(BmpFile(rle))));
  EXPECT_EQ(canvas.Row(0), "3050D0 E01020 3050D0 000000");
  EXPECT_EQ(canvas.Row(1), "E01020 E01020 000000 000000");
}

TEST(RenderPicture, TopDownBitmap) {
  BmpLayout layout;
  layout.width = 1;
  layout.height = -2;
  layout.bitCount = 32;
  layout.bits = PackRows(1, {{kRed}, {kBlue}}, 32);
  const PictureCanvas canvas(1, 2);
  EXPECT_TRUE(canvas.Draw(*Load(BmpFile(layout))));
  EXPECT_EQ(canvas.Row(0), "E01020");
  EXPECT_EQ(canvas.Row(1), "3050D0");
}

TEST(RenderPicture, IconMaskLeavesTheDestination) {
  const PicturePtr picture = Load(Icon4x4());
  EXPECT_EQ(picture->Type(), kPicTypeIcon);
  EXPECT_EQ(picture->PixelWidth(), 4);
  EXPECT_EQ(picture->PixelHeight(), 4);
  const PictureCanvas canvas(6, 6);
  EXPECT_TRUE(canvas.Draw(*picture, 1, 1));
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 6; ++x) {
      const bool inside = x >= 1 && x <= 4 && y >= 1 && y <= 4;
      const uint32_t expected = inside && !Icon4x4Masked(x - 1, y - 1) ? kGreen : kPaper;
      EXPECT_EQ(canvas.At(x, y), expected) << x << "," << y;
    }
  }
}

TEST(RenderPicture, IconAlphaOfZeroLeavesTheDestination) {
  // As icons are written: the AND mask agrees with alpha.
  const Bytes icon = IcoFile({{2, 1, 32, IconDib(2, 1, {0xFF000000 | kRed, 0}, {false, true})}});
  const PictureCanvas canvas(2, 1);
  EXPECT_TRUE(canvas.Draw(*Load(icon)));
  EXPECT_EQ(canvas.Row(0), "E01020 123456");
}

TEST(RenderPicture, GifTransparentIndexLeavesTheDestination) {
  const PicturePtr picture = Load(Gif4x3());
  EXPECT_EQ(picture->Type(), kPicTypeBitmap);
  EXPECT_EQ(picture->PixelWidth(), 4);
  EXPECT_EQ(picture->PixelHeight(), 3);
  const PictureCanvas canvas(4, 3);
  EXPECT_TRUE(canvas.Draw(*picture));
  EXPECT_EQ(canvas.Row(0), "E01020 20C040 3050D0 123456");
  EXPECT_EQ(canvas.Row(1), "123456 3050D0 20C040 E01020");
  EXPECT_EQ(canvas.Row(2), "E01020 E01020 20C040 20C040");
}

TEST(RenderPicture, JpegColoursSurviveWithinAFewLevels) {
  const PicturePtr picture = Load(Jpeg16x8());
  EXPECT_EQ(picture->Type(), kPicTypeBitmap);
  EXPECT_EQ(picture->PixelWidth(), 16);
  EXPECT_EQ(picture->PixelHeight(), 8);
  const PictureCanvas canvas(17, 9);
  EXPECT_TRUE(canvas.Draw(*picture));
  EXPECT_TRUE(Near(canvas.At(0, 0), kRed, 4));
  EXPECT_TRUE(Near(canvas.At(7, 7), kRed, 4));
  EXPECT_TRUE(Near(canvas.At(8, 0), kBlue, 4));
  EXPECT_TRUE(Near(canvas.At(15, 7), kBlue, 4));
  EXPECT_EQ(canvas.At(16, 0), kPaper);
  EXPECT_EQ(canvas.At(0, 8), kPaper);
}

TEST(RenderPicture, JpegOfOddSizeIsCutToItsSize) {
  const PicturePtr picture = Load(FlatBlockJpeg(10, 9, {kWhite, kBlack, kBlack, kWhite}));
  EXPECT_EQ(picture->PixelWidth(), 10);
  EXPECT_EQ(picture->PixelHeight(), 9);
  const PictureCanvas canvas(11, 10);
  EXPECT_TRUE(canvas.Draw(*picture));
  EXPECT_TRUE(Near(canvas.At(0, 0), kWhite, 2));
  EXPECT_TRUE(Near(canvas.At(9, 0), kBlack, 2));
  EXPECT_TRUE(Near(canvas.At(9, 8), kWhite, 2));
  EXPECT_EQ(canvas.At(10, 0), kPaper);
  EXPECT_EQ(canvas.At(0, 9), kPaper);
}

TEST(RenderPicture, PngAlphaBelowHalfLeavesTheDestination) {
  const PicturePtr picture = Load(Png3x1());
  EXPECT_EQ(picture->Type(), kPicTypeBitmap);
  EXPECT_EQ(picture->PixelWidth(), 3);
  EXPECT_EQ(picture->PixelHeight(), 1);
  const PictureCanvas canvas(3, 1);
  EXPECT_TRUE(canvas.Draw(*picture));
  EXPECT_EQ(canvas.At(0, 0), kRed);
  EXPECT_EQ(canvas.At(1, 0), kPaper);
}

TEST(RenderPicture, OpaquePngDrawsEveryPixel) {
  const PictureCanvas canvas(2, 1);
  EXPECT_TRUE(canvas.Draw(*Load(PngFile(2, 1, {kGreen, kBlue}, false))));
  EXPECT_EQ(canvas.Row(0), "20C040 3050D0");
}

TEST(RenderPicture, BytesThatAreNoPictureRaise481) {
  EXPECT_INVALID_PICTURE(LoadPictureFromMemory(nullptr, 0));
  const Bytes text{'n', 'o', 't', ' ', 'a', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'};
  EXPECT_INVALID_PICTURE(Load(text));
  EXPECT_INVALID_PICTURE(Load(Bytes{'B', 'M', 0, 0}));
  EXPECT_INVALID_PICTURE(Load(Bytes{'G', 'I', 'F', '8', '9', 'a', 1, 0}));
  EXPECT_INVALID_PICTURE(Load(Bytes{0xFF, 0xD8, 0xFF, 0xD9}));
}
