// IDispatch from the automation table: names looked up case-insensitively,
// arguments as Basic passes them, every automation error as DISP_E_EXCEPTION
// with scode 0x800A0000 + its number.

#include <string>
#include <vector>

#include "com_variant.h"
#include "type_library.h"
#include "vorlex/Automation.h"
#include "vorlex/AutomationError.h"
#include "vorlex_control.h"

namespace vorlex::activex {

namespace {

constexpr const wchar_t* kErrorSource = L"VorlexLib.Vorlex";

HRESULT ErrorScode(int32_t number) { return static_cast<HRESULT>(0x800A0000u + static_cast<uint32_t>(number)); }

// The thread's error information, as a Basic host reads Err.Description.
void SetThreadError(const std::string& description) {
  ICreateErrorInfo* create = nullptr;
  if (FAILED(CreateErrorInfo(&create))) return;
  create->SetGUID(IID__Vorlex);
  create->SetSource(const_cast<LPOLESTR>(kErrorSource));
  BSTR text = ToBstr(description);
  create->SetDescription(text);
  SysFreeString(text);
  IErrorInfo* info = nullptr;
  if (SUCCEEDED(create->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)))) {
    SetErrorInfo(0, info);
    info->Release();
  }
  create->Release();
}

// Which member kind a call asks for. A get may come as DISPATCH_METHOD |
// DISPATCH_PROPERTYGET (x = obj.Name); a put of an object goes to the putref
// when there is one.
InvokeKind KindOf(DISPID dispid, WORD flags, const DISPPARAMS& params) {
  if (flags & DISPATCH_PROPERTYPUTREF) {
    return FindMember(dispid, InvokeKind::PropertyPutRef) ? InvokeKind::PropertyPutRef : InvokeKind::PropertyPut;
  }
  if (flags & DISPATCH_PROPERTYPUT) {
    const bool hasPut = FindMember(dispid, InvokeKind::PropertyPut) != nullptr;
    const bool hasPutRef = FindMember(dispid, InvokeKind::PropertyPutRef) != nullptr;
    const VARTYPE valueType =
        params.cArgs ? static_cast<VARTYPE>(V_VT(&params.rgvarg[0]) & ~VT_BYREF) : static_cast<VARTYPE>(VT_EMPTY);
    const bool isObject = valueType == VT_DISPATCH || valueType == VT_UNKNOWN;
    if (hasPutRef && (isObject || !hasPut)) return InvokeKind::PropertyPutRef;
    return InvokeKind::PropertyPut;
  }
  if ((flags & DISPATCH_PROPERTYGET) && FindMember(dispid, InvokeKind::PropertyGet)) return InvokeKind::PropertyGet;
  if ((flags & DISPATCH_METHOD) && FindMember(dispid, InvokeKind::Method)) return InvokeKind::Method;
  return (flags & DISPATCH_PROPERTYGET) ? InvokeKind::PropertyGet : InvokeKind::Method;
}

// DISPPARAMS holds the arguments last first; the assigned value of a put is
// the named argument DISPID_PROPERTYPUT.
std::vector<Variant> Arguments(const DISPPARAMS& params, bool isPut) {
  std::vector<Variant> args;
  const UINT positional = params.cArgs - (isPut ? 1 : 0);
  for (UINT i = 0; i < positional; ++i) args.push_back(FromComVariant(params.rgvarg[params.cArgs - 1 - i]));
  if (isPut) args.push_back(FromComVariant(params.rgvarg[0]));
  return args;
}

}  // namespace

HRESULT VorlexControl::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT VorlexControl::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  if (!info) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return TypeInfoOf(IID__Vorlex, info);
}

HRESULT VorlexControl::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (!names || !ids || count == 0) return E_INVALIDARG;
  for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  const int32_t id = GetIDOfName(FromWide(names[0]));
  if (id == DISPID_UNKNOWN) return DISP_E_UNKNOWNNAME;
  ids[0] = id;
  // Named arguments are not part of the interface.
  return count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT VorlexControl::Invoke(DISPID dispid, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                              EXCEPINFO* exception, UINT* argError) {
  static DISPPARAMS noArguments{};
  if (!params) params = &noArguments;
  const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  if (isPut && (params->cArgs == 0 || params->cNamedArgs != 1 || params->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT))
    return DISP_E_PARAMNOTOPTIONAL;
  if (!isPut && params->cNamedArgs != 0) return DISP_E_NONAMEDARGS;
  if (!FindMember(dispid, InvokeKind::PropertyGet) && !FindMember(dispid, InvokeKind::Method) &&
      !FindMember(dispid, InvokeKind::PropertyPut) && !FindMember(dispid, InvokeKind::PropertyPutRef))
    return DISP_E_MEMBERNOTFOUND;
  if (argError) *argError = 0;
  try {
    const InvokeKind kind = KindOf(dispid, flags, *params);
    const Variant value = Call(dispid, kind, Arguments(*params, isPut));
    if (result) {
      VariantInit(result);
      if (!isPut) ToComVariant(value, result);
    }
    return S_OK;
  } catch (const AutomationError& error) {
    if (error.Number() == kErrNotSupported) return DISP_E_MEMBERNOTFOUND;
    if (exception) {
      *exception = EXCEPINFO{};
      exception->bstrSource = SysAllocString(kErrorSource);
      exception->bstrDescription = ToBstr(error.Description());
      exception->scode = ErrorScode(error.Number());
    }
    SetThreadError(error.Description());
    return DISP_E_EXCEPTION;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
}

Variant VorlexControl::Call(int32_t dispid, InvokeKind kind, std::vector<Variant> args) {
  Variant result = vorlex::Invoke(Control(), dispid, kind, std::move(args));
  // Anything but a read may have changed what the container saves.
  if (kind != InvokeKind::PropertyGet) dirty_ = true;
  return result;
}

HRESULT VorlexControl::ReportError(int32_t number, const std::string& description) {
  SetThreadError(description);
  return ErrorScode(number);
}

}  // namespace vorlex::activex
