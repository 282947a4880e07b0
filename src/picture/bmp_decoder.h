#pragma once
// BMP files: a 14-byte file header whose bfOffBits locates the pixel bits,
// then a DIB header, masks and palette.

#include "picture/byte_view.h"
#include "picture/image.h"

namespace vorlex::picture {

// Rejects (error 481) anything that is not a whole BMP file it can read.
Image DecodeBmp(ByteView file);

}  // namespace vorlex::picture
