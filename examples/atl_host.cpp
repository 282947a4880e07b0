// Places a Vorlex bar in a window of its own through ATL's host window, sets a
// block up through IDispatch and shows the window until it is closed. The
// README shows PlaceVorlex as it stands here.

#include <windows.h>
#include <ole2.h>

using AxWinInit = BOOL(WINAPI*)();
using AxGetControl = HRESULT(WINAPI*)(HWND, IUnknown**);

// Places a Vorlex bar in parent at (10, 10), 300 x 40 pixels; the caller
// releases the IDispatch it gets back. COM must be initialised on this thread.
IDispatch* PlaceVorlex(HWND parent) {
  HMODULE atl = LoadLibraryW(L"atl.dll");
  auto init = reinterpret_cast<AxWinInit>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxWinInit")));
  auto getControl =
      reinterpret_cast<AxGetControl>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxGetControl")));
  init();  // registers the window class "AtlAxWin"
  HWND host = CreateWindowExW(0, L"AtlAxWin", L"VorlexLib.Vorlex", WS_CHILD | WS_VISIBLE, 10, 10, 300, 40,
                              parent, nullptr, nullptr, nullptr);
  IUnknown* placed = nullptr;
  IDispatch* bar = nullptr;
  if (host && SUCCEEDED(getControl(host, &placed))) {
    placed->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&bar));
    placed->Release();
  }
  return bar;
}

namespace {
// Calls a member by name: a method without arguments, or a property put.
HRESULT CallByName(IDispatch* bar, const wchar_t* name, WORD flags, VARIANT* args, UINT count) {
  DISPID id = 0;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  HRESULT hr = bar->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(hr)) return hr;
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS params{args, flags == DISPATCH_PROPERTYPUT ? &put : nullptr, count,
                    flags == DISPATCH_PROPERTYPUT ? 1u : 0u};
  return bar->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, nullptr, nullptr, nullptr);
}
}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int show) {
  if (FAILED(OleInitialize(nullptr))) return 1;
  HWND frame = CreateWindowExW(0, L"STATIC", L"Vorlex", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT, 340, 110,
                               nullptr, nullptr, nullptr, nullptr);
  IDispatch* bar = frame ? PlaceVorlex(frame) : nullptr;
  if (!bar) return 1;
  CallByName(bar, L"AddBlock", DISPATCH_METHOD, nullptr, 0);
  // Arguments go last first: the value, then the block number.
  VARIANT args[2];
  VariantInit(&args[0]);
  VariantInit(&args[1]);
  V_VT(&args[0]) = VT_I4;
  V_I4(&args[0]) = RGB(0, 128, 255);
  V_VT(&args[1]) = VT_I2;
  V_I2(&args[1]) = 1;
  CallByName(bar, L"BlockColor", DISPATCH_PROPERTYPUT, args, 2);
  ShowWindow(frame, show);
  MSG msg;
  while (IsWindow(frame) && GetMessageW(&msg, nullptr, 0, 0) > 0) {
    TranslateMessage(&msg);
    DispatchMessageW(&msg);
  }
  bar->Release();
  OleUninitialize();
  return 0;
}
