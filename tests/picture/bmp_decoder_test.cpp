// BMP files decoded by this library: every bit depth, both row orders, every
// header size, palettes and bit masks.

#include "picture/bmp_decoder.h"

#include <gtest/gtest.h>

#include "decode_helpers.h"
#include "samples.h"
#include "writers/bmp_writer.h"

using namespace vorlex;
using namespace vorlex::picture_test;

namespace {

Decoded DecodeFile(const BmpLayout& layout) {
  const Bytes file = BmpFile(layout);
  return Of(picture::DecodeBmp(View(file)));
}

BmpLayout Layout(int32_t width, int32_t height, uint16_t bitCount, std::vector<std::vector<uint32_t>> rows) {
  BmpLayout layout;
  layout.width = width;
  layout.height = height;
  layout.bitCount = bitCount;
  layout.bits = PackRows(width, rows, bitCount);
  return layout;
}

}  // namespace

TEST(BmpDecoder, TwentyFourBitRowsAreStoredBottomUp) {
  const Bytes file = Bmp3x2();
  EXPECT_EQ(Of(picture::DecodeBmp(View(file))), (Decoded{3, 2, Bmp3x2Pixels()}));
}

TEST(BmpDecoder, NegativeHeightStoresRowsTopDown) {
  BmpLayout layout = Layout(2, -2, 24, {{kRed, kGreen}, {kBlue, kWhite}});
  EXPECT_EQ(DecodeFile(layout), (Decoded{2, 2, {kRed, kGreen, kBlue, kWhite}}));
}

TEST(BmpDecoder, OneBitPixelsIndexTwoEntriesHighBitFirst) {
  BmpLayout layout = Layout(10, 1, 1, {{0, 1, 1, 0, 0, 0, 0, 0, 1, 0}});
  layout.palette = {kRed, kBlue};
  EXPECT_EQ(DecodeFile(layout), (Decoded{10, 1, {kRed, kBlue, kBlue, kRed, kRed, kRed, kRed, kRed, kBlue, kRed}}));
}

TEST(BmpDecoder, FourBitPixelsIndexHighNibbleFirst) {
  BmpLayout layout = Layout(3, 1, 4, {{2, 0, 15}});
  layout.palette.assign(16, kBlack);
  layout.palette[0] = kRed;
  layout.palette[2] = kGreen;
  layout.palette[15] = kBlue;
  EXPECT_EQ(layout.bits, (Bytes{0x20, 0xF0, 0, 0}));
  EXPECT_EQ(DecodeFile(layout), (Decoded{3, 1, {kGreen, kRed, kBlue}}));
}

TEST(BmpDecoder, EightBitPixelsIndexThePalette) {
  BmpLayout layout = Layout(3, 2, 8, {{255, 0, 1}, {1, 1, 0}});
  layout.palette.assign(256, kWhite);
  layout.palette[0] = kRed;
  layout.palette[1] = kGreen;
  EXPECT_EQ(DecodeFile(layout), (Decoded{3, 2, {kGreen, kGreen, kRed, kWhite, kRed, kGreen}}));
}

TEST(BmpDecoder, ColoursUsedShortensThePalette) {
  BmpLayout layout = Layout(2, 1, 8, {{1, 0}});
  layout.palette = {kRed, kBlue};
  layout.clrUsed = 2;
  EXPECT_EQ(DecodeFile(layout), (Decoded{2, 1, {kBlue, kRed}}));
}

TEST(BmpDecoder, IndexPastThePaletteIsBlack) {
  BmpLayout layout = Layout(3, 1, 8, {{0, 2, 200}});
  layout.palette = {kRed, kBlue};
  layout.clrUsed = 2;
  EXPECT_EQ(DecodeFile(layout), (Decoded{3, 1, {kRed, kBlack, kBlack}}));
}

TEST(BmpDecoder, SixteenBitsAre555WithTheTopBitsRepeated) {
  const BmpLayout layout = Layout(4, 1, 16, {{0x7C00, 0x03E0, 0x4210, 0x801F}});
  EXPECT_EQ(DecodeFile(layout), (Decoded{4, 1, {0xFF0000, 0x00FF00, 0x848484, 0x0000FF}}));
}

