// WritePng on every build: the file it writes decodes to the same pixels.

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "picture/byte_view.h"
#include "picture/file_bytes.h"
#include "picture/png_decoder.h"
#include "surface/png_export.h"

using namespace vorlex;

namespace {
std::string TempPath(const char* name) {
  const std::u8string path = (std::filesystem::temp_directory_path() / name).u8string();
  return std::string(path.begin(), path.end());
}
}  // namespace

TEST(PngRoundTrip, WrittenFileDecodesToTheSamePixels) {
  gdi::Pixels pixels;
  pixels.width = 4;
  pixels.height = 3;
  pixels.argb = {0xFF0000, 0x00FF00, 0x0000FF, 0x123456, 0xFFFFFF, 0x000000,
                 0x808080, 0xC0C0C0, 0x010203, 0xFEDCBA, 0x7F7F7F, 0x00FFFF};
  const std::string path = TempPath("vorlex_png_round_trip.png");
  std::string error;
  ASSERT_TRUE(WritePng(pixels, path, &error)) << error;
  const std::optional<std::vector<uint8_t>> bytes = picture::ReadFileBytes(path);
  ASSERT_TRUE(bytes.has_value());
  const picture::Image image = picture::DecodePng(picture::ByteView(bytes->data(), bytes->size()));
  EXPECT_EQ(image.width, 4);
  EXPECT_EQ(image.height, 3);
  EXPECT_EQ(image.pixels, pixels.argb);
  std::filesystem::remove(std::filesystem::path(std::u8string(path.begin(), path.end())));
}

TEST(PngRoundTrip, ReportsAPathThatCannotBeWritten) {
  gdi::Pixels pixels;
  pixels.width = 1;
  pixels.height = 1;
  pixels.argb = {0};
  const std::string path = TempPath("vorlex-no-such-folder") + "/x.png";
  std::string error;
  EXPECT_FALSE(WritePng(pixels, path, &error));
  EXPECT_NE(error.find(path), std::string::npos) << error;
}

TEST(PngRoundTrip, RefusesAnEmptyImage) {
  std::string error;
  EXPECT_FALSE(WritePng(gdi::Pixels{}, TempPath("vorlex_empty_round_trip.png"), &error));
  EXPECT_NE(error.find("at least one pixel"), std::string::npos) << error;
}
