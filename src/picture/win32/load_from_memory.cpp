// LoadPictureFromMemory on Windows: the platform's picture loader, except for
// PNG, which it does not read everywhere: that is decoded and drawn here.

#include <memory>
#include <vector>

#include "picture/format.h"
#include "picture/pixel_picture.h"
#include "picture/png_decoder.h"
#include "picture/win32/ole_picture.h"

namespace vorlex {

PicturePtr LoadPictureFromMemory(const uint8_t* data, size_t size) {
  const picture::ByteView bytes(data, size);
  if (picture::DetectFormat(bytes) == picture::PictureFormat::Png) {
    return std::make_shared<picture::PixelPicture>(picture::DecodePng(bytes), kPicTypeBitmap,
                                                   std::vector<uint8_t>(data, data + size));
  }
  return picture::LoadOlePicture(data, size);
}

}  // namespace vorlex
