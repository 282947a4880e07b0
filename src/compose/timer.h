#pragma once
// The timer service: clsTimer (Interval, Enabled, raises Timer), the relay
// clsTimerLink (raises Tick) and modTimer's registry of running timers.

#include <cstdint>
#include <functional>
#include <memory>

#include "vorlex/Numeric.h"
#include "vorlex/TimerService.h"

namespace vorlex {

class clsTimerLink {
 public:
  using TickHandler = std::function<void()>;
  explicit clsTimerLink(TickHandler onTick) : onTick_(std::move(onTick)) {}
  void RaiseTick() const {
    if (onTick_) onTick_();
  }
  // The listener went away; later ticks reach nobody.
  void Detach() { onTick_ = nullptr; }

 private:
  TickHandler onTick_;
};

namespace modTimer {
// The operating-system timer procedure registered with every SetTimer.
void TimerCallback(uintptr_t hwnd, uint32_t msg, uintptr_t idEvent, uint32_t time);
// Running timers by the decimal text of their id.
void AddLiveTimer(uintptr_t id, std::shared_ptr<clsTimerLink> link);
void RemoveLiveTimer(uintptr_t id);
bool IsLiveTimer(uintptr_t id);
}  // namespace modTimer

class clsTimer {
 public:
  using TimerHandler = std::function<void()>;
  clsTimer(TimerService& service, TimerHandler onTimer);
  ~clsTimer();
  clsTimer(const clsTimer&) = delete;
  clsTimer& operator=(const clsTimer&) = delete;

  int32_t Interval() const { return interval_; }
  void SetInterval(int32_t interval);
  VARIANT_BOOL Enabled() const { return enabled_; }
  void SetEnabled(VARIANT_BOOL enabled);
  bool Running() const { return running_; }
  uintptr_t TimerId() const { return timerId_; }

 private:
  void moTimerLink_Tick() const;

  TimerService& service_;
  TimerHandler onTimer_;
  int32_t interval_ = 1;
  VARIANT_BOOL enabled_ = VARIANT_FALSE;
  bool running_ = false;
  uintptr_t timerId_ = 0;
  std::shared_ptr<clsTimerLink> moTimerLink;
};

}  // namespace vorlex
