#include "property_page_object.h"

#include <commctrl.h>

#include <string>
#include <utility>

#include "wide_text.h"

namespace vorlex::activex {

namespace {

const PageLayout& LayoutOf(PageKind kind) {
  switch (kind) {
    case PageKind::Block:
      return BlockPageLayout();
    case PageKind::Caption:
      return CaptionPageLayout();
    case PageKind::Boundaries:
      break;
  }
  return BoundariesPageLayout();
}

LPOLESTR TaskMemText(std::string_view text) {
  const std::wstring wide = ToWide(text);
  auto* copy = static_cast<LPOLESTR>(CoTaskMemAlloc((wide.size() + 1) * sizeof(OLECHAR)));
  if (!copy) return nullptr;
  std::copy(wide.begin(), wide.end(), copy);
  copy[wide.size()] = 0;
  return copy;
}

}  // namespace

SIZE PageSize(const PageLayout& layout) {
  // DLGTEMPLATEEX: the width and height follow version, signature, help id,
  // styles, item count and position.
  SIZE units{0, 0};
  HRSRC found = FindResourceW(ModuleInstance(), MAKEINTRESOURCEW(layout.dialog), reinterpret_cast<LPCWSTR>(RT_DIALOG));
  if (!found) return units;
  const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(ModuleInstance(), found)));
  if (!bytes || SizeofResource(ModuleInstance(), found) < 26) return units;
  const auto cx = *reinterpret_cast<const short*>(bytes + 22);
  const auto cy = *reinterpret_cast<const short*>(bytes + 24);
  // The dialog manager's base units for the template's font, MS Shell Dlg 8.
  HDC screen = GetDC(nullptr);
  HFONT font = CreateFontW(-MulDiv(8, GetDeviceCaps(screen, LOGPIXELSY), 72), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
                           DEFAULT_CHARSET, 0, 0, 0, 0, L"MS Shell Dlg");
  HGDIOBJ old = SelectObject(screen, font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen, &metrics);
  SIZE extent{};
  GetTextExtentPoint32W(screen, L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 52, &extent);
  SelectObject(screen, old);
  DeleteObject(font);
  ReleaseDC(nullptr, screen);
  const int baseX = (extent.cx / 26 + 1) / 2;
  const int baseY = metrics.tmHeight;
  units.cx = MulDiv(cx, baseX, 4);
  units.cy = MulDiv(cy, baseY, 8);
  return units;
}

HRESULT PropertyPageObject::Create(PageKind kind, IUnknown* outer, REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  PropertyPageObject* page = nullptr;
  try {
    page = new PropertyPageObject(kind);
  } catch (const std::exception&) {
    return E_OUTOFMEMORY;
  }
  const HRESULT result = page->QueryInterface(iid, out);
  page->Release();
  return result;
}

PropertyPageObject::PropertyPageObject(PageKind kind) : kind_(kind), view_(LayoutOf(kind)) {
  view_.onControlEvent = [this](std::string_view control) { Guarded([&] { logic_->ControlEvent(control); }); };
  view_.onPageChanged = [this](bool changed) { Changed(changed); };
  logic_ = editors::MakePropertyPage(kind, view_, dialogs_);
}

PropertyPageObject::~PropertyPageObject() {
  if (dialog_) Deactivate();
  logic_->SetSelectedControls({});
  if (site_) site_->Release();
}

HRESULT PropertyPageObject::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid == IID_IUnknown || iid == IID_IPropertyPage)
    *out = static_cast<IPropertyPage*>(this);
  else if (iid == kEditorServicesIid)
    *out = static_cast<IEditorServices*>(this);
  else
    return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG PropertyPageObject::AddRef() { return static_cast<ULONG>(InterlockedIncrement(&refs_)); }

ULONG PropertyPageObject::Release() {
  const long refs = InterlockedDecrement(&refs_);
  if (refs == 0) delete this;
  return static_cast<ULONG>(refs);
}

template <class F>
bool PropertyPageObject::Guarded(F&& handler) {
  SetDialogOwner(dialog_);
  try {
    handler();
    return true;
  } catch (const std::exception& error) {
    ReportHandlerError(error);
  }
  return false;
}

void PropertyPageObject::Changed(bool changed) {
  if (changed && site_) site_->OnStatusChange(PROPPAGESTATUS_DIRTY);
}

HRESULT PropertyPageObject::SetPageSite(IPropertyPageSite* site) {
  if (site) site->AddRef();
  if (site_) site_->Release();
  site_ = site;
  return S_OK;
}

