#pragma once
// A picture as a file of its own, for saving it beside a form.

#include <string>
#include <vector>

#include "vorlex/Picture.h"

namespace vorlex {

struct PictureFile {
  std::vector<uint8_t> bytes;
  std::string extension;  // without the dot: "bmp", "png", "ico"...
};

// The bytes the picture was loaded from when it keeps them; otherwise the
// picture drawn at its natural size on white, as a 24-bit BMP. No bytes for a
// picture that has neither.
PictureFile PictureFileOf(const Picture& picture);

// A 24-bit bottom-up BMP of 0x00RRGGBB pixels, top row first.
std::vector<uint8_t> Bmp24(int32_t width, int32_t height, const std::vector<uint32_t>& pixels);

}  // namespace vorlex
