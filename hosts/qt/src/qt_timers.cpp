#include "qt_timers.h"

#include <QDateTime>
#include <algorithm>
#include <atomic>
#include <exception>
#include <limits>

namespace vorlex::qt {

namespace {
constexpr uint32_t kWmTimer = 0x0113;
// The system raises shorter intervals to 10 ms; QTimer takes an int.
constexpr uint32_t kShortest = 10;
constexpr uint32_t kLongest = static_cast<uint32_t>(std::numeric_limits<int>::max());

uintptr_t NextTimerId() {
  static std::atomic<uintptr_t> next{0x7100};
  return ++next;
}
}  // namespace

QtTimers::~QtTimers() = default;

void QtTimers::Arm(uintptr_t id, Entry& entry, uint32_t elapse, TimerProc proc) {
  entry.proc = proc;
  if (!entry.timer) {
    entry.timer = std::make_unique<QTimer>();
    entry.timer->setTimerType(Qt::PreciseTimer);
    // The entry may be replaced while the timer lives, so the slot looks the
    // id up again at every tick; a timer killed by an earlier tick's handler
    // is gone from the map and its tick is dropped.
    QObject::connect(entry.timer.get(), &QTimer::timeout, [this, id] {
      const auto found = timers_.find(id);
      if (found == timers_.end() || !found->second.proc) return;
      const auto now = static_cast<uint32_t>(QDateTime::currentMSecsSinceEpoch() & 0xFFFFFFFF);
      // Nothing may leave a tick for the event loop.
      try {
        found->second.proc(0, kWmTimer, id, now);
      } catch (const std::exception& e) {
        qWarning("Vorlex: a timer tick failed: %s", e.what());
      }
    });
  }
  entry.timer->start(static_cast<int>(std::clamp(elapse, kShortest, kLongest)));
}

uintptr_t QtTimers::SetTimer(uintptr_t idEvent, uint32_t elapse, TimerProc proc) {
  if (idEvent != 0) {
    const auto found = timers_.find(idEvent);
    if (found != timers_.end()) {
      Arm(idEvent, found->second, elapse, proc);
      return idEvent;
    }
  }
  const uintptr_t id = NextTimerId();
  Arm(id, timers_[id], elapse, proc);
  return id;
}

bool QtTimers::KillTimer(uintptr_t idEvent) {
  const auto found = timers_.find(idEvent);
  if (found == timers_.end()) return false;
  // A timer may be killed from inside its own tick: let Qt delete it later.
  QTimer* timer = found->second.timer.release();
  timer->stop();
  QObject::disconnect(timer, nullptr, nullptr, nullptr);
  timer->deleteLater();
  timers_.erase(found);
  return true;
}

int QtTimers::IntervalOf(uintptr_t idEvent) const {
  const auto found = timers_.find(idEvent);
  return found == timers_.end() ? 0 : found->second.timer->interval();
}

}  // namespace vorlex::qt
