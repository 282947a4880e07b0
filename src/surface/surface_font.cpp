// The surface's Font property: which font the memory context holds.

#include "surface/offscreen_dc.h"
#include "vorlex/AutomationError.h"

namespace vorlex {

namespace {
gdi::HGDIOBJ HandleOf(const vorlex::Font& font) { return reinterpret_cast<gdi::HGDIOBJ>(font.hFont()); }
}  // namespace

void OffScreenDC::SetFont(const FontPtr& font) {
  if (!font_) {
    // The first font keeps what it displaces, so that Nothing can put it back.
    if (!font) RaiseError(kErrObjectNotSet);
    font_ = font;
    previousFont_ = gdi::SelectObject(memoryDC_, HandleOf(*font_));
    return;
  }
  font_ = font;
  gdi::SelectObject(memoryDC_, font_ ? HandleOf(*font_) : previousFont_);
}

}  // namespace vorlex
