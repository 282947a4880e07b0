#include <algorithm>
#include <atomic>

#include "vorlex/HeadlessSite.h"

namespace vorlex {

namespace {
constexpr uint32_t kTimerMinimum = 0x0A;        // shorter intervals are raised to this
constexpr uint32_t kTimerMaximum = 0x7FFFFFFF;  // longer ones are lowered to this
constexpr uint32_t kWmTimer = 0x0113;

uint32_t ClampInterval(uint32_t elapse) { return std::clamp(elapse, kTimerMinimum, kTimerMaximum); }

// Thread timers without a window have ids unique in the process: the callback
// finds its timer by id alone.
uintptr_t NextTimerId() {
  static std::atomic<uintptr_t> next{1};
  return next++;
}
}  // namespace

uintptr_t ManualTimers::SetTimer(uintptr_t idEvent, uint32_t elapse, TimerProc proc) {
  const uint32_t interval = ClampInterval(elapse);
  auto it = timers_.find(idEvent);
  if (idEvent != 0 && it != timers_.end()) {
    it->second = Timer{interval, now_ + interval, proc};
    return idEvent;
  }
  const uintptr_t id = NextTimerId();
  timers_.emplace(id, Timer{interval, now_ + interval, proc});
  return id;
}

bool ManualTimers::KillTimer(uintptr_t idEvent) { return timers_.erase(idEvent) != 0; }

uint32_t ManualTimers::IntervalOf(uintptr_t idEvent) const {
  auto it = timers_.find(idEvent);
  return it == timers_.end() ? 0 : it->second.interval;
}

void ManualTimers::Advance(uint32_t milliseconds) {
  const uint64_t end = now_ + milliseconds;
  for (;;) {
    // The earliest due timer; ties go to the lower id. A callback may set or
    // kill timers, so the search starts afresh after each tick.
    auto next = std::min_element(timers_.begin(), timers_.end(),
                                 [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
    if (next == timers_.end() || next->second.due > end) break;
    now_ = next->second.due;
    next->second.due += next->second.interval;
    const uintptr_t id = next->first;
    const TimerProc proc = next->second.proc;
    proc(0, kWmTimer, id, static_cast<uint32_t>(now_));
  }
  now_ = end;
}

}  // namespace vorlex
