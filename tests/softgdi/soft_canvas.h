#pragma once
// What the softgdi tests share: a memory DC with a 32-bpp bitmap, pixel
// helpers, and a base fixture that fails a test leaving GDI objects behind.

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <set>
#include <utility>

#include "platform/gdi.h"

namespace softgdi_test {

using namespace vorlex::gdi;

// The pixel a COLORREF is stored as: 0x00BBGGRR becomes 0x00RRGGBB.
constexpr uint32_t PixelOf(COLORREF color) {
  return ((color & 0xFFu) << 16) | (color & 0xFF00u) | ((color >> 16) & 0xFFu);
}

inline constexpr COLORREF kBackground = RGB(0x30, 0x30, 0x30);

// Every test starts and ends with the same number of live objects.
class LeakChecked : public ::testing::Test {
 protected:
  void SetUp() override { baseline_ = LiveObjectCount(); }
  void TearDown() override { EXPECT_EQ(LiveObjectCount(), baseline_) << "GDI objects left alive"; }

 private:
  size_t baseline_ = 0;
};

// A memory DC holding a width x height 32-bpp bitmap painted `background`.
class Canvas {
 public:
  Canvas(int width, int height, COLORREF background = kBackground) {
    HDC screen = GetDC(nullptr);
    dc_ = CreateCompatibleDC(screen);
    bitmap_ = CreateCompatibleBitmap(screen, width, height);
    ReleaseDC(nullptr, screen);
    defaultBitmap_ = SelectObject(dc_, bitmap_);
    Paint(background);
  }
  ~Canvas() {
    SelectObject(dc_, defaultBitmap_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  HDC dc() const { return dc_; }
  HBITMAP bitmap() const { return bitmap_; }

  void Paint(COLORREF color) const {
    Pixels now = Read();
    HBRUSH brush = CreateSolidBrush(color);
    const RECT all{0, 0, now.width, now.height};
    FillRect(dc_, &all, brush);
    DeleteObject(brush);
  }
  Pixels Read() const {
    Pixels pixels;
    EXPECT_TRUE(ReadPixels(dc_, pixels));
    return pixels;
  }

 private:
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ defaultBitmap_ = nullptr;
};

// Selects an object for a scope, then restores the previous one and deletes it.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), object_(object), previous_(SelectObject(dc, object)) {}
  ~Selected() {
    SelectObject(dc_, previous_);
    DeleteObject(object_);
  }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ object_;
  HGDIOBJ previous_;
};

struct Point {
  int x;
  int y;
  bool operator<(const Point& other) const { return std::pair(y, x) < std::pair(other.y, other.x); }
  bool operator==(const Point& other) const { return x == other.x && y == other.y; }
};

// The pixels that are not `background`.
inline std::set<Point> Changed(const Pixels& pixels, COLORREF background = kBackground) {
  std::set<Point> changed;
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      if (pixels.At(x, y) != PixelOf(background)) changed.insert({x, y});
    }
  }
  return changed;
}

// The pixels of a given colour.
inline std::set<Point> WithColor(const Pixels& pixels, COLORREF color) {
  std::set<Point> found;
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      if (pixels.At(x, y) == PixelOf(color)) found.insert({x, y});
    }
  }
  return found;
}

// The points of a width x height area for which `keep` holds.
inline std::set<Point> PointsWhere(int width, int height, const std::function<bool(int, int)>& keep) {
  std::set<Point> points;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      if (keep(x, y)) points.insert({x, y});
    }
  }
  return points;
}

inline void PrintTo(const Point& p, std::ostream* os) { *os << "(" << p.x << "," << p.y << ")"; }

}  // namespace softgdi_test
