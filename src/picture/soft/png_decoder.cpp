// PNG through libpng's simplified reading interface, straight into the
// picture's pixels as 32-bit words.

#include "picture/png_decoder.h"

#include <png.h>

#include <bit>

namespace vorlex::picture {

namespace {

// Frees libpng's state on every path.
class PngReader {
 public:
  PngReader() { image_.version = PNG_IMAGE_VERSION; }
  ~PngReader() { png_image_free(&image_); }
  PngReader(const PngReader&) = delete;
  PngReader& operator=(const PngReader&) = delete;
  png_image& get() { return image_; }

 private:
  png_image image_{};
};

// The byte order that makes each pixel the word 0xAARRGGBB.
constexpr png_uint_32 kWordFormat = std::endian::native == std::endian::little ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;

}  // namespace

Image DecodePng(ByteView file) {
  PngReader reader;
  png_image& png = reader.get();
  Require(png_image_begin_read_from_memory(&png, file.data(), file.size()) != 0);
  Image image = NewImage(png.width, png.height);
  png.format = kWordFormat;
  Require(png_image_finish_read(&png, nullptr, image.pixels.data(), 0, nullptr) != 0);
  SplitAlpha(image);
  return image;
}

}  // namespace vorlex::picture
