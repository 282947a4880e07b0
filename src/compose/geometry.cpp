#include "compose/geometry.h"

#include <cmath>

#include "control/block_definition.h"
#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"
#include "vorlex/Variant.h"

namespace vorlex {

int16_t EffectiveBorderWidth(int32_t borderStyle, int16_t borderWidth) {
  return borderStyle >= vxEtched && borderWidth >= 1 ? int16_t{1} : borderWidth;
}

void ComputeUnitSizes(Layout& layout) {
  layout.hUnitSize = static_cast<float>((layout.scaleWidth - 2.0 * layout.border) / layout.hRange);
  layout.vUnitSize = static_cast<float>((layout.scaleHeight - 2.0 * layout.border) / layout.vRange);
}

std::string PercentageText(double value) { return FormatNumber(static_cast<float>(IntFloor(value))); }

BlockScale UpdatePercentages(BlockDefinition& block, const Layout& layout) {
  const double width = std::abs(static_cast<double>(block.BarLeft) - block.BarRight);
  const double height = std::abs(static_cast<double>(block.BarTop) - block.BarBottom);
  if (IsCanonicalTrue(block.AutoSize)) {
    block.HPercentage = PercentageText(width / std::abs(static_cast<double>(layout.hRange)) * 100);
    block.VPercentage = PercentageText(height / std::abs(static_cast<double>(layout.vRange)) * 100);
    return {layout.hUnitSize, layout.vUnitSize};
  }
  block.HPercentage = PercentageText(width / layout.scaleWidth * 100);
  block.VPercentage = PercentageText(height / layout.scaleHeight * 100);
  return {1.0f, 1.0f};
}

bool BlockRectangle(const BlockDefinition& b, const Layout& layout, const BlockScale& s, gdi::RECT& out) {
  const double W = layout.scaleWidth;
  const double H = layout.scaleHeight;
  const double B = layout.border;
  auto along = [](int16_t value, float scale) { return static_cast<double>(value) * scale; };
  double l, r, t, bottom;
  switch (layout.orientation) {
    case vxFromLeft:
      l = along(b.BarLeft, s.h) + B;
      r = along(b.BarRight, s.h) + B;
      t = (H - B) - along(b.BarTop, s.v);
      bottom = (H - B) - along(b.BarBottom, s.v);
      break;
    case vxFromRight:
      l = (W - B) - along(b.BarRight, s.h);
      r = (W - B) - along(b.BarLeft, s.h);
      t = (H - B) - along(b.BarTop, s.v);
      bottom = (H - B) - along(b.BarBottom, s.v);
      break;
    case vxFromTop:
      l = (W - B) - along(b.BarTop, s.h);
      r = (W - B) - along(b.BarBottom, s.h);
      t = along(b.BarLeft, s.v) + B;
      bottom = along(b.BarRight, s.v) + B;
      break;
    case vxFromBottom:
      l = (W - B) - along(b.BarTop, s.h);
      r = (W - B) - along(b.BarBottom, s.h);
      t = (H - B) - along(b.BarRight, s.v);
      bottom = (H - B) - along(b.BarLeft, s.v);
      break;
    default:
      return false;
  }
  out = {ToLong(l), ToLong(t), ToLong(r), ToLong(bottom)};
  return true;
}

}  // namespace vorlex
