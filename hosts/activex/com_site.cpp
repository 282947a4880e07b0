#include "com_site.h"

#include "about_dialog.h"
#include "com_includes.h"

namespace vorlex::activex {

namespace {

// The screen's twips per pixel: 1440 twips to the logical inch.
float ScreenTwipsPerPixel(int axis) {
  HDC screen = GetDC(nullptr);
  const int dpi = screen ? GetDeviceCaps(screen, axis) : 96;
  if (screen) ReleaseDC(nullptr, screen);
  return 1440.0f / static_cast<float>(dpi > 0 ? dpi : 96);
}

}  // namespace

ComSite::ComSite(SiteOwner& owner) : owner_(owner) {
  SetTwipsPerPixel(ScreenTwipsPerPixel(LOGPIXELSX), ScreenTwipsPerPixel(LOGPIXELSY));
}

void ComSite::ShowAboutBox() { ShowAboutDialog(window_ ? window_ : GetActiveWindow()); }

void ComSite::AttachWindow(HWND window) {
  window_ = window;
  // The window's class keeps one context for its life.
  windowDC_ = GetDC(window);
  RECT client{};
  GetClientRect(window, &client);
  EnableWindow(window, Enabled() != 0);
  SetClientSize(client.right - client.left, client.bottom - client.top);
  if (resized_) resized_();
}

void ComSite::DetachWindow() {
  if (window_ && windowDC_) ReleaseDC(window_, windowDC_);
  window_ = nullptr;
  windowDC_ = nullptr;
  if (resized_) resized_();
}

void ComSite::SetResizeListener(std::function<void()> listener) {
  resized_ = listener;
  HeadlessSite::SetResizeListener(std::move(listener));
}

void ComSite::SetEnabled(VARIANT_BOOL enabled) {
  HeadlessSite::SetEnabled(enabled);
  if (window_) EnableWindow(window_, enabled != 0);
}

}  // namespace vorlex::activex
