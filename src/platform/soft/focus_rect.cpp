// DrawFocusRect: inverts a dotted frame; drawing it twice restores the pixels.

#include <algorithm>
#include <cstdint>

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {
namespace {

// The frame is the closed path around the rectangle's edge pixels, each side
// up to but not including its end, drawn with every other pixel: pixel (x, y)
// is on when x + y has the parity of (right - 1) + top. A pixel the path passes
// twice (a frame one pixel wide or high) is inverted twice, i.e. not at all.
class DottedInvert {
 public:
  explicit DottedInvert(const soft::Box& box) : parity_((box.right - 1 + box.top) & 1) {}
  void operator()(int64_t x, int64_t y, uint32_t& pixel) const {
    if (((x + y) & 1) == parity_) soft::InvertPaint{}(x, y, pixel);
  }

 private:
  int64_t parity_;
};

void InvertFrame(const soft::Surface& surface, const soft::Box& box) {
  const DottedInvert paint(box);
  const int64_t right = box.right - 1;
  const int64_t bottom = box.bottom - 1;
  if (box.Width() == 1 || box.Height() == 1) {
    // Out and back along one line: only the two ends are passed once.
    if (box.Width() == 1 && box.Height() == 1) return;
    soft::PaintPixel(surface, box.left, box.top, paint);
    soft::PaintPixel(surface, right, bottom, paint);
    return;
  }
  soft::PaintSpan(surface, box.top, box.left, box.right, paint);
  soft::PaintSpan(surface, bottom, box.left, box.right, paint);
  const int64_t firstRow = std::max(box.top + 1, int64_t{0});
  const int64_t endRow = std::min(bottom, surface.height);
  for (int64_t y = firstRow; y < endRow; ++y) {
    soft::PaintPixel(surface, box.left, y, paint);
    soft::PaintPixel(surface, right, y, paint);
  }
}

}  // namespace

BOOL DrawFocusRect(HDC dc, const RECT* rect) {
  const auto lock = soft::LockObjects();
  const auto target = soft::FindTarget(dc);
  if (!target || rect == nullptr) return soft::kFalse;
  const soft::Box box = soft::OrderedBox(rect->left, rect->top, rect->right, rect->bottom);
  if (!box.Empty() && !target->surface.Empty()) InvertFrame(target->surface, box);
  return soft::kTrue;
}

}  // namespace vorlex::gdi
