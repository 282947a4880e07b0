#include "surface/png_export.h"

#include <cstdio>
#include <memory>
#include <vector>

#ifdef VORLEX_HAVE_PNG
#include <png.h>
#else
#include <filesystem>
#include <fstream>

#include "surface/png_encoder.h"
#endif

namespace vorlex {

#ifdef VORLEX_HAVE_PNG

namespace {
struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};

std::vector<png_byte> RgbRow(const gdi::Pixels& pixels, int y) {
  std::vector<png_byte> row(static_cast<size_t>(pixels.width) * 3);
  for (int x = 0; x < pixels.width; ++x) {
    const uint32_t p = pixels.At(x, y);
    row[static_cast<size_t>(x) * 3] = static_cast<png_byte>(p >> 16);
    row[static_cast<size_t>(x) * 3 + 1] = static_cast<png_byte>(p >> 8);
    row[static_cast<size_t>(x) * 3 + 2] = static_cast<png_byte>(p);
  }
  return row;
}
}  // namespace

bool WritePng(const gdi::Pixels& pixels, const std::string& path, std::string* error) {
  auto fail = [&](const std::string& why) {
    if (error) *error = path + ": " + why;
    return false;
  };
  if (pixels.width <= 0 || pixels.height <= 0) return fail("an image needs at least one pixel");
  std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "wb"));
  if (!file) return fail("cannot open for writing");
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  if (!info) {
    png_destroy_write_struct(&png, nullptr);
    return fail("out of memory");
  }
  // libpng reports errors by longjmp; nothing with a destructor lives in between.
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    return fail("write failed");
  }
  png_init_io(png, file.get());
  png_set_IHDR(png, info, static_cast<png_uint_32>(pixels.width), static_cast<png_uint_32>(pixels.height), 8,
               PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  for (int y = 0; y < pixels.height; ++y) {
    std::vector<png_byte> row = RgbRow(pixels, y);
    png_write_row(png, row.data());
  }
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return true;
}

#else

// Without libpng, a file of our own making.
bool WritePng(const gdi::Pixels& pixels, const std::string& path, std::string* error) {
  auto fail = [&](const std::string& why) {
    if (error) *error = path + ": " + why;
    return false;
  };
  if (pixels.width <= 0 || pixels.height <= 0) return fail("an image needs at least one pixel");
  const std::vector<uint8_t> file = EncodePng(pixels);
  std::ofstream out(std::filesystem::path(std::u8string(path.begin(), path.end())), std::ios::binary);
  if (!out) return fail("cannot open for writing");
  out.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
  out.close();
  if (!out) return fail("write failed");
  return true;
}

#endif

}  // namespace vorlex
