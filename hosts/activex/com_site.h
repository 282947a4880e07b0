#pragma once
// The container seam on COM. Until the control has a window of its own it
// draws into the memory window it inherits; its timers run on the thread's
// message loop; its events and change notifications go to the COM object,
// which passes them to the connected sinks.

#include <string_view>

#include "vorlex/HeadlessSite.h"
#include "windowless_timers.h"

namespace vorlex::activex {

// Where the site sends what the control raises.
class SiteOwner {
 public:
  virtual ~SiteOwner() = default;
  virtual VorlexEvents& EventSink() = 0;
  virtual void OnPropertyChanged(std::string_view name) = 0;
  virtual void OnShowAboutBox() = 0;
};

class ComSite final : public HeadlessSite {
 public:
  explicit ComSite(SiteOwner& owner);

  void PropertyChanged(std::string_view name) override { owner_.OnPropertyChanged(name); }
  void ShowAboutBox() override { owner_.OnShowAboutBox(); }
  VorlexEvents& Events() override { return owner_.EventSink(); }
  TimerService& Timers() override { return timers_; }
  WindowlessTimers& RunningTimers() { return timers_; }

 private:
  SiteOwner& owner_;
  WindowlessTimers timers_;
};

}  // namespace vorlex::activex
