// Picture handles on Windows: a 32-bit top-down DIB section of the picture's
// pixels, deleted with the picture.

#include "picture/picture_handle.h"

#include <cstring>

#include "picture/win32/com.h"
#include "vorlex/AutomationError.h"

namespace vorlex::picture {

PictureHandle::PictureHandle(const Image& image) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = image.width;
  info.bmiHeader.biHeight = -image.height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap == nullptr || bits == nullptr) RaiseError(kErrOutOfMemory);
  std::memcpy(bits, image.pixels.data(), image.pixels.size() * sizeof(uint32_t));
  ::GdiFlush();
  value_ = reinterpret_cast<uintptr_t>(bitmap);
}

PictureHandle::~PictureHandle() { ::DeleteObject(reinterpret_cast<HBITMAP>(value_)); }

}  // namespace vorlex::picture
