#pragma once
// One image of an icon or cursor stored as a DIB: a header whose height counts
// the colour rows and the AND mask rows together, the colour bits, then the
// 1-bit AND mask (1: transparent). A 32-bit image whose alpha bytes are not
// all zero is transparent where alpha is below 128 instead.

#include "picture/byte_view.h"
#include "picture/image.h"

namespace vorlex::picture {

Image DecodeIconDib(ByteView dib);

}  // namespace vorlex::picture
