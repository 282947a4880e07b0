#pragma once
// PNG files, through libpng or, on Windows, the platform's imaging component.
// Pixels whose alpha is below 128 are transparent.

#include "picture/byte_view.h"
#include "picture/image.h"

namespace vorlex::picture {

// Rejects (error 481) anything that is not a PNG file it can read.
Image DecodePng(ByteView file);

}  // namespace vorlex::picture
