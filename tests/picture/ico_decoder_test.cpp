// Icon and cursor files decoded by this library: which image is chosen, the
// AND mask, alpha, paletted images and PNG images inside an icon.

#include "picture/ico_decoder.h"

#include <gtest/gtest.h>

#include "decode_helpers.h"
#include "samples.h"
#include "writers/ico_writer.h"
#include "writers/png_writer.h"

using namespace vorlex;
using namespace vorlex::picture_test;

namespace {

IconImage Solid(int size, uint32_t colour) {
  const auto count = static_cast<size_t>(size) * static_cast<size_t>(size);
  return {size, size, 32, IconDib(size, size, std::vector<uint32_t>(count, colour), std::vector<bool>(count, false))};
}

picture::Image DecodeFile(const Bytes& file) { return picture::DecodeIco(View(file)); }

}  // namespace

TEST(IcoDecoder, LargestImageIsChosen) {
  const picture::Image image = DecodeFile(IcoFile({Solid(16, kRed), Solid(48, kGreen), Solid(32, kBlue)}));
  EXPECT_EQ(image.width, 48);
  EXPECT_EQ(image.height, 48);
  EXPECT_EQ(image.pixels.front(), kGreen);
}

TEST(IcoDecoder, FirstOfTheLargestWinsATie) {
  const picture::Image image = DecodeFile(IcoFile({Solid(8, kRed), Solid(24, kBlue), Solid(24, kGreen)}));
  EXPECT_EQ(image.width, 24);
  EXPECT_EQ(image.pixels.front(), kBlue);
}

TEST(IcoDecoder, DirectoryZeroMeans256) {
  Bytes file = IcoFile({Solid(48, kRed), Solid(8, kBlue)});
  file[6 + 16] = 0;  // the second entry's width and height
  file[6 + 16 + 1] = 0;
  const std::vector<picture::IconEntry> entries = picture::ReadIconDirectory(View(file));
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[1].width, 256);
  EXPECT_EQ(entries[1].height, 256);
  EXPECT_EQ(picture::ChooseIconEntry(entries), 1u);
}

TEST(IcoDecoder, ImageSizeComesFromItsOwnHeader) {
  IconImage image = Solid(4, kRed);
  image.width = 64;
  image.height = 64;
  const picture::Image decoded = DecodeFile(IcoFile({image}));
  EXPECT_EQ(decoded.width, 4);
  EXPECT_EQ(decoded.height, 4);
}

TEST(IcoDecoder, AndMaskMakesPixelsTransparent) {
  const picture::Image image = DecodeFile(Icon4x4());
  ASSERT_EQ(image.width, 4);
  ASSERT_EQ(image.height, 4);
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 4; ++x) {
      EXPECT_EQ(image.opaque[image.Index(x, y)], Icon4x4Masked(x, y) ? 0 : 1) << x << "," << y;
      if (!Icon4x4Masked(x, y)) {
        EXPECT_EQ(image.pixels[image.Index(x, y)], kGreen);
      }
    }
  }
}

TEST(IcoDecoder, AlphaDecidesWhenAnyAlphaIsSet) {
  const std::vector<uint32_t> pixels{0xFF000000 | kRed, 0x00000000 | kGreen, 0x7F000000 | kBlue, 0x80000000 | kWhite};
  // The AND mask says the opposite of alpha: alpha wins.
  const Bytes file = IcoFile({{2, 2, 32, IconDib(2, 2, pixels, {true, false, false, true})}});
  const picture::Image image = DecodeFile(file);
  EXPECT_EQ(OpaqueOf(image), (std::vector<int>{1, 0, 0, 1}));
  EXPECT_EQ(image.pixels[0], kRed);
  EXPECT_EQ(image.pixels[3], kWhite);
}

TEST(IcoDecoder, PalettedImagesOfOneFourAndEightBits) {
  const std::vector<uint32_t> palette{kRed, kBlue};
  const std::vector<uint32_t> indexes{1, 0, 0, 1, 1, 1};
  const std::vector<bool> mask{false, false, true, false, false, false};
  for (uint16_t bits : {uint16_t{1}, uint16_t{4}, uint16_t{8}}) {
    const picture::Image image =
        DecodeFile(IcoFile({{3, 2, bits, PalettedIconDib(3, 2, bits, palette, indexes, mask)}}));
    EXPECT_EQ(Of(image), (Decoded{3, 2, {kBlue, kRed, kRed, kBlue, kBlue, kBlue}})) << bits;
    EXPECT_EQ(OpaqueOf(image), (std::vector<int>{1, 1, 0, 1, 1, 1})) << bits;
  }
}

TEST(IcoDecoder, MaskRowsArePaddedToFourBytes) {
  const int size = 33;
  const auto count = static_cast<size_t>(size * size);
  std::vector<bool> mask(count, false);
  mask[static_cast<size_t>(size * 32 + 32)] = true;  // bottom-right
  mask[0] = true;
  const picture::Image image =
      DecodeFile(IcoFile({{size, size, 32, IconDib(size, size, std::vector<uint32_t>(count, kRed), mask)}}));
  EXPECT_EQ(image.opaque[0], 0);
  EXPECT_EQ(image.opaque[1], 1);
  EXPECT_EQ(image.opaque[image.Index(32, 32)], 0);
  EXPECT_EQ(image.opaque[image.Index(31, 32)], 1);
  EXPECT_EQ(image.opaque[image.Index(0, 1)], 1);
}

