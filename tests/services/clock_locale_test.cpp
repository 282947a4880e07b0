// The named formats follow the process's LC_TIME and LC_NUMERIC, which they
// read but never change. "POSIX" and "C.UTF-8" (always installed) behave as
// "C"; any other installed locale of those listed is checked against its own
// data.

#ifndef _WIN32

#include <gtest/gtest.h>
#include <langinfo.h>
#include <locale.h>

#include <array>
#include <ctime>
#include <string>
#include <vector>

#include "vorlex/ClockService.h"

using namespace vorlex;

namespace {

constexpr std::array kFormats{NamedFormat::ShortTime,   NamedFormat::MediumTime, NamedFormat::LongTime,
                              NamedFormat::GeneralDate, NamedFormat::ShortDate,  NamedFormat::MediumDate,
                              NamedFormat::LongDate};

const LocalDateTime kAfternoon{2026, 11, 22, 17, 4, 3};
const LocalDateTime kMorning{2026, 1, 5, 9, 5, 7};

// Sets LC_TIME and LC_NUMERIC to a locale, when it is installed, and puts the
// previous ones back.
class ProcessLocale {
 public:
  explicit ProcessLocale(const char* name)
      : time_(setlocale(LC_TIME, nullptr)), numeric_(setlocale(LC_NUMERIC, nullptr)) {
    installed_ = setlocale(LC_TIME, name) != nullptr && setlocale(LC_NUMERIC, name) != nullptr;
  }
  ~ProcessLocale() {
    setlocale(LC_TIME, time_.c_str());
    setlocale(LC_NUMERIC, numeric_.c_str());
  }
  bool Installed() const { return installed_; }

 private:
  std::string time_;
  std::string numeric_;
  bool installed_ = false;
};

std::vector<std::string> AllFormats(const LocalDateTime& when) {
  const auto clock = FixedClock(when);
  std::vector<std::string> texts;
  for (const NamedFormat format : kFormats) texts.push_back(clock->Format(when, format));
  texts.push_back(clock->ThousandsSeparator());
  return texts;
}

// What strftime gives for a pattern in the current LC_TIME.
std::string Strftime(const char* pattern, const LocalDateTime& t, int weekday) {
  std::tm tm{};
  tm.tm_year = t.year - 1900;
  tm.tm_mon = t.month - 1;
  tm.tm_mday = t.day;
  tm.tm_hour = t.hour;
  tm.tm_min = t.minute;
  tm.tm_sec = t.second;
  tm.tm_wday = weekday;
  char text[256];
  const size_t length = strftime(text, sizeof text, pattern, &tm);
  return std::string(text, length);
}

std::string TrimRight(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

}  // namespace

TEST(ClockLocale, PosixAndCUtf8BehaveAsC) {
  std::vector<std::string> inC;
  {
    const ProcessLocale c("C");
    ASSERT_TRUE(c.Installed());
    inC = AllFormats(kAfternoon);
  }
  for (const char* name : {"POSIX", "C.UTF-8"}) {
    SCOPED_TRACE(name);
    const ProcessLocale locale(name);
    ASSERT_TRUE(locale.Installed());
    EXPECT_EQ(AllFormats(kAfternoon), inC);
  }
  EXPECT_EQ(inC[3], "11/22/2026 5:04:03 PM");
  EXPECT_EQ(inC[7], ",");
}

TEST(ClockLocale, FormattingLeavesTheProcessLocaleAlone) {
  const ProcessLocale locale("C.UTF-8");
  ASSERT_TRUE(locale.Installed());
  AllFormats(kMorning);
  EXPECT_STREQ(setlocale(LC_TIME, nullptr), "C.UTF-8");
  EXPECT_STREQ(setlocale(LC_NUMERIC, nullptr), "C.UTF-8");
  EXPECT_STREQ(setlocale(LC_CTYPE, nullptr), "C");
}

// Each installed locale of a few common ones, stated from its own data (this
// test assumes the UTF-8 ones, whose texts are already UTF-8). The names of
// those found are recorded as the test's "checked" property.
TEST(ClockLocale, InstalledLocalesGiveTheirOwnWords) {
  std::string checked;
  for (const char* name : {"en_US.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "en_GB.UTF-8", "ja_JP.UTF-8"}) {
    const ProcessLocale locale(name);
    if (!locale.Installed()) continue;
    checked += std::string(checked.empty() ? "" : " ") + name;
    SCOPED_TRACE(name);
    const auto clock = FixedClock({});
    for (const auto& [when, weekday] : {std::pair{kAfternoon, 0}, std::pair{kMorning, 1}}) {
      const std::string designator = nl_langinfo(when.hour < 12 ? AM_STR : PM_STR);
      const std::string hour12 = when.hour < 12 ? "09" : "05";
      const std::string minute = when.hour < 12 ? "05" : "04";
      const std::string day = std::to_string(when.day);
      const std::string year = std::to_string(when.year);
      EXPECT_EQ(clock->Format(when, NamedFormat::ShortDate), Strftime(nl_langinfo(D_FMT), when, weekday));
      EXPECT_EQ(clock->Format(when, NamedFormat::LongTime), Strftime(nl_langinfo(T_FMT), when, weekday));
      EXPECT_EQ(clock->Format(when, NamedFormat::MediumTime), TrimRight(hour12 + ":" + minute + " " + designator));
      EXPECT_EQ(clock->Format(when, NamedFormat::MediumDate),
                (day.size() == 1 ? "0" + day : day) + "-" + nl_langinfo(ABMON_1 + when.month - 1) + "-26");
      EXPECT_EQ(clock->Format(when, NamedFormat::LongDate), std::string(nl_langinfo(DAY_1 + weekday)) + ", " +
                                                                nl_langinfo(MON_1 + when.month - 1) + " " + day + ", " +
                                                                year);
    }
    const std::string separator = localeconv()->thousands_sep;
    EXPECT_EQ(clock->ThousandsSeparator(), separator.empty() ? "," : separator);
  }
  if (ProcessLocale("en_US.UTF-8").Installed()) {
    const ProcessLocale english("en_US.UTF-8");
    const auto clock = FixedClock({});
    EXPECT_EQ(clock->Format(kAfternoon, NamedFormat::ShortDate), "11/22/2026");
    EXPECT_EQ(clock->Format(kAfternoon, NamedFormat::MediumTime), "05:04 PM");
    EXPECT_EQ(clock->Format(kAfternoon, NamedFormat::LongDate), "Sunday, November 22, 2026");
    EXPECT_EQ(clock->ThousandsSeparator(), ",");
  }
  if (ProcessLocale("de_DE.UTF-8").Installed()) {
    const ProcessLocale german("de_DE.UTF-8");
    const auto clock = FixedClock({});
    EXPECT_EQ(clock->Format(kAfternoon, NamedFormat::ShortDate), "22.11.2026");
    EXPECT_EQ(clock->Format(kAfternoon, NamedFormat::LongTime), "17:04:03");
    EXPECT_EQ(clock->Format(kAfternoon, NamedFormat::MediumTime), "05:04");
    EXPECT_EQ(clock->Format(kAfternoon, NamedFormat::GeneralDate), "22.11.2026 17:04:03");
    EXPECT_EQ(clock->Format(kAfternoon, NamedFormat::LongDate), "Sonntag, November 22, 2026");
    EXPECT_EQ(clock->ThousandsSeparator(), ".");
  }
  RecordProperty("checked", checked.empty() ? "none installed" : checked);
}

#endif  // _WIN32
