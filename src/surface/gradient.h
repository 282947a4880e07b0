#pragma once
// The gradient engine: a gradient is painted as solid bands, rings or nested
// rectangles whose colour runs from one colour towards another.

#include <cstdint>

#include "platform/gdi.h"
#include "vorlex/Color.h"

namespace vorlex {

// What PaintGradient hands to PaintStripes: the first band and how it moves.
struct GradientStripeRequest {
  int16_t style = 0;
  OLE_COLOR color = 0;
  OLE_COLOR colorEnd = 0;
  int16_t steps = 0;
  float stepWidth = 0;
  float stepHeight = 0;
  float left = 0;
  float top = 0;
  float right = 0;
  float bottom = 0;
};

// One gradient to paint. The surface and the preview module differ only in
// where these values come from, and in whether style 12 swaps its colours.
struct GradientJob {
  gdi::HDC dc = nullptr;
  int32_t left = 0;
  int32_t top = 0;
  int32_t right = 0;
  int32_t bottom = 0;
  int32_t style = 0;
  int32_t granularity = 0;
  int16_t levels = 0;
  OLE_COLOR color = 0;
  OLE_COLOR colorEnd = 0;
  bool outerRectangleSwapsColors = true;
};

// Bands for a granularity: levels, or levels / 4, 8, 16, 32 rounded; an
// unknown granularity or a result of 0 gives levels.
int16_t GradientSteps(int16_t levels, int32_t granularity);

void PaintGradient(const GradientJob& job);
void PaintStripes(gdi::HDC dc, const GradientStripeRequest& request, bool outerRectangleSwapsColors);

}  // namespace vorlex
