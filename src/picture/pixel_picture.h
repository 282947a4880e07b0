#pragma once
// A picture held as decoded pixels: drawn over a device context's bitmap
// through the GDI seam's ReadPixels and WritePixels.

#include <cstdint>
#include <utility>
#include <vector>

#include "picture/image.h"
#include "picture/picture_handle.h"
#include "vorlex/Picture.h"

namespace vorlex::picture {

class PixelPicture final : public Picture {
 public:
  // fileBytes: the file the picture was decoded from, kept for SaveAsFile.
  PixelPicture(Image image, int16_t type, std::vector<uint8_t> fileBytes = {})
      : image_(std::move(image)), type_(type), handle_(image_), fileBytes_(std::move(fileBytes)) {}

  int16_t Type() const override { return type_; }
  uint32_t Handle() const override { return handle_.Value(); }
  int32_t PixelWidth() const override { return image_.width; }
  int32_t PixelHeight() const override { return image_.height; }
  bool Render(uintptr_t hdc, int32_t x, int32_t y) const override;
  std::vector<uint8_t> SaveAsFile() const override { return fileBytes_; }

 private:
  Image image_;
  int16_t type_;
  PictureHandle handle_;
  std::vector<uint8_t> fileBytes_;
};

}  // namespace vorlex::picture
