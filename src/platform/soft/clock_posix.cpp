// The clock and the named date and time formats from the process locale
// (LC_TIME, LC_NUMERIC); "C" and "POSIX" (and "C.<codeset>") behave as English
// (United States). Locale data is read through a locale object of its own, so
// the process locale is only read, never changed.

#include <iconv.h>
#include <langinfo.h>
#include <locale.h>

#include <array>
#include <cstdio>
#include <ctime>
#include <string>

#include "vorlex/ClockService.h"

namespace vorlex {
namespace {

bool IsLeap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysInMonth(int year, int month) {
  static constexpr std::array<int, 12> kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeap(year) ? 29 : kDays[static_cast<size_t>(month - 1)];
}

bool IsValid(const LocalDateTime& t) {
  return t.year >= 1 && t.year <= 9999 && t.month >= 1 && t.month <= 12 && t.day >= 1 &&
         t.day <= DaysInMonth(t.year, t.month) && t.hour >= 0 && t.hour <= 23 && t.minute >= 0 && t.minute <= 59 &&
         t.second >= 0 && t.second <= 59;
}

// 0 for Sunday, by Zeller's congruence on the proleptic Gregorian calendar.
int Weekday(int year, int month, int day) {
  if (month < 3) {
    month += 12;
    --year;
  }
  const int h = (day + 13 * (month + 1) / 5 + year + year / 4 - year / 100 + year / 400) % 7;  // 0 for Saturday
  return (h + 6) % 7;
}

int YearDay(int year, int month, int day) {
  int days = day - 1;
  for (int m = 1; m < month; ++m) days += DaysInMonth(year, m);
  return days;
}

std::string Padded(int value, int width) {
  char text[16];
  std::snprintf(text, sizeof text, "%0*d", width, value);
  return text;
}

int Hour12(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

std::string TrimRight(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

bool IsEnglishName(const char* name) {
  const std::string n = name != nullptr ? name : "C";
  return n == "C" || n == "POSIX" || n.rfind("C.", 0) == 0;
}

// A named locale's categories (with its LC_CTYPE, for the codeset), whose
// texts are given as UTF-8 (unchanged when they cannot be converted).
class LocaleData {
 public:
  LocaleData(int mask, const char* name) {
    locale_ = ::newlocale(mask | LC_CTYPE_MASK, name, static_cast<locale_t>(nullptr));
    if (locale_ == static_cast<locale_t>(nullptr)) return;
    const std::string codeset = ::nl_langinfo_l(CODESET, locale_);
    if (codeset != "UTF-8" && codeset != "ANSI_X3.4-1968") convert_ = ::iconv_open("UTF-8", codeset.c_str());
  }
  ~LocaleData() {
    if (convert_ != kNoConversion) ::iconv_close(convert_);
    if (Valid()) ::freelocale(locale_);
  }
  LocaleData(const LocaleData&) = delete;
  LocaleData& operator=(const LocaleData&) = delete;

  bool Valid() const { return locale_ != static_cast<locale_t>(nullptr); }
  std::string Item(nl_item item) const { return Utf8(::nl_langinfo_l(item, locale_)); }

  // The date and time by the locale's own pattern `item`.
  std::string Strftime(nl_item item, const LocalDateTime& t) const {
    std::tm tm{};
    tm.tm_year = t.year - 1900;
    tm.tm_mon = t.month - 1;
    tm.tm_mday = t.day;
    tm.tm_hour = t.hour;
    tm.tm_min = t.minute;
    tm.tm_sec = t.second;
    tm.tm_wday = Weekday(t.year, t.month, t.day);
    tm.tm_yday = YearDay(t.year, t.month, t.day);
    tm.tm_isdst = -1;
    std::array<char, 512> text{};
    const size_t length = ::strftime_l(text.data(), text.size(), ::nl_langinfo_l(item, locale_), &tm, locale_);
    return Utf8(std::string(text.data(), length));
  }

 private:
  static inline const iconv_t kNoConversion = reinterpret_cast<iconv_t>(-1);

  std::string Utf8(const std::string& text) const {
    if (convert_ == kNoConversion || text.empty()) return text;
    ::iconv(convert_, nullptr, nullptr, nullptr, nullptr);
    std::string in = text;
    std::string out(text.size() * 4 + 4, '\0');
    char* inPtr = in.data();
    char* outPtr = out.data();
    size_t inLeft = in.size();
    size_t outLeft = out.size();
    if (::iconv(convert_, &inPtr, &inLeft, &outPtr, &outLeft) == static_cast<size_t>(-1)) return text;
    out.resize(out.size() - outLeft);
    return out;
  }

  locale_t locale_ = static_cast<locale_t>(nullptr);
  iconv_t convert_ = kNoConversion;
};

// A locale's date and time words and patterns; English (United States) for
// "C", "POSIX" and a locale that cannot be loaded.
class TimeWords {
 public:
  explicit TimeWords(const char* name) : data_(LC_TIME_MASK, IsEnglishName(name) ? "C" : name) {
    english_ = IsEnglishName(name) || !data_.Valid();
  }

  std::string DayName(int weekday) const {
    static constexpr std::array<const char*, 7> kNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};
    return Item(static_cast<nl_item>(DAY_1 + weekday), kNames[static_cast<size_t>(weekday)]);
  }
  std::string MonthName(int month) const {
    static constexpr std::array<const char*, 12> kNames{"January",   "February", "March",    "April",
                                                        "May",       "June",     "July",     "August",
                                                        "September", "October",  "November", "December"};
    return Item(static_cast<nl_item>(MON_1 + month - 1), kNames[static_cast<size_t>(month - 1)]);
  }
  std::string MonthAbbreviation(int month) const {
    static constexpr std::array<const char*, 12> kNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                        "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return Item(static_cast<nl_item>(ABMON_1 + month - 1), kNames[static_cast<size_t>(month - 1)]);
  }
  std::string Designator(int hour) const { return hour < 12 ? Item(AM_STR, "AM") : Item(PM_STR, "PM"); }

  std::string ShortDate(const LocalDateTime& t) const {
    if (english_) return std::to_string(t.month) + "/" + std::to_string(t.day) + "/" + Padded(t.year, 4);
    return data_.Strftime(D_FMT, t);
  }
  std::string LongTime(const LocalDateTime& t) const {
    if (english_) {
      return std::to_string(Hour12(t.hour)) + ":" + Padded(t.minute, 2) + ":" + Padded(t.second, 2) + " " +
             Designator(t.hour);
    }
    return data_.Strftime(T_FMT, t);
  }

 private:
  std::string Item(nl_item item, const char* english) const { return english_ ? english : data_.Item(item); }

  LocaleData data_;
  bool english_ = true;
};

std::string FormatWith(const TimeWords& words, const LocalDateTime& t, NamedFormat format) {
  switch (format) {
    case NamedFormat::ShortTime:
      return Padded(t.hour, 2) + ":" + Padded(t.minute, 2);
    case NamedFormat::MediumTime:
      return TrimRight(Padded(Hour12(t.hour), 2) + ":" + Padded(t.minute, 2) + " " + words.Designator(t.hour));
    case NamedFormat::LongTime:
      return words.LongTime(t);
    case NamedFormat::GeneralDate:
      if (t.hour == 0 && t.minute == 0 && t.second == 0) return words.ShortDate(t);
      return words.ShortDate(t) + " " + words.LongTime(t);
    case NamedFormat::ShortDate:
      return words.ShortDate(t);
    case NamedFormat::MediumDate:
      return Padded(t.day, 2) + "-" + words.MonthAbbreviation(t.month) + "-" + Padded(t.year % 100, 2);
    case NamedFormat::LongDate:
      return words.DayName(Weekday(t.year, t.month, t.day)) + ", " + words.MonthName(t.month) + " " +
             std::to_string(t.day) + ", " + Padded(t.year, 4);
  }
  return {};
}

class PosixClock : public ClockService {
 public:
  PosixClock() = default;
  explicit PosixClock(const LocalDateTime& when) : fixed_(true), when_(when) {}

  LocalDateTime Now() const override {
    if (fixed_) return when_;
    const std::time_t now = std::time(nullptr);
    std::tm tm{};
    if (::localtime_r(&now, &tm) == nullptr) return {};
    return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
  }

  std::string Format(const LocalDateTime& when, NamedFormat format) const override {
    if (!IsValid(when)) return {};
    const TimeWords words(::setlocale(LC_TIME, nullptr));
    return FormatWith(words, when, format);
  }

  // The separator localeconv() gives for LC_NUMERIC, read from a locale object
  // of that name; "," when it has none.
  std::string ThousandsSeparator() const override {
    const char* name = ::setlocale(LC_NUMERIC, nullptr);
    if (IsEnglishName(name)) return ",";
    const LocaleData numeric(LC_NUMERIC_MASK, name);
    const std::string separator = numeric.Valid() ? numeric.Item(THOUSEP) : "";
    return separator.empty() ? "," : separator;
  }

 private:
  bool fixed_ = false;
  LocalDateTime when_;
};

}  // namespace

std::unique_ptr<ClockService> SystemClock() { return std::make_unique<PosixClock>(); }

std::unique_ptr<ClockService> FixedClock(const LocalDateTime& when) { return std::make_unique<PosixClock>(when); }

}  // namespace vorlex
