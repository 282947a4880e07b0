#include "compose/picture_holder.h"

#include <algorithm>

#include "surface/gdi_object.h"

namespace vorlex {

void PictureHolder::Set(const Picture& picture, gdi::HDC like, OLE_COLOR background) {
  Clear();
  width_ = std::max(picture.PixelWidth(), 0);
  height_ = std::max(picture.PixelHeight(), 0);
  dc_ = gdi::CreateCompatibleDC(like);
  if (!dc_) return;
  bitmap_ = gdi::CreateCompatibleBitmap(like, std::max(width_, 1), std::max(height_, 1));
  previous_ = gdi::SelectObject(dc_, bitmap_);
  GdiObject<gdi::HBRUSH> brush(gdi::CreateSolidBrush(background));
  const gdi::RECT all{0, 0, width_, height_};
  gdi::FillRect(dc_, &all, brush.get());
  picture.Render(reinterpret_cast<uintptr_t>(dc_), 0, 0);
}

void PictureHolder::Clear() {
  if (previous_) gdi::SelectObject(dc_, previous_);
  if (bitmap_) gdi::DeleteObject(bitmap_);
  if (dc_) gdi::DeleteDC(dc_);
  dc_ = nullptr;
  bitmap_ = nullptr;
  previous_ = nullptr;
  width_ = 0;
  height_ = 0;
}

}  // namespace vorlex
