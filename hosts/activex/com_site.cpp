#include "com_site.h"

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

}  // namespace vorlex::activex
