#include "surface/png_export.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstdio>
#include <filesystem>
#include <vector>

using namespace vorlex;

namespace {
// Reads an RGB PNG back into 0x00RRGGBB pixels.
gdi::Pixels ReadPng(const std::string& path) {
  gdi::Pixels out;
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_file(&image, path.c_str())) return out;
  image.format = PNG_FORMAT_RGB;
  std::vector<png_byte> buffer(PNG_IMAGE_SIZE(image));
  if (!png_image_finish_read(&image, nullptr, buffer.data(), 0, nullptr)) return out;
  out.width = static_cast<int>(image.width);
  out.height = static_cast<int>(image.height);
  for (size_t i = 0; i + 2 < buffer.size(); i += 3) {
    out.argb.push_back((uint32_t{buffer[i]} << 16) | (uint32_t{buffer[i + 1]} << 8) | buffer[i + 2]);
  }
  return out;
}

std::string TempPath(const char* name) { return (std::filesystem::temp_directory_path() / name).string(); }
}  // namespace

TEST(PngExport, WritesEveryPixelAsRgb) {
  gdi::Pixels pixels;
  pixels.width = 3;
  pixels.height = 2;
  pixels.argb = {0xFF0000, 0x00FF00, 0x0000FF, 0x123456, 0xFFFFFF, 0x000000};
  const std::string path = TempPath("vorlex_png_export_test.png");
  std::string error;
  ASSERT_TRUE(WritePng(pixels, path, &error)) << error;
  const gdi::Pixels back = ReadPng(path);
  EXPECT_EQ(back.width, 3);
  EXPECT_EQ(back.height, 2);
  EXPECT_EQ(back.argb, pixels.argb);
  std::remove(path.c_str());
}

TEST(PngExport, ReportsAnUnwritablePath) {
  gdi::Pixels pixels;
  pixels.width = 1;
  pixels.height = 1;
  pixels.argb = {0};
  std::string error;
  EXPECT_FALSE(WritePng(pixels, "/nonexistent-dir/x.png", &error));
  EXPECT_NE(error.find("/nonexistent-dir/x.png"), std::string::npos);
}

TEST(PngExport, RefusesAnEmptyImage) {
  std::string error;
  EXPECT_FALSE(WritePng(gdi::Pixels{}, TempPath("vorlex_empty.png"), &error));
  EXPECT_FALSE(error.empty());
}
