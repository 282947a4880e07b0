#pragma once
// Bitmaps of the screen's format to draw into, and a picture box made of one.
// No test framework in here: the benchmarks draw on these too.

#include "platform/gdi.h"
#include "surface/drawing_target.h"

namespace vorlex::testing {

// A width x height bitmap made with CreateCompatibleBitmap(GetDC(nullptr)),
// selected into CreateCompatibleDC(GetDC(nullptr)); put back and deleted at
// the end.
class MemoryBitmap {
 public:
  MemoryBitmap(int width, int height) {
    screen_ = gdi::GetDC(nullptr);
    dc_ = gdi::CreateCompatibleDC(screen_);
    bitmap_ = gdi::CreateCompatibleBitmap(screen_, width, height);
    previous_ = gdi::SelectObject(dc_, bitmap_);
  }
  ~MemoryBitmap() {
    gdi::SelectObject(dc_, previous_);
    gdi::DeleteObject(bitmap_);
    gdi::DeleteDC(dc_);
    gdi::ReleaseDC(nullptr, screen_);
  }
  MemoryBitmap(const MemoryBitmap&) = delete;
  MemoryBitmap& operator=(const MemoryBitmap&) = delete;

  gdi::HDC dc() const { return dc_; }

 private:
  gdi::HDC screen_;
  gdi::HDC dc_;
  gdi::HBITMAP bitmap_;
  gdi::HGDIOBJ previous_;
};

// A hidden picture box: a memory bitmap with a pixel scale whose top left is
// (left, top).
class PictureBox : public DrawingTarget {
 public:
  // An empty box still gets a one-pixel bitmap, so that it has a context.
  PictureBox(int width, int height, float left = 0, float top = 0)
      : bitmap_(width > 0 ? width : 1, height > 0 ? height : 1),
        width_(static_cast<float>(width)),
        height_(static_cast<float>(height)),
        left_(left),
        top_(top) {}
  // A box holding these pixels at their size.
  explicit PictureBox(const gdi::Pixels& picture) : PictureBox(picture.width, picture.height) {
    if (!picture.argb.empty()) gdi::WritePixels(bitmap_.dc(), picture);
  }

  gdi::HDC hDC() const override { return bitmap_.dc(); }
  float ScaleLeft() const override { return left_; }
  float ScaleTop() const override { return top_; }
  float ScaleWidth() const override { return width_; }
  float ScaleHeight() const override { return height_; }

 private:
  MemoryBitmap bitmap_;
  float width_, height_, left_, top_;
};

}  // namespace vorlex::testing
