#include "picture/dib_rle.h"

#include <utility>

namespace vorlex::picture {

namespace {

class RleDecoder {
 public:
  RleDecoder(const DibHeader& header, ByteView bits)
      : header_(header), bits_(bits), image_(NewImage(header.width, header.height)) {
    fourBit_ = header.compression == kBiRle4;
  }

  Image Run() {
    while (pos_ < bits_.size() && row_ < header_.height) {
      const uint8_t count = bits_.U8(pos_);
      const uint8_t code = bits_.U8(pos_ + 1);
      pos_ += 2;
      if (count > 0) {
        EncodedRun(count, code);
      } else if (!Escape(code)) {
        break;
      }
    }
    return std::move(image_);
  }

 private:
  // count pixels of one index (RLE8), or of two alternating indexes (RLE4).
  void EncodedRun(uint8_t count, uint8_t code) {
    for (int i = 0; i < count; ++i) {
      const uint32_t index = !fourBit_ ? code : (i % 2 == 0 ? code >> 4 : code & 0xFu);
      Put(index);
    }
  }

  // False at the end of the bitmap.
  bool Escape(uint8_t code) {
    switch (code) {
      case 0:  // end of line
        x_ = 0;
        ++row_;
        return true;
      case 1:  // end of bitmap
        return false;
      case 2:  // delta
        x_ += bits_.U8(pos_);
        row_ += bits_.U8(pos_ + 1);
        pos_ += 2;
        return true;
      default:
        AbsoluteRun(code);
        return true;
    }
  }

  // count indexes as stored, then padding to a 16-bit boundary.
  void AbsoluteRun(uint8_t count) {
    const size_t bytes = fourBit_ ? (count + 1u) / 2 : count;
    const ByteView run = bits_.Sub(pos_, bytes);
    for (size_t i = 0; i < count; ++i) {
      const uint8_t byte = run.U8(fourBit_ ? i / 2 : i);
      Put(!fourBit_ ? byte : (i % 2 == 0 ? byte >> 4 : byte & 0xFu));
    }
    pos_ += (bytes + 1) & ~size_t{1};
  }

  void Put(uint32_t index) {
    if (x_ < header_.width && row_ < header_.height) {
      const uint32_t colour = index < header_.palette.size() ? header_.palette[index] : 0u;
      image_.Set(static_cast<int32_t>(x_), static_cast<int32_t>(header_.height - 1 - row_), colour);
    }
    ++x_;
  }

  const DibHeader& header_;
  ByteView bits_;
  Image image_;
  bool fourBit_ = false;
  size_t pos_ = 0;
  int64_t x_ = 0;
  int64_t row_ = 0;
};

}  // namespace

Image DecodeDibRle(const DibHeader& header, ByteView bits) { return RleDecoder(header, bits).Run(); }

}  // namespace vorlex::picture
