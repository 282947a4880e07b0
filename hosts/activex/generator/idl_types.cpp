#include "idl_types.h"

#include <memory>

namespace vorlex::activex {

std::string IdlType(const TypeRef& type) {
  switch (type.kind) {
    case TypeKind::Variant:
      return "VARIANT";
    case TypeKind::Integer:
      return "short";
    case TypeKind::Long:
      return "long";
    case TypeKind::Boolean:
      return "VARIANT_BOOL";
    case TypeKind::String:
      return "BSTR";
    case TypeKind::Color:
      return "OLE_COLOR";
    case TypeKind::Enum:
      return std::string(type.enumName);
    case TypeKind::Font:
      return "IFontDisp*";
    case TypeKind::Picture:
      return "IPictureDisp*";
  }
  return "VARIANT";
}

std::string CppType(const TypeRef& type) {
  switch (type.kind) {
    case TypeKind::Boolean:
    case TypeKind::Color:
    case TypeKind::Enum:
      return "::" + IdlType(type);
    default:
      return IdlType(type);
  }
}

std::string ConversionName(const TypeRef& type) {
  switch (type.kind) {
    case TypeKind::Variant:
      return "Variant";
    case TypeKind::Integer:
      return "I2";
    case TypeKind::Long:
      return "I4";
    case TypeKind::Boolean:
      return "Bool";
    case TypeKind::String:
      return "Bstr";
    case TypeKind::Color:
      return "Color";
    case TypeKind::Enum:
      return "Enum";
    case TypeKind::Font:
      return "Font";
    case TypeKind::Picture:
      return "Picture";
  }
  return "Variant";
}

bool HasDeclaredDefault(const ParamInfo& param) {
  return param.optional && !param.defaultValue.IsMissing() && param.type.kind != TypeKind::Variant;
}

std::string IdlLiteral(const Variant& value) {
  if (value.IsString()) {
    std::string text = "\"";
    for (char c : value.ToString()) text += (c == '"') ? std::string("\\\"") : std::string(1, c);
    return text + "\"";
  }
  if (value.IsObject()) return "0";
  if (value.Type() == VarType::Boolean) return value.ToBoolean() ? "-1" : "0";
  return std::to_string(value.ToLong());
}

}  // namespace vorlex::activex
