#include "compose/timer.h"

#include <map>
#include <string>

namespace vorlex {

namespace modTimer {
namespace {
// Created by the first timer, never destroyed: a late tick must still find it.
std::map<std::string, std::shared_ptr<clsTimerLink>>& LiveTimers() {
  static auto* timers = new std::map<std::string, std::shared_ptr<clsTimerLink>>();
  return *timers;
}
std::string KeyOf(uintptr_t id) { return std::to_string(id); }
}  // namespace

void TimerCallback(uintptr_t, uint32_t, uintptr_t idEvent, uint32_t) {
  // A tick must never take the caller down: every failure ends it silently.
  try {
    auto it = LiveTimers().find(KeyOf(idEvent));
    if (it == LiveTimers().end()) return;
    std::shared_ptr<clsTimerLink> link = it->second;
    link->RaiseTick();
  } catch (...) {
  }
}

void AddLiveTimer(uintptr_t id, std::shared_ptr<clsTimerLink> link) { LiveTimers()[KeyOf(id)] = std::move(link); }
void RemoveLiveTimer(uintptr_t id) { LiveTimers().erase(KeyOf(id)); }
bool IsLiveTimer(uintptr_t id) { return LiveTimers().count(KeyOf(id)) != 0; }
}  // namespace modTimer

clsTimer::clsTimer(TimerService& service, TimerHandler onTimer) : service_(service), onTimer_(std::move(onTimer)) {}

clsTimer::~clsTimer() {
  if (running_) SetEnabled(VARIANT_FALSE);
  if (moTimerLink) moTimerLink->Detach();
}

void clsTimer::SetInterval(int32_t interval) {
  if (interval == interval_) return;
  interval_ = interval;
  if (running_) service_.SetTimer(timerId_, static_cast<uint32_t>(interval_), modTimer::TimerCallback);
}

void clsTimer::SetEnabled(VARIANT_BOOL enabled) {
  // The property is a Boolean: any nonzero value arrives as True.
  const bool wanted = enabled != VARIANT_FALSE;
  enabled_ = ToVariantBool(wanted);
  if (wanted == running_) return;
  if (wanted) {
    timerId_ = service_.SetTimer(0, static_cast<uint32_t>(interval_), modTimer::TimerCallback);
    if (timerId_ == 0) return;
    running_ = true;
    if (moTimerLink) moTimerLink->Detach();
    moTimerLink = std::make_shared<clsTimerLink>([this] { moTimerLink_Tick(); });
    modTimer::AddLiveTimer(timerId_, moTimerLink);
  } else if (service_.KillTimer(timerId_)) {
    running_ = false;
    modTimer::RemoveLiveTimer(timerId_);
  }
}

void clsTimer::moTimerLink_Tick() const {
  if (onTimer_) onTimer_();
}

}  // namespace vorlex
