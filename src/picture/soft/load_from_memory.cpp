// LoadPictureFromMemory where pictures are decoded by this library.

#include <memory>
#include <utility>
#include <vector>

#include "picture/pixel_picture.h"
#include "picture/soft/decode_picture.h"
#include "vorlex/Picture.h"

namespace vorlex {

PicturePtr LoadPictureFromMemory(const uint8_t* data, size_t size) {
  picture::DecodedPicture decoded = picture::DecodePicture(picture::ByteView(data, size));
  return std::make_shared<picture::PixelPicture>(std::move(decoded.image), decoded.type,
                                                 std::vector<uint8_t>(data, data + size));
}

}  // namespace vorlex
