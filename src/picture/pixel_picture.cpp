#include "picture/pixel_picture.h"

#include "picture/composite.h"
#include "platform/gdi.h"

namespace vorlex::picture {

bool PixelPicture::Render(uintptr_t hdc, int32_t x, int32_t y) const {
  const auto dc = reinterpret_cast<gdi::HDC>(hdc);
  gdi::Pixels target;
  if (!gdi::ReadPixels(dc, target)) return false;
  DrawImage(image_, x, y, target);
  return gdi::WritePixels(dc, target);
}

}  // namespace vorlex::picture
