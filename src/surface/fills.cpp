// FillRectangle, FillEllipse and the rivets.

#include "surface/fill_shape.h"
#include "surface/gdi_object.h"
#include "surface/gradient.h"
#include "surface/offscreen_dc.h"
#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {
void FillSolid(gdi::HDC dc, int32_t left, int32_t top, int32_t right, int32_t bottom, OLE_COLOR color) {
  GdiObject<gdi::HBRUSH> brush(gdi::CreateSolidBrush(color));
  if (!brush) return;
  const gdi::RECT rect{left, top, right, bottom};
  gdi::FillRect(dc, &rect, brush.get());
}
}  // namespace

void OffScreenDC::FillRectangle() {
  GdiObject<gdi::HBRUSH> brush(CreateFillBrush(BrushStyle, BrushColor, BackgroundColor));
  if (!brush) return;
  {
    BackgroundMode opaque(memoryDC_, gdi::OPAQUE);
    gdi::SetBkColor(memoryDC_, BackgroundColor);
    // A gradient replaces the solid or hatched fill.
    if (GradientStyle != vxNoneGradient) {
      PaintGradient();
    } else {
      const gdi::RECT rect = Rect();
      gdi::FillRect(memoryDC_, &rect, brush.get());
    }
    if (RivetsStyle != vxNoneRivets) DrawRivets();
  }
}

void OffScreenDC::PaintGradient() {
  GradientJob job;
  job.dc = memoryDC_;
  // The gradient stays inside a border of BorderWidth, drawn or not.
  job.left = CheckedAdd(Left, static_cast<int32_t>(BorderWidth));
  job.top = CheckedAdd(Top, static_cast<int32_t>(BorderWidth));
  job.right = CheckedSub(Right, static_cast<int32_t>(BorderWidth));
  job.bottom = CheckedSub(Bottom, static_cast<int32_t>(BorderWidth));
  job.style = GradientStyle;
  job.granularity = GradientGranularity;
  job.levels = depth_.levels;
  job.color = GradientColor;
  job.colorEnd = GradientColorEnd;
  vorlex::PaintGradient(job);
}

Area OffScreenDC::ClearOfRivets() const {
  const int32_t inset = RivetsStyle != vxNoneRivets ? 7 : 0;
  return {CheckedAdd(Left, inset), CheckedAdd(Top, inset), CheckedSub(Right, inset), CheckedSub(Bottom, inset)};
}

void OffScreenDC::DrawRivets() {
  const int32_t i = CheckedAdd(BorderWidth, int16_t{7});
  DrawRivet(CheckedAdd(Left, i), CheckedAdd(Top, i));
  DrawRivet(CheckedSub(Right, i), CheckedAdd(Top, i));
  DrawRivet(CheckedAdd(Left, i), CheckedSub(Bottom, i));
  DrawRivet(CheckedSub(Right, i), CheckedSub(Bottom, i));
  if (RivetsStyle < vxRaisedRivetsExt) return;
  // The middles deliberately add BorderWidth to the centre.
  const int32_t mx = ToLong(CheckedAdd(Left, static_cast<int32_t>(BorderWidth)) +
                            static_cast<double>(static_cast<int64_t>(Right) - Left) / 2);
  const int32_t my = ToLong(CheckedAdd(Top, static_cast<int32_t>(BorderWidth)) +
                            static_cast<double>(static_cast<int64_t>(Bottom) - Top) / 2);
  DrawRivet(mx, CheckedAdd(Top, i));
  DrawRivet(CheckedSub(Right, i), my);
  DrawRivet(mx, CheckedSub(Bottom, i));
  DrawRivet(CheckedAdd(Left, i), my);
}

// A 3 x 3 stud: the lower right square, the upper left square over it, then
// the centre pixel.
void OffScreenDC::DrawRivet(int32_t x, int32_t y) {
  BackgroundMode opaque(memoryDC_, gdi::OPAQUE);
  const bool raised = RivetsStyle == vxRaisedRivets || RivetsStyle == vxRaisedRivetsExt;
  FillSolid(memoryDC_, x, y, CheckedAdd(x, 2), CheckedAdd(y, 2), raised ? kDarkGrey : kWhite);
  FillSolid(memoryDC_, CheckedSub(x, 1), CheckedSub(y, 1), CheckedAdd(x, 1), CheckedAdd(y, 1),
            raised ? kWhite : kDarkGrey);
  FillSolid(memoryDC_, x, y, CheckedAdd(x, 1), CheckedAdd(y, 1), kLightGrey);
}

// No gradient and no rivets: an ellipse with its outline in BackgroundColor.
void OffScreenDC::FillEllipse() { FillShape(memoryDC_, true, Rect(), BrushStyle, BrushColor, BackgroundColor, true); }

void OffScreenDC::DrawFocusRect() {
  const gdi::RECT rect = Rect();
  gdi::DrawFocusRect(memoryDC_, &rect);
}

}  // namespace vorlex
