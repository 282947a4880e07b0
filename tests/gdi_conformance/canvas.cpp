#include "canvas.h"

namespace vorlex::gdi_conformance {

Canvas::Canvas(int width, int height) : width_(width), height_(height), objects_before_(gdi::LiveObjectCount()) {
  screen_ = gdi::GetDC(nullptr);
  if (screen_ != nullptr) dc_ = gdi::CreateCompatibleDC(screen_);
  if (screen_ != nullptr) bitmap_ = gdi::CreateCompatibleBitmap(screen_, width, height);
  if (dc_ != nullptr && bitmap_ != nullptr) previous_ = gdi::SelectObject(dc_, bitmap_);
  EXPECT_TRUE(ok()) << "could not set up a " << width << "x" << height << " memory context";
}

Canvas::~Canvas() {
  // A backend that counts its objects counts at least the context and the
  // bitmap made here; one whose count stays 0 does not count (Wine).
  const bool counted = gdi::LiveObjectCount() > objects_before_;
  if (previous_ != nullptr) gdi::SelectObject(dc_, previous_);
  if (bitmap_ != nullptr) gdi::DeleteObject(bitmap_);
  if (dc_ != nullptr) gdi::DeleteDC(dc_);
  if (screen_ != nullptr) gdi::ReleaseDC(nullptr, screen_);
  if (counted) {
    EXPECT_EQ(gdi::LiveObjectCount(), objects_before_) << "GDI objects left behind";
  }
}

void Canvas::Fill(const gdi::RECT& rect, gdi::COLORREF colour) const {
  Owned<gdi::HBRUSH> brush(gdi::CreateSolidBrush(colour));
  ASSERT_NE(brush.get(), nullptr);
  EXPECT_NE(gdi::FillRect(dc_, &rect, brush.get()), 0);
}

gdi::Pixels Canvas::Read() const {
  gdi::Pixels pixels;
  if (!gdi::ReadPixels(dc_, pixels)) {
    ADD_FAILURE() << "ReadPixels failed";
    return {};
  }
  EXPECT_EQ(pixels.width, width_);
  EXPECT_EQ(pixels.height, height_);
  EXPECT_EQ(pixels.argb.size(), static_cast<size_t>(width_) * static_cast<size_t>(height_));
  return pixels;
}

}  // namespace vorlex::gdi_conformance
