// The type library in Vorlex.ocx and the automation table agree member for
// member: one truth for every host.

#include <string>
#include <vector>

#include "ocx_fixture.h"
#include "vorlex/Automation.h"

namespace vorlex::activex::test {
namespace {

std::string Narrow(const wchar_t* text) {
  std::string out;
  for (; text && *text; ++text) out += static_cast<char>(*text);
  return out;
}

long AsLong(const VARIANT& value) {
  VARIANT converted;
  VariantInit(&converted);
  if (FAILED(VariantChangeType(&converted, const_cast<VARIANT*>(&value), 0, VT_I4))) return -999999;
  return V_I4(&converted);
}

std::string AsText(const VARIANT& value) {
  VARIANT converted;
  VariantInit(&converted);
  if (FAILED(VariantChangeType(&converted, const_cast<VARIANT*>(&value), 0, VT_BSTR))) return "?";
  std::string text = Narrow(V_BSTR(&converted));
  VariantClear(&converted);
  return text;
}

// A type as the IDL spells it.
std::string TypeName(ITypeInfo* info, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_I2:
      return "short";
    case VT_I4:
      return "long";
    case VT_BOOL:
      return "VARIANT_BOOL";
    case VT_BSTR:
      return "BSTR";
    // The system's IDL declares OLE_COLOR as a plain 32-bit unsigned type.
    case VT_UI4:
      return "OLE_COLOR";
    case VT_VARIANT:
      return "VARIANT";
    case VT_PTR:
      return TypeName(info, *type.lptdesc) + "*";
    case VT_USERDEFINED: {
      Ref<ITypeInfo> referenced;
      if (FAILED(info->GetRefTypeInfo(type.hreftype, referenced.put()))) return "?";
      BSTR name = nullptr;
      referenced->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
      std::string text = Narrow(name);
      SysFreeString(name);
      return text;
    }
    default:
      return "vt" + std::to_string(type.vt);
  }
}

// The table's type as the IDL spells it.
std::string Expected(const TypeRef& type) {
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
  return "?";
}

INVOKEKIND KindOf(InvokeKind kind) {
  switch (kind) {
    case InvokeKind::PropertyGet:
      return INVOKE_PROPERTYGET;
    case InvokeKind::PropertyPut:
      return INVOKE_PROPERTYPUT;
    case InvokeKind::PropertyPutRef:
      return INVOKE_PROPERTYPUTREF;
    case InvokeKind::Method:
      break;
  }
  return INVOKE_FUNC;
}

class TypeLibrary : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(LoadTypeLibEx(ServerPath().c_str(), REGKIND_NONE, library.put()), S_OK);
    Ref<ITypeInfo> dispatch;
    ASSERT_EQ(library->GetTypeInfoOfGuid(IID__Vorlex, dispatch.put()), S_OK);
    // The vtable half of the dual interface lists its own functions only.
    HREFTYPE vtable = 0;
    ASSERT_EQ(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &vtable), S_OK);
    ASSERT_EQ(dispatch->GetRefTypeInfo(vtable, iface.put()), S_OK);
  }
  Ref<ITypeLib> library;
  Ref<ITypeInfo> iface;
};

TEST_F(TypeLibrary, EveryMemberOfTheTableIsDeclaredInOrderWithItsIdKindParametersAndTypes) {
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(iface->GetTypeAttr(&attributes), S_OK);
  const std::vector<MemberInfo>& table = AutomationTable();
  ASSERT_EQ(attributes->cFuncs, table.size());
  EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FDUAL);
  iface->ReleaseTypeAttr(attributes);
  for (UINT i = 0; i < table.size(); ++i) {
    const MemberInfo& m = table[i];
    FUNCDESC* f = nullptr;
    ASSERT_EQ(iface->GetFuncDesc(i, &f), S_OK);
    SCOPED_TRACE(std::string(m.name));
    EXPECT_EQ(f->memid, m.dispid);
    EXPECT_EQ(f->invkind, KindOf(m.kind));
    BSTR names[16] = {};
    UINT count = 0;
    ASSERT_EQ(iface->GetNames(f->memid == m.dispid ? f->memid : m.dispid, names, 16, &count), S_OK);
    EXPECT_EQ(Narrow(names[0]), m.name);
    for (UINT n = 0; n < count; ++n) SysFreeString(names[n]);
    // The declared arguments, then the assigned value or the result.
    ASSERT_EQ(static_cast<size_t>(f->cParams), m.params.size() + 1);
    for (size_t p = 0; p < m.params.size(); ++p) {
      const ParamInfo& param = m.params[p];
      const ELEMDESC& e = f->lprgelemdescParam[p];
      SCOPED_TRACE(std::string(param.name));
      EXPECT_EQ(TypeName(iface.get(), e.tdesc), Expected(param.type) + (param.byRef ? "*" : ""));
      const USHORT flags = e.paramdesc.wParamFlags;
      EXPECT_EQ((flags & PARAMFLAG_FOPT) != 0, param.optional);
      // A Variant's default cannot be held by a type library; the control
      // applies it (tested through IDispatch with the argument omitted).
      const bool hasDefault = param.optional && !param.defaultValue.IsMissing() && param.type.kind != TypeKind::Variant;
      ASSERT_EQ((flags & PARAMFLAG_FHASDEFAULT) != 0, hasDefault);
      if (hasDefault) {
        const VARIANT& declared = e.paramdesc.pparamdescex->varDefaultValue;
        if (param.defaultValue.IsObject())
          EXPECT_EQ(AsLong(declared), 0) << "Nothing";
        else if (param.defaultValue.IsString())
          EXPECT_EQ(AsText(declared), param.defaultValue.ToString());
        else
          EXPECT_EQ(AsLong(declared), param.defaultValue.ToLong());
      }
    }
    const ELEMDESC& last = f->lprgelemdescParam[m.params.size()];
    const bool isPut = m.kind == InvokeKind::PropertyPut || m.kind == InvokeKind::PropertyPutRef;
    if (isPut) {
      EXPECT_EQ(TypeName(iface.get(), last.tdesc), Expected(m.type));
    } else {
      EXPECT_TRUE(last.paramdesc.wParamFlags & PARAMFLAG_FRETVAL);
      EXPECT_EQ(TypeName(iface.get(), last.tdesc), Expected(m.type) + "*");
    }
    iface->ReleaseFuncDesc(f);
  }
}

