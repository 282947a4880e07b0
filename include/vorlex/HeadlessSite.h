#pragma once
// A complete in-process container: a memory window, a manual clock for timers,
// and a record of notifications, paints and events. Tests and the command-line
// tool host the control in it.

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "vorlex/ControlSite.h"
#include "vorlex/MemoryWindow.h"
#include "vorlex/TimerService.h"

namespace vorlex {

// Timers driven by a clock that moves only when told to.
class ManualTimers : public TimerService {
 public:
  uintptr_t SetTimer(uintptr_t idEvent, uint32_t elapse, TimerProc proc) override;
  bool KillTimer(uintptr_t idEvent) override;

  // Moves the clock forward and delivers every tick that falls due, in order.
  void Advance(uint32_t milliseconds);
  uint64_t Now() const { return now_; }
  size_t ActiveTimers() const { return timers_.size(); }
  // The interval a running timer has, 0 when there is no such timer.
  uint32_t IntervalOf(uintptr_t idEvent) const;

 private:
  struct Timer {
    uint32_t interval;
    uint64_t due;
    TimerProc proc;
  };
  std::map<uintptr_t, Timer> timers_;
  uint64_t now_ = 0;
};

class HeadlessSite : public ControlSite, public VorlexEvents {
 public:
  static constexpr int kDefaultWidth = 60;   // 900 twips
  static constexpr int kDefaultHeight = 21;  // 315 twips

  explicit HeadlessSite(int widthPixels = kDefaultWidth, int heightPixels = kDefaultHeight);
  ~HeadlessSite() override;
  HeadlessSite(const HeadlessSite&) = delete;
  HeadlessSite& operator=(const HeadlessSite&) = delete;

  // Set-up.
  void SetUserMode(bool userMode) { userMode_ = userMode; }
  void SetAmbientFont(FontPtr font) { ambientFont_ = std::move(font); }
  void SetTwipsPerPixel(float x, float y);
  void SetClientSize(int widthPixels, int heightPixels);
  void SetDisks(std::unique_ptr<DiskService> disks) { disks_ = std::move(disks); }
  void SetClock(std::unique_ptr<ClockService> clock) { clock_ = std::move(clock); }
  // Events also go to this sink, if set.
  void ForwardEventsTo(VorlexEvents* sink) { forward_ = sink; }

  // What the control did.
  const std::vector<std::string>& Notifications() const { return notifications_; }
  const std::vector<std::string>& RaisedEvents() const { return events_; }
  int Paints() const { return paints_; }
  // How often the control asked for its About box.
  int AboutBoxRequests() const { return aboutBoxRequests_; }
  void ClearRecords();
  ManualTimers& TimerClock() { return timers_; }
  // What the window shows.
  WindowImage Snapshot() const;
  bool SaveWindowPng(const std::string& path, std::string* error) const;

  // ControlSite
  double ScaleWidth() const override { return window_.Width(); }
  double ScaleHeight() const override { return window_.Height(); }
  int32_t OuterWidthTwips() const override;
  int32_t OuterHeightTwips() const override;
  void SetOuterWidthTwips(int32_t twips) override;
  void SetOuterHeightTwips(int32_t twips) override;
  float TwipsPerPixelX() const override { return twipsX_; }
  float TwipsPerPixelY() const override { return twipsY_; }
  bool AmbientUserMode() const override { return userMode_; }
  FontPtr AmbientFont() const override { return ambientFont_; }
  uintptr_t hWnd() const override { return window_.hWnd(); }
  uintptr_t hDC() const override { return window_.hDC(); }
  OLE_COLOR BackColor() const override { return backColor_; }
  void SetBackColor(OLE_COLOR color) override { backColor_ = color; }
  OLE_COLOR ForeColor() const override { return foreColor_; }
  void SetForeColor(OLE_COLOR color) override { foreColor_ = color; }
  VARIANT_BOOL Enabled() const override { return enabled_; }
  void SetEnabled(VARIANT_BOOL enabled) override { enabled_ = enabled; }
  FontPtr Font() const override { return font_; }
  void SetFont(FontPtr font) override { font_ = std::move(font); }
  void PropertyChanged(std::string_view name) override { notifications_.emplace_back(name); }
  void BarPainted() override { ++paints_; }
  void ShowAboutBox() override { ++aboutBoxRequests_; }
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

 private:
  float twipsX_ = 15.0f;
  float twipsY_ = 15.0f;
  bool userMode_ = true;
  FontPtr ambientFont_;
  OLE_COLOR backColor_ = 0x8000000F;  // the container's button-face default
  OLE_COLOR foreColor_ = 0x80000012;  // button text
  VARIANT_BOOL enabled_ = VARIANT_TRUE;
  FontPtr font_;
  std::vector<std::string> notifications_;
  std::vector<std::string> events_;
  int paints_ = 0;
  int aboutBoxRequests_ = 0;
  ManualTimers timers_;
  VorlexEvents* forward_ = nullptr;
  std::unique_ptr<DiskService> disks_;
  std::unique_ptr<ClockService> clock_;
  std::function<void()> resized_;
  void ResizeWindow(int widthPixels, int heightPixels);
  MemoryWindow window_;
};

}  // namespace vorlex
