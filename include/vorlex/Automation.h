#pragma once
// The automation interface _Vorlex as data: every member with its name,
// dispatch identifier, kind, arguments and type, callable by name or by id
// with tagged values. Scripting hosts, the ActiveX server and the command-line
// tool all answer from this one table.

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "vorlex/Variant.h"

namespace vorlex {

class Vorlex;

enum class InvokeKind : uint8_t { Method = 1, PropertyGet = 2, PropertyPut = 4, PropertyPutRef = 8 };

enum class TypeKind : uint8_t { Variant, Integer, Long, Boolean, String, Color, Enum, Font, Picture };

struct TypeRef {
  TypeKind kind = TypeKind::Variant;
  std::string_view enumName;  // for TypeKind::Enum: the enumeration's name
};

struct ParamInfo {
  std::string_view name;
  TypeRef type;
  bool optional = false;
  bool byRef = false;
  Variant defaultValue;  // what an omitted optional argument becomes
};

struct MemberInfo {
  std::string_view name;
  int32_t dispid = 0;
  InvokeKind kind = InvokeKind::Method;
  // Declared arguments; for a put or putref the assigned value is not among them.
  std::vector<ParamInfo> params;
  // The result of a get or method (Variant for methods), the value of a put.
  TypeRef type;
  // Called with every declared argument present (defaults filled in) and, for
  // a put or putref, the converted value last.
  std::function<Variant(Vorlex&, const std::vector<Variant>&)> call;
};

inline constexpr int32_t DISPID_UNKNOWN = -1;

const std::vector<MemberInfo>& AutomationTable();

// The style enumerations published with the interface: each type's name and
// its constants in declaration order (a constant's help text is its name).
struct EnumConstant {
  std::string_view name;
  int32_t value = 0;
};
struct EnumerationInfo {
  std::string_view name;
  std::vector<EnumConstant> constants;
};
const std::vector<EnumerationInfo>& EnumerationTable();
// Case-insensitive; null for a name that is no enumeration.
const EnumerationInfo* FindEnumeration(std::string_view name);

// Case-insensitive, as Basic looks names up.
const MemberInfo* FindMember(std::string_view name, InvokeKind kind);
const MemberInfo* FindMember(int32_t dispid, InvokeKind kind);
int32_t GetIDOfName(std::string_view name);

// Calls a member with arguments in call order; for a put or putref the value is
// the last argument. An omitted argument is Variant::Missing(). Errors: 438 no
// such member or kind, 449 a required argument omitted, 450 too many
// arguments, and whatever the member itself raises.
Variant Invoke(Vorlex& control, int32_t dispid, InvokeKind kind, std::vector<Variant> args);
Variant Invoke(Vorlex& control, std::string_view name, InvokeKind kind, std::vector<Variant> args);

// Members of the objects a property gives (a font's Name, Size, Bold...; a
// picture's Handle, hPal, Type, Width, Height), as a script reaches them with
// Font.Name or BlockTextFont(1).Size. Names are case-insensitive. Errors: 424
// when the value is no object, 91 for Nothing, 438 for a name the object does
// not have, 383 for a put on a read-only member, and the conversion errors of
// the assigned value (13, 6, 380).
Variant GetObjectMember(const Variant& object, std::string_view member);
void PutObjectMember(const Variant& object, std::string_view member, const Variant& value);

}  // namespace vorlex
