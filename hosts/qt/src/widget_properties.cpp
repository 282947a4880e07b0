// The control-level properties as the widget's Q_PROPERTYs: each forwards to
// the control's own getter and setter, which notify and redraw.

#include "qt_convert.h"
#include "vorlex/Picture.h"
#include "vorlex_widget_private.h"

namespace vorlex::qt {

namespace {
// Property writes come from Designer, QUiLoader and other meta-object callers
// that cannot take an exception: a failing one is reported and skipped.
template <class Put>
void Guarded(const char* name, Put put) {
  try {
    put();
  } catch (const std::exception& e) {
    qWarning("Vorlex: setting %s failed: %s", name, e.what());
  }
}
}  // namespace

#define VORLEX_INT_PROPERTY(getter, setter, Name, CType)                       \
  int VorlexWidget::getter() const { return d->control.get_##Name(); }         \
  void VorlexWidget::setter(int value) {                                       \
    Guarded(#Name, [&] { d->control.put_##Name(static_cast<CType>(value)); }); \
  }

#define VORLEX_ENUM_PROPERTY(getter, setter, Name, Enum)                                                 \
  VorlexWidget::Enum VorlexWidget::getter() const { return static_cast<Enum>(d->control.get_##Name()); } \
  void VorlexWidget::setter(Enum value) {                                                                \
    Guarded(#Name, [&] { d->control.put_##Name(static_cast<int32_t>(value)); });                         \
  }

#define VORLEX_COLOR_PROPERTY(getter, setter, Name)                                 \
  QColor VorlexWidget::getter() const { return ToQColor(d->control.get_##Name()); } \
  void VorlexWidget::setter(const QColor& color) {                                  \
    Guarded(#Name, [&] { d->control.put_##Name(ToOleColor(color)); });              \
  }

#define VORLEX_BOOL_PROPERTY(getter, setter, Name)                                       \
  bool VorlexWidget::getter() const { return d->control.get_##Name() != VARIANT_FALSE; } \
  void VorlexWidget::setter(bool value) {                                                \
    Guarded(#Name, [&] { d->control.put_##Name(ToVariantBool(value)); });                \
  }

VORLEX_COLOR_PROPERTY(backColor, setBackColor, BackColor)
VORLEX_COLOR_PROPERTY(foreColor, setForeColor, ForeColor)
VORLEX_INT_PROPERTY(borderWidth, setBorderWidth, BorderWidth, int16_t)
VORLEX_ENUM_PROPERTY(borderStyle, setBorderStyle, BorderStyle, vxBorderStyleEnum)
VORLEX_INT_PROPERTY(hMinValue, setHMinValue, HMinValue, int16_t)
VORLEX_INT_PROPERTY(hMaxValue, setHMaxValue, HMaxValue, int16_t)
VORLEX_INT_PROPERTY(vMinValue, setVMinValue, VMinValue, int16_t)
VORLEX_INT_PROPERTY(vMaxValue, setVMaxValue, VMaxValue, int16_t)
VORLEX_ENUM_PROPERTY(brushStyle, setBrushStyle, BrushStyle, vxBrushStyleEnum)
VORLEX_COLOR_PROPERTY(brushColor, setBrushColor, BrushColor)
VORLEX_ENUM_PROPERTY(captionAlignment, setCaptionAlignment, CaptionAlignment, vxAlignmentEnum)
VORLEX_INT_PROPERTY(captionOffset, setCaptionOffset, CaptionOffset, int16_t)
VORLEX_INT_PROPERTY(captionAngle, setCaptionAngle, CaptionAngle, int16_t)
VORLEX_ENUM_PROPERTY(captionAutoAngle, setCaptionAutoAngle, CaptionAutoAngle, vxAutoAngleEnum)
VORLEX_ENUM_PROPERTY(captionFont3D, setCaptionFont3D, CaptionFont3D, vxFont3DEnum)
VORLEX_COLOR_PROPERTY(disabledColor, setDisabledColor, DisabledColor)
VORLEX_ENUM_PROPERTY(orientation, setOrientation, Orientation, vxOrientationEnum)
VORLEX_BOOL_PROPERTY(redraw, setRedraw, Redraw)
VORLEX_INT_PROPERTY(timerTimeInterval, setTimerTimeInterval, TimerTimeInterval, int32_t)
VORLEX_BOOL_PROPERTY(timerTimeEnabled, setTimerTimeEnabled, TimerTimeEnabled)
VORLEX_INT_PROPERTY(timerDiskInterval, setTimerDiskInterval, TimerDiskInterval, int32_t)
VORLEX_BOOL_PROPERTY(timerDiskEnabled, setTimerDiskEnabled, TimerDiskEnabled)
VORLEX_ENUM_PROPERTY(rivetsStyle, setRivetsStyle, RivetsStyle, vxRivetsStyleEnum)
VORLEX_ENUM_PROPERTY(gradientStyle, setGradientStyle, GradientStyle, vxGradientStyleEnum)
VORLEX_COLOR_PROPERTY(gradientColor, setGradientColor, GradientColor)
VORLEX_COLOR_PROPERTY(gradientColorEnd, setGradientColorEnd, GradientColorEnd)
VORLEX_ENUM_PROPERTY(gradientGranularity, setGradientGranularity, GradientGranularity, vxGradientGranularityEnum)
VORLEX_ENUM_PROPERTY(pictureAutoSize, setPictureAutoSize, PictureAutoSize, vxAutoSizeEnum)
VORLEX_ENUM_PROPERTY(pictureTile, setPictureTile, PictureTile, vxTileEnum)
VORLEX_INT_PROPERTY(pictureOffset, setPictureOffset, PictureOffset, int16_t)
VORLEX_ENUM_PROPERTY(pictureAlignment, setPictureAlignment, PictureAlignment, vxAlignmentEnum)
VORLEX_INT_PROPERTY(blocks, setBlocks, Blocks, int16_t)
VORLEX_INT_PROPERTY(indexBlock, setIndexBlock, IndexBlock, int16_t)

QString VorlexWidget::caption() const { return ToQString(d->control.get_Caption()); }
void VorlexWidget::setCaption(const QString& text) {
  Guarded("Caption", [&] { d->control.put_Caption(ToStd(text)); });
}

void VorlexWidget::addBlock() { d->control.AddBlock(); }
void VorlexWidget::deleteBlock(const QVariant& block) { d->control.DeleteBlock(BlockArgument(block)); }
void VorlexWidget::clearBlockBar() { d->control.ClearBlockBar(); }
void VorlexWidget::clearAll(vxClearAllEnum clear) { d->control.ClearAll(static_cast<int32_t>(clear)); }
void VorlexWidget::saveSetting() { d->control.SaveSetting(); }
void VorlexWidget::restoreSetting() { d->control.RestoreSetting(); }
void VorlexWidget::refresh() { d->control.Refresh(); }
void VorlexWidget::showAboutBox() { d->control.ShowAboutBox(); }
void VorlexWidget::setPicture(const QString& path) { d->control.putref_Picture(LoadPicture(ToStd(path))); }

}  // namespace vorlex::qt
