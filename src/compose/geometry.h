#pragma once
// Block geometry: unit sizes, percentage texts and block rectangles for the
// four orientations.

#include <cstdint>
#include <string>

#include "platform/gdi.h"

namespace vorlex {

struct BlockDefinition;

// The border width the layout uses: etched and bump borders are one pixel.
int16_t EffectiveBorderWidth(int32_t borderStyle, int16_t borderWidth);

// What one redraw lays blocks out with.
struct Layout {
  double scaleWidth = 0;  // the control's client size, single precision
  double scaleHeight = 0;
  int16_t hRange = 0;  // HMaxValue - HMinValue
  int16_t vRange = 0;
  int16_t border = 0;  // EffectiveBorderWidth
  int32_t orientation = 0;
  float hUnitSize = 0;
  float vUnitSize = 0;
};

// Unit sizes: (size - 2 * border) / range, kept in single precision.
void ComputeUnitSizes(Layout& layout);

// Int of a percentage as its text ("45", "0", "100").
std::string PercentageText(double value);

struct BlockScale {
  float h = 1;
  float v = 1;
};
// Writes the block's percentage texts and gives its scale pair.
BlockScale UpdatePercentages(BlockDefinition& block, const Layout& layout);

// The block's rectangle, or nothing for an orientation outside 0..3 (the
// caller keeps the previous rectangle).
bool BlockRectangle(const BlockDefinition& block, const Layout& layout, const BlockScale& scale, gdi::RECT& out);

}  // namespace vorlex
