#include "compose/timer.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

using namespace vorlex;

namespace {
// A timer service whose calls can be made to fail, and which counts them.
class ScriptedTimers : public TimerService {
 public:
  uintptr_t SetTimer(uintptr_t idEvent, uint32_t elapse, TimerProc) override {
    setCalls.push_back({idEvent, elapse});
    return failSet ? 0 : (idEvent != 0 ? idEvent : nextId++);
  }
  bool KillTimer(uintptr_t idEvent) override {
    killCalls.push_back(idEvent);
    return !failKill;
  }
  struct Call {
    uintptr_t id;
    uint32_t elapse;
  };
  std::vector<Call> setCalls;
  std::vector<uintptr_t> killCalls;
  bool failSet = false;
  bool failKill = false;
  uintptr_t nextId = 900001;
};
}  // namespace

TEST(clsTimer, StartsStoppedWithIntervalOne) {
  ManualTimers service;
  clsTimer timer(service, nullptr);
  EXPECT_EQ(timer.Interval(), 1);
  EXPECT_EQ(timer.Enabled(), VARIANT_FALSE);
  EXPECT_FALSE(timer.Running());
}

TEST(clsTimer, SettingIntervalWhileStoppedChangesNothingUntilEnabled) {
  ScriptedTimers service;
  clsTimer timer(service, nullptr);
  timer.SetInterval(250);
  EXPECT_TRUE(service.setCalls.empty());
  timer.SetEnabled(VARIANT_TRUE);
  ASSERT_EQ(service.setCalls.size(), 1u);
  EXPECT_EQ(service.setCalls[0].id, 0u);
  EXPECT_EQ(service.setCalls[0].elapse, 250u);
}

TEST(clsTimer, EnablingTwiceSetsOnlyOneTimer) {
  ManualTimers service;
  clsTimer timer(service, nullptr);
  timer.SetEnabled(VARIANT_TRUE);
  timer.SetEnabled(VARIANT_TRUE);
  timer.SetEnabled(1);  // any nonzero value is True
  EXPECT_EQ(service.ActiveTimers(), 1u);
  EXPECT_TRUE(modTimer::IsLiveTimer(timer.TimerId()));
}

TEST(clsTimer, IntervalChangeRearmsTheRunningTimerInPlace) {
  ManualTimers service;
  clsTimer timer(service, nullptr);
  timer.SetInterval(1000);
  timer.SetEnabled(VARIANT_TRUE);
  const uintptr_t id = timer.TimerId();
  timer.SetInterval(300);
  EXPECT_EQ(timer.TimerId(), id);
  EXPECT_EQ(service.IntervalOf(id), 300u);
  EXPECT_EQ(service.ActiveTimers(), 1u);
}

TEST(clsTimer, SettingTheSameIntervalDoesNothing) {
  ScriptedTimers service;
  clsTimer timer(service, nullptr);
  timer.SetEnabled(VARIANT_TRUE);
  timer.SetInterval(1);
  EXPECT_EQ(service.setCalls.size(), 1u);
}

TEST(clsTimer, TicksRaiseTimerUntilDisabled) {
  ManualTimers service;
  int ticks = 0;
  clsTimer timer(service, [&] { ++ticks; });
  timer.SetInterval(100);
  timer.SetEnabled(VARIANT_TRUE);
  service.Advance(350);
  EXPECT_EQ(ticks, 3);
  const uintptr_t id = timer.TimerId();
  timer.SetEnabled(VARIANT_FALSE);
  EXPECT_FALSE(timer.Running());
  EXPECT_FALSE(modTimer::IsLiveTimer(id));
  service.Advance(1000);
  EXPECT_EQ(ticks, 3);
}

TEST(clsTimer, FailedSetTimerLeavesItStoppedWithoutError) {
  ScriptedTimers service;
  service.failSet = true;
  clsTimer timer(service, nullptr);
  timer.SetEnabled(VARIANT_TRUE);
  EXPECT_FALSE(timer.Running());
  EXPECT_EQ(timer.Enabled(), VARIANT_TRUE);  // the request is remembered
}

TEST(clsTimer, FailedKillTimerKeepsItRunningAndRegistered) {
  ScriptedTimers service;
  clsTimer timer(service, nullptr);
  timer.SetEnabled(VARIANT_TRUE);
  service.failKill = true;
  timer.SetEnabled(VARIANT_FALSE);
  EXPECT_TRUE(timer.Running());
  EXPECT_TRUE(modTimer::IsLiveTimer(timer.TimerId()));
  service.failKill = false;
  timer.SetEnabled(VARIANT_FALSE);
  EXPECT_FALSE(timer.Running());
  EXPECT_FALSE(modTimer::IsLiveTimer(timer.TimerId()));
}

