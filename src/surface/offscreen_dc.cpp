// The surface's life: creation, the copy to the control, teardown.

#include "surface/offscreen_dc.h"

namespace vorlex {

OffScreenDC::~OffScreenDC() {
  if (!memoryDC_) return;
  if (previousFont_) gdi::SelectObject(memoryDC_, previousFont_);
  if (previousBitmap_) gdi::SelectObject(memoryDC_, previousBitmap_);
  if (surfaceBitmap_) gdi::DeleteObject(surfaceBitmap_);
  gdi::DeleteDC(memoryDC_);
}

void OffScreenDC::Initialize(gdi::HDC& CtlHdc, int32_t& CtlWidth, int32_t& CtlHeight) {
  controlDC_ = CtlHdc;
  width_ = CtlWidth;
  height_ = CtlHeight;
  memoryDC_ = gdi::CreateCompatibleDC(CtlHdc);
  // Compatible with the control's context, not the memory one, so that the
  // bitmap has the screen's colour format.
  surfaceBitmap_ = gdi::CreateCompatibleBitmap(CtlHdc, CtlWidth, CtlHeight);
  previousBitmap_ = gdi::SelectObject(memoryDC_, surfaceBitmap_);
  ReadDisplayDepth();
}

void OffScreenDC::BlastToScreen(int32_t& left, int32_t& top, int32_t& width, int32_t& height) {
  if (width == -1) width = width_;
  if (height == -1) height = height_;
  gdi::BitBlt(controlDC_, left, top, width, height, memoryDC_, left, top, gdi::SRCCOPY);
}

void OffScreenDC::BlastToScreen() {
  int32_t left = 0;
  int32_t top = 0;
  int32_t width = -1;
  int32_t height = -1;
  BlastToScreen(left, top, width, height);
}

}  // namespace vorlex
