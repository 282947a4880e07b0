#pragma once
// Periodic timers with SetTimer/KillTimer semantics, always without a window:
// callbacks arrive on the control's thread.

#include <cstdint>

namespace vorlex {

class TimerService {
 public:
  using TimerProc = void (*)(uintptr_t hwnd, uint32_t msg, uintptr_t idEvent, uint32_t time);

  virtual ~TimerService() = default;
  // Id 0 sets a new timer and returns its id (0 on failure); an existing id is
  // re-armed in place with the new interval and returned.
  virtual uintptr_t SetTimer(uintptr_t idEvent, uint32_t elapse, TimerProc proc) = 0;
  // True when the timer existed and was stopped.
  virtual bool KillTimer(uintptr_t idEvent) = 0;
};

}  // namespace vorlex
