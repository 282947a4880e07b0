#include "control/numeric_text.h"

#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "vorlex/Variant.h"

namespace vorlex {

namespace {
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::optional<double> ParseRadixLiteral(std::string_view body, int radix) {
  if (body.empty() || body.size() > 11) return std::nullopt;
  uint64_t value = 0;
  for (char c : body) {
    int digit = -1;
    if (IsDigit(c))
      digit = c - '0';
    else if (radix == 16 && std::isxdigit(static_cast<unsigned char>(c)))
      digit = std::toupper(c) - 'A' + 10;
    if (digit < 0 || digit >= radix) return std::nullopt;
    value = value * static_cast<uint64_t>(radix) + static_cast<uint64_t>(digit);
  }
  if (value <= 0xFFFF) return static_cast<double>(static_cast<int16_t>(value));
  if (value <= 0xFFFFFFFF) return static_cast<double>(static_cast<int32_t>(static_cast<uint32_t>(value)));
  return std::nullopt;
}

// The longest prefix of sign, digits, point, digits and exponent (an exponent
// only with its digits); 0 when there is no digit.
size_t DecimalPrefixLength(std::string_view s) {
  size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  size_t digits = 0;
  while (i < s.size() && IsDigit(s[i])) ++i, ++digits;
  if (i < s.size() && s[i] == '.') {
    ++i;
    while (i < s.size() && IsDigit(s[i])) ++i, ++digits;
  }
  if (digits == 0) return 0;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
    size_t j = i + 1;
    if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
    const size_t expStart = j;
    while (j < s.size() && IsDigit(s[j])) ++j;
    if (j > expStart) i = j;
  }
  return i;
}

// Sign, digits, optional point and fraction, optional exponent; at least one digit.
bool IsDecimalSyntax(std::string_view s) {
  const size_t length = DecimalPrefixLength(s);
  return length > 0 && length == s.size();
}
}  // namespace

std::string_view TrimSpaces(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
  return text;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) return false;
  }
  return true;
}

std::optional<double> ParseNumericText(std::string_view text) {
  const std::string_view s = TrimSpaces(text);
  if (s.size() >= 2 && s[0] == '&') {
    const char kind = static_cast<char>(std::toupper(static_cast<unsigned char>(s[1])));
    if (kind == 'H') return ParseRadixLiteral(s.substr(2), 16);
    if (kind == 'O') return ParseRadixLiteral(s.substr(2), 8);
    return std::nullopt;
  }
  if (!IsDecimalSyntax(s)) return std::nullopt;
  std::string copy(s);
  for (char& c : copy) {
    if (c == 'd' || c == 'D') c = 'E';
  }
  return std::strtod(copy.c_str(), nullptr);  // out of range gives +-HUGE_VAL
}

namespace {
bool IsValBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }

// The &H / &O digits at the start of a text, as far as they go.
double LeadingRadixValue(std::string_view digits, int radix) {
  size_t end = 0;
  while (end < digits.size() && end < 11) {
    const char c = digits[end];
    const bool ok = radix == 16 ? std::isxdigit(static_cast<unsigned char>(c)) != 0 : c >= '0' && c <= '7';
    if (!ok) break;
    ++end;
  }
  return ParseRadixLiteral(digits.substr(0, end), radix).value_or(0.0);
}

}  // namespace

double LeadingNumericValue(std::string_view text) {
  std::string packed;
  packed.reserve(text.size());
  for (char c : text) {
    if (!IsValBlank(c)) packed += c;
  }
  if (packed.size() >= 2 && packed[0] == '&') {
    const char kind = static_cast<char>(std::toupper(static_cast<unsigned char>(packed[1])));
    if (kind == 'H') return LeadingRadixValue(std::string_view(packed).substr(2), 16);
    if (kind == 'O') return LeadingRadixValue(std::string_view(packed).substr(2), 8);
    return 0.0;
  }
  const size_t length = DecimalPrefixLength(packed);
  if (length == 0) return 0.0;
  return ParseNumericText(std::string_view(packed).substr(0, length)).value_or(0.0);
}

namespace {
// Shortest decimal digits (up to maxDigits) that read back to the same value
// at the given precision, laid out as Basic prints numbers.
template <class T>
std::string FormatShortest(T value, int maxDigits, int fixedBelowExponent) {
  if (value == 0) return "0";
  if (std::isnan(value)) return "NaN";
  char buf[64];
  int precision = 1;
  for (; precision < maxDigits; ++precision) {
    std::snprintf(buf, sizeof buf, "%.*e", precision - 1, static_cast<double>(value));
    if (static_cast<T>(std::strtod(buf, nullptr)) == value) break;
  }
  std::snprintf(buf, sizeof buf, "%.*e", precision - 1, static_cast<double>(value));
  std::string text(buf);
  const bool negative = text[0] == '-';
  const size_t e = text.find('e');
  const int exponent = std::atoi(text.c_str() + e + 1);
  std::string digits;
  for (size_t i = 0; i < e; ++i) {
    if (IsDigit(text[i])) digits += text[i];
  }
  while (digits.size() > 1 && digits.back() == '0') digits.pop_back();

  std::string out = negative ? "-" : "";
  if (exponent >= fixedBelowExponent || exponent < -5) {
    out += digits[0];
    if (digits.size() > 1) out += "." + digits.substr(1);
    char exp[16];
    std::snprintf(exp, sizeof exp, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    return out + exp;
  }
  if (exponent < 0) return out + "0." + std::string(static_cast<size_t>(-exponent - 1), '0') + digits;
  const auto whole = static_cast<size_t>(exponent) + 1;
  if (digits.size() <= whole) return out + digits + std::string(whole - digits.size(), '0');
  return out + digits.substr(0, whole) + "." + digits.substr(whole);
}
}  // namespace

std::string FormatNumber(double value) { return FormatShortest(value, 15, 15); }
std::string FormatNumber(float value) { return FormatShortest(value, 7, 7); }

}  // namespace vorlex
