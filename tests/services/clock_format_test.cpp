// The seven named formats of a fixed time, the system clock and the thousands
// separator. Elsewhere than Windows the process locale is "C", which behaves as
// English (United States); on Windows the user's locale is the machine's, and
// the English (United States) texts are stated only when it is that locale.

#include <gtest/gtest.h>

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <string>

#include "vorlex/ClockService.h"

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

using namespace vorlex;

namespace {

// Sets LC_TIME and LC_NUMERIC to "C" and puts the previous ones back.
class CLocale {
 public:
  CLocale() : time_(std::setlocale(LC_TIME, nullptr)), numeric_(std::setlocale(LC_NUMERIC, nullptr)) {
    std::setlocale(LC_TIME, "C");
    std::setlocale(LC_NUMERIC, "C");
  }
  ~CLocale() {
    std::setlocale(LC_TIME, time_.c_str());
    std::setlocale(LC_NUMERIC, numeric_.c_str());
  }

 private:
  std::string time_;
  std::string numeric_;
};

bool LocaleIsEnglishUnitedStates() {
#ifdef _WIN32
  return ::GetUserDefaultLCID() == 0x0409;
#else
  return true;  // "C"
#endif
}

struct Expected {
  LocalDateTime when;
  const char* shortTime;
  const char* mediumTime;
  const char* longTime;
  const char* generalDate;
  const char* shortDate;
  const char* mediumDate;
  const char* longDate;
};

const Expected kEnglish[] = {
    {{2026, 11, 22, 17, 4, 3},
     "17:04",
     "05:04 PM",
     "5:04:03 PM",
     "11/22/2026 5:04:03 PM",
     "11/22/2026",
     "22-Nov-26",
     "Sunday, November 22, 2026"},
    {{2026, 1, 5, 9, 5, 7},
     "09:05",
     "09:05 AM",
     "9:05:07 AM",
     "1/5/2026 9:05:07 AM",
     "1/5/2026",
     "05-Jan-26",
     "Monday, January 5, 2026"},
    {{2026, 3, 1, 12, 0, 0},
     "12:00",
     "12:00 PM",
     "12:00:00 PM",
     "3/1/2026 12:00:00 PM",
     "3/1/2026",
     "01-Mar-26",
     "Sunday, March 1, 2026"},
    {{2024, 2, 29, 0, 0, 0},
     "00:00",
     "12:00 AM",
     "12:00:00 AM",
     "2/29/2024",
     "2/29/2024",
     "29-Feb-24",
     "Thursday, February 29, 2024"},
    {{2024, 2, 29, 0, 0, 1},
     "00:00",
     "12:00 AM",
     "12:00:01 AM",
     "2/29/2024 12:00:01 AM",
     "2/29/2024",
     "29-Feb-24",
     "Thursday, February 29, 2024"},
    {{2000, 12, 31, 0, 30, 0},
     "00:30",
     "12:30 AM",
     "12:30:00 AM",
     "12/31/2000 12:30:00 AM",
     "12/31/2000",
     "31-Dec-00",
     "Sunday, December 31, 2000"},
    {{1999, 12, 31, 23, 59, 59},
     "23:59",
     "11:59 PM",
     "11:59:59 PM",
     "12/31/1999 11:59:59 PM",
     "12/31/1999",
     "31-Dec-99",
     "Friday, December 31, 1999"},
    {{1899, 12, 30, 0, 0, 0},
     "00:00",
     "12:00 AM",
     "12:00:00 AM",
     "12/30/1899",
     "12/30/1899",
     "30-Dec-99",
     "Saturday, December 30, 1899"},
};

std::string Describe(const LocalDateTime& t) {
  return std::to_string(t.year) + "-" + std::to_string(t.month) + "-" + std::to_string(t.day) + " " +
         std::to_string(t.hour) + ":" + std::to_string(t.minute) + ":" + std::to_string(t.second);
}

bool Midnight(const LocalDateTime& t) { return t.hour == 0 && t.minute == 0 && t.second == 0; }

// Seconds from 1970-01-01 of a proleptic Gregorian date and time.
long long Seconds(int year, int month, int day, int hour, int minute, int second) {
  const int y = month <= 2 ? year - 1 : year;
  const int era = (y >= 0 ? y : y - 399) / 400;
  const int yoe = y - era * 400;
  const int doy = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  const int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  const long long days = era * 146097LL + doe - 719468;
  return days * 86400 + hour * 3600 + minute * 60 + second;
}

}  // namespace

TEST(FixedClock, NowIsTheGivenTime) {
  const LocalDateTime when{2026, 11, 22, 17, 4, 3};
  const LocalDateTime now = FixedClock(when)->Now();
  EXPECT_EQ(Describe(now), "2026-11-22 17:4:3");
}

