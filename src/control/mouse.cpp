// Mouse input: the hit test of a button release, and the forwarded clicks.

#include "control/vorlex_impl.h"
#include "vorlex/Enums.h"

namespace vorlex {

// Deliberately simpler than the drawing: the unit sizes of the last redraw,
// swapped for the vertical orientations, a fixed 100 for the vertical test,
// inclusive bounds, and the lowest index wins.
int16_t Vorlex::Impl::HitTest(float x, float y) const {
  const bool horizontal = orientation == vxFromLeft || orientation == vxFromRight;
  const float sx = horizontal ? hUnitSize : vUnitSize;
  const float sy = horizontal ? vUnitSize : hUnitSize;
  for (int32_t i = 1; i <= blockCount; ++i) {
    const BlockDefinition& b = Element(i);
    if (!IsCanonicalTrue(b.Clickable) || !IsCanonicalTrue(b.Visible)) continue;
    const float left = static_cast<float>(b.BarLeft) * sx;
    const float right = static_cast<float>(b.BarRight) * sx;
    const float top = static_cast<float>(CheckedSub(int16_t{100}, b.BarTop)) * sy;
    const float bottom = static_cast<float>(CheckedSub(int16_t{100}, b.BarBottom)) * sy;
    if (left <= x && x <= right && top <= y && y <= bottom) return NarrowToInteger(i);
  }
  return -1;
}

void Vorlex::UserControl_MouseUp(int16_t, int16_t, float X, float Y) {
  int16_t hit = d->HitTest(X, Y);
  d->site.Events().BlockClicked(hit);
}

// Errors of the host's handlers are not passed back.
void Vorlex::UserControl_Click() {
  try {
    d->site.Events().Click();
  } catch (...) {
  }
}

void Vorlex::UserControl_DblClick() {
  try {
    d->site.Events().DblClick();
  } catch (...) {
  }
}

}  // namespace vorlex
