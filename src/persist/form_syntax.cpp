// The block structure of form text.

#include "persist/form_syntax.h"

#include "control/numeric_text.h"

namespace vorlex::form {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view Trim(std::string_view s) {
  while (!s.empty() && (IsBlank(s.front()) || s.front() == '\r')) s.remove_prefix(1);
  while (!s.empty() && (IsBlank(s.back()) || s.back() == '\r')) s.remove_suffix(1);
  return s;
}

// The first word of a line: up to a blank or "=".
std::string_view FirstWord(std::string_view line) {
  size_t n = 0;
  while (n < line.size() && !IsBlank(line[n]) && line[n] != '=') ++n;
  return line.substr(0, n);
}

// The words of a Begin line after "Begin": type and name.
std::vector<std::string_view> Words(std::string_view s) {
  std::vector<std::string_view> words;
  size_t i = 0;
  while (i < s.size()) {
    while (i < s.size() && IsBlank(s[i])) ++i;
    if (i >= s.size() || s[i] == '\'') break;
    size_t j = i;
    while (j < s.size() && !IsBlank(s[j])) ++j;
    words.push_back(s.substr(i, j - i));
    i = j;
  }
  return words;
}

struct KeyAndValue {
  std::string key;
  std::string_view value;
};

KeyAndValue SplitAtEquals(std::string_view line, int number) {
  const size_t equals = line.find('=');
  if (equals == std::string_view::npos) throw SyntaxError(number, "expected Key = value: " + std::string(line));
  const std::string_view key = Trim(line.substr(0, equals));
  if (key.empty()) throw SyntaxError(number, "missing key before =");
  return {std::string(key), line.substr(equals + 1)};
}

bool Truth(const Value& v, const std::string& member, int line) {
  if (v.kind != Value::Kind::Number) throw SyntaxError(line, "font " + member + " needs a number or True/False");
  return v.number.ToDouble() != 0.0;
}

double Number(const Value& v, const std::string& member, int line) {
  if (v.kind != Value::Kind::Number) throw SyntaxError(line, "font " + member + " needs a number");
  return v.number.ToDouble();
}

int16_t Integer(const Value& v, const std::string& member, int line) {
  const double n = Number(v, member, line);
  if (!(n >= -32768.0 && n <= 32767.0)) throw SyntaxError(line, "font " + member + " out of range");
  return static_cast<int16_t>(n);
}

void SetFontMember(FontMembers& font, const std::string& member, const Value& v, int line) {
  if (EqualsIgnoringCase(member, "Name")) {
    if (v.kind != Value::Kind::Text) throw SyntaxError(line, "font Name needs a quoted string");
    font.name = v.text;
  } else if (EqualsIgnoringCase(member, "Size")) {
    font.size = Number(v, member, line);
    if (!(font.size >= -1e9 && font.size <= 1e9)) throw SyntaxError(line, "font Size out of range");
  } else if (EqualsIgnoringCase(member, "Charset")) {
    font.charset = Integer(v, member, line);
  } else if (EqualsIgnoringCase(member, "Weight")) {
    font.weight = Integer(v, member, line);
  } else if (EqualsIgnoringCase(member, "Underline")) {
    font.underline = Truth(v, member, line);
  } else if (EqualsIgnoringCase(member, "Italic")) {
    font.italic = Truth(v, member, line);
  } else if (EqualsIgnoringCase(member, "Strikethrough")) {
    font.strikethrough = Truth(v, member, line);
  } else {
    throw SyntaxError(line, "unknown font member " + member);
  }
}

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  std::vector<Control> Run() {
    while (NextLine()) Line();
    if (!open_.empty()) {
      const Open& last = open_.back();
      throw SyntaxError(last.line, "missing End for Begin " + last.type + " " + last.name);
    }
    if (fontLine_ != 0) throw SyntaxError(fontLine_, "missing EndProperty");
    return std::move(found_);
  }

 private:
  struct Open {
    std::string type;
    std::string name;
    int line;
    int control;  // index into found_, or -1 for another kind of control
  };

