// The clock and the named date and time formats from the user's locale.

#include <string>

#include "vorlex/ClockService.h"
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace vorlex {
namespace {

bool IsLeap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

bool IsValid(const LocalDateTime& t) {
  static constexpr int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (t.year < 1 || t.year > 9999 || t.month < 1 || t.month > 12) return false;
  const int days = t.month == 2 && IsLeap(t.year) ? 29 : kDays[t.month - 1];
  return t.day >= 1 && t.day <= days && t.hour >= 0 && t.hour <= 23 && t.minute >= 0 && t.minute <= 59 &&
         t.second >= 0 && t.second <= 59;
}

// 0 for Sunday, by Zeller's congruence on the Gregorian calendar.
WORD Weekday(int year, int month, int day) {
  if (month < 3) {
    month += 12;
    --year;
  }
  const int h = (day + 13 * (month + 1) / 5 + year + year / 4 - year / 100 + year / 400) % 7;  // 0 for Saturday
  return static_cast<WORD>((h + 6) % 7);
}

SYSTEMTIME ToSystemTime(const LocalDateTime& t) {
  SYSTEMTIME st{};
  st.wYear = static_cast<WORD>(t.year);
  st.wMonth = static_cast<WORD>(t.month);
  st.wDay = static_cast<WORD>(t.day);
  st.wDayOfWeek = Weekday(t.year, t.month, t.day);
  st.wHour = static_cast<WORD>(t.hour);
  st.wMinute = static_cast<WORD>(t.minute);
  st.wSecond = static_cast<WORD>(t.second);
  return st;
}

// The first `length` UTF-16 units of `text` (a length of 0 or less: none) as UTF-8.
std::string Utf8(const wchar_t* text, int length) {
  if (length <= 0) return {};
  const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
  std::string out(static_cast<size_t>(size > 0 ? size : 0), '\0');
  if (size > 0) ::WideCharToMultiByte(CP_UTF8, 0, text, length, out.data(), size, nullptr, nullptr);
  return out;
}

std::string TrimRight(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

// GetDateFormatW by a flag (format nullptr) or a format string; empty on failure.
std::string DateText(const SYSTEMTIME& st, DWORD flags, const wchar_t* format) {
  wchar_t text[256];
  const int length = ::GetDateFormatW(LOCALE_USER_DEFAULT, flags, &st, format, text, 256);
  return Utf8(text, length - 1);
}

// GetTimeFormatW, the locale's own time format when format is nullptr.
std::string TimeText(const SYSTEMTIME& st, const wchar_t* format) {
  wchar_t text[256];
  const int length = ::GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &st, format, text, 256);
  return Utf8(text, length - 1);
}

class Win32Clock : public ClockService {
 public:
  Win32Clock() = default;
  explicit Win32Clock(const LocalDateTime& when) : fixed_(true), when_(when) {}

  LocalDateTime Now() const override {
    if (fixed_) return when_;
    SYSTEMTIME st{};
    ::GetLocalTime(&st);
    return {st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond};
  }

  std::string Format(const LocalDateTime& when, NamedFormat format) const override {
    if (!IsValid(when)) return {};
    const SYSTEMTIME st = ToSystemTime(when);
    switch (format) {
      case NamedFormat::ShortTime:
        return TimeText(st, L"HH:mm");
      case NamedFormat::MediumTime:
        return TrimRight(TimeText(st, L"hh:mm tt"));
      case NamedFormat::LongTime:
        return TimeText(st, nullptr);
      case NamedFormat::GeneralDate:
        if (when.hour == 0 && when.minute == 0 && when.second == 0) return DateText(st, DATE_SHORTDATE, nullptr);
        return DateText(st, DATE_SHORTDATE, nullptr) + " " + TimeText(st, nullptr);
      case NamedFormat::ShortDate:
        return DateText(st, DATE_SHORTDATE, nullptr);
      case NamedFormat::MediumDate:
        return DateText(st, 0, L"dd-MMM-yy");
      case NamedFormat::LongDate:
        return DateText(st, DATE_LONGDATE, nullptr);
    }
    return {};
  }

  std::string ThousandsSeparator() const override {
    wchar_t text[16];
    const int length = ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, text, 16);
    return length > 1 ? Utf8(text, length - 1) : ",";
  }

 private:
  bool fixed_ = false;
  LocalDateTime when_;
};

}  // namespace

std::unique_ptr<ClockService> SystemClock() { return std::make_unique<Win32Clock>(); }

std::unique_ptr<ClockService> FixedClock(const LocalDateTime& when) { return std::make_unique<Win32Clock>(when); }

}  // namespace vorlex
