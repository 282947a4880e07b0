#include "picture/bmp_decoder.h"

#include "picture/dib_header.h"
#include "picture/dib_rle.h"
#include "picture/dib_rows.h"

namespace vorlex::picture {

namespace {
constexpr size_t kFileHeaderSize = 14;
}  // namespace

Image DecodeBmp(ByteView file) {
  Require(file.U8(0) == 'B' && file.U8(1) == 'M');
  const uint32_t offBits = file.U32(10);
  const ByteView dib = file.From(kFileHeaderSize);
  const DibHeader header = ReadDibHeader(dib);
  Require(offBits >= kFileHeaderSize + dib.U32(0) && offBits <= file.size());
  const ByteView bits = file.From(offBits);
  if (header.compression == kBiRle8 || header.compression == kBiRle4) return DecodeDibRle(header, bits);
  return DecodeDibRows(header, bits);
}

}  // namespace vorlex::picture
