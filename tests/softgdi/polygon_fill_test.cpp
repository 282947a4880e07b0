// Polygons filled as GDI regions are: left and top edges in, right and bottom
// edges out.

#include "platform/soft/text/polygon_fill.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace {

using vorlex::gdi::POINT;
using vorlex::gdi::soft::Box;
using vorlex::gdi::soft::Surface;
using vorlex::gdi::soft::text::FillPolygon;

// A width x height surface of 0s; Map() draws it row by row, '#' for 1.
class Grid {
 public:
  Grid(int width, int height) : width_(width), pixels_(static_cast<size_t>(width * height), 0) {
    surface_ = {width, height, pixels_.data()};
  }
  const Surface& surface() const { return surface_; }
  std::string Map() const {
    std::string map;
    for (size_t i = 0; i < pixels_.size(); ++i) {
      map += pixels_[i] != 0 ? '#' : '.';
      if ((i + 1) % static_cast<size_t>(width_) == 0) map += '\n';
    }
    return map;
  }

 private:
  int width_;
  std::vector<uint32_t> pixels_;
  Surface surface_;
};

const Box kEverywhere{-1000, -1000, 1000, 1000};

TEST(SoftPolygonFill, RectangleCoversItsHalfOpenBox) {
  Grid grid(6, 4);
  const std::array<POINT, 4> corners{{{1, 1}, {5, 1}, {5, 3}, {1, 3}}};
  FillPolygon(grid.surface(), corners, kEverywhere, 1);
  EXPECT_EQ(grid.Map(), "......\n.####.\n.####.\n......\n");
}

TEST(SoftPolygonFill, CornerOrderDoesNotMatter) {
  Grid grid(6, 4);
  const std::array<POINT, 4> corners{{{5, 3}, {5, 1}, {1, 1}, {1, 3}}};
  FillPolygon(grid.surface(), corners, kEverywhere, 1);
  EXPECT_EQ(grid.Map(), "......\n.####.\n.####.\n......\n");
}

TEST(SoftPolygonFill, SlopedEdgesTakeThePixelsWhoseCornerIsInside) {
  Grid grid(5, 5);
  const std::array<POINT, 3> corners{{{0, 0}, {4, 0}, {0, 4}}};
  FillPolygon(grid.surface(), corners, kEverywhere, 1);
  EXPECT_EQ(grid.Map(), "####.\n###..\n##...\n#....\n.....\n");
}

TEST(SoftPolygonFill, ClipAndSurfaceLimitThePixels) {
  Grid grid(6, 4);
  const std::array<POINT, 4> corners{{{-5, -5}, {50, -5}, {50, 50}, {-5, 50}}};
  FillPolygon(grid.surface(), corners, Box{2, 1, 4, 100}, 1);
  EXPECT_EQ(grid.Map(), "......\n..##..\n..##..\n..##..\n");
}

}  // namespace
