#pragma once
// Any picture file this build reads, decoded by its content: BMP, ICO and CUR,
// GIF, JPEG and PNG.

#include <cstdint>

#include "picture/byte_view.h"
#include "picture/image.h"

namespace vorlex::picture {

struct DecodedPicture {
  Image image;
  int16_t type;  // a PictureType: icon for icons and cursors, else bitmap
};

// Rejects (error 481) bytes that are not one of those formats or that their
// decoder cannot read; metafiles are refused as well.
DecodedPicture DecodePicture(ByteView bytes);

}  // namespace vorlex::picture
