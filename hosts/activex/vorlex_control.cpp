#include "vorlex_control.h"

#include <new>

namespace vorlex::activex {

VorlexControl::VorlexControl()
    : site_(*this),
      events_(*static_cast<IConnectionPointContainer*>(this), *this, DIID___Vorlex),
      propertyNotify_(*static_cast<IConnectionPointContainer*>(this), *this, IID_IPropertyNotifySink) {
  // Script hosts neither initialise nor load a control: it starts as a newly
  // placed one, before any sink can hear its set-up.
  Control();
}

VorlexControl::~VorlexControl() {
  InPlaceDeactivate();
  // The control stops its timers before the site and its timer service go.
  control_.reset();
  if (clientSite_) clientSite_->Release();
  if (adviseHolder_) adviseHolder_->Release();
  if (viewSink_) viewSink_->Release();
}

HRESULT VorlexControl::Create(IUnknown* outer, REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  auto* object = new (std::nothrow) VorlexControl();
  if (!object) return E_OUTOFMEMORY;
  const HRESULT result = object->QueryInterface(iid, out);
  object->Release();
  return result;
}

HRESULT VorlexControl::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid == IID_IUnknown || iid == IID_IDispatch || iid == IID__Vorlex)
    *out = static_cast<_Vorlex*>(this);
  else if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2)
    *out = static_cast<IProvideClassInfo2*>(this);
  else if (iid == IID_IConnectionPointContainer)
    *out = static_cast<IConnectionPointContainer*>(this);
  else if (iid == IID_ISupportErrorInfo)
    *out = static_cast<ISupportErrorInfo*>(this);
  else if (iid == IID_IObjectSafety)
    *out = static_cast<IObjectSafety*>(this);
  else if (iid == IID_IOleObject)
    *out = static_cast<IOleObject*>(this);
  else if (iid == IID_IOleWindow || iid == IID_IOleInPlaceObject)
    *out = static_cast<IOleInPlaceObject*>(this);
  else if (iid == IID_IOleInPlaceActiveObject)
    *out = static_cast<IOleInPlaceActiveObject*>(this);
  else if (iid == IID_IOleControl)
    *out = static_cast<IOleControl*>(this);
  else if (iid == IID_IViewObject || iid == IID_IViewObject2)
    *out = static_cast<IViewObject2*>(this);
  else if (iid == IID_IPersist || iid == IID_IPersistStreamInit)
    *out = static_cast<IPersistStreamInit*>(this);
  else if (iid == IID_IPersistStream)
    *out = static_cast<IPersistStreamInit*>(this);  // the same methods, InitNew aside
  else if (iid == IID_IPersistStorage)
    *out = static_cast<IPersistStorage*>(this);
  else if (iid == IID_IPersistPropertyBag)
    *out = static_cast<IPersistPropertyBag*>(this);
  else if (iid == IID_ISpecifyPropertyPages)
    *out = static_cast<ISpecifyPropertyPages*>(this);
  else if (iid == IID_IQuickActivate)
    *out = static_cast<IQuickActivate*>(this);
  else
    return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG VorlexControl::AddRef() { return static_cast<ULONG>(InterlockedIncrement(&refs_)); }

ULONG VorlexControl::Release() {
  const long refs = InterlockedDecrement(&refs_);
  if (refs == 0) delete this;
  return static_cast<ULONG>(refs);
}

Vorlex& VorlexControl::Control() {
  if (!control_) control_ = std::make_unique<Vorlex>(site_);
  if (!initialised_) {
    initialised_ = true;
    control_->InitProperties();
  }
  return *control_;
}

}  // namespace vorlex::activex
