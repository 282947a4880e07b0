// BMP files this library refuses with error 481: cut short, impossible or
// oversized headers, offsets past the end, bits cut short, bad RLE.

#include <gtest/gtest.h>

#include <limits>

#include "decode_helpers.h"
#include "picture/bmp_decoder.h"
#include "samples.h"
#include "writers/bmp_writer.h"

using namespace vorlex;
using namespace vorlex::picture_test;

namespace {

void Decode(const Bytes& file) { picture::DecodeBmp(View(file)); }

BmpLayout Rgb24(int32_t width, int32_t height) {
  BmpLayout layout;
  layout.width = width;
  layout.height = height;
  layout.bitCount = 24;
  const size_t stride = (static_cast<size_t>(width > 0 ? width : 0) * 3 + 3) / 4 * 4;
  const size_t rows = static_cast<size_t>(height < 0 ? -static_cast<int64_t>(height) : height);
  layout.bits.assign(stride * rows, 0x40);
  return layout;
}

BmpLayout Rle8(Bytes bits) {
  BmpLayout layout;
  layout.width = 4;
  layout.height = 2;
  layout.bitCount = 8;
  layout.compression = kBiRle8;
  layout.palette = {kRed, kBlue};
  layout.clrUsed = 2;
  layout.bits = std::move(bits);
  return layout;
}

void PutU32At(Bytes& file, size_t offset, uint32_t value) {
  for (size_t i = 0; i < 4; ++i) file[offset + i] = static_cast<uint8_t>(value >> (8 * i));
}

}  // namespace

TEST(BmpMalformed, EmptyBytes) {
  EXPECT_INVALID_PICTURE(picture::DecodeBmp(picture::ByteView()));
  EXPECT_INVALID_PICTURE(Decode(Bytes{}));
}

TEST(BmpMalformed, FileHeaderCutShort) {
  const Bytes file = Bmp3x2();
  for (size_t length : {1u, 2u, 9u, 13u}) {
    EXPECT_INVALID_PICTURE(Decode(Bytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length))));
  }
}

TEST(BmpMalformed, InfoHeaderCutShort) {
  const Bytes file = Bmp3x2();
  for (size_t length : {14u, 17u, 18u, 30u, 53u}) {
    EXPECT_INVALID_PICTURE(Decode(Bytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length))));
  }
}

TEST(BmpMalformed, NotStartingWithBM) {
  Bytes file = Bmp3x2();
  file[1] = 'A';
  EXPECT_INVALID_PICTURE(Decode(file));
}

TEST(BmpMalformed, UnknownHeaderSize) {
  for (uint32_t size : {0u, 16u, 39u, 41u, 64u, 200u, 0xFFFFFFFFu}) {
    Bytes file = Bmp3x2();
    PutU32At(file, 14, size);
    EXPECT_INVALID_PICTURE(Decode(file)) << size;
  }
}

TEST(BmpMalformed, WidthNotPositive) {
  for (int32_t width : {0, -3, std::numeric_limits<int32_t>::min()}) {
    Bytes file = Bmp3x2();
    PutU32At(file, 18, static_cast<uint32_t>(width));
    EXPECT_INVALID_PICTURE(Decode(file)) << width;
  }
}

TEST(BmpMalformed, HeightZeroOrMostNegative) {
  for (int32_t height : {0, std::numeric_limits<int32_t>::min()}) {
    Bytes file = Bmp3x2();
    PutU32At(file, 22, static_cast<uint32_t>(height));
    EXPECT_INVALID_PICTURE(Decode(file)) << height;
  }
}

TEST(BmpMalformed, HugeDimensionsAreRefusedBeforeAnythingIsRead) {
  for (auto [width, height] : {std::pair{0x7FFFFFFF, 0x7FFFFFFF}, std::pair{1 << 20, 1 << 20},
                               std::pair{0x7FFFFFFF, -0x7FFFFFFF}, std::pair{8193, 8192}}) {
    Bytes file = Bmp3x2();
    PutU32At(file, 18, static_cast<uint32_t>(width));
    PutU32At(file, 22, static_cast<uint32_t>(height));
    EXPECT_INVALID_PICTURE(Decode(file)) << width << " x " << height;
  }
}

