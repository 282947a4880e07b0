// The drawing surface on an 800 x 64 bar: fills, gradients, borders, text and
// tiled pictures, beside a plain std::fill of the same number of pixels as the
// memory-bandwidth yardstick.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

#include "memory_bitmap.h"
#include "platform/gdi.h"
#include "surface/offscreen_dc.h"
#include "vorlex/Font.h"

namespace {

using vorlex::OffScreenDC;
using vorlex::testing::MemoryBitmap;
using vorlex::testing::PictureBox;
namespace gdi = vorlex::gdi;

constexpr int32_t kWidth = 800;
constexpr int32_t kHeight = 64;

// A surface initialised on a memory window of the screen's format.
class Bar {
 public:
  Bar() {
    gdi::HDC control = window_.dc();
    int32_t w = kWidth;
    int32_t h = kHeight;
    surface.Initialize(control, w, h);
    surface.Right = kWidth;
    surface.Bottom = kHeight;
    surface.BackgroundColor = 0x808080;
    surface.BrushColor = 0x000000;
    surface.GradientColor = 0xFF0000;
    surface.GradientColorEnd = 0x00FFFF;
  }
  OffScreenDC surface;

 private:
  MemoryBitmap window_{kWidth, kHeight};  // declared after surface: goes first
};

void BM_StdFillYardstick(benchmark::State& state) {
  std::vector<uint32_t> pixels(static_cast<size_t>(kWidth) * kHeight);
  uint32_t value = 0;
  for (auto _ : state) {
    std::fill(pixels.begin(), pixels.end(), ++value);
    benchmark::DoNotOptimize(pixels.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_StdFillYardstick);

void BM_FillRectangleSolid(benchmark::State& state) {
  Bar bar;
  for (auto _ : state) bar.surface.FillRectangle();
}
BENCHMARK(BM_FillRectangleSolid);

void BM_FillRectangleHatched(benchmark::State& state) {
  Bar bar;
  bar.surface.BrushStyle = 6;  // diagonal cross
  for (auto _ : state) bar.surface.FillRectangle();
}
BENCHMARK(BM_FillRectangleHatched);

void BM_Gradient(benchmark::State& state) {
  Bar bar;
  bar.surface.GradientStyle = static_cast<int32_t>(state.range(0));
  for (auto _ : state) bar.surface.FillRectangle();
}
BENCHMARK(BM_Gradient)->DenseRange(1, 12)->Unit(benchmark::kMicrosecond);

void BM_DrawBorder(benchmark::State& state) {
  Bar bar;
  bar.surface.BorderStyle = static_cast<int32_t>(state.range(0));
  bar.surface.BorderWidth = 3;
  for (auto _ : state) bar.surface.DrawBorder();
}
BENCHMARK(BM_DrawBorder)->Arg(2)->Arg(4);

// A 20-character caption centred on the bar, at the angle given. An outline
// face, since GDI does not rotate bitmap fonts.
void BM_DisplayText(benchmark::State& state) {
  Bar bar;
  bar.surface.Text = "Vorlex caption text!";
  bar.surface.TextFont = std::make_shared<vorlex::Font>("DejaVu Sans", 9);
  bar.surface.TextColor = 0xFFFFFF;
  bar.surface.TextAngle = static_cast<int16_t>(state.range(0));
  for (auto _ : state) bar.surface.DisplayText();
}
BENCHMARK(BM_DisplayText)->Arg(0)->Arg(90);

// A 16 x 16 picture, for a picture box at pixel scale.
gdi::Pixels SmallPicture() {
  constexpr int kSide = 16;
  gdi::Pixels pixels;
  pixels.width = pixels.height = kSide;
  for (uint32_t i = 0; i < kSide * kSide; ++i) pixels.argb.push_back(i * 0x010305u);
  return pixels;
}

// The picture tiled both ways over the whole bar: 50 x 4 copies.
void BM_DrawBitmapTiled(benchmark::State& state) {
  Bar bar;
  const PictureBox picture(SmallPicture());
  bar.surface.PictureTile = 3;  // vxBothTile
  for (auto _ : state) bar.surface.DrawBitmap(picture);
}
BENCHMARK(BM_DrawBitmapTiled);

}  // namespace
