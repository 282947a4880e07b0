// The control in a container: the client site and its ambient properties,
// verbs, extent, in-place activation with a window of its own, and the
// container's wish to hold events back.

#include "com_variant.h"
#include "vorlex/Font.h"
#include "vorlex_control.h"

namespace vorlex::activex {

namespace {

constexpr DWORD kMiscStatus = OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT |
                              OLEMISC_CANTLINKINSIDE | OLEMISC_RECOMPOSEONRESIZE;

constexpr double kHimetricPerTwip = 2540.0 / 1440.0;

template <class T>
void ReleaseAndClear(T*& p) {
  if (p) p->Release();
  p = nullptr;
}

// An ambient property of the container, or VT_EMPTY when it has none.
bool ReadAmbient(IOleClientSite* site, DISPID dispid, VARIANT* value) {
  VariantInit(value);
  if (!site) return false;
  IDispatch* ambients = nullptr;
  if (FAILED(site->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&ambients)))) return false;
  DISPPARAMS none{nullptr, nullptr, 0, 0};
  const HRESULT hr =
      ambients->Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, value, nullptr, nullptr);
  ambients->Release();
  return SUCCEEDED(hr);
}

// The system's default GUI font, for containers without ambient properties.
FontPtr DefaultGuiFont() {
  auto font = std::make_shared<Font>();
  LOGFONTW logical{};
  if (GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof logical, &logical) == 0) return font;
  font->SetName(FromWide(logical.lfFaceName));
  HDC screen = GetDC(nullptr);
  const int dpi = screen ? GetDeviceCaps(screen, LOGPIXELSY) : 96;
  if (screen) ReleaseDC(nullptr, screen);
  const int height = logical.lfHeight < 0 ? -logical.lfHeight : logical.lfHeight;
  if (height > 0) font->SetSize(height * 72.0 / dpi);
  font->SetWeight(static_cast<int16_t>(logical.lfWeight ? logical.lfWeight : FW_NORMAL));
  font->SetCharset(logical.lfCharSet);
  return font;
}

}  // namespace

void VorlexControl::ReadAmbients() {
  VARIANT value;
  const bool userMode = !ReadAmbient(clientSite_, DISPID_AMBIENT_USERMODE, &value) ||
                        (V_VT(&value) == VT_BOOL ? V_BOOL(&value) != VARIANT_FALSE : true);
  VariantClear(&value);
  site_.SetUserMode(userMode);
  FontPtr font;
  if (ReadAmbient(clientSite_, DISPID_AMBIENT_FONT, &value) && V_VT(&value) == VT_DISPATCH && V_DISPATCH(&value)) {
    try {
      font = std::dynamic_pointer_cast<Font>(ObjectFromDispatch(V_DISPATCH(&value)));
    } catch (const std::exception&) {
      font = nullptr;
    }
  }
  VariantClear(&value);
  site_.SetAmbientFont(font ? font : DefaultGuiFont());
}

HRESULT VorlexControl::SetClientSite(IOleClientSite* site) {
  if (site) site->AddRef();
  ReleaseAndClear(clientSite_);
  clientSite_ = site;
  if (site) ReadAmbients();
  return S_OK;
}

HRESULT VorlexControl::GetClientSite(IOleClientSite** site) {
  if (!site) return E_POINTER;
  *site = clientSite_;
  if (clientSite_) clientSite_->AddRef();
  return S_OK;
}

HRESULT VorlexControl::SetHostNames(LPCOLESTR, LPCOLESTR) { return S_OK; }

HRESULT VorlexControl::Close(DWORD) {
  InPlaceDeactivate();
  if (adviseHolder_) adviseHolder_->SendOnClose();
  return S_OK;
}

HRESULT VorlexControl::SetMoniker(DWORD, IMoniker*) { return E_NOTIMPL; }

HRESULT VorlexControl::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  if (moniker) *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT VorlexControl::InitFromData(IDataObject*, BOOL, DWORD) { return E_NOTIMPL; }

HRESULT VorlexControl::GetClipboardData(DWORD, IDataObject** data) {
  if (data) *data = nullptr;
  return E_NOTIMPL;
}

HRESULT VorlexControl::DoVerb(LONG verb, LPMSG, IOleClientSite* site, LONG, HWND parent, LPCRECT position) {
  if (site && site != clientSite_) SetClientSite(site);
  switch (verb) {
    case OLEIVERB_PRIMARY:
    case OLEIVERB_SHOW:
    case OLEIVERB_INPLACEACTIVATE:
    case OLEIVERB_UIACTIVATE:
      return InPlaceActivate(verb, parent, position);
    case OLEIVERB_HIDE:
      if (site_.Window()) ShowWindow(site_.Window(), SW_HIDE);
      return S_OK;
    case OLEIVERB_OPEN:
    case OLEIVERB_DISCARDUNDOSTATE:
      return S_OK;
    default:
      return verb < 0 ? E_NOTIMPL : OLEOBJ_S_INVALIDVERB;
  }
}

