#pragma once
// The picture object: a type, a handle and a size; shared by reference.

#include <cstdint>
#include <memory>

#include "vorlex/Object.h"

namespace vorlex {

// Picture types as the platform numbers them.
enum PictureType : int16_t {
  kPicTypeNone = 0,
  kPicTypeBitmap = 1,
  kPicTypeMetafile = 2,
  kPicTypeIcon = 3,
  kPicTypeEnhMetafile = 4,
};

class Picture : public Object {
 public:
  virtual int16_t Type() const = 0;
  // The picture's handle as automation sees it (32-bit); 0 for an empty picture.
  virtual uint32_t Handle() const = 0;
  // Size in pixels.
  virtual int32_t PixelWidth() const = 0;
  virtual int32_t PixelHeight() const = 0;
};

using PicturePtr = std::shared_ptr<Picture>;

// The picture Basic's LoadPicture("") gives: type none, handle 0, no size.
PicturePtr EmptyPicture();

}  // namespace vorlex