TEST(IcoDecoder, CursorFilesReadLikeIcons) {
  Bytes file = Icon4x4();
  file[2] = 2;
  EXPECT_EQ(DecodeFile(file).width, 4);
}

TEST(IcoDecoder, PngImageInsideAnIcon) {
  const Bytes png = PngFile(2, 1, {0xFF000000 | kRed, 0x00000000 | kBlue}, true);
  const picture::Image image = DecodeFile(IcoFile({Solid(1, kGreen), {2, 1, 32, png}}));
  EXPECT_EQ(image.width, 2);
  EXPECT_EQ(image.height, 1);
  EXPECT_EQ(image.pixels[0], kRed);
  EXPECT_EQ(OpaqueOf(image), (std::vector<int>{1, 0}));
}

// Refused with error 481.

TEST(IcoMalformed, HeaderNotAnIconsOrCutShort) {
  const Bytes good = Icon4x4();
  for (size_t at : {0u, 1u, 3u}) {
    Bytes file = good;
    file[at] = 7;
    EXPECT_INVALID_PICTURE(DecodeFile(file)) << at;
  }
  Bytes third = good;
  third[2] = 3;
  EXPECT_INVALID_PICTURE(DecodeFile(third));
  EXPECT_INVALID_PICTURE(DecodeFile(Bytes(good.begin(), good.begin() + 5)));
  EXPECT_INVALID_PICTURE(DecodeFile(Bytes{}));
}

TEST(IcoMalformed, NoImages) {
  Bytes file = Icon4x4();
  file[4] = 0;
  EXPECT_INVALID_PICTURE(DecodeFile(file));
}

TEST(IcoMalformed, DirectoryCutShort) {
  Bytes file = IcoFile({Solid(4, kRed), Solid(4, kRed)});
  file[4] = 200;  // more entries than the file holds
  EXPECT_INVALID_PICTURE(DecodeFile(file));
  const Bytes good = Icon4x4();
  EXPECT_INVALID_PICTURE(DecodeFile(Bytes(good.begin(), good.begin() + 21)));
}

TEST(IcoMalformed, ImageOffsetOrSizePastTheEnd) {
  const Bytes good = Icon4x4();
  for (size_t field : {14u, 18u}) {  // size, offset
    for (uint32_t value : {static_cast<uint32_t>(good.size()), 0x7FFFFFFFu, 0xFFFFFFFFu}) {
      Bytes file = good;
      for (size_t i = 0; i < 4; ++i) file[field + i] = static_cast<uint8_t>(value >> (8 * i));
      EXPECT_INVALID_PICTURE(DecodeFile(file)) << field << " " << value;
    }
  }
}

TEST(IcoMalformed, ImageCutShortBeforeItsMask) {
  Bytes file = Icon4x4();
  const uint32_t size = file[14] - 4u;  // the last mask row left out
  file[14] = static_cast<uint8_t>(size);
  file.resize(file.size() - 4);
  EXPECT_INVALID_PICTURE(DecodeFile(file));
}

TEST(IcoMalformed, ImageHeaderNotADib) {
  Bytes file = Icon4x4();
  file[22] = 99;  // the image's header size
  EXPECT_INVALID_PICTURE(DecodeFile(file));
}

TEST(IcoMalformed, ImageStoredTopDownOrWithOneRow) {
  for (int32_t height : {-8, 1, 0}) {
    Bytes file = Icon4x4();
    for (size_t i = 0; i < 4; ++i) file[22 + 8 + i] = static_cast<uint8_t>(static_cast<uint32_t>(height) >> (8 * i));
    EXPECT_INVALID_PICTURE(DecodeFile(file)) << height;
  }
}

TEST(IcoMalformed, ImageRunLengthEncoded) {
  Bytes file = IcoFile({{2, 2, 8, PalettedIconDib(2, 2, 8, {kRed}, {0, 0, 0, 0}, {false, false, false, false})}});
  file[22 + 16] = 1;  // BI_RLE8
  EXPECT_INVALID_PICTURE(DecodeFile(file));
}

TEST(IcoMalformed, HugeImageIsRefused) {
  Bytes file = Icon4x4();
  for (size_t i = 0; i < 4; ++i) file[22 + 4 + i] = static_cast<uint8_t>(0x10000u >> (8 * i));
  for (size_t i = 0; i < 4; ++i) file[22 + 8 + i] = static_cast<uint8_t>(0x10000u >> (8 * i));
  EXPECT_INVALID_PICTURE(DecodeFile(file));
}

TEST(IcoMalformed, PngImageThatIsNotAPng) {
  Bytes png = PngFile(2, 1, {kRed, kBlue}, false);
  png.resize(png.size() - 20);
  EXPECT_INVALID_PICTURE(DecodeFile(IcoFile({{2, 1, 32, png}})));
}
