#include <cmath>

#include "platform/gdi.h"
#include "surface/png_export.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Numeric.h"

namespace vorlex {

HeadlessSite::HeadlessSite(int widthPixels, int heightPixels)
    : ambientFont_(std::make_shared<vorlex::Font>()),
      font_(ambientFont_),
      disks_(SystemDisks()),
      clock_(SystemClock()),
      window_(widthPixels, heightPixels) {}

HeadlessSite::~HeadlessSite() = default;

// A new window bitmap is black, as a new window's first paint would find it.
void HeadlessSite::ResizeWindow(int widthPixels, int heightPixels) {
  if (window_.Resize(widthPixels, heightPixels) && resized_) resized_();
}

WindowImage HeadlessSite::Snapshot() const { return window_.Snapshot(); }

bool HeadlessSite::SaveWindowPng(const std::string& path, std::string* error) const {
  gdi::Pixels pixels;
  if (!gdi::ReadPixels(reinterpret_cast<gdi::HDC>(window_.hDC()), pixels)) {
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

int32_t HeadlessSite::OuterWidthTwips() const { return ToLong(window_.Width() * static_cast<double>(twipsX_)); }
int32_t HeadlessSite::OuterHeightTwips() const { return ToLong(window_.Height() * static_cast<double>(twipsY_)); }

void HeadlessSite::SetOuterWidthTwips(int32_t twips) {
  ResizeWindow(twipsX_ > 0 ? static_cast<int>(RoundHalfEven(twips / static_cast<double>(twipsX_))) : 0,
               window_.Height());
}
void HeadlessSite::SetOuterHeightTwips(int32_t twips) {
  ResizeWindow(window_.Width(),
               twipsY_ > 0 ? static_cast<int>(RoundHalfEven(twips / static_cast<double>(twipsY_))) : 0);
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
