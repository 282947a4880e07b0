#include <atomic>
#include <cmath>

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
      font_(ambientFont_) {}

void HeadlessSite::SetTwipsPerPixel(float x, float y) {
  twipsX_ = x;
  twipsY_ = y;
}

void HeadlessSite::SetClientSize(int widthPixels, int heightPixels) {
  width_ = widthPixels;
  height_ = heightPixels;
}

int32_t HeadlessSite::OuterWidthTwips() const { return ToLong(width_ * static_cast<double>(twipsX_)); }
int32_t HeadlessSite::OuterHeightTwips() const { return ToLong(height_ * static_cast<double>(twipsY_)); }

void HeadlessSite::SetOuterWidthTwips(int32_t twips) {
  width_ = twipsX_ > 0 ? static_cast<int>(RoundHalfEven(twips / static_cast<double>(twipsX_))) : 0;
}
void HeadlessSite::SetOuterHeightTwips(int32_t twips) {
  height_ = twipsY_ > 0 ? static_cast<int>(RoundHalfEven(twips / static_cast<double>(twipsY_))) : 0;
}

void HeadlessSite::ClearRecords() {
  notifications_.clear();
  events_.clear();
  paints_ = 0;
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
