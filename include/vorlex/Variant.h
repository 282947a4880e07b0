#pragma once
// The tagged value of the automation interface and its conversion rules.

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

#include "vorlex/Numeric.h"
#include "vorlex/Object.h"

namespace vorlex {

enum class VarType { Empty, Missing, Integer, Long, Single, Double, Boolean, String, Object };

class Variant {
 public:
  Variant() = default;  // Empty
  Variant(int16_t v) : value_(v), type_(VarType::Integer) {}
  Variant(int32_t v) : value_(v), type_(VarType::Long) {}
  Variant(float v) : value_(v), type_(VarType::Single) {}
  Variant(double v) : value_(v), type_(VarType::Double) {}
  Variant(std::string v) : value_(std::move(v)), type_(VarType::String) {}
  Variant(const char* v) : Variant(std::string(v)) {}
  Variant(std::shared_ptr<Object> v) : value_(std::move(v)), type_(VarType::Object) {}

  static Variant Missing();
  static Variant Boolean(VARIANT_BOOL v);
  static Variant Boolean(bool v) { return Boolean(ToVariantBool(v)); }
  static Variant Integer(int16_t v) { return Variant(v); }
  static Variant Long(int32_t v) { return Variant(v); }

  VarType Type() const { return type_; }
  bool IsEmpty() const { return type_ == VarType::Empty; }
  bool IsMissing() const { return type_ == VarType::Missing; }
  bool IsString() const { return type_ == VarType::String; }
  bool IsObject() const { return type_ == VarType::Object; }
  // A number, a boolean, Empty, or a string that parses as a number.
  bool IsNumeric() const;

  // Conversions with the automation rules (error 6 overflow, 13 type mismatch).
  double ToDouble() const;
  float ToSingle() const;
  int16_t ToInteger() const;
  int32_t ToLong() const;
  uint8_t ToByte() const;
  VARIANT_BOOL ToBoolean() const;
  std::string ToString() const;
  // The carried object, or null for Nothing; error 13 for anything else.
  std::shared_ptr<Object> ToObject() const;

  bool operator==(const Variant& other) const = default;

 private:
  using Storage = std::variant<std::monostate, int16_t, int32_t, float, double, std::string, std::shared_ptr<Object>>;
  Storage value_;
  VarType type_ = VarType::Empty;
};

// Basic's comparison of two tagged values: numbers numerically, strings
// binary, a number always below a string, Empty as 0 or "". Returns <0, 0, >0.
int CompareVariants(const Variant& a, const Variant& b);

// Shortest decimal text that reads back to the same value, Basic style
// ("0.1", "8.25", "1E+20"), at single or double precision.
std::string FormatNumber(double value);
std::string FormatNumber(float value);

}  // namespace vorlex
