#include "platform/soft/elliptic_region.h"

#include <algorithm>
#include <cmath>

namespace vorlex::gdi::soft {
namespace {

// Up to this size the walk's error terms stay far inside 64 bits and its cost
// (one step per row and column) stays small.
constexpr int64_t kTraceLimit = int64_t{1} << 16;

}  // namespace

void EllipticRegion::Rows::Assign(size_t count, int32_t value) {
  size_ = count;
  if (count > kInline) heap_.assign(count, value);
  std::fill_n(Data(), count, value);
}

EllipticRegion::EllipticRegion(int64_t width, int64_t height) : width_(width), height_(height) {
  if (width_ <= kTraceLimit && height_ <= kTraceLimit) Trace(height_ - height_ / 2);
}

EllipticRegion::EllipticRegion(int64_t width, int64_t height, int64_t firstRow, int64_t endRow)
    : width_(width), height_(height) {
  if (width_ <= kTraceLimit && height_ <= kTraceLimit) Trace(LowerRowsFor(firstRow, endRow));
}

int64_t EllipticRegion::LowerIndex(int64_t row) const {
  const int64_t middle = height_ / 2;  // the lower middle row
  return (row >= middle ? row : height_ - 1 - row) - middle;
}

int64_t EllipticRegion::LowerRowsFor(int64_t firstRow, int64_t endRow) const {
  // The lower index falls towards the middle row and rises away from it, so
  // its largest value over a range of rows is at one of the range's ends.
  const int64_t top = std::clamp<int64_t>(firstRow - 1, 0, height_ - 1);
  const int64_t bottom = std::clamp<int64_t>(endRow, 0, height_ - 1);
  return std::max(LowerIndex(top), LowerIndex(bottom)) + 1;
}

void EllipticRegion::Trace(int64_t rowCount) {
  traced_ = true;
  const int64_t a = width_ - 1;
  const int64_t b = height_ - 1;
  const int64_t oddB = b & 1;
  lowerHalf_.Assign(static_cast<size_t>(rowCount), -1);
  int32_t* lowerHalf = lowerHalf_.Data();
  lowerHalf[0] = 0;
  // The walk's integer error term and how it changes with each step in x and y.
  const int64_t stepX = 8 * b * b;
  const int64_t stepY = 8 * a * a;
  int64_t errorX = 4 * b * b * (1 - a);
  int64_t errorY = 4 * a * a * (1 + oddB);
  int64_t error = errorX + errorY + a * a * oddB;
  int64_t x = 0;
  int64_t row = 0;
  // Every step moves x or the row; the bound only guards against a walk that
  // would stall. The walk ends once the last row asked for has its value.
  for (int64_t steps = width_ + height_ + 2; x <= width_ / 2 && steps > 0 && row + 1 < rowCount; --steps) {
    const int64_t twice = 2 * error;
    if (twice >= errorX) {
      ++x;
      errorX += stepX;
      error += errorX;
    }
    if (twice <= errorY) {
      ++row;
      errorY += stepY;
      error += errorY;
      lowerHalf[row] = static_cast<int32_t>(x);
    }
  }
}

std::optional<int64_t> EllipticRegion::Computed(int64_t row) const {
  // Semi-axes through the edge pixels' centres, widened by half a pixel.
  const double radiusX = static_cast<double>(width_ - 1) / 2.0;
  const double radiusY = static_cast<double>(height_ - 1) / 2.0;
  const double dy = (static_cast<double>(row) - radiusY) / (radiusY + 0.5);
  const double half = (radiusX + 0.5) * std::sqrt(std::max(0.0, 1.0 - dy * dy));
  const double first = std::ceil(radiusX - half);
  if (!(first >= 0.0)) return 0;
  if (first > radiusX) return std::nullopt;
  return static_cast<int64_t>(first);
}

std::optional<int64_t> EllipticRegion::First(int64_t row) const {
  if (row < 0 || row >= height_) return std::nullopt;
  std::optional<int64_t> first;
  if (traced_) {
    // The upper half mirrors the lower one about the box's centre; rows past
    // those traced were not asked for.
    const auto lower = static_cast<size_t>(LowerIndex(row));
    const int64_t value = lower < lowerHalf_.Size() ? lowerHalf_.Data()[lower] : -1;
    if (value >= 0) first = value;
  } else {
    first = Computed(row);
  }
  if (first && *first > width_ - 1 - *first) return std::nullopt;
  return first;
}

int64_t EllipticRegion::OutlineEnd(int64_t row) const {
  const int64_t first = First(row).value_or(0);
  const int64_t last = width_ - 1 - first;
  const std::optional<int64_t> above = First(row - 1);
  const std::optional<int64_t> below = First(row + 1);
  if (!above || !below) return last;  // an empty neighbour leaves the whole row on the edge
  return std::min(last, std::max(first, std::max(*above, *below) - 1));
}

}  // namespace vorlex::gdi::soft
