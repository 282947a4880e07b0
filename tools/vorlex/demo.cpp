// The built-in demo dashboard, 480 x 120 pixels, 100 user units each way.

#include "demo.h"

#include <memory>
#include <string>

#include "vorlex/Enums.h"
#include "vorlex/Font.h"

namespace vorlex::cli {

namespace {

// Colours are &H00BBGGRR.
constexpr OLE_COLOR kBlack = 0x000000;
constexpr OLE_COLOR kWhite = 0xFFFFFF;
constexpr OLE_COLOR kNavy = 0x402010;
constexpr OLE_COLOR kSlate = 0x504030;
constexpr OLE_COLOR kGreen = 0x00C000;
constexpr OLE_COLOR kLime = 0x40FF40;
constexpr OLE_COLOR kAmber = 0x00A0FF;
constexpr OLE_COLOR kRed = 0x0000E0;
constexpr OLE_COLOR kSky = 0xFFC040;
constexpr OLE_COLOR kSteel = 0x808080;

FontPtr MakeFont(double size, bool bold, const char* name = "Tahoma") {
  auto font = std::make_shared<Font>(name, size);
  font->SetBold(bold);
  return font;
}

// Adds a block over [left, right] x [bottom, top] in user units and returns its number.
Variant AddBlock(Vorlex& c, int16_t left, int16_t right, int16_t top, int16_t bottom, OLE_COLOR color) {
  c.AddBlock();
  const Variant b(c.get_Blocks());
  c.put_BlockBarLeft(left, b);
  c.put_BlockBarRight(right, b);
  c.put_BlockBarTop(top, b);
  c.put_BlockBarBottom(bottom, b);
  c.put_BlockColor(color, b);
  return b;
}

void SetText(Vorlex& c, const Variant& b, const std::string& text, OLE_COLOR color, FontPtr font) {
  c.put_BlockText(text, b);
  c.put_BlockTextColor(color, b);
  c.put_BlockTextFont(font, b);
}

void SetGradient(Vorlex& c, const Variant& b, int32_t style, OLE_COLOR from, OLE_COLOR to) {
  c.put_BlockGradientStyle(style, b);
  c.put_BlockGradientColor(from, b);
  c.put_BlockGradientColorEnd(to, b);
}

void SetBorder(Vorlex& c, const Variant& b, int32_t style, int16_t width) {
  c.put_BlockBorderStyle(style, b);
  c.put_BlockBorderWidth(width, b);
}

void Background(Vorlex& c) {
  c.put_BackColor(kNavy);
  c.put_GradientStyle(vxTopVGradient);
  c.put_GradientColor(kSlate);
  c.put_GradientColorEnd(kBlack);
  c.put_BorderStyle(vxBump);
  c.put_BorderWidth(2);
  c.put_RivetsStyle(vxRaisedRivetsExt);
  c.put_ForeColor(kSky);
  c.putref_Font(MakeFont(8, true));
  c.put_Caption("VORLEX  live bar control");
  c.put_CaptionAlignment(vxTopLeft);
  c.put_CaptionOffset(1);
  c.put_CaptionFont3D(vxRaisedShadow);
}

void ClockAndDate(Vorlex& c) {
  const Variant clock = AddBlock(c, 1, 33, 83, 58, kBlack);
  SetGradient(c, clock, vxInnerHGradient, 0x204020, kBlack);
  SetBorder(c, clock, vxInset, 2);
  c.put_BlockRivetsStyle(vxRaisedRivets, clock);
  SetText(c, clock, "!long time!", kLime, MakeFont(16, true));
  c.put_BlockTextFont3D(vxInsetShadow, clock);

  const Variant date = AddBlock(c, 1, 33, 54, 28, kSlate);
  c.put_BlockBrushStyle(vxCross, date);
  c.put_BlockBrushColor(0x604838, date);
  SetBorder(c, date, vxRaised, 2);
  SetText(c, date, "!long date!", kWhite, MakeFont(8, false));
}

void RotatedTitleAndLevels(Vorlex& c) {
  const Variant title = AddBlock(c, 35, 42, 83, 28, kSteel);
  SetGradient(c, title, vxOuterVGradient, kSky, kNavy);
  SetBorder(c, title, vxEtched, 1);
  SetText(c, title, "LEVELS", kWhite, MakeFont(10, true));
  c.put_BlockTextAngle(90, title);
  c.put_BlockTextFont3D(vxRaisedLight, title);

  const int16_t heights[] = {76, 55, 82, 40, 68};
  for (int16_t i = 0; i < 5; ++i) {
    const auto left = static_cast<int16_t>(44 + 3 * i);
    const Variant bar = AddBlock(c, left, static_cast<int16_t>(left + 2), heights[i], 28, kGreen);
    SetGradient(c, bar, vxBottomVGradient, kGreen, kRed);
    SetBorder(c, bar, vxFlat, 1);
    c.put_BlockGradientGranularity(vxLow, bar);
  }
}

void StatusLights(Vorlex& c) {
  const OLE_COLOR lights[] = {kRed, kAmber, kGreen};
  for (int16_t i = 0; i < 3; ++i) {
    const auto left = static_cast<int16_t>(60 + 7 * i);
    const Variant light = AddBlock(c, left, static_cast<int16_t>(left + 6), 84, 60, lights[i]);
    c.put_BlockShapeStyle(vxCircle, light);
    SetGradient(c, light, vxInnerCircleGradient, kWhite, lights[i]);
  }
  const Variant panel = AddBlock(c, 60, 80, 56, 28, kSteel);
  SetGradient(c, panel, vxOuterRectangleGradient, kBlack, kSteel);
  SetBorder(c, panel, vxBumpLight, 1);
  SetText(c, panel, "!short time!", kWhite, MakeFont(12, true));
  c.put_BlockTextFont3D(vxRaisedShadow, panel);
}

void HatchedPanelAndBadge(Vorlex& c) {
  const Variant panel = AddBlock(c, 82, 99, 83, 28, 0x303030);
  c.put_BlockBrushStyle(vxDiagonalCross, panel);
  c.put_BlockBrushColor(0x606060, panel);
  SetBorder(c, panel, vxRaised, 3);
  c.put_BlockRivetsStyle(vxInsetRivetsExt, panel);
  SetText(c, panel, "!medium date!", kSky, MakeFont(8, false));
  c.put_BlockTextAlignment(vxBottomCenter, panel);
  c.put_BlockTextOffset(6, panel);

  // On top: painted over the lights and the panel whatever its place in the list.
  const Variant badge = AddBlock(c, 74, 90, 78, 64, kRed);
  c.put_BlockOnTop(VARIANT_TRUE, badge);
  SetBorder(c, badge, vxRaised, 1);
  SetText(c, badge, "LIVE", kWhite, MakeFont(9, true));
  c.put_BlockTextFont3D(vxInsetLight, badge);
}

// Drive D: the disk figures are 32-bit, so a volume of 2 GiB or more raises
// the overflow error; the caller maps D to a small volume (--drive D=PATH) and
// an unmapped D shows "?" and an empty gauge.
void DiskGauge(Vorlex& c) {
  const Variant track = AddBlock(c, 0, 100, 24, 3, 0x202020);
  c.put_BlockBrushStyle(vxVertical, track);
  c.put_BlockBrushColor(0x383838, track);
  SetText(c, track, "drive D: !disk free:d! bytes free ", kWhite, MakeFont(8, false));
  c.put_BlockTextAlignment(vxCenterRight, track);

  // The resizing token sets the gauge's left to 0 and its right to the used ratio.
  const Variant gauge = AddBlock(c, 0, 0, 24, 3, kGreen);
  SetGradient(c, gauge, vxLeftHGradient, kGreen, kAmber);
  SetBorder(c, gauge, vxRaised, 1);
  SetText(c, gauge, "!show horizontal ratio used:d!", kBlack, MakeFont(8, true));
}

}  // namespace

void BuildDemo(Vorlex& control) {
  // Nothing is painted while the dashboard is put together.
  control.put_Redraw(VARIANT_FALSE);
  Background(control);
  ClockAndDate(control);
  RotatedTitleAndLevels(control);
  StatusLights(control);
  HatchedPanelAndBadge(control);
  DiskGauge(control);
  control.put_TimerTimeInterval(1000);
  control.put_TimerTimeEnabled(VARIANT_TRUE);
  control.put_Redraw(VARIANT_TRUE);
}

}  // namespace vorlex::cli
