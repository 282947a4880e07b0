#include "ocx_fixture.h"

namespace vorlex::activex::test {

std::wstring ServerPath() {
  const std::string narrow = VORLEX_OCX_PATH;
  std::wstring path(narrow.begin(), narrow.end());
  for (wchar_t& c : path)
    if (c == L'/') c = L'\\';
  return path;
}

HMODULE Server() {
  static HMODULE module = LoadLibraryW(ServerPath().c_str());
  return module;
}

HRESULT CreateServerObject(REFCLSID clsid, REFIID iid, void** out) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto get =
      reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllGetClassObject")));
  if (!get) return E_FAIL;
  IClassFactory* factory = nullptr;
  HRESULT result = get(clsid, IID_IClassFactory, reinterpret_cast<void**>(&factory));
  if (FAILED(result)) return result;
  result = factory->CreateInstance(nullptr, iid, out);
  factory->Release();
  return result;
}

HRESULT CreateControl(REFIID iid, void** out) { return CreateServerObject(CLSID_Vorlex, iid, out); }

HRESULT CanUnloadNow() {
  using CanUnload = HRESULT(STDAPICALLTYPE*)();
  const auto can = reinterpret_cast<CanUnload>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllCanUnloadNow")));
  return can ? can() : E_FAIL;
}

void OcxTest::SetUp() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  ASSERT_NE(Server(), nullptr) << "cannot load the server";
  ASSERT_EQ(CreateControl(IID_IDispatch, control.put_void()), S_OK);
  VariantInit(&result);
}

void OcxTest::TearDown() {
  VariantClear(&result);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  control.Reset();
  CoUninitialize();
}

HRESULT OcxTest::Call(const wchar_t* name, WORD flags, std::vector<VARIANT> args) {
  DISPID id = 0;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  HRESULT hr = control->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(hr)) return hr;
  // DISPPARAMS holds the arguments last first.
  std::vector<VARIANT> reversed(args.rbegin(), args.rend());
  DISPPARAMS params{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  VariantClear(&result);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  exception = EXCEPINFO{};
  hr = control->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, &result, &exception, nullptr);
  for (VARIANT& v : args) VariantClear(&v);
  return hr;
}

HRESULT OcxTest::Put(const wchar_t* name, VARIANT value, std::vector<VARIANT> args) {
  DISPID id = 0;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  HRESULT hr = control->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(hr)) return hr;
  std::vector<VARIANT> reversed;
  reversed.push_back(value);
  reversed.insert(reversed.end(), args.rbegin(), args.rend());
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS params{reversed.data(), &named, static_cast<UINT>(reversed.size()), 1};
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  exception = EXCEPINFO{};
  const WORD flags = (V_VT(&value) == VT_DISPATCH) ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
  hr = control->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, nullptr, &exception, nullptr);
  for (VARIANT& v : reversed) VariantClear(&v);
  return hr;
}

VARIANT I2(short v) {
  VARIANT r;
  VariantInit(&r);
  V_VT(&r) = VT_I2;
  V_I2(&r) = v;
  return r;
}

VARIANT I4(long v) {
  VARIANT r;
  VariantInit(&r);
  V_VT(&r) = VT_I4;
  V_I4(&r) = v;
  return r;
}

VARIANT Str(const wchar_t* v) {
  VARIANT r;
  VariantInit(&r);
  V_VT(&r) = VT_BSTR;
  V_BSTR(&r) = SysAllocString(v);
  return r;
}

VARIANT Bool(bool v) {
  VARIANT r;
  VariantInit(&r);
  V_VT(&r) = VT_BOOL;
  V_BOOL(&r) = v ? VARIANT_TRUE : VARIANT_FALSE;
  return r;
}

void PumpMessages(DWORD milliseconds) {
  const DWORD start = GetTickCount();
  MSG msg;
  while (GetTickCount() - start < milliseconds) {
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&msg);
    Sleep(5);
  }
}

}  // namespace vorlex::activex::test
