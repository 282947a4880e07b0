#pragma once
// Measuring and drawing a run of text with a realized font, as
// GetTextExtentPoint32 and ExtTextOut (default alignment) do.

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/gdi.h"
#include "platform/soft/box.h"
#include "platform/soft/surface.h"
#include "platform/soft/text/realized_font.h"

namespace vorlex::gdi::soft::text {

// cx the sum of the characters' widths, cy the cell height (ascent +
// descent), whatever the escapement; an empty run measures 0 x 0.
SIZE MeasureRun(RealizedFont& font, std::u16string_view text);

struct RunStyle {
  COLORREF textColor = RGB(0, 0, 0);
  bool opaque = false;  // background mode OPAQUE: the cell is painted first
  COLORREF background = RGB(255, 255, 255);
  std::optional<Box> clip;  // ETO_CLIPPED's rectangle
  bool underline = false;
  bool strikeout = false;
};

// `advances` one per UTF-16 unit, or empty to use the font's.
void DrawRun(const Surface& surface, RealizedFont& font, POINT at, const RunStyle& style, std::u16string_view text,
             const std::vector<int32_t>& advances);

}  // namespace vorlex::gdi::soft::text
