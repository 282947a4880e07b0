#pragma once
// The current local date and time, the locale's seven named date and time
// formats, and its thousands separator.

#include <cstdint>
#include <memory>
#include <string>

namespace vorlex {

struct LocalDateTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

enum class NamedFormat {
  ShortTime,    // hours and minutes, 24-hour clock
  MediumTime,   // hours and minutes, 12-hour clock with AM/PM
  LongTime,     // the locale's long time, with seconds
  GeneralDate,  // short date and long time
  ShortDate,    // the locale's short date
  MediumDate,   // day, abbreviated month name, two-digit year
  LongDate,     // the locale's long date
};

class ClockService {
 public:
  virtual ~ClockService() = default;
  virtual LocalDateTime Now() const = 0;
  virtual std::string Format(const LocalDateTime& when, NamedFormat format) const = 0;
  virtual std::string ThousandsSeparator() const = 0;
};

// The system clock and the process locale (LC_TIME and LC_NUMERIC elsewhere,
// "C" and "POSIX" behaving as English (United States); the user's locale on
// Windows). A fixed time, when given, stands in for the clock.
std::unique_ptr<ClockService> SystemClock();
std::unique_ptr<ClockService> FixedClock(const LocalDateTime& when);

}  // namespace vorlex
