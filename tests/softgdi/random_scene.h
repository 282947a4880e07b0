#pragma once
// Random drawing scenes for holding softgdi's fast drawing functions to its
// plain per-pixel ones: fills, ellipses, lines and blits with random
// coordinates (many partly or wholly off the bitmap, some near the ends of the
// 32-bit range), brushes, pens and background modes, from a fixed seed.

#include <array>
#include <cstdint>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "platform/gdi.h"

namespace softgdi_test {

using namespace vorlex::gdi;

struct BrushChoice {
  COLORREF color = 0;
  int hatch = -1;  // -1 for a solid brush
  int bkMode = OPAQUE;
  COLORREF bkColor = 0;
  POINT origin{0, 0};
};

struct PenChoice {
  int style = PS_SOLID;
  int width = 0;
  COLORREF color = 0;
};

struct FillOp {
  RECT rect;
  BrushChoice brush;
};
struct EllipseOp {
  RECT box;
  BrushChoice brush;
  PenChoice pen;
};
struct LineOp {
  POINT from;
  POINT to;
  PenChoice pen;
};
struct BlitOp {
  int x, y, width, height, sourceX, sourceY;
  bool fromOther;  // from the scene's second bitmap, else within the target
};
using Op = std::variant<FillOp, EllipseOp, LineOp, BlitOp>;

std::string Describe(const Op& op);

// The kinds of operation a scene may draw.
struct OpMix {
  bool fills = true;
  bool ellipses = true;
  bool lines = true;
  bool blits = true;
  bool brushOrigins = true;  // off for scenes drawn through the GDI calls
};

class SceneRandom {
 public:
  // A bitmap of up to maxWidth x maxHeight pixels.
  SceneRandom(uint32_t seed, int maxWidth, int maxHeight)
      : engine_(seed), width_(Uniform(1, maxWidth)), height_(Uniform(1, maxHeight)) {}

  int Width() const { return width_; }
  int Height() const { return height_; }

  Op Next(const OpMix& mix);
  uint32_t Pixel() { return Uniform(0, 0xFFFFFF); }
  int Uniform(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }

 private:
  // Mostly near the bitmap, sometimes far off it, sometimes anywhere in or at
  // the ends of the 32-bit range.
  int Coordinate(int extent);
  int Extent(int extent);
  COLORREF Color() { return static_cast<COLORREF>(Pixel()); }
  BrushChoice Brush(bool origins);
  PenChoice Pen(int maxWidth);
  Op Fill(const OpMix& mix);
  Op Ellipse(const OpMix& mix);
  Op Line();
  Op Blit();

  std::mt19937 engine_;
  int width_;
  int height_;
};

// Random pixels.
std::vector<uint32_t> Noise(SceneRandom& random, int width, int height);

}  // namespace softgdi_test
