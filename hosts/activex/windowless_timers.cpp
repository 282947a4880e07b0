#include "windowless_timers.h"

#include <map>

#include "com_includes.h"

namespace vorlex::activex {

namespace {

// Each running timer's procedure by id. The system calls its timer procedures
// with the platform's calling convention, which the library's need not share,
// so one procedure of that convention passes every tick on.
std::map<UINT_PTR, TimerService::TimerProc>& Procedures() {
  static std::map<UINT_PTR, TimerService::TimerProc> procedures;
  return procedures;
}

void CALLBACK Tick(HWND hwnd, UINT msg, UINT_PTR id, DWORD time) {
  const auto it = Procedures().find(id);
  if (it != Procedures().end()) it->second(reinterpret_cast<uintptr_t>(hwnd), msg, id, time);
}

}  // namespace

WindowlessTimers::~WindowlessTimers() {
  for (uintptr_t id : running_) {
    ::KillTimer(nullptr, id);
    Procedures().erase(id);
  }
}

uintptr_t WindowlessTimers::SetTimer(uintptr_t idEvent, uint32_t elapse, TimerProc proc) {
  // An id the thread does not own would make a new timer rather than re-arm.
  if (idEvent != 0 && running_.count(idEvent) == 0) return 0;
  const uintptr_t id = ::SetTimer(nullptr, idEvent, elapse, Tick);
  if (id == 0) return 0;
  running_.insert(id);
  Procedures()[id] = proc;
  return id;
}

bool WindowlessTimers::KillTimer(uintptr_t idEvent) {
  if (running_.erase(idEvent) == 0) return false;
  Procedures().erase(idEvent);
  return ::KillTimer(nullptr, idEvent) != FALSE;
}

}  // namespace vorlex::activex
