#pragma once
// Run-length encoded DIBs (RLE8 and RLE4), always stored bottom-up: encoded
// runs, absolute runs padded to a 16-bit boundary, and the escapes end of line,
// end of bitmap and delta. Pixels no run sets stay black; runs past the right
// edge are cut; decoding ends at the top row. Data may end without an end of
// bitmap, but not inside a run or an escape.

#include "picture/byte_view.h"
#include "picture/dib_header.h"
#include "picture/image.h"

namespace vorlex::picture {

Image DecodeDibRle(const DibHeader& header, ByteView bits);

}  // namespace vorlex::picture
