#include "platform/soft/text/text_run.h"

#include <algorithm>
#include <limits>

#include "platform/soft/text/polygon_fill.h"
#include "platform/soft/text/run_layout.h"
#include "platform/soft/text/text_ink.h"

namespace vorlex::gdi::soft::text {
namespace {

std::vector<int32_t> Widths(RealizedFont& font, std::u16string_view text) {
  std::vector<int32_t> widths;
  widths.reserve(text.size());
  for (char16_t c : text) widths.push_back(font.CharWidth(c));
  return widths;
}

// The cell behind an opaque run: from the baseline origin, ascent up and
// descent down, as long as the run's horizontal advance.
void PaintCell(const Surface& surface, const RunLayout& run, const TextMetrics& m, const RunStyle& style) {
  Box cell{run.origin.x, int64_t{run.origin.y} - m.ascent, int64_t{run.origin.x} + run.extent.x,
           int64_t{run.origin.y} + m.descent};
  if (style.clip) cell = Intersect(cell, *style.clip);
  if (!cell.Empty()) PaintBox(surface, cell, SolidPaint{PixelOf(style.background)});
}

// The inked pixels of a glyph image whose pen position is `pen`.
void PaintGlyph(const Surface& surface, const GlyphImage& glyph, POINT pen, const Box& clip, const TextInk& ink) {
  const int64_t left = int64_t{pen.x} + glyph.left;
  const int64_t top = int64_t{pen.y} - glyph.top;
  const Box visible = Intersect(Box{left, top, left + glyph.width, top + glyph.height}, clip);
  for (int64_t y = visible.top; y < visible.bottom; ++y) {
    for (int64_t x = visible.left; x < visible.right; ++x) {
      const uint8_t level = glyph.Level(static_cast<int32_t>(x - left), static_cast<int32_t>(y - top));
      if (level > 1) surface.At(x, y) = ink.Over(surface.At(x, y), level);
    }
  }
}

void PaintLine(const Surface& surface, const RunLayout& run, Direction d, Line line, const Box& clip, uint32_t pixel) {
  const std::array<POINT, 4> corners = LineCorners(run, d, line.position, line.thickness);
  FillPolygon(surface, corners, clip, pixel);
}

}  // namespace

SIZE MeasureRun(RealizedFont& font, std::u16string_view text) {
  if (text.empty()) return {0, 0};
  int64_t width = 0;
  for (char16_t c : text) width += font.CharWidth(c);
  const int64_t clamped = std::min<int64_t>(width, std::numeric_limits<int32_t>::max());
  return {static_cast<int32_t>(clamped), font.Metrics().Height()};
}

void DrawRun(const Surface& surface, RealizedFont& font, POINT at, const RunStyle& style, std::u16string_view text,
             const std::vector<int32_t>& advances) {
  if (text.empty() || surface.Empty()) return;
  const TextMetrics& metrics = font.Metrics();
  const Direction d = DirectionOf(font.Escapement());
  const bool stepped = !advances.empty() || font.Escapement() != 0;
  const RunLayout run = LayOutRun(at, metrics.ascent, d, advances.empty() ? Widths(font, text) : advances, stepped);
  const Box clip = style.clip ? Intersect(*style.clip, BoundsOf(surface)) : BoundsOf(surface);
  const TextInk ink(style.textColor);
  if (style.opaque) PaintCell(surface, run, metrics, style);
  POINT pen = run.origin;
  for (size_t i = 0; i < text.size(); ++i) {
    const GlyphImage* glyph = font.Glyph(text[i]);
    if (glyph == nullptr) continue;
    PaintGlyph(surface, *glyph, pen, clip, ink);
    const POINT step = stepped ? run.steps[i] : POINT{glyph->advanceX, glyph->advanceY};
    pen = {pen.x + step.x, pen.y + step.y};
  }
  if (style.underline) PaintLine(surface, run, d, UnderlineOf(metrics), clip, ink.pixel());
  if (style.strikeout) PaintLine(surface, run, d, StrikeoutOf(metrics), clip, ink.pixel());
}

}  // namespace vorlex::gdi::soft::text
