#include "platform/soft/brush_spans.h"

#include <algorithm>
#include <cstring>

#include "platform/soft/brush_paint.h"
#include "platform/soft/spans.h"

namespace vorlex::gdi::soft {
namespace {

constexpr size_t kPeriod = 8;
constexpr uint8_t kAllLit = 0xFF;

// `count` pixels from `first` set to a pattern of period 8 whose first eight
// entries start at `pattern`.
void CopyPattern(uint32_t* first, size_t count, const uint32_t* pattern) {
  std::array<uint32_t, kPeriod> chunk;
  std::memcpy(chunk.data(), pattern, sizeof chunk);
  size_t i = 0;
  for (; i + kPeriod <= count; i += kPeriod) std::memcpy(first + i, chunk.data(), sizeof chunk);
  std::memcpy(first + i, chunk.data(), (count - i) * sizeof(uint32_t));
}

// Every eighth pixel from `start` set to `pixel`.
void FillEveryEighth(uint32_t* first, size_t count, size_t start, uint32_t pixel) {
  for (size_t i = start; i < count; i += kPeriod) first[i] = pixel;
}

}  // namespace

BrushSpans::BrushSpans(const Brush& brush, const DeviceContext& dc)
    : foreground_(PixelOf(brush.color)),
      hatched_(brush.Hatched()),
      opaque_(dc.bkMode == OPAQUE),
      originX_(dc.brushOrigin.x),
      originY_(dc.brushOrigin.y) {
  if (hatched_) PrepareHatch(brush.hatch, PixelOf(dc.bkColor));
}

void BrushSpans::PrepareHatch(int style, uint32_t background) {
  for (size_t row = 0; row < rows_.size(); ++row) {
    HatchRow& out = rows_[row];
    out.lit = kHatchRows[static_cast<size_t>(style)][row];
    for (size_t column = 0; column < out.pattern.size(); ++column) {
      const bool lit = HatchLit(style, static_cast<int64_t>(column), static_cast<int64_t>(row));
      out.pattern[column] = lit ? foreground_ : background;
    }
  }
}

void BrushSpans::FillHatchRun(uint32_t* first, size_t count, int64_t x, int64_t y) const {
  const HatchRow& row = rows_[Mod8(y - originY_)];
  const size_t phase = Mod8(x - originX_);
  if (opaque_) {
    CopyPattern(first, count, &row.pattern[phase]);
  } else if (row.lit == kAllLit) {
    FillPixels(first, count, foreground_);
  } else {
    // Only the lit columns, each every eighth pixel: pixel i is column
    // (phase + i) modulo 8.
    for (size_t column = 0; column < kPeriod; ++column) {
      if ((row.lit & (0x80u >> column)) != 0) {
        FillEveryEighth(first, count, (column + kPeriod - phase) % kPeriod, foreground_);
      }
    }
  }
}

void BrushSpans::FillSpan(const Surface& surface, int64_t y, int64_t x0, int64_t x1) const {
  const Run run = ClipRun(surface, y, x0, x1);
  if (run.count == 0) return;
  if (hatched_) {
    FillHatchRun(run.first, run.count, run.x, y);
  } else {
    FillPixels(run.first, run.count, foreground_);
  }
}

void BrushSpans::FillBox(const Surface& surface, const Box& box) const {
  if (!hatched_) {
    FillSolidBox(surface, box, foreground_);
    return;
  }
  const Box visible = Intersect(box, BoundsOf(surface));
  for (int64_t y = visible.top; y < visible.bottom; ++y) FillSpan(surface, y, visible.left, visible.right);
}

void FillBox(const Surface& surface, const Box& box, const Brush& brush, const DeviceContext& dc) {
  BrushSpans(brush, dc).FillBox(surface, box);
}

}  // namespace vorlex::gdi::soft
