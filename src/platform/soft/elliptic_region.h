#pragma once
// The elliptic region of a box of width x height pixels as one span per row,
// symmetric about the box's centre: row k covers the offsets
// [First(k), width - 1 - First(k)] from the box's left edge.
//
// The region is traced with an integer midpoint walk over the ellipse through
// the centres of the box's edge pixels (diameters width - 1 and height - 1),
// from the middle row outwards: the walk moves inwards along x while its error
// says so and, at each step outwards along y, the new row starts at the current
// x; a row whose span would start past the centre is empty, and so is a row
// the walk has not reached when x passes the centre (the ends of a narrow
// ellipse). Boxes too large to trace use the real ellipse through the same
// points.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

class EllipticRegion {
 public:
  // width and height are at least 1. Every row can be asked about.
  EllipticRegion(int64_t width, int64_t height);
  // Only rows [firstRow, endRow) and their neighbours are asked about, so the
  // walk stops once it has passed them.
  EllipticRegion(int64_t width, int64_t height, int64_t firstRow, int64_t endRow);
  EllipticRegion(const EllipticRegion&) = delete;
  EllipticRegion& operator=(const EllipticRegion&) = delete;

  // The first offset of row k (0 = the box's top row); nullopt when the row is
  // empty or outside the box.
  std::optional<int64_t> First(int64_t row) const;
  // The outline pixels of row k's left half, [First(k), OutlineEnd(k)]: those
  // with a row above or below that does not cover them. Mirrored on the right.
  int64_t OutlineEnd(int64_t row) const;

  int64_t Width() const { return width_; }
  int64_t Height() const { return height_; }

 private:
  // The lower half's rows from the middle down, one value per row (-1 marks an
  // empty row); small regions keep them inside the object.
  class Rows {
   public:
    void Assign(size_t count, int32_t value);
    size_t Size() const { return size_; }
    int32_t* Data() { return size_ <= kInline ? inline_.data() : heap_.data(); }
    const int32_t* Data() const { return size_ <= kInline ? inline_.data() : heap_.data(); }

   private:
    static constexpr size_t kInline = 128;
    std::array<int32_t, kInline> inline_;
    std::vector<int32_t> heap_;
    size_t size_ = 0;
  };

  void Trace(int64_t rowCount);
  // How many lower-half rows answer for rows [firstRow - 1, endRow].
  int64_t LowerRowsFor(int64_t firstRow, int64_t endRow) const;
  int64_t LowerIndex(int64_t row) const;
  std::optional<int64_t> Computed(int64_t row) const;

  int64_t width_;
  int64_t height_;
  bool traced_ = false;
  Rows lowerHalf_;
};

// Rows [first, end) of a box `height` rows high whose top row is at y = top:
// those that lie on the surface (none when first >= end).
struct BoxRows {
  int64_t first;
  int64_t end;
};
inline BoxRows RowsOnSurface(const Surface& surface, int64_t top, int64_t height) {
  return {std::max<int64_t>(0, -top), std::min(height, surface.height - top)};
}

// Paints the region of the box whose left-top corner is (left, top), the rows
// on the surface only.
template <class Paint>
void PaintRegion(const Surface& surface, const EllipticRegion& region, int64_t left, int64_t top, const Paint& paint) {
  const auto [firstRow, endRow] = RowsOnSurface(surface, top, region.Height());
  for (int64_t row = firstRow; row < endRow; ++row) {
    const std::optional<int64_t> first = region.First(row);
    if (first) PaintSpan(surface, top + row, left + *first, left + region.Width() - *first, paint);
  }
}

}  // namespace vorlex::gdi::soft
