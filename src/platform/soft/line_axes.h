#pragma once
// How a one-pixel line is laid over the surface before any pixel is chosen:
// its major and minor axes and the steps of the major axis that land on the
// surface. The fast and the reference line share this, so that they differ
// only in how they pick and write pixels.

#include <algorithm>
#include <cstdint>

#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

// Steps i in [first, end).
struct StepRange {
  int64_t first;
  int64_t end;
};

// Steps i in [0, count) whose coordinate start + direction * i lies in [0, limit).
inline StepRange VisibleSteps(int64_t start, int64_t direction, int64_t count, int64_t limit) {
  if (direction > 0) return {std::max<int64_t>(0, -start), std::min(count, limit - start)};
  return {std::max<int64_t>(0, start - limit + 1), std::min(count, start + 1)};
}

// One axis of the line: where it starts, how far and which way it goes, and
// the surface's extent along it.
struct Axis {
  int64_t start;
  int64_t length;
  int64_t direction;
  int64_t limit;
};

// The line's longer axis is major (x on a tie); the line has major.length
// steps, none when it is a point.
struct LineAxes {
  Axis major;
  Axis minor;
  bool xMajor;
};

inline LineAxes AxesOf(const Surface& surface, int64_t x0, int64_t y0, int64_t x1, int64_t y1) {
  const auto axis = [](int64_t from, int64_t to, int64_t limit) {
    return Axis{from, to < from ? from - to : to - from, to < from ? -1 : 1, limit};
  };
  const Axis xAxis = axis(x0, x1, surface.width);
  const Axis yAxis = axis(y0, y1, surface.height);
  if (xAxis.length >= yAxis.length) return {xAxis, yAxis, true};
  return {yAxis, xAxis, false};
}

}  // namespace vorlex::gdi::soft