HRESULT PropertyPageObject::Activate(HWND parent, LPCRECT rect, BOOL) {
  if (dialog_) return E_UNEXPECTED;
  INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TAB_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
  RegisterPreviewBoxClass(ModuleInstance());
  dialog_ = CreateDialogParamW(ModuleInstance(), MAKEINTRESOURCEW(LayoutOf(kind_).dialog), parent, DialogProc,
                               reinterpret_cast<LPARAM>(this));
  if (!dialog_) return HRESULT_FROM_WIN32(GetLastError());
  if (rect) MoveWindow(dialog_, rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, FALSE);
  view_.Attach(dialog_);
  if (!logic_->SelectedControls().empty()) Guarded([this] { logic_->SelectionChanged(); });
  return S_OK;
}

HRESULT PropertyPageObject::Deactivate() {
  if (!dialog_) return E_UNEXPECTED;
  view_.Detach();
  DestroyWindow(dialog_);
  dialog_ = nullptr;
  SetDialogOwner(nullptr);
  return S_OK;
}

HRESULT PropertyPageObject::GetPageInfo(PROPPAGEINFO* info) {
  if (!info) return E_POINTER;
  info->cb = sizeof *info;
  info->pszTitle = TaskMemText(logic_->Caption());
  info->size = PageSize(LayoutOf(kind_));
  info->pszDocString = nullptr;
  info->pszHelpFile = nullptr;
  info->dwHelpContext = 0;
  return info->pszTitle ? S_OK : E_OUTOFMEMORY;
}

HRESULT PropertyPageObject::SetObjects(ULONG count, IUnknown** objects) {
  if (count && !objects) return E_POINTER;
  std::vector<std::unique_ptr<DispatchControlObject>> selected;
  std::vector<editors::ControlObject*> list;
  for (ULONG i = 0; i < count; ++i) {
    IDispatch* dispatch = nullptr;
    if (!objects[i] || FAILED(objects[i]->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch))))
      return E_NOINTERFACE;
    selected.push_back(std::make_unique<DispatchControlObject>(dispatch));
    dispatch->Release();
    list.push_back(selected.back().get());
  }
  logic_->SetSelectedControls(std::move(list));
  objects_ = std::move(selected);
  if (dialog_ && count) Guarded([this] { logic_->SelectionChanged(); });
  return S_OK;
}

HRESULT PropertyPageObject::Show(UINT command) {
  if (!dialog_) return E_UNEXPECTED;
  ShowWindow(dialog_, static_cast<int>(command));
  return S_OK;
}

HRESULT PropertyPageObject::Move(LPCRECT rect) {
  if (!rect) return E_POINTER;
  if (!dialog_) return E_UNEXPECTED;
  MoveWindow(dialog_, rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, TRUE);
  return S_OK;
}

HRESULT PropertyPageObject::IsPageDirty() { return logic_->Changed() ? S_OK : S_FALSE; }

HRESULT PropertyPageObject::Apply() {
  if (logic_->SelectedControls().empty()) return E_UNEXPECTED;
  if (!Guarded([this] { logic_->ApplyChanges(); })) return E_FAIL;
  logic_->SetChanged(false);
  return S_OK;
}

HRESULT PropertyPageObject::Help(LPCOLESTR) { return E_NOTIMPL; }

HRESULT PropertyPageObject::TranslateAccelerator(MSG* msg) {
  if (!msg) return E_POINTER;
  return dialog_ && IsDialogMessageW(dialog_, msg) ? S_OK : S_FALSE;
}

HRESULT PropertyPageObject::ReplaceServices(editors::DialogService* dialogs, editors::AboutSystem* about,
                                            ErrorReporter* errors) {
  ReplaceModuleServices(dialogs, about, errors);
  return S_OK;
}

INT_PTR CALLBACK PropertyPageObject::DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    return FALSE;
  }
  auto* page = reinterpret_cast<PropertyPageObject*>(GetWindowLongPtrW(dialog, DWLP_USER));
  if (!page || page->dialog_ != dialog) return FALSE;
  INT_PTR result = 0;
  if (!page->view_.HandleMessage(message, wParam, lParam, &result)) return FALSE;
  // Colour messages return their brush; the others their result in DWLP_MSGRESULT.
  if (message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC) return result;
  SetWindowLongPtrW(dialog, DWLP_MSGRESULT, 0);
  return TRUE;
}

}  // namespace vorlex::activex
