#pragma once
// JPEG files (baseline and progressive; greyscale and colour), through
// libjpeg. A file whose data ends early gives what was decoded.

#include "picture/byte_view.h"
#include "picture/image.h"

namespace vorlex::picture {

// Rejects (error 481) anything libjpeg cannot read as a picture.
Image DecodeJpeg(ByteView file);

}  // namespace vorlex::picture
