// One value of a form text line.

#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>

#include "control/numeric_text.h"
#include "persist/form_syntax.h"

namespace vorlex::form {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

class Cursor {
 public:
  Cursor(std::string_view text, int line) : text_(text), line_(line) {}

  void SkipBlanks() {
    while (pos_ < text_.size() && IsBlank(text_[pos_])) ++pos_;
  }
  bool AtEnd() const { return pos_ >= text_.size(); }
  char Peek(size_t ahead = 0) const { return pos_ + ahead < text_.size() ? text_[pos_ + ahead] : '\0'; }
  char Take() { return text_[pos_++]; }
  std::string_view Rest() const { return text_.substr(pos_); }
  void Advance(size_t n) { pos_ += n; }
  [[noreturn]] void Fail(const std::string& problem) const { throw SyntaxError(line_, problem); }

  // Nothing but blanks and a comment may follow a value.
  void ExpectEnd() {
    SkipBlanks();
    if (!AtEnd() && Peek() != '\'') Fail("unexpected text after the value: " + std::string(Rest()));
  }

 private:
  std::string_view text_;
  size_t pos_ = 0;
  int line_;
};

std::string ReadQuoted(Cursor& in) {
  in.Take();  // the opening quote
  std::string text;
  for (;;) {
    if (in.AtEnd()) in.Fail("unterminated string");
    const char c = in.Take();
    if (c != '"') {
      text += c;
    } else if (in.Peek() == '"') {
      in.Take();
      text += '"';
    } else {
      return text;
    }
  }
}

// The hexadecimal digits of an offset into a resource file.
uint32_t ReadOffset(Cursor& in) {
  size_t digits = 0;
  while (std::isxdigit(static_cast<unsigned char>(in.Peek(digits)))) ++digits;
  const std::string_view hex = in.Rest().substr(0, digits);
  uint32_t offset = 0;
  const auto [end, error] = std::from_chars(hex.data(), hex.data() + hex.size(), offset, 16);
  if (digits == 0 || error != std::errc() || end != hex.data() + hex.size()) {
    in.Fail("bad resource offset: " + std::string(in.Rest()));
  }
  in.Advance(digits);
  return offset;
}

Value StringValue(Cursor& in, bool resourceOnly) {
  Value value;
  value.text = ReadQuoted(in);
  value.kind = Value::Kind::Text;
  if (in.Peek() == ':') {
    in.Take();
    value.kind = Value::Kind::Resource;
    value.offset = ReadOffset(in);
  } else if (resourceOnly) {
    in.Fail("a $ string needs a resource offset");
  }
  in.ExpectEnd();
  return value;
}

Value NumberValue(Variant number) {
  Value value;
  value.number = std::move(number);
  return value;
}

// &H digits: 16-bit when at most four digits and no & suffix, else 32-bit.
Value HexValue(Cursor& in) {
  in.Advance(2);
  size_t digits = 0;
  while (std::isxdigit(static_cast<unsigned char>(in.Peek(digits)))) ++digits;
  const std::string_view hex = in.Rest().substr(0, digits);
  uint32_t bits = 0;
  if (digits == 0 || digits > 8) in.Fail("bad number: &H" + std::string(in.Rest()));
  std::from_chars(hex.data(), hex.data() + hex.size(), bits, 16);
  in.Advance(digits);
  const bool isLong = in.Peek() == '&' || digits > 4;
  if (in.Peek() == '&') in.Take();
  if (!in.AtEnd() && !IsBlank(in.Peek()) && in.Peek() != '\'')
    in.Fail("bad number: trailing " + std::string(in.Rest()));
  in.ExpectEnd();
  if (isLong) return NumberValue(Variant(static_cast<int32_t>(bits)));
  return NumberValue(Variant(static_cast<int16_t>(static_cast<uint16_t>(bits))));
}

// The length of a decimal number's text: sign, digits, point, exponent.
size_t DecimalLength(std::string_view text, bool& real) {
  size_t n = 0;
  if (n < text.size() && (text[n] == '-' || text[n] == '+')) ++n;
  const size_t digitsStart = n;
  while (n < text.size() && std::isdigit(static_cast<unsigned char>(text[n]))) ++n;
  if (n < text.size() && text[n] == '.') {
    real = true;
    ++n;
    while (n < text.size() && std::isdigit(static_cast<unsigned char>(text[n]))) ++n;
  }
  if (n == digitsStart || (n == digitsStart + 1 && real)) return 0;
  if (n < text.size() && (text[n] == 'E' || text[n] == 'e')) {
    size_t e = n + 1;
    if (e < text.size() && (text[e] == '-' || text[e] == '+')) ++e;
    const size_t expStart = e;
    while (e < text.size() && std::isdigit(static_cast<unsigned char>(text[e]))) ++e;
    if (e == expStart) return 0;
    real = true;
    n = e;
  }
  return n;
}

Variant DecimalNumber(std::string_view digits, bool real, const Cursor& in) {
  std::string_view plain = digits;
  if (!plain.empty() && plain.front() == '+') plain.remove_prefix(1);
  if (!real) {
    int64_t whole = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), whole);
    if (error == std::errc() && end == plain.data() + plain.size()) {
      if (whole >= std::numeric_limits<int16_t>::min() && whole <= std::numeric_limits<int16_t>::max())
        return Variant(static_cast<int16_t>(whole));
      if (whole >= std::numeric_limits<int32_t>::min() && whole <= std::numeric_limits<int32_t>::max())
        return Variant(static_cast<int32_t>(whole));
    }
  }
  double number = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), number);
  if (error != std::errc() || end != plain.data() + plain.size() || !std::isfinite(number)) {
    in.Fail("bad number: " + std::string(digits));
  }
  return Variant(number);
}

