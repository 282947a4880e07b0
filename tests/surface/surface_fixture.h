#pragma once
// An OffScreenDC initialised on a memory "window" of the screen's format, with
// helpers to paint, read and describe pixels.

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "memory_bitmap.h"
#include "platform/gdi.h"
#include "surface/offscreen_dc.h"

namespace vorlex::testing {

// Pixel values as read back: 0x00RRGGBB.
constexpr uint32_t Rgb(uint32_t r, uint32_t g, uint32_t b) { return (r << 16) | (g << 8) | b; }
// A colour attribute (0x00BBGGRR) as it reads back from a 32-bit surface.
constexpr uint32_t AsPixel(uint32_t colorref) {
  return Rgb(colorref & 0xFF, (colorref >> 8) & 0xFF, (colorref >> 16) & 0xFF);
}

// The pixels of a context, 0x00RRGGBB.
inline gdi::Pixels ReadDC(gdi::HDC dc) {
  gdi::Pixels pixels;
  EXPECT_TRUE(gdi::ReadPixels(dc, pixels));
  return pixels;
}

class SurfaceTest : public ::testing::Test {
 protected:
  OffScreenDC& Init(int width, int height) {
    window_.emplace(width, height);
    surface_ = std::make_unique<OffScreenDC>();
    gdi::HDC control = window_->dc();
    int32_t w = width;
    int32_t h = height;
    surface_->Initialize(control, w, h);
    return *surface_;
  }

  OffScreenDC& Surface() { return *surface_; }
  gdi::HDC Window() const { return window_ ? window_->dc() : nullptr; }

  // Paints the whole surface one colour, outside any primitive under test.
  void Fill(uint32_t colorref) { FillArea(0, 0, 1 << 20, 1 << 20, colorref); }
  void FillArea(int32_t l, int32_t t, int32_t r, int32_t b, uint32_t colorref) {
    gdi::HBRUSH brush = gdi::CreateSolidBrush(colorref);
    const gdi::RECT rect{l, t, r, b};
    gdi::FillRect(surface_->MemoryDC(), &rect, brush);
    gdi::DeleteObject(brush);
  }

  void SetRect(int32_t l, int32_t t, int32_t r, int32_t b) {
    surface_->Left = l;
    surface_->Top = t;
    surface_->Right = r;
    surface_->Bottom = b;
  }

  gdi::Pixels Read() const { return ReadDC(surface_->MemoryDC()); }

  // A hex map of a region, for failure messages.
  static std::string Describe(const gdi::Pixels& p, int x0, int y0, int x1, int y1) {
    std::ostringstream out;
    for (int y = y0; y < y1 && y < p.height; ++y) {
      for (int x = x0; x < x1 && x < p.width; ++x) out << std::hex << p.At(x, y) << ' ';
      out << '\n';
    }
    return out.str();
  }

 private:
  std::optional<MemoryBitmap> window_;
  std::unique_ptr<OffScreenDC> surface_;  // declared after window_: goes first
};

}  // namespace vorlex::testing
