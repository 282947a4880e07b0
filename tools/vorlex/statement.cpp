// Reading a statement: a name, optional arguments in parentheses, an optional
// assigned value.

#include "statement.h"

#include <cstddef>
#include <memory>
#include <utility>

#include "literal.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Picture.h"

namespace vorlex::cli {

namespace {

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsNameChar(char c) { return IsLetter(c) || (c >= '0' && c <= '9') || c == '_'; }
bool IsSpace(char c) { return c == ' ' || c == '\t'; }

bool SameWord(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; };
    if (lower(a[i]) != lower(b[i])) return false;
  }
  return true;
}

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  Statement Parse() {
    SkipSpaces();
    if (AtEnd()) Fail("the statement is empty");
    statement_.name = Name();
    SkipSpaces();
    if (Peek() == '(') statement_.args = Arguments();
    SkipSpaces();
    if (Peek() == '.') statement_.member = Member();
    SkipSpaces();
    if (Peek() == '=') {
      ++pos_;
      SkipSpaces();
      if (AtEnd()) Fail("expected a value after \"=\"");
      statement_.value = Value();
      SkipSpaces();
    }
    if (!AtEnd()) Fail("unexpected " + Rest());
    return std::move(statement_);
  }

 private:
  bool AtEnd() const { return pos_ >= text_.size(); }
  char Peek() const { return AtEnd() ? '\0' : text_[pos_]; }
  std::string_view Remaining() const { return text_.substr(pos_); }
  std::string Rest() const { return "\"" + std::string(Remaining()) + "\""; }
  void SkipSpaces() {
    while (!AtEnd() && IsSpace(text_[pos_])) ++pos_;
  }
  [[noreturn]] static void Fail(const std::string& problem) { throw SyntaxError(problem); }

  std::string_view Word() {
    const std::size_t start = pos_;
    while (!AtEnd() && IsNameChar(text_[pos_])) ++pos_;
    return text_.substr(start, pos_ - start);
  }

  std::string Name() {
    if (!IsLetter(Peek())) Fail("expected a member name at " + Rest());
    const std::string_view name = Word();
    if (SameWord(name, "LoadPicture")) {
      Fail("LoadPicture is a function, not a member: use it as a value, as in Picture = LoadPicture(\"file.bmp\")");
    }
    return std::string(name);
  }

  // "." Name: a member of the object the property gives.
  std::string Member() {
    ++pos_;  // .
    SkipSpaces();
    if (!IsLetter(Peek())) Fail("expected a member name after \".\" at " + Rest());
    return std::string(Word());
  }

  // "(" [value] { "," [value] } ")", where "()" holds no arguments at all.
  std::vector<Variant> Arguments() {
    ++pos_;  // (
    SkipSpaces();
    std::vector<Variant> args;
    if (Peek() == ')') {
      ++pos_;
      return args;
    }
    for (;;) {
      SkipSpaces();
      if (Peek() == ',' || Peek() == ')')
        args.push_back(Variant::Missing());
      else if (AtEnd())
        Fail("missing \")\"");
      else
        args.push_back(Value());
      SkipSpaces();
      if (AtEnd()) Fail("missing \")\"");
      const char c = text_[pos_++];
      if (c == ')') return args;
      if (c != ',') {
        --pos_;
        Fail("expected \",\" or \")\" at " + Rest());
      }
    }
  }

  Variant Value() {
    const char c = Peek();
    if (c == '"') return String();
    if (c == '-') {
      ++pos_;
      SkipSpaces();
      if (!StartsNumber(Remaining())) Fail("a minus sign must be followed by a number");
      return Number(true);
    }
    if (StartsNumber(Remaining())) return Number(false);
    if (IsLetter(c)) {
      const std::string_view word = Word();
      if (SameWord(word, "True")) return Variant::Boolean(true);
      if (SameWord(word, "False")) return Variant::Boolean(false);
      if (SameWord(word, "Nothing")) return Variant(std::shared_ptr<Object>());
      if (SameWord(word, "LoadPicture")) return LoadPictureCall();
      Fail("\"" + std::string(word) +
           "\" is not a value: use a number, a \"string\", True, False, Nothing or LoadPicture(\"path\")");
    }
    Fail("expected a value at " + Rest());
  }

  // The rest of LoadPicture( [ "path" ] ): the picture, or Empty with the
  // error it raised kept for the statement.
  Variant LoadPictureCall() {
    SkipSpaces();
    if (Peek() != '(') Fail("LoadPicture needs its path in parentheses: LoadPicture(\"path\")");
    ++pos_;
    SkipSpaces();
    std::string path;
    if (Peek() == '"') {
      path = String().ToString();
      SkipSpaces();
    } else if (Peek() != ')' && !AtEnd()) {
      Fail("LoadPicture takes a \"path\" string at " + Rest());
    }
    if (Peek() == ',') Fail("LoadPicture takes only the path here");
    if (Peek() != ')') Fail("missing \")\" after LoadPicture's path");
    ++pos_;
    try {
      return Variant(std::shared_ptr<Object>(LoadPicture(path)));
    } catch (const AutomationError& error) {
      if (statement_.valueError == 0) statement_.valueError = error.Number();
      return Variant();
    }
  }

  Variant Number(bool negative) {
    const std::size_t length = NumberLength(Remaining());
    const std::string_view literal = text_.substr(pos_, length);
    pos_ += length;
    return NumberValue(literal, negative);
  }

  // "..." with "" standing for one quote.
  Variant String() {
    ++pos_;  // opening quote
    std::string value;
    for (;;) {
      if (AtEnd()) Fail("unterminated string");
      const char c = text_[pos_++];
      if (c != '"') {
        value += c;
      } else if (Peek() == '"') {
        value += '"';
        ++pos_;
      } else {
        return Variant(std::move(value));
      }
    }
  }

  std::string_view text_;
  std::size_t pos_ = 0;
  Statement statement_;
};

}  // namespace

Statement ParseStatement(std::string_view text) { return Parser(text).Parse(); }

}  // namespace vorlex::cli
