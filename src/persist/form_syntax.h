#pragma once
// Form text as Visual Basic writes it, read line by line: the Begin/End blocks
// of controls, "Key = value" lines, and BeginProperty/EndProperty blocks of
// font members. Only the values of VorlexLib.Vorlex controls are read; the
// other controls' lines are skipped, keeping only their nesting.

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "vorlex/Variant.h"

namespace vorlex::form {

// A problem at a line of the text (1-based).
class SyntaxError : public std::runtime_error {
 public:
  SyntaxError(int line, const std::string& problem) : std::runtime_error(problem), line_(line) {}
  int Line() const { return line_; }

 private:
  int line_;
};

struct FontMembers {
  std::string name = "MS Sans Serif";
  double size = 8.25;
  int16_t charset = 0;
  int16_t weight = 400;
  bool underline = false;
  bool italic = false;
  bool strikethrough = false;
};

struct Value {
  enum class Kind { Number, Text, Resource, Font };
  Kind kind = Kind::Number;
  Variant number;       // Number: Integer, Long, Double or Boolean
  std::string text;     // Text: the string; Resource: the resource file's name
  uint32_t offset = 0;  // Resource: where its record starts
  FontMembers font;     // Font
};

struct Property {
  std::string key;
  Value value;
  int line = 0;
};

struct Control {
  std::string name;
  int line = 0;  // of its Begin
  std::vector<Property> properties;
};

inline constexpr std::string_view kVorlexType = "VorlexLib.Vorlex";

// Every VorlexLib.Vorlex block of the text, at any depth, in text order.
std::vector<Control> ParseForm(std::string_view text);

// One value as it follows "=" (a comment after it allowed): a decimal or &H
// number, True or False, a quoted string, or "File.frx":OFFSET. Raises
// SyntaxError for the line given.
Value ParseValue(std::string_view text, int line);

}  // namespace vorlex::form
