// RedrawBar: the one painting path of the control.

#include "control/vorlex_impl.h"

namespace vorlex {

void Vorlex::Impl::RedrawBar() {
  if (redraw == VARIANT_FALSE || dontRefreshAfterPropertyPage != VARIANT_FALSE) return;
  const int16_t hRange = CheckedSub(hMaxValue, hMinValue);
  const int16_t vRange = CheckedSub(vMaxValue, vMinValue);
  if (hRange == 0 || vRange == 0) return;
  // The finished surface goes to the window in one copy.
  site.BarPainted();
}

}  // namespace vorlex
