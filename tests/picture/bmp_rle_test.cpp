// Run-length encoded BMP files: RLE8 and RLE4 runs, absolute runs and their
// padding, end of line, delta and end of bitmap.

#include <gtest/gtest.h>

#include "decode_helpers.h"
#include "picture/bmp_decoder.h"
#include "samples.h"
#include "writers/bmp_writer.h"

using namespace vorlex;
using namespace vorlex::picture_test;

namespace {

constexpr uint32_t kGrey = 0x808080;

// A 4 x 3 RLE picture with palette {kGrey, kRed, kGreen, kBlue}; rows are
// stored bottom-up, so the first row coded is the bottom one.
BmpLayout Rle(uint32_t compression, Bytes bits) {
  BmpLayout layout;
  layout.width = 4;
  layout.height = 3;
  layout.bitCount = compression == kBiRle8 ? 8 : 4;
  layout.compression = compression;
  layout.palette = {kGrey, kRed, kGreen, kBlue};
  layout.clrUsed = 4;
  layout.bits = std::move(bits);
  return layout;
}

Decoded DecodeFile(const BmpLayout& layout) {
  const Bytes file = BmpFile(layout);
  return Of(picture::DecodeBmp(View(file)));
}

const uint32_t K = kBlack;  // no run set the pixel
const uint32_t R = kRed;
const uint32_t G = kGreen;
const uint32_t B = kBlue;

}  // namespace

TEST(BmpRle, Rle8EncodedRunsFillRowsFromTheBottom) {
  const Bytes bits{4, 1, 0, 0, 2, 2, 2, 3, 0, 0, 3, 0, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle8, bits)), (Decoded{4, 3, {kGrey, kGrey, kGrey, K, G, G, B, B, R, R, R, R}}));
}

TEST(BmpRle, Rle8AbsoluteRunIsPaddedToAWord) {
  // Three indexes and a pad byte, then two more pixels by an encoded run.
  const Bytes bits{0, 3, 1, 2, 3, 0xEE, 1, 1, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle8, bits)), (Decoded{4, 3, {K, K, K, K, K, K, K, K, R, G, B, R}}));
}

TEST(BmpRle, UnsetPixelsAreBlackAndEndOfBitmapStops) {
  const Bytes bits{1, 3, 0, 1, 4, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle8, bits)), (Decoded{4, 3, {K, K, K, K, K, K, K, K, B, K, K, K}}));
}

TEST(BmpRle, DeltaMovesRightAndUp) {
  // One red pixel, then 2 right and 1 up, then one green.
  const Bytes bits{1, 1, 0, 2, 2, 1, 1, 2, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle8, bits)), (Decoded{4, 3, {K, K, K, K, K, K, K, G, R, K, K, K}}));
}

TEST(BmpRle, RunPastTheRightEdgeIsCut) {
  const Bytes bits{6, 1, 0, 0, 1, 2, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle8, bits)), (Decoded{4, 3, {K, K, K, K, G, K, K, K, R, R, R, R}}));
}

TEST(BmpRle, RowsPastTheTopAreIgnored) {
  const Bytes bits{1, 1, 0, 2, 0, 9, 4, 2, 0, 0, 4, 3};
  EXPECT_EQ(DecodeFile(Rle(kBiRle8, bits)), (Decoded{4, 3, {K, K, K, K, K, K, K, K, R, K, K, K}}));
}

TEST(BmpRle, DataMayEndWithoutEndOfBitmap) {
  const Bytes bits{2, 1, 0, 0, 4, 2};
  EXPECT_EQ(DecodeFile(Rle(kBiRle8, bits)), (Decoded{4, 3, {K, K, K, K, G, G, G, G, R, R, K, K}}));
}

TEST(BmpRle, IndexPastThePaletteIsBlack) {
  const Bytes bits{2, 9, 2, 2, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle8, bits)), (Decoded{4, 3, {K, K, K, K, K, K, K, K, K, K, G, G}}));
}

TEST(BmpRle, Rle4RunsAlternateTheTwoNibbles) {
  const Bytes bits{3, 0x12, 0, 0, 4, 0x33, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle4, bits)), (Decoded{4, 3, {K, K, K, K, B, B, B, B, R, G, R, K}}));
}

TEST(BmpRle, Rle4AbsoluteRunOfOddLengthIsPaddedToAWord) {
  // Three nibbles in two bytes, padded to four bytes with the escape.
  const Bytes bits{0, 3, 0x32, 0x10, 1, 0x11, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle4, bits)), (Decoded{4, 3, {K, K, K, K, K, K, K, K, B, G, R, R}}));
}

TEST(BmpRle, Rle4AbsoluteRunOfFiveNibblesTakesThreeBytesAndAPad) {
  const Bytes bits{0, 5, 0x12, 0x31, 0x20, 0xEE, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle4, bits)), (Decoded{4, 3, {K, K, K, K, K, K, K, K, R, G, B, R}}));
}

TEST(BmpRle, Rle4DeltaAndEndOfLine) {
  const Bytes bits{0, 2, 3, 0, 1, 0x20, 0, 0, 2, 0x30, 0, 1};
  EXPECT_EQ(DecodeFile(Rle(kBiRle4, bits)), (Decoded{4, 3, {K, K, K, K, B, kGrey, K, K, K, K, K, G}}));
}
