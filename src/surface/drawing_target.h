#pragma once
// A drawable of a host: a picture box or form with a context and a pixel
// scale. Gradient previews paint onto one; DrawBitmap copies from one.

#include "platform/gdi.h"

namespace vorlex {

class DrawingTarget {
 public:
  virtual ~DrawingTarget() = default;
  virtual gdi::HDC hDC() const = 0;
  virtual float ScaleLeft() const = 0;
  virtual float ScaleTop() const = 0;
  virtual float ScaleWidth() const = 0;
  virtual float ScaleHeight() const = 0;
};

}  // namespace vorlex
