// DisplayText: aligned, rotated and 3-D text in the current rectangle.

#include <cmath>
#include <cstring>

#include "surface/alignment.h"
#include "surface/gdi_object.h"
#include "surface/offscreen_dc.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {

// Deliberately these approximations: pi for the automatic angle, and another
// one for degrees back to radians.
constexpr double kPi = 3.14159;
constexpr double kRadiansPerDegree = 0.0174532925;

float TextAngleFor(int32_t autoAngle, int16_t angle, const Area& a) {
  const int64_t width = static_cast<int64_t>(a.r) - a.l;
  if (autoAngle == vxNoneAuto) return angle;
  if ((autoAngle != vxUp && autoAngle != vxDown) || width == 0) return 0;
  const double rising =
      std::atan(static_cast<double>(static_cast<int64_t>(a.b) - a.t) / static_cast<double>(width)) * 180 / kPi;
  return static_cast<float>(autoAngle == vxUp ? rising : 360 - rising);
}

gdi::LOGFONTA RotatedFont(const Font& font, float angle, float twipsPerPixel) {
  gdi::LOGFONTA lf{};
  lf.lfHeight = ToLong(-20 * font.Size() / twipsPerPixel);
  lf.lfEscapement = ToLong(static_cast<double>(angle) * 10);
  lf.lfWeight = font.Bold() ? gdi::FW_BOLD : gdi::FW_NORMAL;
  lf.lfItalic = font.Italic() ? 1 : 0;
  lf.lfUnderline = font.Underline() ? 1 : 0;
  lf.lfStrikeOut = font.Strikethrough() ? 1 : 0;
  lf.lfQuality = gdi::PROOF_QUALITY;
  lf.lfPitchAndFamily = gdi::VARIABLE_PITCH;
  std::strncpy(lf.lfFaceName, font.Name().c_str(), sizeof lf.lfFaceName - 1);
  return lf;
}

// Rotated text is centred on the area whatever the alignment says.
gdi::POINT CentredRotated(const Area& a, float angle, const gdi::SIZE& extent) {
  const double cx = a.l + (static_cast<double>(a.r) - a.l) / 2;
  const double cy = a.t + (static_cast<double>(a.b) - a.t) / 2;
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
  const int32_t inset = RivetsStyle != vxNoneRivets ? 7 : 0;
  const Area a{CheckedAdd(Left, inset), CheckedAdd(Top, inset), CheckedSub(Right, inset), CheckedSub(Bottom, inset)};
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
