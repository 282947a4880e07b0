#include "surface/mod_gradient.h"

#include "surface/display_depth.h"
#include "surface/gradient.h"
#include "vorlex/Numeric.h"

namespace vorlex::modGradient {

namespace {
DisplayDepth& ModuleDepth() {
  static DisplayDepth depth;
  return depth;
}
}  // namespace

int16_t ReadDisplayDepth(const DrawingTarget& target) {
  ModuleDepth() = DisplayDepth::Read(target.hDC());
  return NarrowToInteger(ModuleDepth().depth);
}

void PaintObjectGradient(const DrawingTarget& target, int16_t& style, int16_t& granularity, OLE_COLOR& color,
                         OLE_COLOR& colorEnd) {
  GradientJob job;
  job.dc = target.hDC();
  job.left = ToLong(target.ScaleLeft());
  job.top = ToLong(target.ScaleTop());
  job.right = ToLong(target.ScaleWidth());
  job.bottom = ToLong(target.ScaleHeight());
  job.style = style;
  job.granularity = granularity;
  job.levels = ModuleDepth().levels;
  job.color = color;
  job.colorEnd = colorEnd;
  job.outerRectangleSwapsColors = false;
  PaintGradient(job);
}

}  // namespace vorlex::modGradient
