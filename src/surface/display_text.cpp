// DisplayText: aligned, rotated and 3-D text in the current rectangle.

#include <cmath>

#include "surface/alignment.h"
#include "surface/gdi_object.h"
#include "surface/offscreen_dc.h"
#include "surface/rotated_font.h"
#include "surface/text_angle.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {

// Deliberately this approximation for degrees to radians, not the one of pi
// that the automatic angle uses.
constexpr double kRadiansPerDegree = 0.0174532925;

// Rotated text is centred on the area whatever the alignment says.
gdi::POINT CentredRotated(const Area& a, float angle, const gdi::SIZE& extent) {
  const double cx = a.l + CheckedSub(a.r, a.l) / 2.0;
  const double cy = a.t + CheckedSub(a.b, a.t) / 2.0;
  const double r = angle * kRadiansPerDegree;
  const double halfW = extent.cx / 2.0;
  const double halfH = extent.cy / 2.0;
  return {ToLong(cx - halfW * std::cos(r) - halfH * std::sin(r)),
          ToLong(cy + halfW * std::sin(r) - halfH * std::cos(r))};
}

struct CopyLook {
  OLE_COLOR color;
  int32_t offset;
};

// The 3-D copy drawn behind the text, if any.
bool ThreeDCopy(int32_t font3D, CopyLook& look) {
  switch (font3D) {
    case vxRaisedLight:
      look = {kWhite, -1};
      return true;
    case vxInsetLight:
      look = {kWhite, 1};
      return true;
    case vxRaisedShadow:
      look = {kDarkGrey, -1};
      return true;
    case vxInsetShadow:
      look = {kDarkGrey, 1};
      return true;
    default:
      return false;
  }
}

}  // namespace

void OffScreenDC::DisplayText() {
  if (Text.empty()) return;
  if (!TextFont) RaiseError(kErrObjectNotSet);
  const Area a = ClearOfRivets();
  const float angle = TextAngleFor(TextAutoAngle, TextAngle, a);

  // Angle 0 uses the font's own handle; any other angle a font made for it.
  gdi::HFONT created = nullptr;
  if (angle != 0) {
    const gdi::LOGFONTA lf = RotatedFont(*TextFont, angle, ScreenTwipsPerPixelY);
    created = gdi::CreateFontIndirectA(&lf);
  }
  GdiObject<gdi::HFONT> ownedFont(created);
  const auto handle =
      angle != 0 ? static_cast<gdi::HGDIOBJ>(created) : reinterpret_cast<gdi::HGDIOBJ>(TextFont->hFont());
  Selection fontSelected(memoryDC_, handle);

  const auto length = static_cast<int>(Text.size());
  gdi::SIZE extent{0, 0};
  gdi::GetTextExtentPoint32A(memoryDC_, Text.c_str(), length, &extent);
  const gdi::POINT at =
      angle == 0 ? AlignIn(a, TextAlignment, TextOffset, extent.cx, extent.cy) : CentredRotated(a, angle, extent);
  if (!fontSelected) return;

  BackgroundMode transparent(memoryDC_, gdi::TRANSPARENT);
  const gdi::RECT clip{CheckedAdd(a.l, 1), CheckedAdd(a.t, 1), CheckedSub(a.r, 1), CheckedSub(a.b, 1)};
  auto draw = [&](int32_t x, int32_t y, OLE_COLOR color) {
    gdi::SetTextColor(memoryDC_, color);
    gdi::ExtTextOutA(memoryDC_, x, y, gdi::ETO_CLIPPED, &clip, Text.c_str(), static_cast<unsigned>(length), nullptr);
  };
  CopyLook look{};
  if (ThreeDCopy(Font3D, look)) draw(CheckedAdd(at.x, look.offset), CheckedAdd(at.y, look.offset), look.color);
  draw(at.x, at.y, TextColor);
}

}  // namespace vorlex
