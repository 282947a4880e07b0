// The GDI calls one at a time on an 800 x 64 memory bitmap: fills with solid
// and hatched brushes in both background modes, ellipses, lines of one pixel
// and wider, and blits within one bitmap. The same program runs on softgdi and,
// in the Windows builds, on the platform's GDI.

#include <benchmark/benchmark.h>

#include <cstdint>

#include "memory_bitmap.h"
#include "platform/gdi.h"

namespace {

namespace gdi = vorlex::gdi;

constexpr int kWidth = 800;
constexpr int kHeight = 64;

// A memory DC holding a screen-compatible bitmap; what a benchmark selects
// into it is put back and deleted at the end.
class Bitmap {
 public:
  ~Bitmap() {
    if (pen_ != nullptr) gdi::DeleteObject(gdi::SelectObject(dc(), previousPen_));
    if (brush_ != nullptr) gdi::DeleteObject(gdi::SelectObject(dc(), previousBrush_));
  }

  gdi::HDC dc() const { return memory_.dc(); }
  void UsePen(gdi::HPEN pen) {
    pen_ = pen;
    previousPen_ = gdi::SelectObject(dc(), pen);
  }
  void UseBrush(gdi::HBRUSH brush) {
    brush_ = brush;
    previousBrush_ = gdi::SelectObject(dc(), brush);
  }

 private:
  vorlex::testing::MemoryBitmap memory_{kWidth, kHeight};
  gdi::HPEN pen_ = nullptr;
  gdi::HGDIOBJ previousPen_ = nullptr;
  gdi::HBRUSH brush_ = nullptr;
  gdi::HGDIOBJ previousBrush_ = nullptr;
};

// FillRect over the bitmap; range(0) is the hatch style (-1 solid), range(1)
// the background mode.
void BM_SoftFillRect(benchmark::State& state) {
  Bitmap bitmap;
  const auto hatch = static_cast<int>(state.range(0));
  gdi::HBRUSH brush =
      hatch < 0 ? gdi::CreateSolidBrush(gdi::RGB(10, 20, 30)) : gdi::CreateHatchBrush(hatch, gdi::RGB(10, 20, 30));
  gdi::SetBkMode(bitmap.dc(), static_cast<int>(state.range(1)));
  const gdi::RECT rect{0, 0, kWidth, kHeight};
  for (auto _ : state) gdi::FillRect(bitmap.dc(), &rect, brush);
  gdi::DeleteObject(brush);
}
BENCHMARK(BM_SoftFillRect)
    ->Args({-1, gdi::OPAQUE})
    ->Args({gdi::HS_DIAGCROSS, gdi::OPAQUE})
    ->Args({gdi::HS_DIAGCROSS, gdi::TRANSPARENT})
    ->Args({gdi::HS_VERTICAL, gdi::TRANSPARENT});

// A fill of a few pixels: the cost of the call itself.
void BM_SoftFillRectTiny(benchmark::State& state) {
  Bitmap bitmap;
  gdi::HBRUSH brush = gdi::CreateSolidBrush(gdi::RGB(10, 20, 30));
  const gdi::RECT rect{5, 5, 8, 8};
  for (auto _ : state) gdi::FillRect(bitmap.dc(), &rect, brush);
  gdi::DeleteObject(brush);
}
BENCHMARK(BM_SoftFillRectTiny);

// An ellipse much taller than the bitmap, as the ring gradients draw them;
// range(0) is 1 for an outline, 0 for a null pen.
void BM_SoftEllipse(benchmark::State& state) {
  Bitmap bitmap;
  bitmap.UsePen(gdi::CreatePen(state.range(0) != 0 ? gdi::PS_SOLID : gdi::PS_NULL, 1, gdi::RGB(200, 0, 0)));
  bitmap.UseBrush(gdi::CreateSolidBrush(gdi::RGB(0, 0, 200)));
  for (auto _ : state) gdi::Ellipse(bitmap.dc(), -1, -369, 801, 433);
}
BENCHMARK(BM_SoftEllipse)->Arg(0)->Arg(1);

// A line across the bitmap of pen width range(0), diagonal or straight
// (range(1) is 1 for horizontal).
void BM_SoftLine(benchmark::State& state) {
  Bitmap bitmap;
  bitmap.UsePen(gdi::CreatePen(gdi::PS_SOLID, static_cast<int>(state.range(0)), gdi::RGB(0, 200, 0)));
  const int endY = state.range(1) != 0 ? 30 : kHeight - 1;
  for (auto _ : state) {
    gdi::MoveToEx(bitmap.dc(), 0, 30, nullptr);
    gdi::LineTo(bitmap.dc(), kWidth - 1, endY);
  }
}
BENCHMARK(BM_SoftLine)->Args({1, 0})->Args({1, 1})->Args({3, 0})->Args({3, 1});

// BitBlt of the bitmap onto itself, moved down and right.
void BM_SoftBlitOverlapping(benchmark::State& state) {
  Bitmap bitmap;
  for (auto _ : state) gdi::BitBlt(bitmap.dc(), 3, 2, kWidth, kHeight, bitmap.dc(), 0, 0, gdi::SRCCOPY);
}
BENCHMARK(BM_SoftBlitOverlapping);

}  // namespace