TEST_F(TypeLibrary, EveryEnumerationIsDeclaredWithItsConstants) {
  for (const EnumerationInfo& e : EnumerationTable()) {
    SCOPED_TRACE(std::string(e.name));
    std::wstring wide(e.name.begin(), e.name.end());
    Ref<ITypeInfo> info;
    MEMBERID id = 0;
    USHORT found = 1;
    ASSERT_EQ(library->FindName(wide.data(), 0, info.put(), &id, &found), S_OK);
    ASSERT_EQ(found, 1);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->typekind, TKIND_ENUM);
    ASSERT_EQ(attributes->cVars, e.constants.size());
    info->ReleaseTypeAttr(attributes);
    for (UINT c = 0; c < e.constants.size(); ++c) {
      VARDESC* v = nullptr;
      ASSERT_EQ(info->GetVarDesc(c, &v), S_OK);
      BSTR name = nullptr;
      UINT count = 0;
      info->GetNames(v->memid, &name, 1, &count);
      EXPECT_EQ(Narrow(name), e.constants[c].name);
      SysFreeString(name);
      EXPECT_EQ(AsLong(*v->lpvarValue), e.constants[c].value);
      info->ReleaseVarDesc(v);
    }
  }
}

TEST_F(TypeLibrary, EventsAreDeclaredAsABasicHostExpectsThem) {
  Ref<ITypeInfo> events;
  ASSERT_EQ(library->GetTypeInfoOfGuid(DIID___Vorlex, events.put()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(events->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_DISPATCH);
  const UINT funcs = attributes->cFuncs;
  events->ReleaseTypeAttr(attributes);
  struct Event {
    const char* name;
    MEMBERID id;
    short params;
  };
  const Event expected[] = {{"BlockClicked", 1, 1},
                            {"Click", DISPID_CLICK, 0},
                            {"DblClick", DISPID_DBLCLICK, 0},
                            {"TimerTime", 2, 0},
                            {"TimerDisk", 3, 0}};
  ASSERT_EQ(funcs, 5u);
  for (UINT i = 0; i < funcs; ++i) {
    FUNCDESC* f = nullptr;
    ASSERT_EQ(events->GetFuncDesc(i, &f), S_OK);
    BSTR name = nullptr;
    UINT count = 0;
    events->GetNames(f->memid, &name, 1, &count);
    EXPECT_EQ(Narrow(name), expected[i].name);
    SysFreeString(name);
    EXPECT_EQ(f->memid, expected[i].id);
    EXPECT_EQ(f->cParams, expected[i].params);
    if (f->cParams == 1) {
      EXPECT_EQ(TypeName(events.get(), f->lprgelemdescParam[0].tdesc), "short*");
    }
    events->ReleaseFuncDesc(f);
  }
}

TEST_F(TypeLibrary, TheCoclassIsAControlWithItsDefaultAndSourceInterfaces) {
  Ref<ITypeInfo> coclass;
  ASSERT_EQ(library->GetTypeInfoOfGuid(CLSID_Vorlex, coclass.put()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(coclass->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FCONTROL);
  EXPECT_EQ(attributes->cImplTypes, 2);
  coclass->ReleaseTypeAttr(attributes);
  BSTR name = nullptr;
  ASSERT_EQ(library->GetDocumentation(-1, &name, nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(Narrow(name), "VorlexLib");
  SysFreeString(name);
}

}  // namespace
}  // namespace vorlex::activex::test
