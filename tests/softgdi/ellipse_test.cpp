// Ellipse: footprint x in [l, r-1], y in [t, b-1], symmetric about the centre;
// interior with the brush, one-pixel outline with the pen.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <optional>

#include "platform/soft/elliptic_region.h"
#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

constexpr COLORREF kPen = RGB(255, 0, 0);
constexpr COLORREF kFill = RGB(255, 255, 255);

class SoftGdiEllipses : public LeakChecked {};

Pixels DrawEllipse(int width, int height, int penStyle, RECT box) {
  Canvas canvas(width, height);
  Selected pen(canvas.dc(), CreatePen(penStyle, 1, kPen));
  Selected brush(canvas.dc(), CreateSolidBrush(kFill));
  EXPECT_EQ(Ellipse(canvas.dc(), box.left, box.top, box.right, box.bottom), 1);
  return canvas.Read();
}

TEST_F(SoftGdiEllipses, FiveByFiveFromTheRule) {
  const Pixels pixels = DrawEllipse(7, 7, PS_NULL, {0, 0, 5, 5});
  const std::set<Point> expected =
      PointsWhere(7, 7, [](int x, int y) { return (y == 0 || y == 4) ? (x >= 1 && x <= 3) : (y < 5 && x <= 4); });
  EXPECT_EQ(Changed(pixels), expected);
  EXPECT_EQ(expected.size(), 21u);
  EXPECT_EQ(Changed(DrawEllipse(7, 7, PS_SOLID, {0, 0, 5, 5})), expected) << "the pen draws over the same footprint";
}

// Each row of a shape: one span, or nothing.
std::map<int, std::pair<int, int>> RowSpans(const std::set<Point>& points) {
  std::map<int, std::pair<int, int>> rows;
  for (const Point& p : points) {
    auto [it, added] = rows.try_emplace(p.y, p.x, p.x);
    it->second.first = std::min(it->second.first, p.x);
    it->second.second = std::max(it->second.second, p.x);
  }
  return rows;
}

TEST_F(SoftGdiEllipses, EverySizeStaysInItsBoxSymmetricAndConvex) {
  for (int w = 1; w <= 34; ++w) {
    for (int h = 1; h <= 34; ++h) {
      SCOPED_TRACE(testing::Message() << w << "x" << h);
      const RECT box{2, 3, 2 + w, 3 + h};
      const std::set<Point> shape = Changed(DrawEllipse(w + 4, h + 6, PS_SOLID, box));
      for (const Point& p : shape) {
        ASSERT_TRUE(p.x >= box.left && p.x < box.right && p.y >= box.top && p.y < box.bottom);
        ASSERT_EQ(shape.count({box.left + box.right - 1 - p.x, p.y}), 1u) << "left-right mirror";
        ASSERT_EQ(shape.count({p.x, box.top + box.bottom - 1 - p.y}), 1u) << "top-bottom mirror";
      }
      const auto rows = RowSpans(shape);
      size_t count = 0;
      for (const auto& [y, span] : rows) {
        count += static_cast<size_t>(span.second - span.first + 1);
        if (y + 1 <= (box.top + box.bottom - 1) / 2 && rows.count(y + 1) != 0) {
          ASSERT_GE(rows.at(y).first, rows.at(y + 1).first) << "rows widen towards the middle";
        }
      }
      ASSERT_EQ(count, shape.size()) << "one span per row";
      ASSERT_EQ(shape.empty(), w == 1 && h == 1);
      if (w > 2 && h > 2) {
        ASSERT_EQ(rows.at((box.top + box.bottom - 1) / 2), std::make_pair(box.left, box.right - 1))
            << "the middle row spans the box";
      }
    }
  }
}

