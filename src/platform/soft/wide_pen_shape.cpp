#include "platform/soft/wide_pen_shape.h"

#include <algorithm>
#include <cmath>

namespace vorlex::gdi::soft {

namespace {
constexpr double kCoordinateClamp = 4.0e18;
int64_t ToCoordinate(double value) {
  return static_cast<int64_t>(std::clamp(value, -kCoordinateClamp, kCoordinateClamp));
}
}  // namespace

int64_t RoundHalfUp(double value) { return ToCoordinate(std::floor(value + 0.5)); }
int64_t Ceil(double value) { return ToCoordinate(std::ceil(value)); }

std::optional<Box> StraightBodyBox(Corner p0, Corner p1, int64_t width) {
  if (p0.y == p1.y) {
    const int64_t top = p0.y - width / 2;
    return Box{std::min(p0.x, p1.x), top, std::max(p0.x, p1.x), top + width};
  }
  if (p0.x == p1.x) {
    const int64_t left = p0.x - width / 2;
    return Box{left, std::min(p0.y, p1.y), left + width, std::max(p0.y, p1.y)};
  }
  return std::nullopt;
}

Quad SlantedBodyQuad(Corner p0, Corner p1, int64_t width) {
  const double dx = static_cast<double>(p1.x - p0.x);
  const double dy = static_cast<double>(p1.y - p0.y);
  const double length = std::hypot(dx, dy);
  const double w = static_cast<double>(width);
  // How far the pen reaches across the line, horizontally and vertically.
  const double extentX = w * std::fabs(dy) / length;
  const double extentY = w * std::fabs(dx) / length;
  // The right side (larger x) gets the larger half; it lies above a line
  // running down-right or up-left and below any other.
  const int64_t rightDown = (dx > 0) == (dy > 0) ? -1 : 1;
  const Corner right{RoundHalfUp((extentX + 1) / 2), rightDown * RoundHalfUp((extentY + 1) / 2)};
  const Corner left{-RoundHalfUp(extentX / 2), -rightDown * RoundHalfUp(extentY / 2)};
  return {{{p0.x + left.x, p0.y + left.y},
           {p0.x + right.x, p0.y + right.y},
           {p1.x + right.x, p1.y + right.y},
           {p1.x + left.x, p1.y + left.y}}};
}

QuadRows VisibleRowsOf(const Quad& corners, int64_t surfaceHeight) {
  int64_t top = corners[0].y;
  int64_t bottom = corners[0].y;
  for (const Corner& c : corners) {
    top = std::min(top, c.y);
    bottom = std::max(bottom, c.y);
  }
  return {std::max<int64_t>(top, 0), std::min(bottom, surfaceHeight)};
}

}  // namespace vorlex::gdi::soft
