// Pictures of the property pages and the About box for the documentation:
// each page hosted as a form designer hosts it, every tab and nested tab
// selected in turn, each view read from the screen and written as a PNG.
//
//   page_shots.exe OCX-PATH OUTPUT-FOLDER

#include <cstdio>
#include <string>
#include <vector>

#include "com_includes.h"
// After <windows.h>.
#include <commctrl.h>

#include "page_resources.h"
#include "png_file.h"
#include "property_page_object.h"

namespace vorlex::activex::tools {
namespace {

std::string outputFolder;
int failures = 0;

// The designer's site: ambient UserMode False.
class DesignSite final : public IOleClientSite, public IDispatch {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid == IID_IUnknown || iid == IID_IOleClientSite)
      *out = static_cast<IOleClientSite*>(this);
    else if (iid == IID_IDispatch)
      *out = static_cast<IDispatch*>(this);
    else
      return E_NOINTERFACE;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override {
    *moniker = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override {
    *container = nullptr;
    return E_NOINTERFACE;
  }
  HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    *info = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                   UINT*) override {
    if (dispid != DISPID_AMBIENT_USERMODE || !result) return DISP_E_MEMBERNOTFOUND;
    VariantInit(result);
    V_VT(result) = VT_BOOL;
    V_BOOL(result) = VARIANT_FALSE;
    return S_OK;
  }
};

class PageSite final : public IPropertyPageSite {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IPropertyPageSite) return E_NOINTERFACE;
    *out = static_cast<IPropertyPageSite*>(this);
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override {
    *locale = LOCALE_USER_DEFAULT;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) override {
    *container = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }
};

void Pump(DWORD milliseconds) {
  const DWORD start = GetTickCount();
  MSG msg;
  while (GetTickCount() - start < milliseconds) {
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&msg);
      DispatchMessageW(&msg);
    }
    Sleep(10);
  }
}

// The window as the screen shows it now.
void Shoot(HWND window, const char* name) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  Pump(300);
  RECT area{};
  GetWindowRect(window, &area);
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HGDIOBJ old = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
  GdiFlush();
  std::vector<uint32_t> pixels(static_cast<const uint32_t*>(bits),
                               static_cast<const uint32_t*>(bits) + static_cast<size_t>(width) * height);
  for (uint32_t& p : pixels) p &= 0xFFFFFF;
  SelectObject(memory, old);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  std::string error;
  const std::string path = outputFolder + "\\" + name + ".png";
  if (SavePng(width, height, pixels, path, &error)) {
    std::printf("wrote %s (%dx%d)\n", path.c_str(), width, height);
  } else {
    std::printf("cannot write %s: %s\n", path.c_str(), error.c_str());
    ++failures;
  }
}

void SelectTab(HWND dialog, int id, int index) {
  HWND tab = GetDlgItem(dialog, id);
  SendMessageW(tab, TCM_SETCURSEL, static_cast<WPARAM>(index), 0);
  NMHDR header{tab, static_cast<UINT_PTR>(id), static_cast<UINT>(TCN_SELCHANGE)};
  SendMessageW(dialog, WM_NOTIFY, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&header));
}

HRESULT Invoke(IDispatch* control, const wchar_t* name, WORD flags, std::vector<VARIANT> args) {
  DISPID id = 0;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  HRESULT hr = control->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(hr)) return hr;
  std::vector<VARIANT> reversed(args.rbegin(), args.rend());
  DISPID named = DISPID_PROPERTYPUT;
  const bool put = flags == DISPATCH_PROPERTYPUT;
  DISPPARAMS params{reversed.data(), put ? &named : nullptr, static_cast<UINT>(reversed.size()), put ? 1u : 0u};
  VARIANT result;
  VariantInit(&result);
  hr = control->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, &result, nullptr, nullptr);
  VariantClear(&result);
  for (VARIANT& v : args) VariantClear(&v);
  return hr;
}

VARIANT Long(long value) {
  VARIANT v;
  VariantInit(&v);
  V_VT(&v) = VT_I4;
  V_I4(&v) = value;
  return v;
}

VARIANT Text(const wchar_t* value) {
  VARIANT v;
  VariantInit(&v);
  V_VT(&v) = VT_BSTR;
  V_BSTR(&v) = SysAllocString(value);
  return v;
}

// Block 1 with a gradient and colours of its own, so that every swatch and
// preview shows something.
void FillControl(IDispatch* control) {
  Invoke(control, L"AddBlock", DISPATCH_METHOD, {});
  Invoke(control, L"AddBlock", DISPATCH_METHOD, {});
  Invoke(control, L"BlockKey", DISPATCH_PROPERTYPUT, {Long(1), Text(L"gauge")});
  Invoke(control, L"BlockText", DISPATCH_PROPERTYPUT, {Long(1), Text(L"Free: !disk free:C!")});
  Invoke(control, L"BlockColor", DISPATCH_PROPERTYPUT, {Long(1), Long(0x3070E0)});
  Invoke(control, L"BlockBrushColor", DISPATCH_PROPERTYPUT, {Long(1), Long(0x20A040)});
  Invoke(control, L"BlockTextColor", DISPATCH_PROPERTYPUT, {Long(1), Long(0x0000C0)});
  Invoke(control, L"BlockGradientStyle", DISPATCH_PROPERTYPUT, {Long(1), Long(9)});
  Invoke(control, L"BlockGradientColor", DISPATCH_PROPERTYPUT, {Long(1), Long(0x40C0FF)});
  Invoke(control, L"BlockGradientColorEnd", DISPATCH_PROPERTYPUT, {Long(1), Long(0x602000)});
  Invoke(control, L"Caption", DISPATCH_PROPERTYPUT, {Text(L"Disk usage")});
}

