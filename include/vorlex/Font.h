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
  ~Font() override;

  const std::string& Name() const { return name_; }
  void SetName(std::string name);
  // Points, kept as the object keeps it: a fixed-point value with four decimals.
  double Size() const { return static_cast<double>(sizeTenThousandths_) / 10000.0; }
  void SetSize(double points);
  bool Bold() const { return weight_ > 550; }
  void SetBold(bool bold) { SetWeight(bold ? 700 : 400); }
  int16_t Weight() const { return weight_; }
  void SetWeight(int16_t weight);
  bool Italic() const { return italic_; }
  void SetItalic(bool v);
  bool Underline() const { return underline_; }
  void SetUnderline(bool v);
  bool Strikethrough() const { return strikethrough_; }
  void SetStrikethrough(bool v);
  int16_t Charset() const { return charset_; }
  void SetCharset(int16_t v);

  // A platform font handle for these members at the screen's resolution,
  // created on first use and again after a change; owned by the object. 0 when
  // the platform cannot create it.
  uintptr_t hFont() const;

 private:
  void ReleaseHandle() const;

  std::string name_;
  int64_t sizeTenThousandths_ = 82500;
  int16_t weight_ = 400;
  int16_t charset_ = 0;
  bool italic_ = false;
  bool underline_ = false;
  bool strikethrough_ = false;
  mutable uintptr_t handle_ = 0;
};

using FontPtr = std::shared_ptr<Font>;

}  // namespace vorlex