Value DecimalValue(Cursor& in) {
  bool real = false;
  const size_t length = DecimalLength(in.Rest(), real);
  if (length == 0) in.Fail("bad number: " + std::string(in.Rest()));
  const std::string_view digits = in.Rest().substr(0, length);
  Variant number = DecimalNumber(digits, real, in);
  in.Advance(length);
  // Basic's type suffixes: Integer %, Long &, Single !, Double #.
  if (in.Peek() == '%' || in.Peek() == '&' || in.Peek() == '!' || in.Peek() == '#') in.Take();
  if (!in.AtEnd() && !IsBlank(in.Peek()) && in.Peek() != '\'')
    in.Fail("bad number: " + std::string(digits) + std::string(in.Rest()));
  in.ExpectEnd();
  return NumberValue(std::move(number));
}

bool StartsWithWord(std::string_view text, std::string_view word) {
  if (text.size() < word.size() || !EqualsIgnoringCase(text.substr(0, word.size()), word)) return false;
  return text.size() == word.size() || IsBlank(text[word.size()]) || text[word.size()] == '\'';
}

}  // namespace

Value ParseValue(std::string_view text, int line) {
  Cursor in(text, line);
  in.SkipBlanks();
  if (in.AtEnd() || in.Peek() == '\'') in.Fail("missing value after =");
  const char c = in.Peek();
  if (c == '"') return StringValue(in, false);
  if (c == '$' && in.Peek(1) == '"') {
    in.Take();
    return StringValue(in, true);
  }
  if (c == '&' && (in.Peek(1) == 'H' || in.Peek(1) == 'h')) return HexValue(in);
  if (c == '-' || c == '+' || c == '.' || std::isdigit(static_cast<unsigned char>(c))) return DecimalValue(in);
  for (const auto& [word, truth] : {std::pair{"True", true}, std::pair{"False", false}}) {
    if (StartsWithWord(in.Rest(), word)) {
      in.Advance(std::string_view(word).size());
      in.ExpectEnd();
      return NumberValue(Variant::Boolean(truth));
    }
  }
  in.Fail("bad value: " + std::string(in.Rest()));
}

}  // namespace vorlex::form
