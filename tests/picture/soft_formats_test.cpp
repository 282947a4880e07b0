// What only builds that decode pictures themselves (not Windows) show: GIF and
// JPEG decoding in detail, the icon image chosen, malformed files the
// platform's loader on Windows accepts, and metafiles refused.

#ifndef _WIN32

#include <gtest/gtest.h>

#include "decode_helpers.h"
#include "picture/png_decoder.h"
#include "picture/soft/gif_decoder.h"
#include "picture/soft/jpeg_decoder.h"
#include "picture_canvas.h"
#include "samples.h"
#include "writers/bmp_writer.h"
#include "writers/gif_writer.h"
#include "writers/ico_writer.h"
#include "writers/jpeg_writer.h"

using namespace vorlex;
using namespace vorlex::picture_test;

namespace {

PicturePtr Load(const Bytes& bytes) { return LoadPictureFromMemory(bytes.data(), bytes.size()); }
picture::Image Gif(const GifLayout& layout) {
  const Bytes file = GifFile(layout);
  return picture::DecodeGif(View(file));
}

GifLayout TwoColourScreen(int width, int height) {
  GifLayout layout;
  layout.width = width;
  layout.height = height;
  layout.palette = {kRed, kBlue};
  return layout;
}

GifFrame Frame(int left, int top, int width, int height, std::vector<uint8_t> indexes) {
  GifFrame frame;
  frame.left = left;
  frame.top = top;
  frame.width = width;
  frame.height = height;
  frame.indexes = std::move(indexes);
  return frame;
}

}  // namespace

TEST(GifDecoder, FrameSitsOnTheScreenWhichIsTransparentAround) {
  GifLayout layout = TwoColourScreen(4, 3);
  layout.frames.push_back(Frame(1, 1, 2, 1, {0, 1}));
  const picture::Image image = Gif(layout);
  EXPECT_EQ(image.width, 4);
  EXPECT_EQ(image.height, 3);
  EXPECT_EQ(OpaqueOf(image), (std::vector<int>{0, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0}));
  EXPECT_EQ(image.pixels[5], kRed);
  EXPECT_EQ(image.pixels[6], kBlue);
}

TEST(GifDecoder, FramePastTheScreenIsCut) {
  GifLayout layout = TwoColourScreen(2, 2);
  layout.frames.push_back(Frame(1, 1, 3, 2, {1, 0, 0, 0, 0, 0}));
  const picture::Image image = Gif(layout);
  EXPECT_EQ(OpaqueOf(image), (std::vector<int>{0, 0, 0, 1}));
  EXPECT_EQ(image.pixels[3], kBlue);
}

TEST(GifDecoder, OnlyTheFirstFrameIsDrawn) {
  GifLayout layout = TwoColourScreen(2, 1);
  layout.frames.push_back(Frame(0, 0, 2, 1, {0, 0}));
  layout.frames.push_back(Frame(0, 0, 2, 1, {1, 1}));
  EXPECT_EQ(Of(Gif(layout)), (Decoded{2, 1, {kRed, kRed}}));
}

TEST(GifDecoder, InterlacedRowsComeBackInOrder) {
  GifLayout layout = TwoColourScreen(1, 10);
  GifFrame frame = Frame(0, 0, 1, 10, {0, 1, 1, 0, 1, 1, 0, 0, 1, 0});
  frame.interlaced = true;
  layout.frames.push_back(frame);
  const auto R = kRed;
  const auto B = kBlue;
  EXPECT_EQ(Of(Gif(layout)), (Decoded{1, 10, {R, B, B, R, B, B, R, R, B, R}}));
}

TEST(GifDecoder, LocalPaletteOverridesTheGlobalOne) {
  GifLayout layout = TwoColourScreen(2, 1);
  GifFrame frame = Frame(0, 0, 2, 1, {0, 1});
  frame.localPalette = {kGreen, kWhite};
  layout.frames.push_back(frame);
  EXPECT_EQ(Of(Gif(layout)), (Decoded{2, 1, {kGreen, kWhite}}));
}

TEST(GifDecoder, IndexPastThePaletteIsBlack) {
  // Two colours, but codes of two bits carry indexes up to 3.
  GifLayout layout = TwoColourScreen(2, 1);
  layout.frames.push_back(Frame(0, 0, 2, 1, {3, 1}));
  EXPECT_EQ(Of(Gif(layout)), (Decoded{2, 1, {kBlack, kBlue}}));
}

TEST(GifDecoder, TransparentIndexComesFromTheControlExtension) {
  const picture::Image image = picture::DecodeGif(View(Gif4x3()));
  EXPECT_EQ(OpaqueOf(image), (std::vector<int>{1, 1, 1, 0, 0, 1, 1, 1, 1, 1, 1, 1}));
}

