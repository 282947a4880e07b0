#include "dispatch_control_object.h"

#include <string>
#include <utility>

#include "com_variant.h"
#include "vorlex/AutomationError.h"

namespace vorlex::activex {

namespace {

constexpr uint32_t kBasicErrorBase = 0x800A0000u;

// The automation error Basic reports for a failed late-bound call.
[[noreturn]] void RaiseFailure(HRESULT hr, const EXCEPINFO& exception) {
  if (hr == DISP_E_EXCEPTION) {
    EXCEPINFO info = exception;
    if (info.pfnDeferredFillIn) info.pfnDeferredFillIn(&info);
    const std::string description = FromBstr(info.bstrDescription);
    const uint32_t scode = static_cast<uint32_t>(info.scode);
    int32_t number = info.wCode;
    if (scode >= kBasicErrorBase && scode <= kBasicErrorBase + 0xFFFFu)
      number = static_cast<int32_t>(scode - kBasicErrorBase);
    else if (number == 0)
      number = kErrInvalidCall;
    SysFreeString(info.bstrDescription);
    SysFreeString(info.bstrSource);
    SysFreeString(info.bstrHelpFile);
    if (description.empty()) throw AutomationError(number);
    throw AutomationError(number, description);
  }
  switch (hr) {
    case DISP_E_MEMBERNOTFOUND:
    case DISP_E_UNKNOWNNAME:
      RaiseError(kErrNotSupported);
    case DISP_E_TYPEMISMATCH:
      RaiseError(kErrTypeMismatch);
    case DISP_E_OVERFLOW:
      RaiseError(kErrOverflow);
    case DISP_E_PARAMNOTOPTIONAL:
      RaiseError(kErrArgumentNotOptional);
    case DISP_E_BADPARAMCOUNT:
      RaiseError(kErrWrongArguments);
    case E_OUTOFMEMORY:
      throw std::bad_alloc();
    default:
      RaiseError(kErrInvalidCall);
  }
}

// The VARIANTs of one call, cleared when it ends.
struct Arguments {
  std::vector<VARIANT> values;
  ~Arguments() {
    for (VARIANT& v : values) VariantClear(&v);
  }
};

}  // namespace

DispatchControlObject::DispatchControlObject(IDispatch* control) : control_(control) {
  if (control_) control_->AddRef();
}

DispatchControlObject::~DispatchControlObject() {
  if (control_) control_->Release();
}

Variant DispatchControlObject::Get(std::string_view name, std::vector<Variant> args) {
  return Invoke(name, DISPATCH_PROPERTYGET | DISPATCH_METHOD, std::move(args), nullptr);
}

void DispatchControlObject::Let(std::string_view name, std::vector<Variant> args, Variant value) {
  Invoke(name, DISPATCH_PROPERTYPUT, std::move(args), &value);
}

void DispatchControlObject::Set(std::string_view name, std::vector<Variant> args, Variant value) {
  Invoke(name, DISPATCH_PROPERTYPUTREF, std::move(args), &value);
}

Variant DispatchControlObject::Call(std::string_view name, std::vector<Variant> args) {
  return Invoke(name, DISPATCH_METHOD, std::move(args), nullptr);
}

Variant DispatchControlObject::Invoke(std::string_view name, WORD flags, std::vector<Variant> args,
                                      const Variant* value) {
  if (!control_) RaiseError(kErrObjectRequired);
  BSTR wide = ToBstr(std::string(name));
  LPOLESTR names[] = {wide};
  DISPID dispid = DISPID_UNKNOWN;
  HRESULT hr = control_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &dispid);
  SysFreeString(wide);
  if (FAILED(hr)) RaiseFailure(hr, EXCEPINFO{});

  // DISPPARAMS holds the arguments last first; a put's value comes first of all.
  Arguments arguments;
  arguments.values.reserve(args.size() + 1);
  if (value) {
    arguments.values.emplace_back();
    VariantInit(&arguments.values.back());
    ToComVariant(*value, &arguments.values.back());
  }
  for (auto it = args.rbegin(); it != args.rend(); ++it) {
    arguments.values.emplace_back();
    VariantInit(&arguments.values.back());
    ToComVariant(*it, &arguments.values.back());
  }
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS params{arguments.values.data(), value ? &named : nullptr, static_cast<UINT>(arguments.values.size()),
                    value ? 1u : 0u};
  VARIANT result;
  VariantInit(&result);
  EXCEPINFO exception{};
  UINT argError = 0;
  hr = control_->Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, value ? nullptr : &result, &exception,
                        &argError);
  if (FAILED(hr)) RaiseFailure(hr, exception);
  Variant converted;
  try {
    converted = FromComVariant(result);
  } catch (...) {
    VariantClear(&result);
    throw;
  }
  VariantClear(&result);
  return converted;
}

}  // namespace vorlex::activex
