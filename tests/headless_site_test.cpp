#include <gtest/gtest.h>

#include <vector>

#include "vorlex/HeadlessSite.h"

using namespace vorlex;

TEST(HeadlessSite, DefaultsToA900By315TwipControlAtRunTime) {
  const HeadlessSite site;
  EXPECT_EQ(site.ScaleWidth(), 60);
  EXPECT_EQ(site.ScaleHeight(), 21);
  EXPECT_EQ(site.OuterWidthTwips(), 900);
  EXPECT_EQ(site.OuterHeightTwips(), 315);
  EXPECT_EQ(site.TwipsPerPixelX(), 15.0f);
  EXPECT_TRUE(site.AmbientUserMode());
  ASSERT_NE(site.AmbientFont(), nullptr);
  EXPECT_EQ(site.AmbientFont()->Name(), "MS Sans Serif");
  EXPECT_EQ(site.Enabled(), VARIANT_TRUE);
}

TEST(HeadlessSite, OuterSizeInTwipsResizesTheClientArea) {
  HeadlessSite site;
  site.SetOuterWidthTwips(1500);
  site.SetOuterHeightTwips(451);
  EXPECT_EQ(site.ScaleWidth(), 100);
  EXPECT_EQ(site.ScaleHeight(), 30);
}

TEST(HeadlessSite, EachSiteHasItsOwnWindowHandle) {
  const HeadlessSite a;
  const HeadlessSite b;
  EXPECT_NE(a.hWnd(), 0u);
  EXPECT_NE(a.hWnd(), b.hWnd());
}

TEST(HeadlessSite, RecordsNotificationsPaintsAndEventsInOrder) {
  HeadlessSite site;
  site.PropertyChanged("Caption");
  site.PropertyChanged("Block");
  site.BarPainted();
  int16_t block = 3;
  site.BlockClicked(block);
  site.Click();
  site.TimerDisk();
  EXPECT_EQ(site.Notifications(), (std::vector<std::string>{"Caption", "Block"}));
  EXPECT_EQ(site.Paints(), 1);
  EXPECT_EQ(site.RaisedEvents(), (std::vector<std::string>{"BlockClicked 3", "Click", "TimerDisk"}));
  site.ClearRecords();
  EXPECT_TRUE(site.Notifications().empty());
  EXPECT_TRUE(site.RaisedEvents().empty());
  EXPECT_EQ(site.Paints(), 0);
}

namespace {
std::vector<std::pair<uintptr_t, uint32_t>> g_ticks;
void RecordTick(uintptr_t, uint32_t, uintptr_t id, uint32_t time) { g_ticks.push_back({id, time}); }
}  // namespace

TEST(ManualTimers, DeliversEveryDueTickInTimeOrder) {
  g_ticks.clear();
  ManualTimers timers;
  const uintptr_t fast = timers.SetTimer(0, 100, RecordTick);
  const uintptr_t slow = timers.SetTimer(0, 250, RecordTick);
  EXPECT_NE(fast, slow);
  timers.Advance(500);
  const std::vector<std::pair<uintptr_t, uint32_t>> expected = {{fast, 100}, {fast, 200}, {slow, 250}, {fast, 300},
                                                                {fast, 400}, {fast, 500}, {slow, 500}};
  EXPECT_EQ(g_ticks, expected);
  EXPECT_EQ(timers.Now(), 500u);
}

TEST(ManualTimers, IntervalsAreClampedAsTheSystemDoes) {
  ManualTimers timers;
  EXPECT_EQ(timers.IntervalOf(timers.SetTimer(0, 0, RecordTick)), 10u);
  EXPECT_EQ(timers.IntervalOf(timers.SetTimer(0, 0xFFFFFFFBu, RecordTick)), 0x7FFFFFFFu);
}

TEST(ManualTimers, ReArmingKeepsTheIdAndRestartsTheInterval) {
  g_ticks.clear();
  ManualTimers timers;
  const uintptr_t id = timers.SetTimer(0, 100, RecordTick);
  timers.Advance(50);
  EXPECT_EQ(timers.SetTimer(id, 300, RecordTick), id);
  timers.Advance(300);
  ASSERT_EQ(g_ticks.size(), 1u);
  EXPECT_EQ(g_ticks[0].second, 350u);
}

TEST(ManualTimers, KillingAnUnknownTimerFails) {
  ManualTimers timers;
  const uintptr_t id = timers.SetTimer(0, 100, RecordTick);
  EXPECT_TRUE(timers.KillTimer(id));
  EXPECT_FALSE(timers.KillTimer(id));
  EXPECT_EQ(timers.ActiveTimers(), 0u);
}
