// MoveToEx and LineTo: one-pixel lines by Bresenham with the tie rule and the
// end point excluded; geometric pens with round caps.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "softgdi/soft_canvas.h"

namespace softgdi_test {
namespace {

constexpr COLORREF kInk = RGB(200, 30, 30);

class SoftGdiLines : public LeakChecked {};

std::set<Point> Draw(int width, int height, int penWidth, Point from, Point to) {
  Canvas canvas(width, height);
  Selected pen(canvas.dc(), CreatePen(PS_SOLID, penWidth, kInk));
  MoveToEx(canvas.dc(), from.x, from.y, nullptr);
  EXPECT_EQ(LineTo(canvas.dc(), to.x, to.y), 1);
  const Pixels pixels = canvas.Read();
  EXPECT_EQ(Changed(pixels), WithColor(pixels, kInk));
  return Changed(pixels);
}

// The pixel a line of major length `major` reaches at step i, by exact
// rational rounding with the tie going to the smaller minor coordinate.
int RoundedMinor(int i, int minor, int major, int direction) {
  const int twice = 2 * i * minor;  // offset * 2 * major
  int offset = twice / (2 * major);
  const int remainder = twice % (2 * major);
  if (remainder > major || (remainder == major && direction < 0)) ++offset;
  return offset * direction;
}

std::set<Point> Expected(Point from, Point to) {
  std::set<Point> points;
  const int dx = to.x - from.x;
  const int dy = to.y - from.y;
  const int major = std::max(std::abs(dx), std::abs(dy));
  for (int i = 0; i < major; ++i) {
    if (std::abs(dx) >= std::abs(dy)) {
      points.insert({from.x + (dx < 0 ? -i : i), from.y + RoundedMinor(i, std::abs(dy), major, dy < 0 ? -1 : 1)});
    } else {
      points.insert({from.x + RoundedMinor(i, std::abs(dx), major, dx < 0 ? -1 : 1), from.y + (dy < 0 ? -i : i)});
    }
  }
  return points;
}

TEST_F(SoftGdiLines, ShallowLineFromTheRule) {
  EXPECT_EQ(Draw(8, 8, 1, {0, 0}, {4, 2}), (std::set<Point>{{0, 0}, {1, 0}, {2, 1}, {3, 1}}));
}

TEST_F(SoftGdiLines, EveryDirectionMatchesRoundingWithTiesToTheSmallerCoordinate) {
  const Point centre{10, 10};
  for (int dy = -7; dy <= 7; ++dy) {
    for (int dx = -7; dx <= 7; ++dx) {
      const Point to{centre.x + dx, centre.y + dy};
      EXPECT_EQ(Draw(21, 21, 1, centre, to), Expected(centre, to)) << "to " << dx << "," << dy;
    }
  }
}

TEST_F(SoftGdiLines, TiesGoToTheSmallerCoordinateWhateverTheDirection) {
  // Half-way points at every other step.
  EXPECT_EQ(Draw(8, 8, 1, {4, 2}, {0, 0}), (std::set<Point>{{4, 2}, {3, 1}, {2, 1}, {1, 0}}));
  EXPECT_EQ(Draw(8, 8, 1, {0, 0}, {2, 4}), (std::set<Point>{{0, 0}, {0, 1}, {1, 2}, {1, 3}}));
  EXPECT_EQ(Draw(8, 8, 1, {2, 4}, {0, 0}), (std::set<Point>{{2, 4}, {1, 3}, {1, 2}, {0, 1}}));
  EXPECT_EQ(Draw(8, 8, 1, {0, 2}, {4, 0}), (std::set<Point>{{0, 2}, {1, 1}, {2, 1}, {3, 0}}));
}

TEST_F(SoftGdiLines, WidthZeroAndOneAreTheSame) {
  for (Point to : {Point{9, 3}, Point{1, 8}, Point{0, 0}, Point{9, 9}}) {
    EXPECT_EQ(Draw(10, 10, 0, {4, 5}, to), Draw(10, 10, 1, {4, 5}, to));
  }
}

TEST_F(SoftGdiLines, RightToLeftSpanStartsAtTheStartPoint) {
  EXPECT_EQ(Draw(12, 3, 1, {8, 1}, {3, 1}), PointsWhere(12, 3, [](int x, int y) { return y == 1 && x >= 4 && x < 9; }));
}

TEST_F(SoftGdiLines, LineToMovesTheCurrentPositionToTheEndPoint) {
  Canvas canvas(10, 10);
  Selected pen(canvas.dc(), CreatePen(PS_SOLID, 1, kInk));
  POINT previous{-1, -1};
  EXPECT_EQ(MoveToEx(canvas.dc(), 1, 1, &previous), 1);
  EXPECT_EQ(previous.x, 0) << "a new DC starts at the origin";
  EXPECT_EQ(previous.y, 0);
  LineTo(canvas.dc(), 5, 1);
  LineTo(canvas.dc(), 5, 6);
  MoveToEx(canvas.dc(), 0, 0, &previous);
  EXPECT_EQ(previous.x, 5);
  EXPECT_EQ(previous.y, 6);
  const std::set<Point> expected =
      PointsWhere(10, 10, [](int x, int y) { return (y == 1 && x >= 1 && x < 5) || (x == 5 && y >= 1 && y < 6); });
  EXPECT_EQ(Changed(canvas.Read()), expected) << "each end point is left to the next segment";
}

TEST_F(SoftGdiLines, NullPenDrawsNothingButMoves) {
  Canvas canvas(10, 10);
  Selected pen(canvas.dc(), CreatePen(PS_NULL, 5, kInk));
  EXPECT_EQ(LineTo(canvas.dc(), 9, 9), 1);
  POINT previous{};
  MoveToEx(canvas.dc(), 0, 0, &previous);
  EXPECT_EQ(previous.x, 9);
  EXPECT_TRUE(Changed(canvas.Read()).empty());
}

TEST_F(SoftGdiLines, WidthThreeHorizontalSegmentFromTheRule) {
  const std::set<Point> expected = PointsWhere(30, 20, [](int x, int y) {
    return (y == 10 && (x == 9 || x == 21)) || (x >= 10 && x <= 20 && y >= 9 && y <= 11);
  });
  EXPECT_EQ(Draw(30, 20, 3, {10, 10}, {20, 10}), expected);
  EXPECT_EQ(Draw(30, 20, 3, {20, 10}, {10, 10}), expected) << "direction does not matter";
}

TEST_F(SoftGdiLines, EvenWidthPutsTheExtraRowAboveAndTheExtraColumnLeft) {
  const std::set<Point> horizontal = Draw(30, 20, 4, {10, 10}, {20, 10});
  const std::set<Point> vertical = Draw(20, 30, 4, {10, 10}, {10, 20});
  for (int x = 10; x < 20; ++x) {
    for (int y = 6; y < 14; ++y) EXPECT_EQ(horizontal.count({x, y}), (y >= 8 && y <= 11) ? 1u : 0u) << x << "," << y;
  }
  for (const Point& p : horizontal) EXPECT_EQ(vertical.count({p.y, p.x}), 1u) << "vertical is the mirror image";
  EXPECT_EQ(horizontal.size(), vertical.size());
}

TEST_F(SoftGdiLines, RoundCapPaintsTheEndPointAndAZeroLengthSegmentIsADot) {
  const std::set<Point> dot = Draw(9, 9, 3, {4, 4}, {4, 4});
  EXPECT_EQ(dot, (std::set<Point>{{4, 3}, {3, 4}, {4, 4}, {5, 4}, {4, 5}}));
  const std::set<Point> square = Draw(9, 9, 2, {4, 4}, {4, 4});
  EXPECT_EQ(square, (std::set<Point>{{3, 3}, {4, 3}, {3, 4}, {4, 4}}));
}

TEST_F(SoftGdiLines, SlantedWideLineIsSolidAlongItsAxis) {
  const int width = 5;
  const std::set<Point> drawn = Draw(40, 40, width, {5, 8}, {33, 30});
  // Every pixel whose centre is within a pixel of the axis is painted, none
  // farther than the pen reaches.
  const double dx = 28;
  const double dy = 22;
  const double length = std::sqrt(dx * dx + dy * dy);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) {
      const double along = ((x - 5) * dx + (y - 8) * dy) / length;
      const double across = std::abs((x - 5) * dy - (y - 8) * dx) / length;
      if (along >= 0 && along <= length && across <= 1.0) {
        EXPECT_EQ(drawn.count({x, y}), 1u) << x << "," << y;
      }
      if (across > width / 2.0 + 1.5) {
        EXPECT_EQ(drawn.count({x, y}), 0u) << x << "," << y;
      }
    }
  }
}

TEST_F(SoftGdiLines, SegmentsAreSymmetricUnderReversal) {
  for (int width : {2, 3, 6}) {
    for (Point to : {Point{30, 12}, Point{4, 27}, Point{25, 25}, Point{3, 3}}) {
      EXPECT_EQ(Draw(34, 34, width, {15, 16}, to), Draw(34, 34, width, to, {15, 16})) << width;
    }
  }
}

}  // namespace
}  // namespace softgdi_test
