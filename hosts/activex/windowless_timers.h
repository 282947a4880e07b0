#pragma once
// The control's timers on the thread's message loop: SetTimer with no window,
// so ticks arrive through whatever loop the host runs (a form, a script host,
// a modal dialog).

#include <set>

#include "vorlex/TimerService.h"

namespace vorlex::activex {

class WindowlessTimers final : public TimerService {
 public:
  WindowlessTimers() = default;
  // Kills every timer still running: no tick arrives after the control is gone.
  ~WindowlessTimers() override;
  WindowlessTimers(const WindowlessTimers&) = delete;
  WindowlessTimers& operator=(const WindowlessTimers&) = delete;

  uintptr_t SetTimer(uintptr_t idEvent, uint32_t elapse, TimerProc proc) override;
  bool KillTimer(uintptr_t idEvent) override;
  size_t Running() const { return running_.size(); }

 private:
  std::set<uintptr_t> running_;
};

}  // namespace vorlex::activex
