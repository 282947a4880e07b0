#include <atomic>
#include <utility>

#include "platform/gdi.h"
#include "vorlex/MemoryWindow.h"

namespace vorlex {

namespace {
uintptr_t NextWindowHandle() {
  static std::atomic<uintptr_t> next{0x10010};
  return next += 4;
}

gdi::HDC Dc(uintptr_t dc) { return reinterpret_cast<gdi::HDC>(dc); }
}  // namespace

MemoryWindow::MemoryWindow(int widthPixels, int heightPixels)
    : width_(widthPixels), height_(heightPixels), hwnd_(NextWindowHandle()) {
  screenDC_ = reinterpret_cast<uintptr_t>(gdi::GetDC(nullptr));
  windowDC_ = reinterpret_cast<uintptr_t>(gdi::CreateCompatibleDC(Dc(screenDC_)));
  CreateBitmap();
}

MemoryWindow::~MemoryWindow() {
  if (previousBitmap_) gdi::SelectObject(Dc(windowDC_), reinterpret_cast<gdi::HGDIOBJ>(previousBitmap_));
  if (windowBitmap_) gdi::DeleteObject(reinterpret_cast<gdi::HGDIOBJ>(windowBitmap_));
  if (windowDC_) gdi::DeleteDC(Dc(windowDC_));
  if (screenDC_) gdi::ReleaseDC(nullptr, Dc(screenDC_));
}

void MemoryWindow::CreateBitmap() {
  auto bitmap = gdi::CreateCompatibleBitmap(Dc(screenDC_), width_, height_);
  auto previous = gdi::SelectObject(Dc(windowDC_), bitmap);
  if (!previousBitmap_) {
    previousBitmap_ = reinterpret_cast<uintptr_t>(previous);
  } else if (previous) {
    gdi::DeleteObject(previous);
  }
  windowBitmap_ = reinterpret_cast<uintptr_t>(bitmap);
}

bool MemoryWindow::Resize(int widthPixels, int heightPixels) {
  if (widthPixels == width_ && heightPixels == height_) return false;
  width_ = widthPixels;
  height_ = heightPixels;
  CreateBitmap();
  return true;
}

WindowImage MemoryWindow::Snapshot() const {
  gdi::Pixels pixels;
  WindowImage image;
  if (!gdi::ReadPixels(Dc(windowDC_), pixels)) return image;
  image.width = pixels.width;
  image.height = pixels.height;
  image.pixels = std::move(pixels.argb);
  return image;
}

}  // namespace vorlex
