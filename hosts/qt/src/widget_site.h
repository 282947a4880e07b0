#pragma once
// The container a VorlexWidget gives its control: the widget's size and font,
// a memory window (a softgdi context of the client size) that the control
// copies its picture into and the widget paints from, the pass-through
// properties, Qt timers, and events turned into the widget's signals.

#include <QImage>
#include <functional>
#include <memory>

#include "qt_timers.h"
#include "vorlex/ControlSite.h"
#include "vorlex/MemoryWindow.h"

namespace vorlex::qt {

class VorlexWidget;

class WidgetSite final : public ControlSite, public VorlexEvents {
 public:
  explicit WidgetSite(VorlexWidget& widget);
  ~WidgetSite() override;
  WidgetSite(const WidgetSite&) = delete;
  WidgetSite& operator=(const WidgetSite&) = delete;

  void SetUserMode(bool userMode) { userMode_ = userMode; }
  void SetDisks(std::unique_ptr<DiskService> disks) { disks_ = std::move(disks); }
  void SetClock(std::unique_ptr<ClockService> clock) { clock_ = std::move(clock); }
  // Brings the memory window to the widget's size; tells the control when the
  // size changed. A hidden widget hears of its resize late, so paint checks too.
  void SyncSize();
  // The memory window's pixels, in logical pixels.
  QImage WindowImage() const;
  // True while the widget's own paint asks the control to redraw.
  bool painting = false;
  // True while the control passes its font on to the widget.
  bool settingFont = false;
  QtTimers& QtTimerService() { return timers_; }

  // ControlSite
  double ScaleWidth() const override;
  double ScaleHeight() const override;
  int32_t OuterWidthTwips() const override;
  int32_t OuterHeightTwips() const override;
  void SetOuterWidthTwips(int32_t twips) override;
  void SetOuterHeightTwips(int32_t twips) override;
  float TwipsPerPixelX() const override;
  float TwipsPerPixelY() const override;
  bool AmbientUserMode() const override { return userMode_; }
  FontPtr AmbientFont() const override;
  uintptr_t hWnd() const override { return window_.hWnd(); }
  uintptr_t hDC() const override { return window_.hDC(); }
  OLE_COLOR BackColor() const override { return backColor_; }
  void SetBackColor(OLE_COLOR color) override;
  OLE_COLOR ForeColor() const override { return foreColor_; }
  void SetForeColor(OLE_COLOR color) override;
  VARIANT_BOOL Enabled() const override;
  void SetEnabled(VARIANT_BOOL enabled) override;
  FontPtr Font() const override { return font_; }
  void SetFont(FontPtr font) override;
  void PropertyChanged(std::string_view name) override;
  void BarPainted() override;
  void ShowAboutBox() override;
  VorlexEvents& Events() override { return *this; }
  TimerService& Timers() override { return timers_; }
  DiskService& Disks() override { return *disks_; }
  const ClockService& Clock() const override { return *clock_; }
  void SetResizeListener(std::function<void()> listener) override { resized_ = std::move(listener); }

  // VorlexEvents
  void BlockClicked(int16_t& iBlock) override;
  void Click() override;
  void DblClick() override;
  void TimerTime() override;
  void TimerDisk() override;

  // The widget's font changed from outside the control (setFont, a style).
  void AdoptWidgetFont(FontPtr font) { font_ = std::move(font); }

 private:
  VorlexWidget& widget_;
  bool userMode_ = true;
  OLE_COLOR backColor_ = 0x8000000F;
  OLE_COLOR foreColor_ = 0x80000012;
  FontPtr font_;
  QtTimers timers_;
  std::unique_ptr<DiskService> disks_;
  std::unique_ptr<ClockService> clock_;
  std::function<void()> resized_;
  MemoryWindow window_;
};

}  // namespace vorlex::qt
