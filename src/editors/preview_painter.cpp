#include "editors/preview_painter.h"

#include "surface/mod_gradient.h"

namespace vorlex::editors {

namespace {
class PreviewBox final : public DrawingTarget {
 public:
  explicit PreviewBox(const PreviewTarget& target) : target_(target) {}
  gdi::HDC hDC() const override { return reinterpret_cast<gdi::HDC>(target_.hdc); }
  float ScaleLeft() const override { return 0; }
  float ScaleTop() const override { return 0; }
  float ScaleWidth() const override { return target_.scaleWidth; }
  float ScaleHeight() const override { return target_.scaleHeight; }

 private:
  PreviewTarget target_;
};
}  // namespace

void PaintGradientPreview(PageView& view, std::string_view box, int16_t style, int16_t granularity, OLE_COLOR color,
                          OLE_COLOR colorEnd) {
  const PreviewTarget target = view.BeginPreview(box);
  if (target.hdc == 0) return;
  const PreviewBox drawable(target);
  modGradient::ReadDisplayDepth(drawable);
  modGradient::PaintObjectGradient(drawable, style, granularity, color, colorEnd);
  view.EndPreview(box);
}

int16_t PreviewDepth(PageView& view, std::string_view box) {
  const PreviewTarget target = view.BeginPreview(box);
  if (target.hdc == 0) return 0;
  const int16_t depth = modGradient::ReadDisplayDepth(PreviewBox(target));
  view.EndPreview(box);
  return depth;
}

}  // namespace vorlex::editors
