#include "png_file.h"

#include "surface/png_export.h"

namespace vorlex::activex::tools {

bool SavePng(int width, int height, const std::vector<uint32_t>& pixels, const std::string& path, std::string* error) {
  gdi::Pixels image;
  image.width = width;
  image.height = height;
  image.argb = pixels;
  return WritePng(image, path, error);
}

}  // namespace vorlex::activex::tools