TEST(BmpMalformed, HugeRlePictureIsRefused) {
  BmpLayout layout = Rle8({0, 1});
  layout.width = 1 << 16;
  layout.height = (1 << 10) + 1;
  EXPECT_INVALID_PICTURE(Decode(BmpFile(layout)));
}

TEST(BmpMalformed, BitDepthNotKnown) {
  for (int bits : {0, 2, 3, 12, 48, 64}) {
    Bytes file = Bmp3x2();
    file[28] = static_cast<uint8_t>(bits);
    EXPECT_INVALID_PICTURE(Decode(file)) << bits;
  }
}

TEST(BmpMalformed, CompressionNotKnownOrNotForThisDepth) {
  for (uint32_t compression : {kBiRle8, kBiRle4, kBiBitfields, 4u, 5u, 6u, 0xFFFFFFFFu}) {
    BmpLayout layout = Rgb24(2, 2);
    layout.compression = compression;
    layout.masks = {0xFF0000, 0xFF00, 0xFF};
    EXPECT_INVALID_PICTURE(Decode(BmpFile(layout))) << compression;
  }
}

TEST(BmpMalformed, RleStoredTopDown) {
  BmpLayout layout = Rle8({1, 1, 0, 1});
  layout.height = -2;
  EXPECT_INVALID_PICTURE(Decode(BmpFile(layout)));
}

TEST(BmpMalformed, CoreHeaderWithSixteenOrThirtyTwoBits) {
  for (uint16_t bits : {uint16_t{16}, uint16_t{32}}) {
    BmpLayout layout = Rgb24(1, 1);
    layout.headerSize = kCoreHeader;
    layout.bitCount = bits;
    layout.bits.assign(4, 0);
    EXPECT_INVALID_PICTURE(Decode(BmpFile(layout))) << bits;
  }
}

TEST(BmpMalformed, BitsOffsetPastTheEnd) {
  for (uint32_t offset : {78u, 79u, 1000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
    Bytes file = Bmp3x2();
    PutU32At(file, 10, offset);
    EXPECT_INVALID_PICTURE(Decode(file)) << offset;
  }
}

TEST(BmpMalformed, BitsOffsetInsideTheHeaders) {
  for (uint32_t offset : {0u, 13u, 40u, 53u}) {
    Bytes file = Bmp3x2();
    PutU32At(file, 10, offset);
    EXPECT_INVALID_PICTURE(Decode(file)) << offset;
  }
}

TEST(BmpMalformed, BitsCutShort) {
  Bytes file = Bmp3x2();
  file.pop_back();
  EXPECT_INVALID_PICTURE(Decode(file));
}

TEST(BmpMalformed, PaletteCutShort) {
  BmpLayout layout;
  layout.width = 1;
  layout.height = 1;
  layout.bitCount = 8;
  layout.palette = {kRed};
  layout.clrUsed = 200;
  layout.bits = {0, 0, 0, 0};
  EXPECT_INVALID_PICTURE(Decode(BmpFile(layout)));
}

TEST(BmpMalformed, BitfieldMasksCutShort) {
  BmpLayout layout;
  layout.width = 1;
  layout.height = 1;
  layout.bitCount = 16;
  layout.compression = kBiBitfields;
  layout.masks = {0xF800, 0x07E0, 0x001F};
  layout.bits = {};
  Bytes file = BmpFile(layout);
  file.resize(14 + 40 + 6);
  PutU32At(file, 10, static_cast<uint32_t>(file.size()));
  EXPECT_INVALID_PICTURE(Decode(file));
}

TEST(BmpMalformed, RleAbsoluteRunPastTheEnd) {
  EXPECT_INVALID_PICTURE(Decode(BmpFile(Rle8({1, 1, 0, 4, 1, 0}))));
  BmpLayout rle4 = Rle8({0, 7, 0x11, 0x11});
  rle4.bitCount = 4;
  rle4.compression = kBiRle4;
  EXPECT_INVALID_PICTURE(Decode(BmpFile(rle4)));
}

TEST(BmpMalformed, RleEscapeCutShort) {
  EXPECT_INVALID_PICTURE(Decode(BmpFile(Rle8({1, 1, 0}))));
  EXPECT_INVALID_PICTURE(Decode(BmpFile(Rle8({1, 1, 0, 2, 1}))));
  EXPECT_INVALID_PICTURE(Decode(BmpFile(Rle8({1, 1, 0, 2}))));
}
