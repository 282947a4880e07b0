// Number literals in Basic syntax and their types.

#include "literal.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

#include "syntax_error.h"

namespace vorlex::cli {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsWordChar(char c) { return IsDigit(c) || IsLetter(c) || c == '_'; }
char Upper(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }

std::string Quoted(std::string_view literal) { return "\"" + std::string(literal) + "\""; }

[[noreturn]] void Fail(const std::string& problem) { throw SyntaxError(problem); }

bool FitsInteger(int64_t v) {
  return v >= std::numeric_limits<int16_t>::min() && v <= std::numeric_limits<int16_t>::max();
}
bool FitsLong(int64_t v) {
  return v >= std::numeric_limits<int32_t>::min() && v <= std::numeric_limits<int32_t>::max();
}

// Basic's unary minus on a typed number: the type widens when the negated value
// no longer fits (-(-32768) is a Long).
Variant Negate(const Variant& v) {
  switch (v.Type()) {
    case VarType::Integer: {
      const int32_t n = -static_cast<int32_t>(v.ToInteger());
      return FitsInteger(n) ? Variant(static_cast<int16_t>(n)) : Variant(n);
    }
    case VarType::Long: {
      const int64_t n = -static_cast<int64_t>(v.ToLong());
      return FitsLong(n) ? Variant(static_cast<int32_t>(n)) : Variant(static_cast<double>(n));
    }
    case VarType::Single:
      return Variant(-v.ToSingle());
    default:
      return Variant(-v.ToDouble());
  }
}

// &H and &O literals: the bits of an unsigned value up to 32 bits, read as a
// signed Integer or Long.
Variant RadixValue(std::string_view literal, bool negative) {
  const char prefix = literal.size() > 1 ? Upper(literal[1]) : '\0';
  if (prefix != 'H' && prefix != 'O') Fail(Quoted(literal) + " is not a number: expected &H or &O after &");
  const unsigned radix = prefix == 'H' ? 16 : 8;
  const char* kind = prefix == 'H' ? "hex" : "octal";

  std::string_view digits = literal.substr(2);
  char suffix = '\0';
  if (!digits.empty() && (digits.back() == '&' || digits.back() == '%')) {
    suffix = digits.back();
    digits.remove_suffix(1);
  }
  if (digits.empty()) Fail(std::string("bad ") + kind + " number " + Quoted(literal) + ": no digits");

  uint64_t value = 0;
  for (char c : digits) {
    unsigned digit = radix;
    if (IsDigit(c))
      digit = static_cast<unsigned>(c - '0');
    else if (Upper(c) >= 'A' && Upper(c) <= 'F')
      digit = static_cast<unsigned>(Upper(c) - 'A' + 10);
    if (digit >= radix) Fail(std::string("bad ") + kind + " number " + Quoted(literal));
    value = value * radix + digit;
    if (value > 0xFFFFFFFFull) Fail(Quoted(literal) + " does not fit in 32 bits");
  }

  Variant result;
  if (suffix == '&' || (suffix == '\0' && value > 0xFFFFull)) {
    result = Variant(static_cast<int32_t>(static_cast<uint32_t>(value)));
  } else {
    if (value > 0xFFFFull) Fail(Quoted(literal) + " does not fit in an Integer");
    result = Variant(static_cast<int16_t>(static_cast<uint16_t>(value)));
  }
  return negative ? Negate(result) : result;
}

// Checks digits[.digits][(e|E)[+|-]digits] with at least one mantissa digit;
// tells whether the form is an integer (no period, no exponent).
bool CheckDecimalForm(std::string_view body, std::string_view literal) {
  std::size_t i = 0;
  std::size_t mantissaDigits = 0;
  bool integer = true;
  while (i < body.size() && IsDigit(body[i])) ++i, ++mantissaDigits;
  if (i < body.size() && body[i] == '.') {
    integer = false;
    ++i;
    while (i < body.size() && IsDigit(body[i])) ++i, ++mantissaDigits;
  }
  if (mantissaDigits == 0) Fail("bad number " + Quoted(literal));
  if (i < body.size() && (body[i] == 'e' || body[i] == 'E')) {
    integer = false;
    ++i;
    if (i < body.size() && (body[i] == '+' || body[i] == '-')) ++i;
    std::size_t exponentDigits = 0;
    while (i < body.size() && IsDigit(body[i])) ++i, ++exponentDigits;
    if (exponentDigits == 0) Fail("bad number " + Quoted(literal) + ": the exponent has no digits");
  }
  if (i != body.size()) Fail("bad number " + Quoted(literal));
  return integer;
}

Variant DecimalValue(std::string_view literal, bool negative) {
  std::string_view body = literal;
  char suffix = '\0';
  if (!body.empty() && std::string_view("%&!#").find(body.back()) != std::string_view::npos) {
    suffix = body.back();
    body.remove_suffix(1);
  }
  const bool integer = CheckDecimalForm(body, literal);
  if (!integer && (suffix == '%' || suffix == '&'))
    Fail("bad number " + Quoted(literal) + ": a whole number was expected");

  if (integer && suffix != '!' && suffix != '#') {
    uint64_t magnitude = 0;
    const auto parsed = std::from_chars(body.data(), body.data() + body.size(), magnitude);
    const bool huge = parsed.ec == std::errc::result_out_of_range || magnitude > 0x80000000ull;
    const int64_t value = huge ? 0 : (negative ? -static_cast<int64_t>(magnitude) : static_cast<int64_t>(magnitude));
    if (suffix == '%' || (suffix == '\0' && !huge && FitsInteger(value))) {
      if (huge || !FitsInteger(value)) Fail(Quoted(literal) + " does not fit in an Integer");
      return Variant(static_cast<int16_t>(value));
    }
    if (!huge && FitsLong(value)) return Variant(static_cast<int32_t>(value));
    if (suffix == '&') Fail(Quoted(literal) + " does not fit in a Long");
  }

  double value = 0.0;
  const auto parsed = std::from_chars(body.data(), body.data() + body.size(), value);
  if (parsed.ec != std::errc()) Fail(Quoted(literal) + " is out of range for a Double");
  if (negative) value = -value;
  if (suffix == '!') {
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
      Fail(Quoted(literal) + " does not fit in a Single");
    }
    return Variant(static_cast<float>(value));
  }
  return Variant(value);
}

}  // namespace

bool StartsNumber(std::string_view text) {
  if (text.empty()) return false;
  if (IsDigit(text[0])) return true;
  if (text[0] == '.') return text.size() > 1 && IsDigit(text[1]);
  if (text[0] == '&') return text.size() > 1 && IsLetter(text[1]);
  return false;
}

std::size_t NumberLength(std::string_view text) {
  std::size_t i = 0;
  if (!text.empty() && text[0] == '&') {
    i = 1;
    while (i < text.size() && IsWordChar(text[i])) ++i;
    if (i < text.size() && (text[i] == '&' || text[i] == '%')) ++i;
    return i;
  }
  while (i < text.size()) {
    const char c = text[i];
    const bool exponentSign = (c == '+' || c == '-') && i > 0 && (text[i - 1] == 'e' || text[i - 1] == 'E');
    if (!IsWordChar(c) && c != '.' && !exponentSign) break;
    ++i;
  }
  if (i < text.size() && std::string_view("%&!#").find(text[i]) != std::string_view::npos) ++i;
  return i;
}

Variant NumberValue(std::string_view literal, bool negative) {
  if (!literal.empty() && literal[0] == '&') return RadixValue(literal, negative);
  return DecimalValue(literal, negative);
}

}  // namespace vorlex::cli
