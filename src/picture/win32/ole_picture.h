#pragma once
// A picture the platform's picture loader made: an IPicture, with its type,
// handle and size, drawn by IPicture::Render.

#include "picture/win32/com.h"
// After <windows.h>.
#include <ocidl.h>
#include <olectl.h>

#include <vector>

#include "vorlex/Picture.h"

namespace vorlex::picture {

class OlePicture final : public Picture {
 public:
  // Takes over the reference; fileBytes are what it was loaded from.
  OlePicture(IPicture* picture, std::vector<uint8_t> fileBytes);
  ~OlePicture() override;

  int16_t Type() const override;
  uint32_t Handle() const override;
  int32_t PixelWidth() const override { return pixelWidth_; }
  int32_t PixelHeight() const override { return pixelHeight_; }
  bool Render(uintptr_t hdc, int32_t x, int32_t y) const override;
  std::vector<uint8_t> SaveAsFile() const override { return fileBytes_; }
  // The platform object itself, as a host hands it back to its caller.
  IPicture* Interface() const { return picture_; }

 private:
  IPicture* picture_;
  OLE_XSIZE_HIMETRIC himetricWidth_ = 0;
  OLE_YSIZE_HIMETRIC himetricHeight_ = 0;
  int32_t pixelWidth_ = 0;
  int32_t pixelHeight_ = 0;
  std::vector<uint8_t> fileBytes_;
};

// Loads bytes through OleLoadPicture; rejects (error 481) what it refuses.
PicturePtr LoadOlePicture(const uint8_t* data, size_t size);

}  // namespace vorlex::picture
