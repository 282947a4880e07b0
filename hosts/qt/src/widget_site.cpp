#include "widget_site.h"

#include <QPalette>

#include "platform/gdi.h"
#include "qt_convert.h"
#include "vorlex/Numeric.h"
#include "vorlex/qt/Editors.h"
#include "vorlex/qt/VorlexWidget.h"

namespace vorlex::qt {

namespace {
constexpr double kTwipsPerInch = 1440.0;
}  // namespace

WidgetSite::WidgetSite(VorlexWidget& widget)
    : widget_(widget),
      font_(ToVorlexFont(widget.font())),
      disks_(SystemDisks()),
      clock_(SystemClock()),
      window_(widget.width(), widget.height()) {}

WidgetSite::~WidgetSite() = default;

// A new window bitmap is black until the control's next paint covers it.
void WidgetSite::SyncSize() {
  if (window_.Resize(widget_.width(), widget_.height()) && resized_) resized_();
}

QImage WidgetSite::WindowImage() const {
  const vorlex::WindowImage pixels = window_.Snapshot();
  if (pixels.width <= 0 || pixels.height <= 0) return {};
  QImage image(pixels.width, pixels.height, QImage::Format_RGB32);
  for (int y = 0; y < pixels.height; ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < pixels.width; ++x) row[x] = 0xFF000000u | pixels.At(x, y);
  }
  return image;
}

double WidgetSite::ScaleWidth() const { return widget_.width(); }
double WidgetSite::ScaleHeight() const { return widget_.height(); }

float WidgetSite::TwipsPerPixelX() const {
  const int dpi = widget_.logicalDpiX();
  return static_cast<float>(dpi > 0 ? kTwipsPerInch / dpi : 15.0);
}
float WidgetSite::TwipsPerPixelY() const {
  const int dpi = widget_.logicalDpiY();
  return static_cast<float>(dpi > 0 ? kTwipsPerInch / dpi : 15.0);
}

int32_t WidgetSite::OuterWidthTwips() const { return ToLong(widget_.width() * static_cast<double>(TwipsPerPixelX())); }
int32_t WidgetSite::OuterHeightTwips() const {
  return ToLong(widget_.height() * static_cast<double>(TwipsPerPixelY()));
}

// The container resizes at once, as a form does, and the control hears of it
// before this returns.
void WidgetSite::SetOuterWidthTwips(int32_t twips) {
  const double perPixel = TwipsPerPixelX();
  widget_.resize(static_cast<int>(RoundHalfEven(twips / perPixel)), widget_.height());
  SyncSize();
}
void WidgetSite::SetOuterHeightTwips(int32_t twips) {
  const double perPixel = TwipsPerPixelY();
  widget_.resize(widget_.width(), static_cast<int>(RoundHalfEven(twips / perPixel)));
  SyncSize();
}

FontPtr WidgetSite::AmbientFont() const { return ToVorlexFont(widget_.font()); }

void WidgetSite::SetBackColor(OLE_COLOR color) {
  backColor_ = color;
  QPalette palette = widget_.palette();
  palette.setColor(QPalette::Window, ToQColor(color));
  widget_.setPalette(palette);
}

void WidgetSite::SetForeColor(OLE_COLOR color) {
  foreColor_ = color;
  QPalette palette = widget_.palette();
  palette.setColor(QPalette::WindowText, ToQColor(color));
  widget_.setPalette(palette);
}

VARIANT_BOOL WidgetSite::Enabled() const { return ToVariantBool(widget_.isEnabled()); }
void WidgetSite::SetEnabled(VARIANT_BOOL enabled) { widget_.setEnabled(enabled != VARIANT_FALSE); }

void WidgetSite::SetFont(FontPtr font) {
  font_ = std::move(font);
  if (!font_) return;
  settingFont = true;
  widget_.setFont(ToQFont(*font_));
  settingFont = false;
}

void WidgetSite::PropertyChanged(std::string_view name) {
  emit widget_.propertyChanged(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}

// The widget's own paint copies the window right after; any other redraw
// (a setter, a timer) schedules one.
void WidgetSite::BarPainted() {
  if (!painting) widget_.update();
}

void WidgetSite::ShowAboutBox() { ShowAboutDialog(&widget_); }

void WidgetSite::BlockClicked(int16_t& iBlock) { emit widget_.blockClicked(iBlock); }
void WidgetSite::Click() { emit widget_.clicked(); }
void WidgetSite::DblClick() { emit widget_.doubleClicked(); }
void WidgetSite::TimerTime() { emit widget_.timerTime(); }
void WidgetSite::TimerDisk() { emit widget_.timerDisk(); }

}  // namespace vorlex::qt
