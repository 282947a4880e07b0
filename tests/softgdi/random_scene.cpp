#include "softgdi/random_scene.h"

#include <algorithm>
#include <ostream>

namespace softgdi_test {
namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr std::array<int, 8> kExtremes{kMin, kMin + 1, kMin / 2, -1, 0, kMax / 2, kMax - 1, kMax};

std::ostream& operator<<(std::ostream& out, const RECT& r) {
  return out << "{" << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom << "}";
}
std::ostream& operator<<(std::ostream& out, const POINT& p) { return out << "(" << p.x << ", " << p.y << ")"; }
std::ostream& operator<<(std::ostream& out, const BrushChoice& b) {
  return out << "brush colour " << b.color << " hatch " << b.hatch << " bk mode " << b.bkMode << " bk colour "
             << b.bkColor << " origin " << b.origin;
}
std::ostream& operator<<(std::ostream& out, const PenChoice& p) {
  return out << "pen style " << p.style << " width " << p.width << " colour " << p.color;
}

struct Describer {
  std::ostream& out;
  void operator()(const FillOp& op) const { out << "FillRect " << op.rect << " " << op.brush; }
  void operator()(const EllipseOp& op) const { out << "Ellipse " << op.box << " " << op.brush << " " << op.pen; }
  void operator()(const LineOp& op) const { out << "line " << op.from << " to " << op.to << " " << op.pen; }
  void operator()(const BlitOp& op) const {
    out << "BitBlt to (" << op.x << ", " << op.y << ") extent " << op.width << " x " << op.height << " from ("
        << op.sourceX << ", " << op.sourceY << ")" << (op.fromOther ? " of the other bitmap" : " of itself");
  }
};

}  // namespace

std::string Describe(const Op& op) {
  std::ostringstream out;
  std::visit(Describer{out}, op);
  return out.str();
}

int SceneRandom::Coordinate(int extent) {
  const int kind = Uniform(0, 99);
  if (kind < 65) return Uniform(-extent / 2 - 2, extent + extent / 2 + 2);
  if (kind < 85) return Uniform(-4 * extent - 8, 5 * extent + 8);
  if (kind < 93) return Uniform(kMin, kMax);
  return kExtremes[static_cast<size_t>(Uniform(0, static_cast<int>(kExtremes.size()) - 1))];
}

// A signed extent: mostly up to the bitmap's size, sometimes far larger.
int SceneRandom::Extent(int extent) {
  const int kind = Uniform(0, 99);
  if (kind < 80) return Uniform(-extent - 2, extent + 2);
  if (kind < 95) return Uniform(-8 * extent, 8 * extent);
  return Uniform(kMin, kMax);
}

BrushChoice SceneRandom::Brush(bool origins) {
  BrushChoice brush;
  brush.color = Color();
  brush.hatch = Uniform(-1, 5);
  brush.bkMode = Uniform(0, 1) == 0 ? OPAQUE : TRANSPARENT;
  brush.bkColor = Color();
  if (origins && Uniform(0, 1) == 0) brush.origin = {Uniform(-20, 20), Uniform(-20, 20)};
  return brush;
}

PenChoice SceneRandom::Pen(int maxWidth) {
  return {Uniform(0, 5) == 0 ? PS_NULL : PS_SOLID, Uniform(0, maxWidth), Color()};
}

Op SceneRandom::Fill(const OpMix& mix) {
  return FillOp{{Coordinate(width_), Coordinate(height_), Coordinate(width_), Coordinate(height_)},
                Brush(mix.brushOrigins)};
}

// Boxes of every size from one pixel up, a few of them too large to trace.
Op SceneRandom::Ellipse(const OpMix& mix) {
  const int left = Coordinate(width_);
  const int top = Coordinate(height_);
  const int sizeKind = Uniform(0, 9);
  const int reach = sizeKind < 3 ? 4 : (sizeKind < 9 ? 3 * (width_ + height_) : 140000);
  const auto corner = [&](int from) {
    return static_cast<int>(std::clamp<int64_t>(int64_t{from} + Uniform(-reach, reach), kMin, kMax));
  };
  return EllipseOp{{left, top, corner(left), corner(top)}, Brush(mix.brushOrigins), Pen(1)};
}

Op SceneRandom::Line() {
  const POINT from{Coordinate(width_), Coordinate(height_)};
  POINT to{Coordinate(width_), Coordinate(height_)};
  if (Uniform(0, 4) == 0) to.y = from.y;  // horizontal and vertical lines take their own way
  if (Uniform(0, 4) == 0) to.x = from.x;
  return LineOp{from, to, Pen(5)};
}

Op SceneRandom::Blit() {
  return BlitOp{Coordinate(width_), Coordinate(height_), Extent(width_),    Extent(height_),
                Coordinate(width_), Coordinate(height_), Uniform(0, 1) == 0};
}

Op SceneRandom::Next(const OpMix& mix) {
  for (;;) {
    const int kind = Uniform(0, 3);
    if (kind == 0 && mix.fills) return Fill(mix);
    if (kind == 1 && mix.ellipses) return Ellipse(mix);
    if (kind == 2 && mix.lines) return Line();
    if (kind == 3 && mix.blits) return Blit();
  }
}

std::vector<uint32_t> Noise(SceneRandom& random, int width, int height) {
  std::vector<uint32_t> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
  for (uint32_t& pixel : pixels) pixel = random.Pixel();
  return pixels;
}

}  // namespace softgdi_test
