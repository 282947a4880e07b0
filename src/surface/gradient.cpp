#include "surface/gradient.h"

#include <cmath>
#include <cstdlib>

#include "surface/fill_shape.h"
#include "surface/gdi_object.h"
#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {

struct Channels {
  int32_t red, green, blue;
};

Channels Split(OLE_COLOR c) {
  return {static_cast<int32_t>(c & 0xFF), static_cast<int32_t>((c & 0xFF00) / 256),
          static_cast<int32_t>((c & 0xFF0000) / 65536)};
}

// The last band is start + (end - start) * (steps - 1) / steps: never the end colour.
OLE_COLOR BandColor(const Channels& start, const Channels& end, int16_t steps, int i) {
  auto channel = [&](int32_t s, int32_t e) { return ToLong(static_cast<double>(e - s) / steps * i + s); };
  return static_cast<OLE_COLOR>(channel(start.red, end.red) + 256 * channel(start.green, end.green) +
                                65536 * channel(start.blue, end.blue));
}

gdi::RECT RoundBand(const GradientStripeRequest& r) {
  return {ToLong(r.left), ToLong(r.top), ToLong(r.right), ToLong(r.bottom)};
}

void PaintBand(gdi::HDC dc, int16_t style, const gdi::RECT& band, OLE_COLOR color) {
  if (style == vxInnerCircleGradient || style == vxOuterCircleGradient) {
    FillShape(dc, true, band, vxNoneBrush, 0, color);
  } else if (style == vxInnerRectangleGradient || style == vxOuterRectangleGradient) {
    FillShape(dc, false, band, vxNoneBrush, 0, color);
  } else {
    GdiObject<gdi::HBRUSH> brush(gdi::CreateSolidBrush(color));
    gdi::FillRect(dc, &band, brush.get());
  }
}

// A band moving along one axis: on past its far edge, or back before its near one.
void StepOn(float& nearEdge, float& farEdge, float step) {
  nearEdge = farEdge;
  farEdge = farEdge + step;
}
void StepBack(float& nearEdge, float& farEdge, float step) {
  nearEdge = nearEdge - step;
  farEdge = nearEdge + step;
}

void AdvanceBand(GradientStripeRequest& r) {
  switch (r.style) {
    case vxLeftHGradient:
      StepOn(r.left, r.right, r.stepWidth);
      break;
    case vxRightHGradient:
      StepBack(r.left, r.right, r.stepWidth);
      break;
    case vxTopVGradient:
      StepOn(r.top, r.bottom, r.stepHeight);
      break;
    case vxBottomVGradient:
      StepBack(r.top, r.bottom, r.stepHeight);
      break;
    default:  // rings and nested rectangles shrink
      r.left = r.left + r.stepWidth;
      r.top = r.top + r.stepHeight;
      r.right = r.right - r.stepWidth;
      r.bottom = r.bottom - r.stepHeight;
      break;
  }
}

GradientStripeRequest Band(int16_t style, const GradientJob& job, int16_t steps, float dx, float dy, float l, float t,
                           float r, float b) {
  return {style, job.color, job.colorEnd, steps, dx, dy, l, t, r, b};
}

}  // namespace

int16_t GradientSteps(int16_t levels, int32_t granularity) {
  static constexpr float kDivisors[] = {4.0f, 8.0f, 16.0f, 32.0f};
  if (granularity < vxHigh || granularity > vxVeryLow) return levels;
  const int16_t steps = ToInteger(static_cast<float>(levels) / kDivisors[granularity - 1]);
  return steps == 0 ? levels : steps;
}

void PaintStripes(gdi::HDC dc, const GradientStripeRequest& request, bool outerRectangleSwapsColors) {
  const bool swap = request.style == vxOuterCircleGradient ||
                    (outerRectangleSwapsColors && request.style == vxOuterRectangleGradient);
  const Channels start = Split(swap ? request.colorEnd : request.color);
  const Channels end = Split(swap ? request.color : request.colorEnd);
  GradientStripeRequest band = request;
  for (int i = 0; i < request.steps; ++i) {
    PaintBand(dc, request.style, RoundBand(band), BandColor(start, end, request.steps, i));
    AdvanceBand(band);
  }
}

void PaintGradient(const GradientJob& job) {
  const int16_t steps = GradientSteps(job.levels, job.granularity);
  const auto L = static_cast<float>(job.left);
  const auto T = static_cast<float>(job.top);
  const auto R = static_cast<float>(job.right);
  const auto B = static_cast<float>(job.bottom);
  const auto W = static_cast<float>(std::abs(static_cast<int64_t>(job.right) - job.left));
  const auto H = static_cast<float>(std::abs(static_cast<int64_t>(job.bottom) - job.top));
  float dx = W / steps;
  float dy = H / steps;
  auto paint = [&](int16_t style, float l, float t, float r, float b) {
    PaintStripes(job.dc, Band(style, job, steps, dx, dy, l, t, r, b), job.outerRectangleSwapsColors);
  };
  switch (job.style) {
    case vxLeftHGradient:
      paint(1, L, T, L + dx, B);
      break;
    case vxRightHGradient:
      paint(2, R - dx, T, R, B);
      break;
    case vxTopVGradient:
      paint(3, L, T, R, T + dy);
      break;
    case vxBottomVGradient:
      paint(4, L, B - dy, R, B);
      break;
    case vxInnerHGradient:
      dx = dx / 2;
      paint(1, L, T, L + dx, B);
      paint(2, R - dx, T, R, B);
      break;
    case vxOuterHGradient:
      // The first band deliberately starts one band left of the centre.
      dx = dx / 2;
      paint(2, R - dx - W / 2, T, R, B);
      paint(1, L + W / 2, T, L + W / 2 + dx, B);
      break;
    case vxInnerVGradient:
      dy = dy / 2;
      paint(3, L, T, R, T + dy);
      paint(4, L, B - dy, R, B);
      break;
    case vxOuterVGradient:
      dy = dy / 2;
      paint(4, L, B - dy - H / 2, R, B);
      paint(3, L, T + H / 2, R, T + H / 2 + dy);
      break;
    case vxInnerCircleGradient:
    case vxOuterCircleGradient: {
      // The rings' box is deliberately not offset by L and T.
      const auto D = static_cast<float>(std::sqrt(static_cast<double>(W * W + H * H)));
      dx = dy = (D / steps) / 2;
      paint(static_cast<int16_t>(job.style), (W - D) / 2, (H - D) / 2, R + (D - W) / 2, B + (D - H) / 2);
      break;
    }
    case vxInnerRectangleGradient:
    case vxOuterRectangleGradient:
      dx = (W / steps) / 2;
      dy = (H / steps) / 2;
      paint(static_cast<int16_t>(job.style), L, T, R, B);
      break;
    default:
      break;
  }
}

}  // namespace vorlex
