#pragma once
// The handle of a picture the platform's picture loader did not make: on
// Windows a bitmap (a DIB section of the picture's pixels) owned by the
// picture; elsewhere a number no other live picture has. Never 0.

#include <cstdint>

#include "picture/image.h"

namespace vorlex::picture {

class PictureHandle {
 public:
  explicit PictureHandle(const Image& image);
  ~PictureHandle();
  PictureHandle(const PictureHandle&) = delete;
  PictureHandle& operator=(const PictureHandle&) = delete;

  // As automation sees it: GDI handles keep their meaning in their low 32 bits.
  uint32_t Value() const { return static_cast<uint32_t>(value_); }

 private:
  uintptr_t value_ = 0;  // the Windows bitmap, or the number
};

}  // namespace vorlex::picture
