#include "page_host.h"

#include <commctrl.h>

#include "guid_text.h"

namespace vorlex::activex::test {

HRESULT RecordingPageSite::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid != IID_IUnknown && iid != IID_IPropertyPageSite) return E_NOINTERFACE;
  *out = static_cast<IPropertyPageSite*>(this);
  return S_OK;
}

HRESULT RecordingPageSite::OnStatusChange(DWORD flags) {
  statusChanges.push_back(flags);
  return S_OK;
}

HRESULT RecordingPageSite::GetLocaleID(LCID* locale) {
  if (!locale) return E_POINTER;
  *locale = LOCALE_USER_DEFAULT;
  return S_OK;
}

HRESULT RecordingPageSite::GetPageContainer(IUnknown** container) {
  if (container) *container = nullptr;
  return E_NOTIMPL;
}

bool ScriptedDialogs::Next(const std::string& kind, editors::CommonDialog& dialog) {
  shown.push_back({kind, dialog.Flags, dialog.Color, dialog.FontName});
  if (answers_.empty() || answers_.front().first != kind) {
    ADD_FAILURE() << "unexpected " << kind << " dialog";
    return false;
  }
  Answer answer = std::move(answers_.front().second);
  answers_.pop_front();
  return answer(dialog);
}

long FakeAboutSystem::RegOpenKeyExA(uint32_t root, const std::string& subKey, uint32_t, uintptr_t* key) {
  opened.push_back(subKey);
  if (root != editors::kHKeyLocalMachine || !keys.count(subKey)) return ERROR_FILE_NOT_FOUND;
  handles_.push_back(subKey);
  *key = handles_.size();
  return ERROR_SUCCESS;
}

long FakeAboutSystem::RegQueryValueExA(uintptr_t key, const std::string& valueName, uint32_t* type, uint8_t* data,
                                       uint32_t* size) {
  if (key == 0 || key > handles_.size()) return ERROR_INVALID_HANDLE;
  const auto& values = keys[handles_[key - 1]];
  const auto found = values.find(valueName);
  if (found == values.end()) return ERROR_FILE_NOT_FOUND;
  const std::string& text = found->second;
  if (text.size() + 1 > *size) return ERROR_MORE_DATA;
  std::copy(text.begin(), text.end(), data);
  data[text.size()] = 0;
  *type = editors::kRegSz;
  *size = static_cast<uint32_t>(text.size() + 1);
  return ERROR_SUCCESS;
}

long FakeAboutSystem::RegCloseKey(uintptr_t key) {
  return key == 0 || key > handles_.size() ? ERROR_INVALID_HANDLE : ERROR_SUCCESS;
}

bool FakeAboutSystem::FileExists(const std::string&) { return false; }

void PageTest::SetUp() {
  OcxTest::SetUp();
  INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TAB_CLASSES};
  InitCommonControlsEx(&controls);
  Ref<IOleObject> embedded;
  ASSERT_EQ(control->QueryInterface(IID_IOleObject, embedded.put_void()), S_OK);
  ASSERT_EQ(embedded->SetClientSite(&designSite), S_OK);
  host = CreateWindowExW(0, L"Static", L"page host", WS_POPUP | WS_VISIBLE, 0, 0, 640, 480, nullptr, nullptr,
                         GetModuleHandleW(nullptr), nullptr);
  ASSERT_NE(host, nullptr);
}

void PageTest::TearDown() {
  if (page) {
    page->Deactivate();
    page->SetObjects(0, nullptr);
    page->SetPageSite(nullptr);
  }
  if (services) {
    Ref<IEditorServices> replace;
    if (SUCCEEDED(services->QueryInterface(kEditorServicesIid, replace.put_void())))
      replace->ReplaceServices(nullptr, nullptr, nullptr);
  }
  page.Reset();
  services.Reset();
  Ref<IOleObject> embedded;
  if (control && SUCCEEDED(control->QueryInterface(IID_IOleObject, embedded.put_void())))
    embedded->SetClientSite(nullptr);
  if (host) DestroyWindow(host);
  OcxTest::TearDown();
}