HRESULT VorlexControl::InPlaceActivate(LONG verb, HWND parent, LPCRECT position) {
  if (site_.Window()) {
    ShowWindow(site_.Window(), SW_SHOW);
    return S_OK;
  }
  if (!clientSite_) return E_UNEXPECTED;
  if (FAILED(clientSite_->QueryInterface(IID_IOleInPlaceSite, reinterpret_cast<void**>(&inPlaceSite_))))
    return E_NOINTERFACE;
  if (inPlaceSite_->CanInPlaceActivate() != S_OK) {
    ReleaseAndClear(inPlaceSite_);
    return E_FAIL;
  }
  inPlaceSite_->OnInPlaceActivate();
  HWND container = parent;
  if (!container) inPlaceSite_->GetWindow(&container);
  IOleInPlaceFrame* frame = nullptr;
  IOleInPlaceUIWindow* document = nullptr;
  RECT where{};
  RECT clip{};
  OLEINPLACEFRAMEINFO frameInfo{};
  frameInfo.cb = sizeof frameInfo;
  if (SUCCEEDED(inPlaceSite_->GetWindowContext(&frame, &document, &where, &clip, &frameInfo))) {
    ReleaseAndClear(frame);
    ReleaseAndClear(document);
  }
  if (position) where = *position;
  HWND window = CreateControlWindow(container, where, *this);
  if (!window) {
    inPlaceSite_->OnInPlaceDeactivate();
    ReleaseAndClear(inPlaceSite_);
    return E_FAIL;
  }
  site_.AttachWindow(window);
  if (verb == OLEIVERB_UIACTIVATE || verb == OLEIVERB_PRIMARY) inPlaceSite_->OnUIActivate();
  return S_OK;
}

HRESULT VorlexControl::EnumVerbs(IEnumOLEVERB** verbs) { return OleRegEnumVerbs(CLSID_Vorlex, verbs); }
HRESULT VorlexControl::Update() { return S_OK; }
HRESULT VorlexControl::IsUpToDate() { return S_OK; }

HRESULT VorlexControl::GetUserClassID(CLSID* clsid) {
  if (!clsid) return E_POINTER;
  *clsid = CLSID_Vorlex;
  return S_OK;
}

HRESULT VorlexControl::GetUserType(DWORD form, LPOLESTR* name) { return OleRegGetUserType(CLSID_Vorlex, form, name); }

HRESULT VorlexControl::SetExtent(DWORD aspect, SIZEL* size) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!size) return E_POINTER;
  extent_ = *size;
  return S_OK;
}

HRESULT VorlexControl::GetExtent(DWORD aspect, SIZEL* size) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!size) return E_POINTER;
  if (extent_.cx == 0 && extent_.cy == 0) {
    size->cx = static_cast<LONG>(site_.OuterWidthTwips() * kHimetricPerTwip + 0.5);
    size->cy = static_cast<LONG>(site_.OuterHeightTwips() * kHimetricPerTwip + 0.5);
  } else {
    *size = extent_;
  }
  return S_OK;
}

HRESULT VorlexControl::Advise(IAdviseSink* sink, DWORD* connection) {
  if (!adviseHolder_ && FAILED(CreateOleAdviseHolder(&adviseHolder_))) return E_OUTOFMEMORY;
  return adviseHolder_->Advise(sink, connection);
}

HRESULT VorlexControl::Unadvise(DWORD connection) {
  return adviseHolder_ ? adviseHolder_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT VorlexControl::EnumAdvise(IEnumSTATDATA** advises) {
  if (!advises) return E_POINTER;
  *advises = nullptr;
  return adviseHolder_ ? adviseHolder_->EnumAdvise(advises) : S_OK;
}

HRESULT VorlexControl::GetMiscStatus(DWORD aspect, DWORD* status) {
  if (!status) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? kMiscStatus : 0;
  return S_OK;
}

HRESULT VorlexControl::SetColorScheme(LOGPALETTE*) { return E_NOTIMPL; }

HRESULT VorlexControl::GetWindow(HWND* window) {
  if (!window) return E_POINTER;
  *window = site_.Window();
  return *window ? S_OK : E_FAIL;
}

HRESULT VorlexControl::ContextSensitiveHelp(BOOL) { return E_NOTIMPL; }

HRESULT VorlexControl::InPlaceDeactivate() {
  if (!site_.Window()) return S_OK;
  HWND window = site_.Window();
  site_.DetachWindow();
  DestroyWindow(window);
  if (inPlaceSite_) inPlaceSite_->OnInPlaceDeactivate();
  ReleaseAndClear(inPlaceSite_);
  return S_OK;
}

HRESULT VorlexControl::UIDeactivate() {
  if (inPlaceSite_) inPlaceSite_->OnUIDeactivate(FALSE);
  return S_OK;
}

HRESULT VorlexControl::SetObjectRects(LPCRECT position, LPCRECT) {
  if (!position) return E_POINTER;
  if (site_.Window())
    MoveWindow(site_.Window(), position->left, position->top, position->right - position->left,
               position->bottom - position->top, TRUE);
  return S_OK;
}

HRESULT VorlexControl::ReactivateAndUndo() { return INPLACE_E_NOTUNDOABLE; }
HRESULT VorlexControl::TranslateAccelerator(LPMSG) { return S_FALSE; }
HRESULT VorlexControl::OnFrameWindowActivate(BOOL) { return S_OK; }
HRESULT VorlexControl::OnDocWindowActivate(BOOL) { return S_OK; }
HRESULT VorlexControl::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) { return S_OK; }
HRESULT VorlexControl::EnableModeless(BOOL) { return S_OK; }

HRESULT VorlexControl::GetControlInfo(CONTROLINFO* info) {
  if (!info) return E_POINTER;
  info->cb = sizeof(CONTROLINFO);
  info->hAccel = nullptr;
  info->cAccel = 0;
  info->dwFlags = 0;
  return S_OK;
}

HRESULT VorlexControl::OnMnemonic(MSG*) { return S_OK; }

HRESULT VorlexControl::OnAmbientPropertyChange(DISPID dispid) {
  if (dispid == DISPID_UNKNOWN || dispid == DISPID_AMBIENT_USERMODE || dispid == DISPID_AMBIENT_FONT) ReadAmbients();
  return S_OK;
}

HRESULT VorlexControl::FreezeEvents(BOOL freeze) {
  if (freeze)
    ++frozenEvents_;
  else if (frozenEvents_ > 0)
    --frozenEvents_;
  return S_OK;
}

}  // namespace vorlex::activex