HRESULT CreateObject(HMODULE server, REFCLSID clsid, REFIID iid, void** out) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto get =
      reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(GetProcAddress(server, "DllGetClassObject")));
  if (!get) return E_FAIL;
  IClassFactory* factory = nullptr;
  HRESULT hr = get(clsid, IID_IClassFactory, reinterpret_cast<void**>(&factory));
  if (FAILED(hr)) return hr;
  hr = factory->CreateInstance(nullptr, iid, out);
  factory->Release();
  return hr;
}

struct Shot {
  const char* name;
  std::vector<std::pair<int, int>> tabs;  // tab control, index, outermost first
};

void ShootPage(HMODULE server, IDispatch* control, PageKind kind, const std::vector<Shot>& shots) {
  IPropertyPage* page = nullptr;
  if (FAILED(CreateObject(server, PageClassId(kind), IID_IPropertyPage, reinterpret_cast<void**>(&page)))) {
    std::printf("cannot create a page\n");
    ++failures;
    return;
  }
  static PageSite site;
  page->SetPageSite(&site);
  IUnknown* objects[] = {control};
  page->SetObjects(1, objects);
  PROPPAGEINFO info{};
  page->GetPageInfo(&info);
  CoTaskMemFree(info.pszTitle);
  HWND host = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE | SS_GRAYRECT, 20, 20, info.size.cx + 16,
                              info.size.cy + 16, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  RECT area{8, 8, 8 + info.size.cx, 8 + info.size.cy};
  page->Activate(host, &area, FALSE);
  page->Show(SW_SHOW);
  HWND dialog = GetWindow(host, GW_CHILD);
  // The page's own face: a frame draws it on the dialog colour.
  SetClassLongPtrW(host, GCLP_HBRBACKGROUND, reinterpret_cast<LONG_PTR>(GetSysColorBrush(COLOR_BTNFACE)));
  for (const Shot& shot : shots) {
    for (const auto& [tab, index] : shot.tabs) SelectTab(dialog, tab, index);
    Shoot(host, shot.name);
  }
  page->Deactivate();
  page->SetObjects(0, nullptr);
  page->SetPageSite(nullptr);
  page->Release();
  DestroyWindow(host);
}

void CALLBACK ShootAboutBox(HWND, UINT, UINT_PTR timer, DWORD) {
  HWND about = FindWindowW(nullptr, L"About Vorlex ActiveX control");
  if (!about) return;
  KillTimer(nullptr, timer);
  Shoot(about, "about");
  PostMessageW(about, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
}

int Run(const std::wstring& ocx) {
  HMODULE server = LoadLibraryW(ocx.c_str());
  if (!server) {
    std::printf("cannot load the server\n");
    return 1;
  }
  IDispatch* control = nullptr;
  if (FAILED(CreateObject(server, CLSID_Vorlex, IID_IDispatch, reinterpret_cast<void**>(&control)))) {
    std::printf("cannot create the control\n");
    return 1;
  }
  static DesignSite design;
  IOleObject* embedded = nullptr;
  control->QueryInterface(IID_IOleObject, reinterpret_cast<void**>(&embedded));
  embedded->SetClientSite(&design);
  FillControl(control);

  ShootPage(server, control, PageKind::Block,
            {
                {"block-position", {{IDC_SSTab1, 0}}},
                {"block-text-value", {{IDC_SSTab1, 1}, {IDC_SSTab2, 0}}},
                {"block-text-font", {{IDC_SSTab1, 1}, {IDC_SSTab2, 1}}},
                {"block-text-position", {{IDC_SSTab1, 1}, {IDC_SSTab2, 2}}},
                {"block-appearance-general", {{IDC_SSTab1, 2}, {IDC_SSTab3, 0}}},
                {"block-appearance-brush", {{IDC_SSTab1, 2}, {IDC_SSTab3, 1}}},
                {"block-appearance-gradient", {{IDC_SSTab1, 2}, {IDC_SSTab3, 2}}},
                {"block-appearance-rivets", {{IDC_SSTab1, 2}, {IDC_SSTab3, 3}}},
                {"block-picture-appearance", {{IDC_SSTab1, 3}, {IDC_SSTab4, 0}}},
                {"block-picture-preview", {{IDC_SSTab1, 3}, {IDC_SSTab4, 1}}},
            });
  ShootPage(server, control, PageKind::Caption, {{"caption", {}}});
  ShootPage(server, control, PageKind::Boundaries, {{"boundaries", {}}});

  const UINT_PTR timer = SetTimer(nullptr, 0, 300, ShootAboutBox);
  Invoke(control, L"ShowAboutBox", DISPATCH_METHOD, {});
  KillTimer(nullptr, timer);

  embedded->SetClientSite(nullptr);
  embedded->Release();
  control->Release();
  return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace vorlex::activex::tools

int wmain(int argc, wchar_t** argv) {
  if (argc != 3) {
    std::printf("usage: page_shots OCX-PATH OUTPUT-FOLDER\n");
    return 2;
  }
  const std::wstring folder = argv[2];
  vorlex::activex::tools::outputFolder = std::string(folder.begin(), folder.end());
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TAB_CLASSES};
  InitCommonControlsEx(&controls);
  const int rc = vorlex::activex::tools::Run(argv[1]);
  CoUninitialize();
  return rc;
}
