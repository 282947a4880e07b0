// Control-level properties: store, notify the container by name, redraw.

#include <cstdlib>

#include "control/vorlex_impl.h"
#include "vorlex/AutomationError.h"

namespace vorlex {

namespace {
// Properties that exist only in a form designer fail at run time, with the
// runtime's own text for the number.
void RequireDesignTime(const ControlSite& site) {
  if (site.AmbientUserMode()) RaiseError(kErrGetNotAtRunTime);
}
}  // namespace

// Pass-through properties live in the host window object.
OLE_COLOR Vorlex::get_BackColor() const { return d->backColor; }
void Vorlex::put_BackColor(OLE_COLOR value) {
  d->backColor = value;
  d->site.SetBackColor(value);
  d->site.PropertyChanged("BackColor");
  d->RedrawBar();
}
OLE_COLOR Vorlex::get_ForeColor() const { return d->site.ForeColor(); }
void Vorlex::put_ForeColor(OLE_COLOR value) {
  d->site.SetForeColor(value);
  d->site.PropertyChanged("ForeColor");
  d->RedrawBar();
}
VARIANT_BOOL Vorlex::get_Enabled() const { return d->site.Enabled(); }
void Vorlex::put_Enabled(VARIANT_BOOL value) {
  d->site.SetEnabled(value);
  d->site.PropertyChanged("Enabled");
  d->RedrawBar();
}
FontPtr Vorlex::get_Font() const { return d->site.Font(); }
void Vorlex::putref_Font(const FontPtr& value) {
  d->site.SetFont(value);
  d->site.PropertyChanged("Font");
  d->RedrawBar();
}
int32_t Vorlex::get_hWnd() const { return static_cast<int32_t>(d->site.hWnd()); }

int16_t Vorlex::get_BorderWidth() const { return d->borderWidth; }
void Vorlex::put_BorderWidth(int16_t value) { d->SetProperty(d->borderWidth, value, "BorderWidth"); }
int32_t Vorlex::get_BorderStyle() const { return d->borderStyle; }
void Vorlex::put_BorderStyle(int32_t value) { d->SetProperty(d->borderStyle, value, "BorderStyle"); }
int16_t Vorlex::get_HMinValue() const { return d->hMinValue; }
void Vorlex::put_HMinValue(int16_t value) { d->SetProperty(d->hMinValue, value, "HMinValue"); }
int16_t Vorlex::get_HMaxValue() const { return d->hMaxValue; }
void Vorlex::put_HMaxValue(int16_t value) { d->SetProperty(d->hMaxValue, value, "HMaxValue"); }
int16_t Vorlex::get_VMinValue() const { return d->vMinValue; }
void Vorlex::put_VMinValue(int16_t value) { d->SetProperty(d->vMinValue, value, "VMinValue"); }
int16_t Vorlex::get_VMaxValue() const { return d->vMaxValue; }
void Vorlex::put_VMaxValue(int16_t value) { d->SetProperty(d->vMaxValue, value, "VMaxValue"); }
int32_t Vorlex::get_BrushStyle() const { return d->brushStyle; }
void Vorlex::put_BrushStyle(int32_t value) { d->SetProperty(d->brushStyle, value, "BrushStyle"); }
OLE_COLOR Vorlex::get_BrushColor() const { return d->brushColor; }
void Vorlex::put_BrushColor(OLE_COLOR value) { d->SetProperty(d->brushColor, value, "BrushColor"); }
std::string Vorlex::get_Caption() const { return d->caption; }
void Vorlex::put_Caption(const std::string& value) { d->SetProperty(d->caption, value, "Caption"); }
int32_t Vorlex::get_CaptionAlignment() const { return d->captionAlignment; }
void Vorlex::put_CaptionAlignment(int32_t value) { d->SetProperty(d->captionAlignment, value, "CaptionAlignment"); }
OLE_COLOR Vorlex::get_DisabledColor() const { return d->disabledColor; }
void Vorlex::put_DisabledColor(OLE_COLOR value) { d->SetProperty(d->disabledColor, value, "DisabledColor"); }

int32_t Vorlex::get_SpecialClearAllBlock() const {
  RequireDesignTime(d->site);
  return d->specialClearAllBlock;
}
// A command in the form of a property: any value resets every block, and the
// stored value falls back to vxDontClear.
void Vorlex::put_SpecialClearAllBlock(int32_t value) {
  RequireDesignTime(d->site);
  d->specialClearAllBlock = value;
  d->site.PropertyChanged("SpecialClearAllBlock");
  d->ClearAll(vxSoft);
  d->SetProperty(d->specialClearAllBlock, vxDontClear, "SpecialClearAllBlock");
}

int32_t Vorlex::get_Orientation() const { return d->orientation; }
void Vorlex::put_Orientation(int32_t value) { d->SetProperty(d->orientation, value, "Orientation"); }
int16_t Vorlex::get_CaptionOffset() const { return d->captionOffset; }
void Vorlex::put_CaptionOffset(int16_t value) { d->SetProperty(d->captionOffset, value, "CaptionOffset"); }
int16_t Vorlex::get_CaptionAngle() const { return d->captionAngle; }
// Folded into 0..359; negative angles fold onto positive ones (-90 -> 90).
void Vorlex::put_CaptionAngle(int16_t value) {
  d->SetProperty(d->captionAngle, static_cast<int16_t>(std::abs(value % 360)), "CaptionAngle");
}
int32_t Vorlex::get_CaptionAutoAngle() const { return d->captionAutoAngle; }
void Vorlex::put_CaptionAutoAngle(int32_t value) { d->SetProperty(d->captionAutoAngle, value, "CaptionAutoAngle"); }

VARIANT_BOOL Vorlex::get_DontRefreshAfterPropertyPage() const {
  RequireDesignTime(d->site);
  return d->dontRefreshAfterPropertyPage;
}
void Vorlex::put_DontRefreshAfterPropertyPage(VARIANT_BOOL value) {
  RequireDesignTime(d->site);
  d->dontRefreshAfterPropertyPage = value;
  d->site.PropertyChanged("DontRefreshAfterPropertyPage");
  if (value == VARIANT_FALSE) d->RedrawBar();
}

int32_t Vorlex::get_CaptionFont3D() const { return d->captionFont3D; }
void Vorlex::put_CaptionFont3D(int32_t value) { d->SetProperty(d->captionFont3D, value, "CaptionFont3D"); }
VARIANT_BOOL Vorlex::get_Redraw() const { return d->redraw; }
void Vorlex::put_Redraw(VARIANT_BOOL value) { d->SetProperty(d->redraw, value, "Redraw"); }

// Timer settings are handed to their timer objects and never redraw.
int32_t Vorlex::get_TimerTimeInterval() const { return d->timerTimeInterval; }
void Vorlex::put_TimerTimeInterval(int32_t value) {
  d->SetTimerProperty(d->timerTimeInterval, value, "TimerTimeInterval", *d->timerTimeInformation,
                      &clsTimer::SetInterval);
}
VARIANT_BOOL Vorlex::get_TimerTimeEnabled() const { return d->timerTimeEnabled; }
void Vorlex::put_TimerTimeEnabled(VARIANT_BOOL value) {
  d->SetTimerProperty(d->timerTimeEnabled, value, "TimerTimeEnabled", *d->timerTimeInformation, &clsTimer::SetEnabled);
}
int32_t Vorlex::get_TimerDiskInterval() const { return d->timerDiskInterval; }
void Vorlex::put_TimerDiskInterval(int32_t value) {
  d->SetTimerProperty(d->timerDiskInterval, value, "TimerDiskInterval", *d->timerDiskInformation,
                      &clsTimer::SetInterval);
}
VARIANT_BOOL Vorlex::get_TimerDiskEnabled() const { return d->timerDiskEnabled; }
void Vorlex::put_TimerDiskEnabled(VARIANT_BOOL value) {
  d->SetTimerProperty(d->timerDiskEnabled, value, "TimerDiskEnabled", *d->timerDiskInformation, &clsTimer::SetEnabled);
}

int32_t Vorlex::get_RivetsStyle() const { return d->rivetsStyle; }
void Vorlex::put_RivetsStyle(int32_t value) { d->SetProperty(d->rivetsStyle, value, "RivetsStyle"); }
int32_t Vorlex::get_GradientStyle() const { return d->gradientStyle; }
void Vorlex::put_GradientStyle(int32_t value) { d->SetProperty(d->gradientStyle, value, "GradientStyle"); }
OLE_COLOR Vorlex::get_GradientColor() const { return d->gradientColor; }
void Vorlex::put_GradientColor(OLE_COLOR value) { d->SetProperty(d->gradientColor, value, "GradientColor"); }
OLE_COLOR Vorlex::get_GradientColorEnd() const { return d->gradientColorEnd; }
void Vorlex::put_GradientColorEnd(OLE_COLOR value) { d->SetProperty(d->gradientColorEnd, value, "GradientColorEnd"); }
int32_t Vorlex::get_GradientGranularity() const { return d->gradientGranularity; }
void Vorlex::put_GradientGranularity(int32_t value) {
  d->SetProperty(d->gradientGranularity, value, "GradientGranularity");
}
PicturePtr Vorlex::get_Picture() const { return d->picture; }
void Vorlex::putref_Picture(const PicturePtr& value) { d->SetProperty(d->picture, value, "Picture"); }
int32_t Vorlex::get_PictureAutoSize() const { return d->pictureAutoSize; }
void Vorlex::put_PictureAutoSize(int32_t value) { d->SetProperty(d->pictureAutoSize, value, "PictureAutoSize"); }
int32_t Vorlex::get_PictureTile() const { return d->pictureTile; }
void Vorlex::put_PictureTile(int32_t value) { d->SetProperty(d->pictureTile, value, "PictureTile"); }
int16_t Vorlex::get_PictureOffset() const { return d->pictureOffset; }
void Vorlex::put_PictureOffset(int16_t value) { d->SetProperty(d->pictureOffset, value, "PictureOffset"); }
int32_t Vorlex::get_PictureAlignment() const { return d->pictureAlignment; }
void Vorlex::put_PictureAlignment(int32_t value) { d->SetProperty(d->pictureAlignment, value, "PictureAlignment"); }

Variant Vorlex::Refresh() {
  d->RedrawBar();
  return {};
}

// The About box is the container's to show: it owns the windows.
Variant Vorlex::About() {
  d->site.ShowAboutBox();
  return {};
}

Variant Vorlex::ShowAboutBox() { return About(); }

}  // namespace vorlex
