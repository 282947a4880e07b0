#pragma once
// A read-only window on a picture's bytes. Every read is checked: a read past
// the end rejects the picture, so no decoder reads out of bounds.

#include <cstddef>
#include <cstdint>

#include "picture/picture_error.h"

namespace vorlex::picture {

class ByteView {
 public:
  ByteView() = default;
  ByteView(const uint8_t* data, size_t size) : data_(size != 0 ? data : nullptr), size_(data_ != nullptr ? size : 0) {}

  const uint8_t* data() const { return data_; }
  size_t size() const { return size_; }
  bool Has(size_t offset, size_t count) const { return offset <= size_ && count <= size_ - offset; }

  // count bytes from offset.
  ByteView Sub(size_t offset, size_t count) const {
    Require(Has(offset, count));
    return ByteView(data_ + offset, count);
  }
  // Everything from offset on.
  ByteView From(size_t offset) const {
    Require(offset <= size_);
    return ByteView(data_ + offset, size_ - offset);
  }

  uint8_t U8(size_t offset) const {
    Require(Has(offset, 1));
    return data_[offset];
  }
  // Little-endian.
  uint16_t U16(size_t offset) const {
    Require(Has(offset, 2));
    return static_cast<uint16_t>(data_[offset] | (data_[offset + 1] << 8));
  }
  uint32_t U32(size_t offset) const {
    Require(Has(offset, 4));
    return static_cast<uint32_t>(data_[offset]) | (static_cast<uint32_t>(data_[offset + 1]) << 8) |
           (static_cast<uint32_t>(data_[offset + 2]) << 16) | (static_cast<uint32_t>(data_[offset + 3]) << 24);
  }
  int32_t I32(size_t offset) const { return static_cast<int32_t>(U32(offset)); }

 private:
  const uint8_t* data_ = nullptr;
  size_t size_ = 0;
};

}  // namespace vorlex::picture
