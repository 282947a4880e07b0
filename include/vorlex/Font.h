#pragma once
// The standard font object: shared by reference between the caller, the control
// and its blocks, never copied behind the caller's back.

#include <cstdint>
#include <memory>
#include <string>

#include "vorlex/Object.h"

namespace vorlex {

class Font : public Object {
 public:
  explicit Font(std::string name = "MS Sans Serif", double size = 8.25);

  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }
  // Points, kept as the object keeps it: a fixed-point value with four decimals.
  double Size() const { return static_cast<double>(sizeTenThousandths_) / 10000.0; }
  void SetSize(double points);
  bool Bold() const { return weight_ > 550; }
  void SetBold(bool bold) { weight_ = bold ? 700 : 400; }
  int16_t Weight() const { return weight_; }
  void SetWeight(int16_t weight) { weight_ = weight; }
  bool Italic() const { return italic_; }
  void SetItalic(bool v) { italic_ = v; }
  bool Underline() const { return underline_; }
  void SetUnderline(bool v) { underline_ = v; }
  bool Strikethrough() const { return strikethrough_; }
  void SetStrikethrough(bool v) { strikethrough_ = v; }
  int16_t Charset() const { return charset_; }
  void SetCharset(int16_t v) { charset_ = v; }

 private:
  std::string name_;
  int64_t sizeTenThousandths_ = 82500;
  int16_t weight_ = 400;
  int16_t charset_ = 0;
  bool italic_ = false;
  bool underline_ = false;
  bool strikethrough_ = false;
};

using FontPtr = std::shared_ptr<Font>;

}  // namespace vorlex
