#include <atomic>
#include <cmath>

#include "platform/gdi.h"
#include "surface/png_export.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {
uintptr_t NextWindowHandle() {
  static std::atomic<uintptr_t> next{0x10010};
  return next += 4;
}
}  // namespace

HeadlessSite::HeadlessSite(int widthPixels, int heightPixels)
    : width_(widthPixels),
      height_(heightPixels),
      ambientFont_(std::make_shared<vorlex::Font>()),
      hwnd_(NextWindowHandle()),
      font_(ambientFont_),
      disks_(SystemDisks()),
      clock_(SystemClock()) {
  screenDC_ = reinterpret_cast<uintptr_t>(gdi::GetDC(nullptr));
  windowDC_ = reinterpret_cast<uintptr_t>(gdi::CreateCompatibleDC(reinterpret_cast<gdi::HDC>(screenDC_)));
  CreateWindowBitmap();
}

HeadlessSite::~HeadlessSite() {
  auto dc = reinterpret_cast<gdi::HDC>(windowDC_);
  if (previousBitmap_) gdi::SelectObject(dc, reinterpret_cast<gdi::HGDIOBJ>(previousBitmap_));
  if (windowBitmap_) gdi::DeleteObject(reinterpret_cast<gdi::HGDIOBJ>(windowBitmap_));
  if (dc) gdi::DeleteDC(dc);
  if (screenDC_) gdi::ReleaseDC(nullptr, reinterpret_cast<gdi::HDC>(screenDC_));
}

// A new window bitmap is black, as a new window's first paint would find it.
void HeadlessSite::CreateWindowBitmap() {
  auto dc = reinterpret_cast<gdi::HDC>(windowDC_);
  auto bitmap = gdi::CreateCompatibleBitmap(reinterpret_cast<gdi::HDC>(screenDC_), width_, height_);
  auto previous = gdi::SelectObject(dc, bitmap);
  if (!previousBitmap_) {
    previousBitmap_ = reinterpret_cast<uintptr_t>(previous);
  } else if (previous) {
    gdi::DeleteObject(previous);
  }
  windowBitmap_ = reinterpret_cast<uintptr_t>(bitmap);
}

void HeadlessSite::ResizeWindow(int widthPixels, int heightPixels) {
  if (widthPixels == width_ && heightPixels == height_) return;
  width_ = widthPixels;
  height_ = heightPixels;
  CreateWindowBitmap();
  if (resized_) resized_();
}

WindowImage HeadlessSite::Snapshot() const {
  gdi::Pixels pixels;
  WindowImage image;
  if (!gdi::ReadPixels(reinterpret_cast<gdi::HDC>(windowDC_), pixels)) return image;
  image.width = pixels.width;
  image.height = pixels.height;
  image.pixels = std::move(pixels.argb);
  return image;
}

bool HeadlessSite::SaveWindowPng(const std::string& path, std::string* error) const {
  gdi::Pixels pixels;
  if (!gdi::ReadPixels(reinterpret_cast<gdi::HDC>(windowDC_), pixels)) {
    if (error) *error = path + ": the window has no pixels";
    return false;
  }
  return WritePng(pixels, path, error);
}

void HeadlessSite::SetTwipsPerPixel(float x, float y) {
  twipsX_ = x;
  twipsY_ = y;
}

void HeadlessSite::SetClientSize(int widthPixels, int heightPixels) { ResizeWindow(widthPixels, heightPixels); }

int32_t HeadlessSite::OuterWidthTwips() const { return ToLong(width_ * static_cast<double>(twipsX_)); }
int32_t HeadlessSite::OuterHeightTwips() const { return ToLong(height_ * static_cast<double>(twipsY_)); }

void HeadlessSite::SetOuterWidthTwips(int32_t twips) {
  ResizeWindow(twipsX_ > 0 ? static_cast<int>(RoundHalfEven(twips / static_cast<double>(twipsX_))) : 0, height_);
}
void HeadlessSite::SetOuterHeightTwips(int32_t twips) {
  ResizeWindow(width_, twipsY_ > 0 ? static_cast<int>(RoundHalfEven(twips / static_cast<double>(twipsY_))) : 0);
}

void HeadlessSite::ClearRecords() {
  notifications_.clear();
  events_.clear();
  paints_ = 0;
  aboutBoxRequests_ = 0;
}

void HeadlessSite::BlockClicked(int16_t& iBlock) {
  events_.push_back("BlockClicked " + std::to_string(iBlock));
  if (forward_) forward_->BlockClicked(iBlock);
}
void HeadlessSite::Click() {
  events_.emplace_back("Click");
  if (forward_) forward_->Click();
}
void HeadlessSite::DblClick() {
  events_.emplace_back("DblClick");
  if (forward_) forward_->DblClick();
}
void HeadlessSite::TimerTime() {
  events_.emplace_back("TimerTime");
  if (forward_) forward_->TimerTime();
}
void HeadlessSite::TimerDisk() {
  events_.emplace_back("TimerDisk");
  if (forward_) forward_->TimerDisk();
}

}  // namespace vorlex
