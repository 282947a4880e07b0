#pragma once
// A picture file on disk for tests outside the picture suite (the command-line
// tool's): a 2 x 1 24-bit BMP, red then blue, in a folder of its own that is
// removed with it.

#include <filesystem>
#include <string>

#include "temp_folder.h"

namespace vorlex::picture_test {

class PictureFile {
 public:
  PictureFile() {
    folder_.Write("two.bmp", TwoPixelBmp());
    folder_.Write("text.bmp", {'n', 'o', 't', ' ', 'a', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'});
  }

  const std::filesystem::path& folder() const { return folder_.path(); }
  // The BMP; a file that is not a picture; a file that does not exist.
  std::string Bitmap() const { return folder_.PathOf("two.bmp"); }
  std::string NotAPicture() const { return folder_.PathOf("text.bmp"); }
  std::string Missing() const { return folder_.PathOf("missing.bmp"); }

 private:
  static Bytes TwoPixelBmp() {
    return {'B', 'M', 62,   0,    0, 0, 0, 0, 0, 0, 54, 0, 0, 0,                     // file header
            40,  0,   0,    0,    2, 0, 0, 0, 1, 0, 0,  0, 1, 0, 24, 0, 0, 0, 0, 0,  // size, planes, bits
            8,   0,   0,    0,    0, 0, 0, 0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0, 0,  // image size, resolution, colours
            0,   0,   0xFF, 0xFF, 0, 0, 0, 0};                                       // red, blue, padding
  }

  TempFolder folder_;
};

}  // namespace vorlex::picture_test
