#pragma once
// Between tagged values and the C++ types of the control's members, one rule
// per interface type.

#include <memory>
#include <string>

#include "vorlex/Automation.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Color.h"
#include "vorlex/Font.h"
#include "vorlex/Numeric.h"
#include "vorlex/Picture.h"

namespace vorlex {

template <TypeKind K>
struct Convert;

template <>
struct Convert<TypeKind::Variant> {
  using Type = Variant;
  static Variant From(const Variant& v) { return v; }
  static Variant To(const Variant& v) { return v; }
};
template <>
struct Convert<TypeKind::Integer> {
  using Type = int16_t;
  static int16_t From(const Variant& v) { return v.ToInteger(); }
  static Variant To(int16_t v) { return Variant(v); }
};
template <>
struct Convert<TypeKind::Long> {
  using Type = int32_t;
  static int32_t From(const Variant& v) { return v.ToLong(); }
  static Variant To(int32_t v) { return Variant(v); }
};
template <>
struct Convert<TypeKind::Enum> : Convert<TypeKind::Long> {};
template <>
struct Convert<TypeKind::Boolean> {
  using Type = VARIANT_BOOL;
  static VARIANT_BOOL From(const Variant& v) { return v.ToBoolean(); }
  static Variant To(VARIANT_BOOL v) { return Variant::Boolean(v); }
};
template <>
struct Convert<TypeKind::String> {
  using Type = std::string;
  static std::string From(const Variant& v) { return v.ToString(); }
  static Variant To(const std::string& v) { return Variant(v); }
};
// A colour travels as a Long; unsigned values up to 0xFFFFFFFF are accepted too.
template <>
struct Convert<TypeKind::Color> {
  using Type = OLE_COLOR;
  static OLE_COLOR From(const Variant& v) {
    if (v.Type() == VarType::Single || v.Type() == VarType::Double || v.IsString()) {
      const double d = RoundHalfEven(v.ToDouble());
      if (d > 2147483647.0 && d <= 4294967295.0) return static_cast<OLE_COLOR>(d);
    }
    return static_cast<OLE_COLOR>(v.ToLong());
  }
  static Variant To(OLE_COLOR v) { return Variant(static_cast<int32_t>(v)); }
};

template <class T>
std::shared_ptr<T> ObjectFrom(const Variant& v) {
  const std::shared_ptr<Object> object = v.ToObject();
  if (!object) return nullptr;  // Nothing
  auto typed = std::dynamic_pointer_cast<T>(object);
  if (!typed) RaiseError(kErrTypeMismatch);
  return typed;
}
template <>
struct Convert<TypeKind::Font> {
  using Type = FontPtr;
  static FontPtr From(const Variant& v) { return ObjectFrom<Font>(v); }
  static Variant To(const FontPtr& v) { return Variant(std::static_pointer_cast<Object>(v)); }
};
template <>
struct Convert<TypeKind::Picture> {
  using Type = PicturePtr;
  static PicturePtr From(const Variant& v) { return ObjectFrom<Picture>(v); }
  static Variant To(const PicturePtr& v) { return Variant(std::static_pointer_cast<Object>(v)); }
};

}  // namespace vorlex
