// The values that options of the vorlex tool take.

#include "option_values.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <string_view>
#include <system_error>

namespace vorlex::cli {

namespace {

constexpr int kMaxPixels = 32767;

// The whole of part as a decimal integer within [low, high], or false.
bool WholeNumber(std::string_view part, int low, int high, int& value) {
  const auto result = std::from_chars(part.data(), part.data() + part.size(), value);
  return !part.empty() && result.ec == std::errc() && result.ptr == part.data() + part.size() && value >= low &&
         value <= high;
}

bool IsLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysInMonth(int year, int month) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

[[noreturn]] void BadTime(const std::string& text) {
  throw UsageError("--now expects a local time YYYY-MM-DD[THH:MM[:SS]], e.g. 2026-11-22T16:30:00, not \"" + text +
                   "\"");
}

// Reads "HH:MM" or "HH:MM:SS" into when.
bool ReadClockTime(std::string_view text, LocalDateTime& when) {
  if (text.size() != 5 && text.size() != 8) return false;
  if (text[2] != ':' || (text.size() == 8 && text[5] != ':')) return false;
  if (!WholeNumber(text.substr(0, 2), 0, 23, when.hour) || !WholeNumber(text.substr(3, 2), 0, 59, when.minute)) {
    return false;
  }
  return text.size() == 5 || WholeNumber(text.substr(6, 2), 0, 59, when.second);
}

}  // namespace

std::pair<int, int> ParseSizeValue(const std::string& text) {
  const std::size_t x = text.find_first_of("xX");
  int width = 0;
  int height = 0;
  const std::string_view all(text);
  if (x == std::string::npos || !WholeNumber(all.substr(0, x), 1, kMaxPixels, width) ||
      !WholeNumber(all.substr(x + 1), 1, kMaxPixels, height)) {
    throw UsageError("--size expects WIDTHxHEIGHT in pixels (1 to 32767 each), e.g. 200x30, not \"" + text + "\"");
  }
  return {width, height};
}

LocalDateTime ParseTimeValue(const std::string& text) {
  const std::string_view all(text);
  LocalDateTime when;
  when.hour = when.minute = when.second = 0;
  if (all.size() < 10 || all[4] != '-' || all[7] != '-') BadTime(text);
  if (!WholeNumber(all.substr(0, 4), 100, 9999, when.year) || !WholeNumber(all.substr(5, 2), 1, 12, when.month) ||
      !WholeNumber(all.substr(8, 2), 1, DaysInMonth(when.year, when.month), when.day)) {
    BadTime(text);
  }
  if (all.size() == 10) return when;
  if ((all[10] != 'T' && all[10] != ' ') || !ReadClockTime(all.substr(11), when)) BadTime(text);
  return when;
}

std::pair<char, std::string> ParseDriveValue(const std::string& text) {
  if (text.size() < 3 || text[1] != '=' || !std::isalpha(static_cast<unsigned char>(text[0]))) {
    throw UsageError("--drive expects LETTER=PATH, e.g. C=/, not \"" + text + "\"");
  }
  return {static_cast<char>(std::toupper(static_cast<unsigned char>(text[0]))), text.substr(2)};
}

float ParseCoordinate(const std::string& text) {
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  if (text.empty() || end != text.c_str() + text.size() || !std::isfinite(value) || std::fabs(value) > 3.4e38) {
    throw UsageError("click expects X and Y in pixels, not \"" + text + "\"");
  }
  return static_cast<float>(value);
}

}  // namespace vorlex::cli
