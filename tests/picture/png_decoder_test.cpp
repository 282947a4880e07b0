// PNG files decoded for a picture or an icon's image: colour, alpha and files
// that are not whole PNGs.

#include "picture/png_decoder.h"

#include <gtest/gtest.h>

#include "decode_helpers.h"
#include "samples.h"
#include "surface/png_checksums.h"
#include "writers/png_writer.h"

using namespace vorlex;
using namespace vorlex::picture_test;

namespace {
picture::Image DecodeFile(const Bytes& file) { return picture::DecodePng(View(file)); }
}  // namespace

TEST(PngDecoder, ColourPixelsAreOpaque) {
  const picture::Image image = DecodeFile(PngFile(2, 2, {kRed, kGreen, kBlue, kWhite}, false));
  EXPECT_EQ(Of(image), (Decoded{2, 2, {kRed, kGreen, kBlue, kWhite}}));
  EXPECT_EQ(OpaqueOf(image), (std::vector<int>{1, 1, 1, 1}));
}

TEST(PngDecoder, AlphaBelow128IsTransparent) {
  const picture::Image image = DecodeFile(
      PngFile(4, 1, {0xFF000000 | kRed, 0x80000000 | kGreen, 0x7F000000 | kBlue, 0x00000000 | kWhite}, true));
  EXPECT_EQ(OpaqueOf(image), (std::vector<int>{1, 1, 0, 0}));
  EXPECT_EQ(image.pixels[0], kRed);
}

TEST(PngDecoder, SampleHasAnOpaqueAndATransparentPixel) {
  const picture::Image image = DecodeFile(Png3x1());
  EXPECT_EQ(image.width, 3);
  EXPECT_EQ(OpaqueOf(image), (std::vector<int>{1, 0, 1}));
  EXPECT_EQ(image.pixels[0], kRed);
}

TEST(PngMalformed, CutShort) {
  const Bytes good = Png3x1();
  for (size_t length : {0u, 8u, 20u, 33u, 50u}) {
    EXPECT_INVALID_PICTURE(DecodeFile(Bytes(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(length))))
        << length;
  }
}

TEST(PngMalformed, BadSignature) {
  Bytes file = Png3x1();
  file[1] = 'Q';
  EXPECT_INVALID_PICTURE(DecodeFile(file));
}

TEST(PngMalformed, ZeroSize) {
  Bytes file = PngFile(1, 1, {kRed}, false);
  file[19] = 0;  // width 0
  const uint32_t crc = Crc32(file.data() + 12, 17);
  for (size_t i = 0; i < 4; ++i) file[29 + i] = static_cast<uint8_t>(crc >> (24 - 8 * i));
  EXPECT_INVALID_PICTURE(DecodeFile(file));
}
