#include "picture/win32/ole_picture.h"

#include <cstring>
#include <limits>
#include <utility>

#include "picture/picture_error.h"

namespace vorlex::picture {

namespace {

constexpr int kHimetricPerInch = 2540;

// HIMETRIC to pixels at the screen's resolution, rounded.
int32_t ToPixels(LONG himetric, int capability) {
  const HDC screen = ::GetDC(nullptr);
  const int dpi = ::GetDeviceCaps(screen, capability);
  ::ReleaseDC(nullptr, screen);
  return ::MulDiv(himetric, dpi, kHimetricPerInch);
}

// A stream over a copy of the bytes, which it frees when released.
IStream* MemoryStream(const uint8_t* data, size_t size) {
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
  if (memory == nullptr) RaiseError(kErrOutOfMemory);
  void* target = ::GlobalLock(memory);
  std::memcpy(target, data, size);
  ::GlobalUnlock(memory);
  IStream* stream = nullptr;
  if (FAILED(::CreateStreamOnHGlobal(memory, TRUE, &stream))) {
    ::GlobalFree(memory);
    RaiseError(kErrOutOfMemory);
  }
  return stream;
}

}  // namespace

OlePicture::OlePicture(IPicture* picture, std::vector<uint8_t> fileBytes)
    : picture_(picture), fileBytes_(std::move(fileBytes)) {
  picture_->get_Width(&himetricWidth_);
  picture_->get_Height(&himetricHeight_);
  pixelWidth_ = ToPixels(himetricWidth_, LOGPIXELSX);
  pixelHeight_ = ToPixels(himetricHeight_, LOGPIXELSY);
}

OlePicture::~OlePicture() { picture_->Release(); }

int16_t OlePicture::Type() const {
  SHORT type = PICTYPE_NONE;
  picture_->get_Type(&type);
  return type;
}

uint32_t OlePicture::Handle() const {
  OLE_HANDLE handle = 0;
  picture_->get_Handle(&handle);
  return handle;
}

// At natural size: the whole picture, whose HIMETRIC source rectangle runs from
// its bottom edge upwards.
bool OlePicture::Render(uintptr_t hdc, int32_t x, int32_t y) const {
  return SUCCEEDED(picture_->Render(reinterpret_cast<HDC>(hdc), x, y, pixelWidth_, pixelHeight_, 0, himetricHeight_,
                                    himetricWidth_, -himetricHeight_, nullptr));
}

PicturePtr LoadOlePicture(const uint8_t* data, size_t size) {
  Require(data != nullptr && size > 0 && size <= static_cast<size_t>(std::numeric_limits<LONG>::max()));
  const ComApartment com;
  const ComRef<IStream> stream(MemoryStream(data, size));
  ComRef<IPicture> picture;
  const HRESULT result = ::OleLoadPicture(stream.get(), static_cast<LONG>(size), FALSE, IID_IPicture,
                                          reinterpret_cast<void**>(picture.out()));
  Require(SUCCEEDED(result) && picture.get() != nullptr);
  return std::make_shared<OlePicture>(picture.release(), std::vector<uint8_t>(data, data + size));
}

}  // namespace vorlex::picture
