#include "platform/soft/text/run_layout.h"

#include <cmath>
#include <numbers>

namespace vorlex::gdi::soft::text {
namespace {

// C's conversion of a double to a coordinate: toward zero.
int32_t Truncated(double value) { return static_cast<int32_t>(value); }

}  // namespace

Direction DirectionOf(int32_t tenths) {
  if (tenths == 0) return {};
  const double angle = tenths * std::numbers::pi / 1800;
  return {std::cos(angle), std::sin(angle)};
}

RunLayout LayOutRun(POINT at, int32_t ascent, Direction d, const std::vector<int32_t>& advances, bool stepped) {
  RunLayout run;
  if (stepped) {
    int64_t total = 0;
    for (int32_t advance : advances) {
      total += advance;
      const POINT reached{Truncated(d.cos * static_cast<double>(total)),
                          Truncated(-d.sin * static_cast<double>(total))};
      run.steps.push_back({reached.x - run.extent.x, reached.y - run.extent.y});
      run.extent = reached;
    }
  } else {
    int64_t total = 0;
    for (int32_t advance : advances) total += advance;
    run.extent = {static_cast<int32_t>(total), 0};
  }
  run.origin.y = Truncated(at.y + ascent * d.cos);
  run.origin.x = Truncated(at.x + ascent * d.sin);
  return run;
}

std::array<POINT, 4> LineCorners(const RunLayout& run, Direction d, int32_t position, int32_t thickness) {
  const double offset = position + thickness / 2;
  const POINT o = run.origin;
  const POINT start{Truncated(o.x - offset * d.sin), Truncated(o.y - offset * d.cos)};
  const POINT end{Truncated(o.x + run.extent.x - offset * d.sin), Truncated(o.y + run.extent.y - offset * d.cos)};
  const POINT endBelow{Truncated(end.x + thickness * d.sin), Truncated(end.y + thickness * d.cos)};
  const POINT startBelow{Truncated(start.x + thickness * d.sin), Truncated(start.y + thickness * d.cos)};
  return {start, end, endBelow, startBelow};
}

}  // namespace vorlex::gdi::soft::text
