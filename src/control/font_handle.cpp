// The font object's platform handle, made on demand.

#include <cstring>

#include "platform/gdi.h"
#include "vorlex/Font.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {
int ScreenPixelsPerInch() {
  gdi::HDC screen = gdi::GetDC(nullptr);
  const int dpi = screen ? gdi::GetDeviceCaps(screen, gdi::LOGPIXELSY) : 96;
  if (screen) gdi::ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : 96;
}
}  // namespace

uintptr_t Font::hFont() const {
  if (handle_) return handle_;
  gdi::LOGFONTA lf{};
  // The em height in pixels at the screen's resolution, as a negative height.
  lf.lfHeight = -ToLong(Size() * ScreenPixelsPerInch() / 72.0);
  lf.lfWeight = weight_;
  lf.lfItalic = italic_ ? 1 : 0;
  lf.lfUnderline = underline_ ? 1 : 0;
  lf.lfStrikeOut = strikethrough_ ? 1 : 0;
  lf.lfCharSet = static_cast<uint8_t>(charset_);
  std::strncpy(lf.lfFaceName, name_.c_str(), sizeof lf.lfFaceName - 1);
  handle_ = reinterpret_cast<uintptr_t>(gdi::CreateFontIndirectA(&lf));
  return handle_;
}

}  // namespace vorlex
