#pragma once
// The pixels of an uncompressed DIB: palette indexes of 1, 4 and 8 bits, and
// 16-, 24- and 32-bit colours, rows bottom-up or top-down.

#include "picture/byte_view.h"
#include "picture/dib_header.h"
#include "picture/image.h"

namespace vorlex::picture {

// Whether bits hold every row the header describes.
bool HasAllRows(const DibHeader& header, ByteView bits);

// A picture of the header's size from its rows. Rejects (error 481) bits that
// are cut short. An index past the palette gives black.
Image DecodeDibRows(const DibHeader& header, ByteView bits);

}  // namespace vorlex::picture
