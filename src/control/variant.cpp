// Tagged values and the automation conversion rules.

#include "vorlex/Variant.h"

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "control/numeric_text.h"
#include "vorlex/AutomationError.h"

namespace vorlex {

Variant Variant::Missing() {
  Variant v;
  v.type_ = VarType::Missing;
  return v;
}

Variant Variant::Boolean(VARIANT_BOOL b) {
  Variant v(static_cast<int16_t>(b));
  v.type_ = VarType::Boolean;
  return v;
}

bool Variant::IsNumeric() const {
  switch (type_) {
    case VarType::Empty:
    case VarType::Integer:
    case VarType::Long:
    case VarType::Single:
    case VarType::Double:
    case VarType::Boolean:
      return true;
    case VarType::String:
      return ParseNumericText(std::get<std::string>(value_)).has_value();
    default:
      return false;
  }
}

double Variant::ToDouble() const {
  switch (type_) {
    case VarType::Empty:
      return 0.0;
    case VarType::Integer:
    case VarType::Boolean:
      return std::get<int16_t>(value_);
    case VarType::Long:
      return std::get<int32_t>(value_);
    case VarType::Single:
      return std::get<float>(value_);
    case VarType::Double:
      return std::get<double>(value_);
    case VarType::String: {
      const auto parsed = ParseNumericText(std::get<std::string>(value_));
      if (!parsed) RaiseError(kErrTypeMismatch);
      if (std::isinf(*parsed)) RaiseError(kErrOverflow);
      return *parsed;
    }
    default:
      RaiseError(kErrTypeMismatch);
  }
}

float Variant::ToSingle() const { return vorlex::ToSingle(ToDouble()); }

int16_t Variant::ToInteger() const {
  if (type_ == VarType::Integer || type_ == VarType::Boolean) return std::get<int16_t>(value_);
  if (type_ == VarType::Long) return NarrowToInteger(std::get<int32_t>(value_));
  return vorlex::ToInteger(ToDouble());
}

int32_t Variant::ToLong() const {
  if (type_ == VarType::Integer || type_ == VarType::Boolean) return std::get<int16_t>(value_);
  if (type_ == VarType::Long) return std::get<int32_t>(value_);
  return vorlex::ToLong(ToDouble());
}

uint8_t Variant::ToByte() const { return vorlex::ToByte(ToDouble()); }

VARIANT_BOOL Variant::ToBoolean() const {
  if (type_ == VarType::String) {
    const auto& text = std::get<std::string>(value_);
    if (EqualsIgnoringCase(TrimSpaces(text), "True")) return VARIANT_TRUE;
    if (EqualsIgnoringCase(TrimSpaces(text), "False")) return VARIANT_FALSE;
  }
  return ToVariantBool(ToDouble() != 0.0);
}

std::string Variant::ToString() const {
  switch (type_) {
    case VarType::Empty:
      return {};
    case VarType::Integer:
      return std::to_string(std::get<int16_t>(value_));
    case VarType::Long:
      return std::to_string(std::get<int32_t>(value_));
    case VarType::Single:
      return FormatNumber(std::get<float>(value_));
    case VarType::Double:
      return FormatNumber(std::get<double>(value_));
    case VarType::Boolean:
      return std::get<int16_t>(value_) != 0 ? "True" : "False";
    case VarType::String:
      return std::get<std::string>(value_);
    default:
      RaiseError(kErrTypeMismatch);
  }
}

std::shared_ptr<Object> Variant::ToObject() const {
  if (type_ != VarType::Object) RaiseError(kErrTypeMismatch);
  return std::get<std::shared_ptr<Object>>(value_);
}

int CompareVariants(const Variant& a, const Variant& b) {
  auto isNumber = [](const Variant& v) { return v.IsNumeric() && !v.IsString(); };
  auto sign = [](auto x, auto y) { return x < y ? -1 : (y < x ? 1 : 0); };
  const bool aText = a.IsString() || (a.IsEmpty() && b.IsString());
  const bool bText = b.IsString() || (b.IsEmpty() && a.IsString());
  if (aText && bText) return sign(a.ToString(), b.ToString());
  if (isNumber(a) && isNumber(b)) return sign(a.ToDouble(), b.ToDouble());
  // A number is always below a string; anything else cannot be compared.
  if (isNumber(a) && b.IsString()) return -1;
  if (a.IsString() && isNumber(b)) return 1;
  RaiseError(kErrTypeMismatch);
}

}  // namespace vorlex
