// Which format bytes hold, told by their first bytes whatever a file is called.

#include "picture/format.h"

#include <gtest/gtest.h>

#include <string>

#include "decode_helpers.h"
#include "samples.h"

using namespace vorlex;
using namespace vorlex::picture_test;
using picture::PictureFormat;

namespace {
PictureFormat Detect(const Bytes& bytes) { return picture::DetectFormat(View(bytes)); }
Bytes Text(const std::string& text) { return Bytes(text.begin(), text.end()); }
}  // namespace

TEST(PictureFormat, SamplesAreToldApart) {
  EXPECT_EQ(Detect(Bmp3x2()), PictureFormat::Bmp);
  EXPECT_EQ(Detect(Icon4x4()), PictureFormat::Icon);
  EXPECT_EQ(Detect(Gif4x3()), PictureFormat::Gif);
  EXPECT_EQ(Detect(Jpeg16x8()), PictureFormat::Jpeg);
  EXPECT_EQ(Detect(Png3x1()), PictureFormat::Png);
}

TEST(PictureFormat, MagicBytes) {
  EXPECT_EQ(Detect(Text("BM")), PictureFormat::Bmp);
  EXPECT_EQ(Detect(Text("GIF87a")), PictureFormat::Gif);
  EXPECT_EQ(Detect(Text("GIF89a")), PictureFormat::Gif);
  EXPECT_EQ(Detect(Bytes{0xFF, 0xD8, 0xFF, 0xE0}), PictureFormat::Jpeg);
  EXPECT_EQ(Detect(Bytes{0, 0, 1, 0}), PictureFormat::Icon);
  EXPECT_EQ(Detect(Bytes{0, 0, 2, 0}), PictureFormat::Icon);
  EXPECT_EQ(Detect(Bytes{0xD7, 0xCD, 0xC6, 0x9A, 0, 0}), PictureFormat::Metafile);
  Bytes emf(44, 0);
  emf[0] = 1;
  emf[40] = ' ';
  emf[41] = 'E';
  emf[42] = 'M';
  emf[43] = 'F';
  EXPECT_EQ(Detect(emf), PictureFormat::EnhancedMetafile);
}

TEST(PictureFormat, AnythingElseIsUnknown) {
  EXPECT_EQ(Detect(Bytes{}), PictureFormat::Unknown);
  EXPECT_EQ(Detect(Text("B")), PictureFormat::Unknown);
  EXPECT_EQ(Detect(Text("GIF88a")), PictureFormat::Unknown);
  EXPECT_EQ(Detect(Text("hello, world")), PictureFormat::Unknown);
  EXPECT_EQ(Detect(Bytes{0xFF, 0xD8}), PictureFormat::Unknown);
  EXPECT_EQ(Detect(Bytes{0, 0, 3, 0}), PictureFormat::Unknown);
  EXPECT_EQ(Detect(Bytes{0x89, 'P', 'N', 'G'}), PictureFormat::Unknown);
  EXPECT_EQ(Detect(Bytes(44, 0)), PictureFormat::Unknown);
}
