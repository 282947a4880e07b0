#pragma once
// The control's timers on the Qt event loop: one QTimer per id. Ids are
// unique in the process, as the control's timer registry finds a tick by id
// alone. Timers die with this object, so no tick outlives its widget.

#include <QObject>
#include <QTimer>
#include <map>
#include <memory>

#include "vorlex/TimerService.h"

namespace vorlex::qt {

class QtTimers final : public TimerService {
 public:
  QtTimers() = default;
  ~QtTimers() override;
  QtTimers(const QtTimers&) = delete;
  QtTimers& operator=(const QtTimers&) = delete;

  uintptr_t SetTimer(uintptr_t idEvent, uint32_t elapse, TimerProc proc) override;
  bool KillTimer(uintptr_t idEvent) override;

  size_t ActiveTimers() const { return timers_.size(); }
  // The interval a running timer has, 0 when there is no such timer.
  int IntervalOf(uintptr_t idEvent) const;

 private:
  struct Entry {
    std::unique_ptr<QTimer> timer;
    TimerProc proc = nullptr;
  };
  void Arm(uintptr_t id, Entry& entry, uint32_t elapse, TimerProc proc);
  std::map<uintptr_t, Entry> timers_;
};

}  // namespace vorlex::qt