  bool NextLine() {
    if (pos_ >= text_.size()) return false;
    const size_t end = text_.find('\n', pos_);
    const size_t stop = end == std::string_view::npos ? text_.size() : end;
    line_ = Trim(text_.substr(pos_, stop - pos_));
    pos_ = end == std::string_view::npos ? text_.size() : end + 1;
    ++number_;
    return true;
  }

  bool InVorlex() const { return !open_.empty() && open_.back().control >= 0; }
  Control& Current() { return found_[static_cast<size_t>(open_.back().control)]; }

  void Line() {
    if (line_.empty() || line_.front() == '\'') return;
    const std::string_view word = FirstWord(line_);
    if (fontLine_ != 0) return FontLine(word);
    if (skippedProperties_ > 0) return SkippedLine(word);
    if (EqualsIgnoringCase(word, "Begin")) return Begin();
    if (EqualsIgnoringCase(word, "End")) return End();
    if (EqualsIgnoringCase(word, "BeginProperty")) return BeginProperty();
    if (EqualsIgnoringCase(word, "EndProperty")) {
      if (InVorlex()) throw SyntaxError(number_, "EndProperty without BeginProperty");
      return;
    }
    // Outside any control (VERSION, Object, Attribute lines, code) and in
    // other controls nothing else matters.
    if (!InVorlex()) return;
    KeyAndValue kv = SplitAtEquals(line_, number_);
    Current().properties.push_back({std::move(kv.key), ParseValue(kv.value, number_), number_});
  }

  void Begin() {
    const std::vector<std::string_view> words = Words(line_.substr(5));
    // At the outermost level only "Begin Library.Class Name" opens a block,
    // so that code after the controls cannot be taken for one.
    if (open_.empty() && (words.empty() || words[0].find_first_of(".{") == std::string_view::npos)) return;
    Open block{words.empty() ? std::string() : std::string(words[0]),
               words.size() > 1 ? std::string(words[1]) : std::string(), number_, -1};
    if (EqualsIgnoringCase(block.type, kVorlexType)) {
      if (words.size() != 2) throw SyntaxError(number_, "expected Begin VorlexLib.Vorlex Name");
      block.control = static_cast<int>(found_.size());
      found_.push_back({block.name, number_, {}});
    }
    open_.push_back(std::move(block));
  }

  void End() {
    if (!open_.empty()) open_.pop_back();
  }

  void BeginProperty() {
    if (!InVorlex()) {
      ++skippedProperties_;
      return;
    }
    const std::vector<std::string_view> words = Words(line_.substr(13));
    if (words.empty()) throw SyntaxError(number_, "BeginProperty without a key");
    fontKey_ = std::string(words[0]);
    fontLine_ = number_;
    font_ = FontMembers{};
  }

  void FontLine(std::string_view word) {
    if (EqualsIgnoringCase(word, "EndProperty")) {
      Value value;
      value.kind = Value::Kind::Font;
      value.font = font_;
      Current().properties.push_back({fontKey_, std::move(value), fontLine_});
      fontLine_ = 0;
      return;
    }
    if (EqualsIgnoringCase(word, "BeginProperty") || EqualsIgnoringCase(word, "End") ||
        EqualsIgnoringCase(word, "Begin")) {
      throw SyntaxError(number_,
                        "missing EndProperty for BeginProperty " + fontKey_ + " at line " + std::to_string(fontLine_));
    }
    KeyAndValue kv = SplitAtEquals(line_, number_);
    SetFontMember(font_, kv.key, ParseValue(kv.value, number_), number_);
  }

  // Property blocks of other controls nest; only their end matters.
  void SkippedLine(std::string_view word) {
    if (EqualsIgnoringCase(word, "BeginProperty")) ++skippedProperties_;
    if (EqualsIgnoringCase(word, "EndProperty")) --skippedProperties_;
  }

  std::string_view text_;
  size_t pos_ = 0;
  std::string_view line_;
  int number_ = 0;
  std::vector<Open> open_;
  std::vector<Control> found_;
  int skippedProperties_ = 0;
  int fontLine_ = 0;
  std::string fontKey_;
  FontMembers font_;
};

}  // namespace

std::vector<Control> ParseForm(std::string_view text) { return Parser(text).Run(); }

}  // namespace vorlex::form