TEST(FixedClock, EnglishNamedFormats) {
  const CLocale c;
  const auto clock = FixedClock({});
  if (!LocaleIsEnglishUnitedStates()) GTEST_SKIP() << "the user's locale is not English (United States)";
  for (const Expected& e : kEnglish) {
    SCOPED_TRACE(Describe(e.when));
    EXPECT_EQ(clock->Format(e.when, NamedFormat::ShortTime), e.shortTime);
    EXPECT_EQ(clock->Format(e.when, NamedFormat::MediumTime), e.mediumTime);
    EXPECT_EQ(clock->Format(e.when, NamedFormat::LongTime), e.longTime);
    EXPECT_EQ(clock->Format(e.when, NamedFormat::GeneralDate), e.generalDate);
    EXPECT_EQ(clock->Format(e.when, NamedFormat::ShortDate), e.shortDate);
    EXPECT_EQ(clock->Format(e.when, NamedFormat::MediumDate), e.mediumDate);
    EXPECT_EQ(clock->Format(e.when, NamedFormat::LongDate), e.longDate);
  }
}

// What holds in every locale: the 24-hour short time, the general date made of
// the short date and long time (the date alone at midnight), the medium date's
// day and year.
TEST(FixedClock, FormatsAgreeWithOneAnother) {
  const CLocale c;
  const auto clock = FixedClock({});
  for (const Expected& e : kEnglish) {
    SCOPED_TRACE(Describe(e.when));
    const std::string shortDate = clock->Format(e.when, NamedFormat::ShortDate);
    const std::string longTime = clock->Format(e.when, NamedFormat::LongTime);
    const std::string mediumDate = clock->Format(e.when, NamedFormat::MediumDate);
    EXPECT_EQ(clock->Format(e.when, NamedFormat::ShortTime), e.shortTime);
    EXPECT_FALSE(shortDate.empty());
    EXPECT_FALSE(longTime.empty());
    EXPECT_FALSE(clock->Format(e.when, NamedFormat::MediumTime).empty());
    EXPECT_FALSE(clock->Format(e.when, NamedFormat::LongDate).empty());
    EXPECT_EQ(clock->Format(e.when, NamedFormat::GeneralDate),
              Midnight(e.when) ? shortDate : shortDate + " " + longTime);
    EXPECT_EQ(mediumDate.substr(0, 3), std::string(e.mediumDate).substr(0, 3));
    EXPECT_EQ(mediumDate.substr(mediumDate.size() - 3), std::string(e.mediumDate).substr(6));
  }
}

TEST(FixedClock, ImpossibleDatesAndTimesGiveNoText) {
  const CLocale c;
  const auto clock = FixedClock({});
  EXPECT_EQ(clock->Format({2026, 2, 29, 0, 0, 0}, NamedFormat::ShortDate), "");
  EXPECT_EQ(clock->Format({2026, 13, 1, 0, 0, 0}, NamedFormat::LongDate), "");
  EXPECT_EQ(clock->Format({2026, 1, 1, 24, 0, 0}, NamedFormat::ShortTime), "");
  EXPECT_EQ(clock->Format({2026, 1, 1, 0, 60, 0}, NamedFormat::GeneralDate), "");
}

// The reference is std::chrono's clock put in the local time zone: by
// localtime_r, or on Windows by the system's time zone (the C runtime reads a
// TZ variable of its own).
TEST(SystemClock, NowIsTheLocalTimeOfTheSystemClock) {
  const auto clock = SystemClock();
  const LocalDateTime now = clock->Now();
  const std::time_t reference = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
#ifdef _WIN32
  const ULONGLONG ticks = (static_cast<ULONGLONG>(reference) + 11644473600ULL) * 10000000ULL;
  const FILETIME fileTime{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
  SYSTEMTIME utc{};
  SYSTEMTIME local{};
  ASSERT_TRUE(::FileTimeToSystemTime(&fileTime, &utc));
  ASSERT_TRUE(::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local));
  const long long expected = Seconds(local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond);
#else
  std::tm local{};
  ASSERT_NE(localtime_r(&reference, &local), nullptr);
  const long long expected =
      Seconds(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
#endif
  const long long actual = Seconds(now.year, now.month, now.day, now.hour, now.minute, now.second);
  EXPECT_LE(std::llabs(actual - expected), 3) << Describe(now);
}

TEST(SystemClock, ThousandsSeparator) {
  const CLocale c;
  const std::string separator = SystemClock()->ThousandsSeparator();
  if (LocaleIsEnglishUnitedStates()) {
    EXPECT_EQ(separator, ",");
  } else {
    EXPECT_FALSE(separator.empty());
  }
}
