#include "reference_gradient.h"

#include "surface/drawing_target.h"
#include "surface/mod_gradient.h"

namespace vorlex::activex::test {

namespace {
class Box final : public DrawingTarget {
 public:
  Box(uintptr_t dc, int width, int height) : dc_(dc), width_(width), height_(height) {}
  gdi::HDC hDC() const override { return reinterpret_cast<gdi::HDC>(dc_); }
  float ScaleLeft() const override { return 0; }
  float ScaleTop() const override { return 0; }
  float ScaleWidth() const override { return static_cast<float>(width_); }
  float ScaleHeight() const override { return static_cast<float>(height_); }

 private:
  uintptr_t dc_;
  int width_;
  int height_;
};
}  // namespace

void PaintReferenceGradient(uintptr_t hdc, int width, int height, int16_t style, int16_t granularity, uint32_t color,
                            uint32_t colorEnd) {
  const Box box(hdc, width, height);
  modGradient::ReadDisplayDepth(box);
  OLE_COLOR start = color;
  OLE_COLOR end = colorEnd;
  modGradient::PaintObjectGradient(box, style, granularity, start, end);
}

}  // namespace vorlex::activex::test
