#pragma once
// How the automation table's types and values are spelled in IDL and in the
// C++ that widl's header declares.

#include <string>

#include "vorlex/Automation.h"

namespace vorlex::activex {

// The IDL type of a value of this kind ("short", "BSTR", "vxAlignmentEnum"...).
std::string IdlType(const TypeRef& type);
// The suffix of the conversion helpers for this kind ("I2", "Bstr", "Enum"...).
std::string ConversionName(const TypeRef& type);
// The same type as C++ names it in widl's header, outside the library's
// namespace, whose names (OLE_COLOR, the enumerations) it would otherwise find.
std::string CppType(const TypeRef& type);
// Whether the type library declares the argument's default: an optional
// argument with one, unless it is a Variant.
bool HasDeclaredDefault(const ParamInfo& param);
// An IDL defaultvalue() literal.
std::string IdlLiteral(const Variant& value);

}  // namespace vorlex::activex
