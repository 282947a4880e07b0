#pragma once
// GIF files through giflib: the first frame, placed on the logical screen; the
// screen outside the frame and pixels of the frame's transparent index (from
// its graphic control extension) are transparent.

#include "picture/byte_view.h"
#include "picture/image.h"

namespace vorlex::picture {

// Rejects (error 481) anything giflib cannot read, and a file without a frame.
Image DecodeGif(ByteView file);

}  // namespace vorlex::picture