TEST(BmpDecoder, SixteenBitBitfieldsGive565) {
  BmpLayout layout = Layout(3, 1, 16, {{0xF800, 0x8410, 0x0020}});
  layout.compression = kBiBitfields;
  layout.masks = {0xF800, 0x07E0, 0x001F};
  EXPECT_EQ(DecodeFile(layout), (Decoded{3, 1, {0xFF0000, 0x848284, 0x000400}}));
}

TEST(BmpDecoder, ThirtyTwoBitsIgnoreTheFourthByte) {
  const BmpLayout layout = Layout(2, 1, 32, {{0xFF000000 | kRed, 0x7F000000 | kBlue}});
  EXPECT_EQ(DecodeFile(layout), (Decoded{2, 1, {kRed, kBlue}}));
}

TEST(BmpDecoder, ThirtyTwoBitBitfieldsPlaceEachChannel) {
  BmpLayout layout = Layout(1, 1, 32, {{0x00112233}});
  layout.compression = kBiBitfields;
  layout.masks = {0x000000FF, 0x0000FF00, 0x00FF0000};
  EXPECT_EQ(DecodeFile(layout), (Decoded{1, 1, {0x332211}}));
}

TEST(BmpDecoder, WideMasksKeepTheirTopEightBits) {
  BmpLayout layout = Layout(1, 1, 32, {{(0x3FFu << 20) | (0x200u << 10) | 0x001u}});
  layout.compression = kBiBitfields;
  layout.masks = {0x3FF00000, 0x000FFC00, 0x000003FF};
  EXPECT_EQ(DecodeFile(layout), (Decoded{1, 1, {0xFF8000}}));
}

TEST(BmpDecoder, RowsArePaddedToFourBytes) {
  const BmpLayout layout = Layout(1, 3, 24, {{kRed}, {kGreen}, {kBlue}});
  EXPECT_EQ(layout.bits.size(), 12u);
  EXPECT_EQ(DecodeFile(layout), (Decoded{1, 3, {kBlue, kGreen, kRed}}));
}

TEST(BmpDecoder, CoreHeaderHasThreeBytePaletteEntries) {
  BmpLayout layout = Layout(3, 1, 4, {{1, 0, 1}});
  layout.headerSize = kCoreHeader;
  layout.palette.assign(16, kBlack);
  layout.palette[0] = kRed;
  layout.palette[1] = kBlue;
  EXPECT_EQ(DecodeFile(layout), (Decoded{3, 1, {kBlue, kRed, kBlue}}));
}

TEST(BmpDecoder, CoreHeaderTwentyFourBits) {
  BmpLayout layout = Layout(2, 2, 24, {{kRed, kGreen}, {kBlue, kWhite}});
  layout.headerSize = kCoreHeader;
  EXPECT_EQ(DecodeFile(layout), (Decoded{2, 2, {kBlue, kWhite, kRed, kGreen}}));
}

TEST(BmpDecoder, V4AndV5HeadersReadLikeInfoHeaders) {
  for (uint32_t size : {kV4Header, kV5Header}) {
    BmpLayout layout = Layout(2, 1, 24, {{kRed, kBlue}});
    layout.headerSize = size;
    EXPECT_EQ(DecodeFile(layout), (Decoded{2, 1, {kRed, kBlue}})) << size;
  }
}

TEST(BmpDecoder, V5HeaderHoldsTheBitfieldMasks) {
  BmpLayout layout = Layout(1, 1, 16, {{0x001F}});
  layout.headerSize = kV5Header;
  layout.compression = kBiBitfields;
  layout.masks = {0x001F, 0x07E0, 0xF800};
  EXPECT_EQ(DecodeFile(layout), (Decoded{1, 1, {0xFF0000}}));
}

TEST(BmpDecoder, PixelsAreOpaque) {
  const Bytes file = Bmp3x2();
  EXPECT_EQ(OpaqueOf(picture::DecodeBmp(View(file))), std::vector<int>(6, 1));
}

TEST(BmpDecoder, BitsStartWhereTheFileHeaderSays) {
  BmpLayout layout = Layout(1, 1, 24, {{kRed}});
  Bytes file = BmpFile(layout);
  // Four bytes of gap between the header and the bits, announced by bfOffBits.
  file.insert(file.begin() + 54, {9, 9, 9, 9});
  file[10] = 58;
  EXPECT_EQ(Of(picture::DecodeBmp(View(file))), (Decoded{1, 1, {kRed}}));
}
