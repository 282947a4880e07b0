// The cost of reaching a per-block property through COM, beside the direct
// C++ call: IDispatch::Invoke by dispatch id, and by name with GetIDsOfNames
// first, as a late-bound script does each time.

#include <benchmark/benchmark.h>

#include <string>

#include "com_includes.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace {

std::wstring ServerPath() {
  const std::string narrow = VORLEX_OCX_PATH;
  std::wstring path(narrow.begin(), narrow.end());
  for (wchar_t& c : path)
    if (c == L'/') c = L'\\';
  return path;
}

// One control made through the server, with one block and no repainting.
class ServerControl {
 public:
  ServerControl() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    module_ = LoadLibraryW(ServerPath().c_str());
    using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto get =
        reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(GetProcAddress(module_, "DllGetClassObject")));
    IClassFactory* factory = nullptr;
    if (!get || FAILED(get(CLSID_Vorlex, IID_IClassFactory, reinterpret_cast<void**>(&factory)))) return;
    factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(&dispatch));
    factory->Release();
    DISPPARAMS none{nullptr, nullptr, 0, 0};
    dispatch->Invoke(Id(L"AddBlock"), IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
    VARIANT off;
    VariantInit(&off);
    V_VT(&off) = VT_BOOL;
    V_BOOL(&off) = VARIANT_FALSE;
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS put{&off, &named, 1, 1};
    dispatch->Invoke(Id(L"Redraw"), IID_NULL, 0, DISPATCH_PROPERTYPUT, &put, nullptr, nullptr, nullptr);
  }
  ~ServerControl() {
    if (dispatch) dispatch->Release();
    CoUninitialize();
  }
  DISPID Id(const wchar_t* name) const {
    DISPID id = DISPID_UNKNOWN;
    LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
    dispatch->GetIDsOfNames(IID_NULL, names, 1, 0, &id);
    return id;
  }
  IDispatch* dispatch = nullptr;

 private:
  HMODULE module_ = nullptr;
};

ServerControl& Server() {
  static ServerControl control;
  return control;
}

VARIANT BlockOne() {
  VARIANT v;
  VariantInit(&v);
  V_VT(&v) = VT_I2;
  V_I2(&v) = 1;
  return v;
}

void DirectGet(benchmark::State& state) {
  vorlex::HeadlessSite site;
  vorlex::Vorlex control(site);
  control.InitProperties();
  control.AddBlock();
  control.put_Redraw(int16_t{0});  // off: no repaint per change
  const vorlex::Variant block(static_cast<int16_t>(1));
  for (auto _ : state) benchmark::DoNotOptimize(control.get_BlockColor(block));
}

void DirectLet(benchmark::State& state) {
  vorlex::HeadlessSite site;
  vorlex::Vorlex control(site);
  control.InitProperties();
  control.AddBlock();
  control.put_Redraw(int16_t{0});  // off: no repaint per change
  const vorlex::Variant block(static_cast<int16_t>(1));
  vorlex::OLE_COLOR color = 0;
  for (auto _ : state) control.put_BlockColor(++color & 0xFFFFFF, block);
}

void InvokeGet(IDispatch* dispatch, DISPID id) {
  VARIANT block = BlockOne();
  DISPPARAMS params{&block, nullptr, 1, 0};
  VARIANT result;
  VariantInit(&result);
  dispatch->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &params, &result, nullptr, nullptr);
  VariantClear(&result);
}

void InvokeLet(IDispatch* dispatch, DISPID id, long color) {
  VARIANT args[2];
  VariantInit(&args[0]);
  V_VT(&args[0]) = VT_I4;
  V_I4(&args[0]) = color;
  args[1] = BlockOne();
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS params{args, &named, 2, 1};
  dispatch->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYPUT, &params, nullptr, nullptr, nullptr);
}

void DispatchGetById(benchmark::State& state) {
  const DISPID id = Server().Id(L"BlockColor");
  for (auto _ : state) InvokeGet(Server().dispatch, id);
}

void DispatchLetById(benchmark::State& state) {
  const DISPID id = Server().Id(L"BlockColor");
  long color = 0;
  for (auto _ : state) InvokeLet(Server().dispatch, id, ++color & 0xFFFFFF);
}

void DispatchGetByName(benchmark::State& state) {
  for (auto _ : state) InvokeGet(Server().dispatch, Server().Id(L"BlockColor"));
}

void DispatchLetByName(benchmark::State& state) {
  long color = 0;
  for (auto _ : state) InvokeLet(Server().dispatch, Server().Id(L"BlockColor"), ++color & 0xFFFFFF);
}

BENCHMARK(DirectGet);
BENCHMARK(DirectLet);
BENCHMARK(DispatchGetById);
BENCHMARK(DispatchLetById);
BENCHMARK(DispatchGetByName);
BENCHMARK(DispatchLetByName);

}  // namespace

BENCHMARK_MAIN();
