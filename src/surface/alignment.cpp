#include "surface/alignment.h"

#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {
// 0 centre, 1 near edge (left or top), 2 far edge (right or bottom).
int32_t Along(int32_t near, int32_t far, int32_t place, int32_t offset, int32_t size) {
  switch (place) {
    case 0:
      return CheckedAdd(near, CheckedSub(CheckedSub(far, near), size) / 2);
    case 1:
      return CheckedAdd(near, offset);
    default:
      return CheckedSub(CheckedSub(far, offset), size);
  }
}
}  // namespace

gdi::POINT AlignIn(const Area& a, int32_t alignment, int32_t offset, int32_t width, int32_t height) {
  if (alignment < vxCenterCenter || alignment > vxBottomRight) return {0, 0};
  // Columns: 0, 3, 6 centre; 1, 4, 7 left; 2, 5, 8 right. Rows: 0-2 centre, 3-5 top, 6-8 bottom.
  return {Along(a.l, a.r, alignment % 3, offset, width), Along(a.t, a.b, alignment / 3, offset, height)};
}

}  // namespace vorlex
