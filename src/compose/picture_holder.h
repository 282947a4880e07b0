#pragma once
// Picture1: the control's hidden picture box. It takes the size of the picture
// put into it and holds it at pixel scale for DrawBitmap and for auto-size.

#include "platform/gdi.h"
#include "surface/drawing_target.h"
#include "vorlex/Color.h"
#include "vorlex/Picture.h"

namespace vorlex {

class PictureHolder : public DrawingTarget {
 public:
  PictureHolder() = default;
  ~PictureHolder() override { Clear(); }
  PictureHolder(const PictureHolder&) = delete;
  PictureHolder& operator=(const PictureHolder&) = delete;

  // Holds the picture on a background of the picture box's colour; `like` is
  // the context whose format the holder takes.
  void Set(const Picture& picture, gdi::HDC like, OLE_COLOR background);
  void Clear();
  bool Empty() const { return dc_ == nullptr; }

  gdi::HDC hDC() const override { return dc_; }
  float ScaleLeft() const override { return 0; }
  float ScaleTop() const override { return 0; }
  float ScaleWidth() const override { return static_cast<float>(width_); }
  float ScaleHeight() const override { return static_cast<float>(height_); }

 private:
  gdi::HDC dc_ = nullptr;
  gdi::HBITMAP bitmap_ = nullptr;
  gdi::HGDIOBJ previous_ = nullptr;
  int32_t width_ = 0;
  int32_t height_ = 0;
};

}  // namespace vorlex
