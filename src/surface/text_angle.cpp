#include "surface/text_angle.h"

#include <cmath>

#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {
// Deliberately this approximation of pi: the angles come out as 45.0000383...
// rather than 45 on a square.
constexpr double kPi = 3.14159;
}  // namespace

float TextAngleFor(int32_t autoAngle, int16_t angle, const Area& a) {
  if (autoAngle == vxNoneAuto) return angle;
  const int32_t width = CheckedSub(a.r, a.l);
  if ((autoAngle != vxUp && autoAngle != vxDown) || width == 0) return 0;
  const double rising = std::atan(static_cast<double>(CheckedSub(a.b, a.t)) / width) * 180 / kPi;
  return static_cast<float>(autoAngle == vxUp ? rising : 360 - rising);
}

}  // namespace vorlex