TEST(GifMalformed, NoFrameOrNoPaletteOrCutShort) {
  EXPECT_INVALID_PICTURE(Gif(TwoColourScreen(2, 2)));
  GifLayout noPalette = TwoColourScreen(2, 1);
  noPalette.palette.clear();
  noPalette.frames.push_back(Frame(0, 0, 2, 1, {0, 1}));
  EXPECT_INVALID_PICTURE(Gif(noPalette));
  const Bytes good = Gif4x3();
  for (size_t length : {size_t{3}, size_t{6}, size_t{12}, size_t{30}, good.size() - 6}) {
    const Bytes cut(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_INVALID_PICTURE(picture::DecodeGif(View(cut))) << length;
  }
}

TEST(GifMalformed, ScreenOfNoSize) {
  GifLayout layout = TwoColourScreen(0, 3);
  layout.frames.push_back(Frame(0, 0, 1, 1, {0}));
  EXPECT_INVALID_PICTURE(Gif(layout));
}

TEST(JpegDecoder, FlatBlocksDecodeToTheirColours) {
  const Bytes file = FlatBlockJpeg(16, 16, {0x808080, 0x000000, 0xFFFFFF, 0x404040});
  const picture::Image image = picture::DecodeJpeg(View(file));
  EXPECT_EQ(image.width, 16);
  EXPECT_EQ(image.height, 16);
  EXPECT_EQ(image.pixels[image.Index(3, 3)], 0x808080u);
  EXPECT_EQ(image.pixels[image.Index(12, 3)], 0x000000u);
  EXPECT_EQ(image.pixels[image.Index(3, 12)], 0xFFFFFFu);
  EXPECT_EQ(image.pixels[image.Index(12, 12)], 0x404040u);
  EXPECT_FALSE(image.HasTransparency());
}

TEST(JpegMalformed, HeaderCutShortOrNotAJpeg) {
  const Bytes good = Jpeg16x8();
  for (size_t length : {0u, 2u, 3u, 20u, 100u}) {
    const Bytes cut(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_INVALID_PICTURE(picture::DecodeJpeg(View(cut))) << length;
  }
  Bytes noFrame = good;
  noFrame[0] = 0;
  EXPECT_INVALID_PICTURE(picture::DecodeJpeg(View(noFrame)));
}

TEST(JpegMalformed, ImageDataCutShortGivesWhatWasDecoded) {
  const Bytes good = Jpeg16x8();
  const Bytes cut(good.begin(), good.end() - 4);
  const picture::Image image = picture::DecodeJpeg(View(cut));
  EXPECT_EQ(image.width, 16);
  EXPECT_EQ(image.height, 8);
}

TEST(PngMalformed, HeaderChecksumWrong) {
  Bytes file = Png3x1();
  file[29] ^= 0xFF;  // IHDR's CRC
  EXPECT_INVALID_PICTURE(picture::DecodePng(View(file)));
}

TEST(SoftLoadPicture, IconLoadsItsLargestImage) {
  const auto solid = [](int size, uint32_t colour) {
    const auto count = static_cast<size_t>(size * size);
    return IconImage{size, size, 32,
                     IconDib(size, size, std::vector<uint32_t>(count, colour), std::vector<bool>(count, false))};
  };
  const PicturePtr picture = Load(IcoFile({solid(16, kRed), solid(48, kGreen), solid(32, kBlue)}));
  EXPECT_EQ(picture->Type(), kPicTypeIcon);
  EXPECT_EQ(picture->PixelWidth(), 48);
  const PictureCanvas canvas(1, 1);
  EXPECT_TRUE(canvas.Draw(*picture));
  EXPECT_EQ(canvas.At(0, 0), kGreen);
}

TEST(SoftLoadPicture, GifFrameOffTheOriginLeavesTheScreenAroundIt) {
  GifLayout layout = TwoColourScreen(3, 2);
  layout.frames.push_back(Frame(1, 1, 1, 1, {1}));
  const PicturePtr picture = Load(GifFile(layout));
  EXPECT_EQ(picture->PixelWidth(), 3);
  EXPECT_EQ(picture->PixelHeight(), 2);
  const PictureCanvas canvas(3, 2);
  EXPECT_TRUE(canvas.Draw(*picture));
  EXPECT_EQ(canvas.Row(0), "123456 123456 123456");
  EXPECT_EQ(canvas.Row(1), "123456 3050D0 123456");
}

TEST(SoftLoadPicture, MalformedBitmapsRaise481) {
  Bytes cut = Bmp3x2();
  cut.pop_back();
  EXPECT_INVALID_PICTURE(Load(cut));
  BmpLayout rle;
  rle.width = 2;
  rle.height = 1;
  rle.bitCount = 8;
  rle.compression = kBiRle8;
  rle.palette = {kRed};
  rle.clrUsed = 1;
  rle.bits = {0, 5, 0};
  EXPECT_INVALID_PICTURE(Load(BmpFile(rle)));
}

TEST(SoftLoadPicture, MetafilesRaise481) { EXPECT_INVALID_PICTURE(Load(Bytes{0xD7, 0xCD, 0xC6, 0x9A, 0, 0, 0, 0})); }

TEST(SoftLoadPicture, HandlesAreNumbersOfTheirOwn) {
  const PicturePtr a = Load(Bmp3x2());
  const PicturePtr b = Load(Jpeg16x8());
  EXPECT_NE(a->Handle(), 0u);
  EXPECT_NE(a->Handle(), b->Handle());
  EXPECT_EQ(a->Handle(), a->Handle());
}

#endif  // _WIN32
