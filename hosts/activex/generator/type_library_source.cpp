#include "type_library_source.h"

#include <cstdio>
#include <sstream>
#include <string>

#include "identities.h"
#include "idl_types.h"
#include "vorlex/Automation.h"

namespace vorlex::activex {

namespace {

constexpr const char* kGeneratedNote = "Generated from the automation table by vorlex_idlgen: do not edit.";

std::string DispatchId(int32_t dispid) {
  if (dispid < 0) return std::to_string(dispid);
  char text[16];
  std::snprintf(text, sizeof text, "0x%08x", static_cast<unsigned>(dispid));
  return text;
}

std::string_view EnumerationUuid(std::string_view name) {
  for (const EnumerationId& id : kEnumerationIds)
    if (id.name == name) return id.uuid;
  return {};
}

std::string ParameterAttributes(const ParamInfo& p) {
  std::string attributes = p.byRef ? "in, out" : "in";
  if (p.optional) {
    attributes += ", optional";
    // A Variant argument's default is applied by the control when the argument
    // is omitted: a type library cannot hold a default of type Variant.
    if (HasDeclaredDefault(p)) attributes += ", defaultvalue(" + IdlLiteral(p.defaultValue) + ")";
  }
  return attributes;
}

std::string ParameterType(const ParamInfo& p) { return IdlType(p.type) + (p.byRef ? "*" : ""); }

// The declared parameters of a member's vtable method, with the assigned value
// or the result last.
std::string IdlParameters(const MemberInfo& m) {
  std::string text;
  for (const ParamInfo& p : m.params) {
    if (!text.empty()) text += ", ";
    text += "[" + ParameterAttributes(p) + "] " + ParameterType(p) + " " + std::string(p.name);
  }
  if (!text.empty()) text += ", ";
  if (m.kind == InvokeKind::PropertyPut || m.kind == InvokeKind::PropertyPutRef)
    text += "[in] " + IdlType(m.type) + " newValue";
  else
    text += "[out, retval] " + IdlType(m.type) + "* pRetVal";
  return text;
}

std::string KindAttribute(InvokeKind kind) {
  switch (kind) {
    case InvokeKind::PropertyGet:
      return ", propget";
    case InvokeKind::PropertyPut:
      return ", propput";
    case InvokeKind::PropertyPutRef:
      return ", propputref";
    case InvokeKind::Method:
      break;
  }
  return "";
}

void WriteEnumerations(std::ostringstream& out) {
  for (const EnumerationInfo& e : EnumerationTable()) {
    out << "    [uuid(" << EnumerationUuid(e.name) << "), helpstring(\"" << e.name << "\")]\n";
    out << "    typedef enum " << e.name << " {\n";
    for (size_t i = 0; i < e.constants.size(); ++i) {
      const EnumConstant& c = e.constants[i];
      out << "        " << c.name << " = " << c.value << (i + 1 < e.constants.size() ? ",\n" : "\n");
    }
    out << "    } " << e.name << ";\n\n";
  }
}

void WriteInterface(std::ostringstream& out) {
  out << "    [uuid(" << kInterfaceId << "), helpstring(\"The Vorlex bar control's members\"),\n"
      << "     dual, nonextensible, oleautomation, hidden]\n"
      << "    interface _Vorlex : IDispatch {\n";
  for (const MemberInfo& m : AutomationTable()) {
    out << "        [id(" << DispatchId(m.dispid) << ")" << KindAttribute(m.kind) << "] HRESULT " << m.name << "("
        << IdlParameters(m) << ");\n";
  }
  out << "    };\n\n";
}

void WriteEvents(std::ostringstream& out) {
  out << "    [uuid(" << kEventInterfaceId << "), helpstring(\"Events of the Vorlex bar control\")]\n"
      << "    dispinterface __Vorlex {\n"
      << "        properties:\n"
      << "        methods:\n"
      << "            [id(1)] void BlockClicked([in, out] short* iBlock);\n"
      << "            [id(-600)] void Click();\n"
      << "            [id(-601)] void DblClick();\n"
      << "            [id(2)] void TimerTime();\n"
      << "            [id(3)] void TimerDisk();\n"
      << "    };\n\n";
}

}  // namespace

std::string TypeLibrarySource() {
  std::ostringstream out;
  out << "// " << kGeneratedNote << "\n\n"
      << "import \"oaidl.idl\";\nimport \"ocidl.idl\";\n\n"
      << "[uuid(" << kLibraryId << "), version(" << kLibraryMajor << "." << kLibraryMinor
      << "), helpstring(\"Vorlex bar control\")]\n"
      << "library " << kLibraryName << "\n{\n"
      << "    importlib(\"stdole2.tlb\");\n\n";
  WriteEnumerations(out);
  WriteInterface(out);
  WriteEvents(out);
  out << "    [uuid(" << kClassId << "), helpstring(\"Vorlex bar control\"), control]\n"
      << "    coclass " << kClassName << " {\n"
      << "        [default] interface _Vorlex;\n"
      << "        [default, source] dispinterface __Vorlex;\n"
      << "    };\n};\n";
  return out.str();
}

namespace {

std::string CppParameterType(const ParamInfo& p) {
  std::string type = CppType(p.type);
  return type + (p.byRef ? "*" : "");
}

std::string CppParameters(const MemberInfo& m) {
  std::string text;
  for (const ParamInfo& p : m.params) {
    if (!text.empty()) text += ", ";
    text += CppParameterType(p) + " " + std::string(p.name);
  }
  if (!text.empty()) text += ", ";
  if (m.kind == InvokeKind::PropertyPut || m.kind == InvokeKind::PropertyPutRef)
    text += CppType(m.type) + " newValue";
  else
    text += CppType(m.type) + "* pRetVal";
  return text;
}

std::string MethodName(const MemberInfo& m) {
  switch (m.kind) {
    case InvokeKind::PropertyGet:
      return "get_" + std::string(m.name);
    case InvokeKind::PropertyPut:
      return "put_" + std::string(m.name);
    case InvokeKind::PropertyPutRef:
      return "putref_" + std::string(m.name);
    case InvokeKind::Method:
      break;
  }
  return std::string(m.name);
}

std::string KindName(InvokeKind kind) {
  switch (kind) {
    case InvokeKind::PropertyGet:
      return "InvokeKind::PropertyGet";
    case InvokeKind::PropertyPut:
      return "InvokeKind::PropertyPut";
    case InvokeKind::PropertyPutRef:
      return "InvokeKind::PropertyPutRef";
    case InvokeKind::Method:
      break;
  }
  return "InvokeKind::Method";
}

std::string InArgument(const ParamInfo& p) {
  const std::string name(p.name);
  return "In" + ConversionName(p.type) + (p.byRef ? "Ref(" : "(") + name + ")";
}

}  // namespace

std::string DualMethodsSource() {
  std::ostringstream out;
  out << "// " << kGeneratedNote << "\n"
      << "// clang-format off\n"
      << "// Each vtable method of _Vorlex converts its arguments and calls the member\n"
      << "// through the automation table, as IDispatch::Invoke does.\n\n"
      << "#include \"dual_interface.h\"\n\n"
      << "#include \"vtable_call.h\"\n\n"
      << "namespace vorlex::activex {\n\n";
  for (const MemberInfo& m : AutomationTable()) {
    const bool isPut = m.kind == InvokeKind::PropertyPut || m.kind == InvokeKind::PropertyPutRef;
    out << "HRESULT STDMETHODCALLTYPE DualInterface::" << MethodName(m) << "(" << CppParameters(m) << ") {\n";
    std::string args;
    for (const ParamInfo& p : m.params) args += (args.empty() ? "" : ", ") + InArgument(p);
    if (isPut) args += (args.empty() ? "" : ", ") + ("In" + ConversionName(m.type) + "(newValue)");
    const std::string call = "Call(" + DispatchId(m.dispid) + ", " + KindName(m.kind) + ", {" + args + "})";
    if (isPut)
      out << "  return Guard([&] { " << call << "; });\n";
    else
      out << "  return Guard([&] { Out" << ConversionName(m.type) << "(" << call << ", pRetVal); });\n";
    out << "}\n\n";
  }
  out << "}  // namespace vorlex::activex\n";
  return out.str();
}

std::string DualInterfaceHeader() {
  std::ostringstream out;
  out << "#pragma once\n// " << kGeneratedNote << "\n"
      << "// clang-format off\n"
      << "// The dual interface's vtable: each method forwards to the automation table\n"
      << "// through Call, which the control object implements.\n\n"
      << "#include <cstdint>\n#include <string>\n#include <vector>\n\n"
      << "#include \"com_includes.h\"\n"
      << "#include \"vorlex/Variant.h\"\n\n"
      << "namespace vorlex::activex {\n\n"
      << "class DualInterface : public _Vorlex {\n public:\n";
  for (const MemberInfo& m : AutomationTable())
    out << "  HRESULT STDMETHODCALLTYPE " << MethodName(m) << "(" << CppParameters(m) << ") override;\n";
  out << "\n protected:\n"
      << "  virtual ~DualInterface() = default;\n"
      << "  // Calls the member with its arguments in call order; raises AutomationError.\n"
      << "  virtual Variant Call(int32_t dispid, InvokeKind kind, std::vector<Variant> args) = 0;\n"
      << "  // Runs one vtable call: an automation error becomes its HRESULT and the\n"
      << "  // thread's error information.\n"
      << "  template <class Body>\n  HRESULT Guard(Body body);\n"
      << "  virtual HRESULT ReportError(int32_t number, const std::string& description) = 0;\n"
      << "};\n\n}  // namespace vorlex::activex\n";
  return out.str();
}

}  // namespace vorlex::activex