TEST(clsTimer, TerminationStopsARunningTimer) {
  ManualTimers service;
  {
    clsTimer timer(service, nullptr);
    timer.SetEnabled(VARIANT_TRUE);
    EXPECT_EQ(service.ActiveTimers(), 1u);
  }
  EXPECT_EQ(service.ActiveTimers(), 0u);
}

TEST(modTimer, TickForAnUnknownIdIsIgnored) {
  modTimer::TimerCallback(0, 0x113, 987654321, 0);
  EXPECT_FALSE(modTimer::IsLiveTimer(987654321));
}

TEST(modTimer, ErrorsInsideATickAreSwallowed) {
  ManualTimers service;
  int ticks = 0;
  clsTimer timer(service, [&] {
    ++ticks;
    throw std::runtime_error("handler failed");
  });
  timer.SetEnabled(VARIANT_TRUE);
  EXPECT_NO_THROW(service.Advance(25));
  EXPECT_EQ(ticks, 2);
}

namespace {
// Records how many paints the container had seen when each event arrived.
class PaintsAtEvent : public VorlexEvents {
 public:
  explicit PaintsAtEvent(HeadlessSite& s) : site(s) {}
  void BlockClicked(int16_t&) override {}
  void Click() override {}
  void DblClick() override {}
  void TimerTime() override { seen.push_back(site.Paints()); }
  void TimerDisk() override { seen.push_back(site.Paints()); }
  HeadlessSite& site;
  std::vector<int> seen;
};
}  // namespace

TEST(ControlTimers, TimeTimerRedrawsThenRaisesTimerTime) {
  HeadlessSite site;
  PaintsAtEvent sink(site);
  site.ForwardEventsTo(&sink);
  Vorlex control(site);
  control.InitProperties();
  site.ClearRecords();
  control.put_TimerTimeInterval(200);
  control.put_TimerTimeEnabled(VARIANT_TRUE);
  site.TimerClock().Advance(400);
  EXPECT_EQ(site.RaisedEvents(), (std::vector<std::string>{"TimerTime", "TimerTime"}));
  EXPECT_EQ(sink.seen, (std::vector<int>{1, 2}));
}

TEST(ControlTimers, DiskTimerRedrawsThenRaisesTimerDisk) {
  HeadlessSite site;
  PaintsAtEvent sink(site);
  site.ForwardEventsTo(&sink);
  Vorlex control(site);
  control.InitProperties();
  site.ClearRecords();
  control.put_TimerDiskEnabled(VARIANT_TRUE);
  site.TimerClock().Advance(60000);
  EXPECT_EQ(site.RaisedEvents(), std::vector<std::string>{"TimerDisk"});
  EXPECT_EQ(sink.seen, std::vector<int>{1});
}

TEST(ControlTimers, DisablingStopsTheTicks) {
  HeadlessSite site;
  Vorlex control(site);
  control.InitProperties();
  control.put_TimerTimeEnabled(VARIANT_TRUE);
  control.put_TimerTimeEnabled(VARIANT_FALSE);
  site.TimerClock().Advance(5000);
  EXPECT_TRUE(site.RaisedEvents().empty());
  EXPECT_EQ(site.TimerClock().ActiveTimers(), 0u);
}

TEST(ControlTimers, DestructionStopsBothTimersAndNoTickArrivesAfterwards) {
  HeadlessSite site;
  {
    Vorlex control(site);
    control.InitProperties();
    control.put_TimerTimeEnabled(VARIANT_TRUE);
    control.put_TimerDiskEnabled(VARIANT_TRUE);
    EXPECT_EQ(site.TimerClock().ActiveTimers(), 2u);
  }
  EXPECT_EQ(site.TimerClock().ActiveTimers(), 0u);
  site.ClearRecords();
  site.TimerClock().Advance(120000);
  EXPECT_TRUE(site.RaisedEvents().empty());
}

TEST(ControlTimers, DefaultsArmNothing) {
  HeadlessSite site;
  Vorlex control(site);
  control.InitProperties();
  EXPECT_EQ(site.TimerClock().ActiveTimers(), 0u);
}
