// Reading a memory context's bitmap and counting the process's GDI objects.
#include <cstring>

#include "platform/gdi.h"
// After the seam: <windows.h> defines macros with the names the seam declares.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace vorlex::gdi {
namespace {

// A 32-bpp top-down DIB section selected into its own memory context, freed on
// every path.
class DibCopy {
 public:
  DibCopy(::HDC like, int width, int height) {
    dc_ = ::CreateCompatibleDC(like);
    if (dc_ == nullptr) return;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // top-down rows
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
    if (bitmap_ != nullptr) previous_ = ::SelectObject(dc_, bitmap_);
  }
  ~DibCopy() {
    if (previous_ != nullptr) ::SelectObject(dc_, previous_);
    if (bitmap_ != nullptr) ::DeleteObject(bitmap_);
    if (dc_ != nullptr) ::DeleteDC(dc_);
  }
  DibCopy(const DibCopy&) = delete;
  DibCopy& operator=(const DibCopy&) = delete;

  bool ok() const { return previous_ != nullptr && bits_ != nullptr; }
  ::HDC dc() const { return dc_; }
  const uint32_t* bits() const { return static_cast<const uint32_t*>(bits_); }
  uint32_t* bits() { return static_cast<uint32_t*>(bits_); }

 private:
  ::HDC dc_ = nullptr;
  ::HBITMAP bitmap_ = nullptr;
  ::HGDIOBJ previous_ = nullptr;
  void* bits_ = nullptr;
};

// While alive, the context's coordinates are device pixels again: no mapping
// mode, origin, world transform or mirroring moves the pixel BitBlt reads at
// (0,0). Everything is restored afterwards, selections included.
class DevicePixels {
 public:
  explicit DevicePixels(::HDC dc) : dc_(dc), saved_(::SaveDC(dc)) {
    if (saved_ == 0) return;
    if (::GetGraphicsMode(dc) == GM_ADVANCED) ::ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
    ::SetMapMode(dc, MM_TEXT);
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetViewportOrgEx(dc, 0, 0, nullptr);
    ::SetLayout(dc, 0);
  }
  ~DevicePixels() {
    if (saved_ != 0) ::RestoreDC(dc_, saved_);
  }
  DevicePixels(const DevicePixels&) = delete;
  DevicePixels& operator=(const DevicePixels&) = delete;

  bool ok() const { return saved_ != 0; }

 private:
  ::HDC dc_;
  int saved_;
};

}  // namespace

// Only memory contexts hold a bitmap of their own. Whatever the selected
// bitmap's format, BitBlt converts it into a 32-bpp top-down DIB section whose
// pixels are 0x00RRGGBB (GetDIBits is documented only for bitmaps that are not
// selected into a context, so it is not used here).
bool ReadPixels(HDC dc, Pixels& out) {
  const auto source = reinterpret_cast<::HDC>(dc);
  if (source == nullptr || ::GetObjectType(source) != OBJ_MEMDC) return false;
  const HGDIOBJ selected = ::GetCurrentObject(source, OBJ_BITMAP);
  BITMAP info{};
  if (selected == nullptr || ::GetObjectW(selected, sizeof(info), &info) != sizeof(info)) return false;
  if (info.bmWidth <= 0 || info.bmHeight <= 0) return false;
  const int width = static_cast<int>(info.bmWidth);
  const int height = static_cast<int>(info.bmHeight);
  DibCopy copy(source, width, height);
  if (!copy.ok()) return false;
  {
    DevicePixels device(source);
    if (!device.ok() || !::BitBlt(copy.dc(), 0, 0, width, height, source, 0, 0, SRCCOPY)) return false;
  }
  ::GdiFlush();
  const size_t count = static_cast<size_t>(width) * static_cast<size_t>(height);
  out.width = width;
  out.height = height;
  out.argb.resize(count);
  std::memcpy(out.argb.data(), copy.bits(), count * sizeof(uint32_t));
  for (uint32_t& pixel : out.argb) pixel &= 0x00FFFFFFu;
  return true;
}

// The pixels go into a DIB section first, then BitBlt converts them into the
// selected bitmap's format.
bool WritePixels(HDC dc, const Pixels& pixels) {
  const auto target = reinterpret_cast<::HDC>(dc);
  if (target == nullptr || ::GetObjectType(target) != OBJ_MEMDC) return false;
  if (pixels.width <= 0 || pixels.height <= 0) return ::GetCurrentObject(target, OBJ_BITMAP) != nullptr;
  DibCopy copy(target, pixels.width, pixels.height);
  if (!copy.ok()) return false;
  ::GdiFlush();
  std::memcpy(copy.bits(), pixels.argb.data(), pixels.argb.size() * sizeof(uint32_t));
  DevicePixels device(target);
  return device.ok() && ::BitBlt(target, 0, 0, pixels.width, pixels.height, copy.dc(), 0, 0, SRCCOPY) != 0;
}

}  // namespace vorlex::gdi