TEST_F(SoftGdiEllipses, OutlineIsTheEdgeOfTheFootprintInPenColour) {
  for (RECT box : {RECT{1, 1, 10, 10}, RECT{1, 2, 16, 9}, RECT{2, 1, 7, 15}, RECT{1, 1, 18, 18}}) {
    const Pixels pixels = DrawEllipse(20, 20, PS_SOLID, box);
    const std::set<Point> shape = Changed(pixels);
    for (const Point& p : shape) {
      const bool edge = shape.count({p.x - 1, p.y}) == 0 || shape.count({p.x + 1, p.y}) == 0 ||
                        shape.count({p.x, p.y - 1}) == 0 || shape.count({p.x, p.y + 1}) == 0;
      EXPECT_EQ(pixels.At(p.x, p.y), PixelOf(edge ? kPen : kFill)) << p.x << "," << p.y;
    }
  }
}

TEST_F(SoftGdiEllipses, NullPenPaintsTheSameFootprintWithTheBrush) {
  for (RECT box : {RECT{0, 0, 9, 7}, RECT{3, 1, 17, 19}, RECT{0, 0, 3, 3}, RECT{1, 1, 20, 4}}) {
    const Pixels outlined = DrawEllipse(21, 21, PS_SOLID, box);
    const Pixels filled = DrawEllipse(21, 21, PS_NULL, box);
    EXPECT_EQ(Changed(outlined), Changed(filled));
    EXPECT_EQ(Changed(filled), WithColor(filled, kFill));
  }
}

TEST_F(SoftGdiEllipses, BoxesTwoPixelsThinOrLessAreRectangles) {
  // With a pen: the frame covers the whole box, except a single pixel.
  EXPECT_EQ(Changed(DrawEllipse(8, 8, PS_SOLID, {2, 1, 4, 6})),
            PointsWhere(8, 8, [](int x, int y) { return x >= 2 && x < 4 && y >= 1 && y < 6; }));
  EXPECT_EQ(WithColor(DrawEllipse(8, 8, PS_SOLID, {1, 2, 7, 3}), kPen),
            PointsWhere(8, 8, [](int x, int y) { return y == 2 && x >= 1 && x < 7; }));
  EXPECT_TRUE(Changed(DrawEllipse(8, 8, PS_SOLID, {3, 3, 4, 4})).empty());
  // With a null pen the brush fills one pixel less to the right and below.
  EXPECT_EQ(Changed(DrawEllipse(8, 8, PS_NULL, {2, 1, 4, 6})),
            PointsWhere(8, 8, [](int x, int y) { return x == 2 && y >= 1 && y < 5; }));
}

TEST_F(SoftGdiEllipses, ZeroSizeDrawsNothingAndCornersMayComeInAnyOrder) {
  EXPECT_TRUE(Changed(DrawEllipse(8, 8, PS_SOLID, {4, 1, 4, 7})).empty());
  EXPECT_TRUE(Changed(DrawEllipse(8, 8, PS_SOLID, {1, 5, 7, 5})).empty());
  const std::set<Point> ordered = Changed(DrawEllipse(12, 12, PS_SOLID, {1, 2, 10, 9}));
  EXPECT_EQ(Changed(DrawEllipse(12, 12, PS_SOLID, {10, 9, 1, 2})), ordered);
  EXPECT_EQ(Changed(DrawEllipse(12, 12, PS_SOLID, {10, 2, 1, 9})), ordered);
}

TEST_F(SoftGdiEllipses, TracedAndComputedRegionsAgreeAtTheirBoundary) {
  // The largest traced box and the smallest computed one describe nearly the
  // same shape.
  const vorlex::gdi::soft::EllipticRegion traced(65536, 40000);
  const vorlex::gdi::soft::EllipticRegion computed(65537, 40000);
  for (int64_t row = 0; row < 40000; row += 97) {
    const std::optional<int64_t> a = traced.First(row);
    const std::optional<int64_t> b = computed.First(row);
    ASSERT_TRUE(a.has_value() && b.has_value()) << row;
    EXPECT_LE(std::abs(*a - *b), 2) << row;
  }
}

}  // namespace
}  // namespace softgdi_test