void PageTest::Host(REFCLSID clsid, std::vector<IDispatch*> controls) {
  ASSERT_EQ(CreateServerObject(clsid, IID_IPropertyPage, page.put_void()), S_OK);
  Ref<IEditorServices> replace;
  ASSERT_EQ(page->QueryInterface(kEditorServicesIid, replace.put_void()), S_OK);
  replace->ReplaceServices(&dialogs, &about, &errors);
  page->QueryInterface(IID_IUnknown, services.put_void());
  ASSERT_EQ(page->SetPageSite(&site), S_OK);
  if (controls.empty()) controls.push_back(control.get());
  std::vector<IUnknown*> objects(controls.begin(), controls.end());
  ASSERT_EQ(page->SetObjects(static_cast<ULONG>(objects.size()), objects.data()), S_OK);
  PROPPAGEINFO info{};
  ASSERT_EQ(page->GetPageInfo(&info), S_OK);
  CoTaskMemFree(info.pszTitle);
  RECT area{0, 0, info.size.cx, info.size.cy};
  ASSERT_EQ(page->Activate(host, &area, FALSE), S_OK);
  ASSERT_EQ(page->Show(SW_SHOW), S_OK);
  PumpMessages(20);
}

HWND PageTest::Item(int id) const {
  HWND dialog = GetWindow(host, GW_CHILD);
  return dialog ? GetDlgItem(dialog, id) : nullptr;
}

std::wstring PageTest::TextOf(int id) const {
  wchar_t text[512] = {};
  GetWindowTextW(Item(id), text, 512);
  return text;
}

void PageTest::Type(int id, const wchar_t* text) {
  SendMessageW(Item(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

void PageTest::Click(int id) { SendMessageW(Item(id), BM_CLICK, 0, 0); }

// CB_SETCURSEL tells nobody: a user's choice also sends CBN_SELCHANGE.
void PageTest::Choose(int id, int index) {
  HWND list = Item(id);
  SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
}

void PageTest::ScrollTo(int id, int position) {
  HWND bar = Item(id);
  SendMessageW(GetParent(bar), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, position), reinterpret_cast<LPARAM>(bar));
  SendMessageW(GetParent(bar), WM_HSCROLL, MAKEWPARAM(SB_ENDSCROLL, 0), reinterpret_cast<LPARAM>(bar));
}

void PageTest::SelectTab(int id, int index) {
  HWND tab = Item(id);
  SendMessageW(tab, TCM_SETCURSEL, static_cast<WPARAM>(index), 0);
  NMHDR header{tab, static_cast<UINT_PTR>(id), static_cast<UINT>(TCN_SELCHANGE)};
  SendMessageW(GetParent(tab), WM_NOTIFY, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&header));
}

VARIANT PageTest::Property(IDispatch* target, const wchar_t* name, std::vector<VARIANT> args) {
  DISPID id = 0;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  VARIANT value;
  VariantInit(&value);
  EXPECT_EQ(target->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), S_OK) << "no member";
  std::vector<VARIANT> reversed(args.rbegin(), args.rend());
  DISPPARAMS params{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  EXPECT_EQ(target->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &params, &value, nullptr, nullptr),
            S_OK);
  for (VARIANT& v : args) VariantClear(&v);
  return value;
}

long PageTest::LongOf(const wchar_t* name, std::vector<VARIANT> args) {
  VARIANT value = Property(control.get(), name, std::move(args));
  VARIANT converted;
  VariantInit(&converted);
  VariantChangeType(&converted, &value, 0, VT_I4);
  VariantClear(&value);
  return V_I4(&converted);
}

std::wstring PageTest::StringOf(const wchar_t* name, std::vector<VARIANT> args) {
  VARIANT value = Property(control.get(), name, std::move(args));
  VARIANT converted;
  VariantInit(&converted);
  VariantChangeType(&converted, &value, 0, VT_BSTR);
  VariantClear(&value);
  std::wstring text = V_BSTR(&converted) ? V_BSTR(&converted) : L"";
  VariantClear(&converted);
  return text;
}

std::vector<uint32_t> BitmapPixels(HDC memory, HBITMAP bitmap, int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  std::vector<uint32_t> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
  for (uint32_t& p : pixels) p &= 0xFFFFFF;
  return pixels;
}

std::vector<uint32_t> ClientPixels(HWND window, int* width, int* height) {
  RECT client{};
  GetClientRect(window, &client);
  *width = client.right;
  *height = client.bottom;
  HDC dc = GetDC(window);
  HDC memory = CreateCompatibleDC(dc);
  HBITMAP bitmap = CreateCompatibleBitmap(dc, *width, *height);
  HGDIOBJ old = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, *width, *height, dc, 0, 0, SRCCOPY);
  SelectObject(memory, old);
  std::vector<uint32_t> pixels = BitmapPixels(memory, bitmap, *width, *height);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(window, dc);
  return pixels;
}

}  // namespace vorlex::activex::test
