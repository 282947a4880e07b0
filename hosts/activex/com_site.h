#pragma once
// The container seam on COM. Until the control has a window of its own it
// draws into the memory window it inherits; its timers run on the thread's
// message loop; its events and change notifications go to the COM object,
// which passes them to the connected sinks.

#include <functional>
#include <string_view>

#include "com_includes.h"
#include "vorlex/HeadlessSite.h"
#include "windowless_timers.h"

namespace vorlex::activex {

// Where the site sends what the control raises.
class SiteOwner {
 public:
  virtual ~SiteOwner() = default;
  virtual VorlexEvents& EventSink() = 0;
  virtual void OnPropertyChanged(std::string_view name) = 0;
};

class ComSite final : public HeadlessSite {
 public:
  explicit ComSite(SiteOwner& owner);

  void PropertyChanged(std::string_view name) override { owner_.OnPropertyChanged(name); }
  // The About box, modal over the control's window or the active one.
  void ShowAboutBox() override;
  VorlexEvents& Events() override { return owner_.EventSink(); }
  TimerService& Timers() override { return timers_; }
  WindowlessTimers& RunningTimers() { return timers_; }

  // In-place active, the control draws into its own window, whose client size
  // is the control's; otherwise into the memory window.
  void AttachWindow(HWND window);
  void DetachWindow();
  HWND Window() const { return window_; }
  uintptr_t hWnd() const override { return reinterpret_cast<uintptr_t>(window_); }
  uintptr_t hDC() const override { return window_ ? reinterpret_cast<uintptr_t>(windowDC_) : HeadlessSite::hDC(); }
  // The listener is kept here too: a new drawing context needs a new surface
  // even when the size stays.
  void SetResizeListener(std::function<void()> listener) override;
  // The window follows the control's Enabled: a disabled window gets no input.
  void SetEnabled(VARIANT_BOOL enabled) override;
  // The memory window or the control's window, whichever the control draws in.
  HDC DrawingDC() const { return reinterpret_cast<HDC>(hDC()); }

 private:
  SiteOwner& owner_;
  WindowlessTimers timers_;
  HWND window_ = nullptr;
  HDC windowDC_ = nullptr;
  std::function<void()> resized_;
};

}  // namespace vorlex::activex
