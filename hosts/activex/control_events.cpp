// Connection points: __Vorlex for the control's events, IPropertyNotifySink
// for its change notifications by property name.

#include <utility>

#include "vorlex/Automation.h"
#include "vorlex_control.h"

namespace vorlex::activex {

HRESULT VorlexControl::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (points) *points = nullptr;
  return E_NOTIMPL;
}

HRESULT VorlexControl::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
  if (!point) return E_POINTER;
  *point = nullptr;
  if (iid == DIID___Vorlex)
    *point = &events_;
  else if (iid == IID_IPropertyNotifySink)
    *point = &propertyNotify_;
  else
    return CONNECT_E_NOCONNECTION;
  (*point)->AddRef();
  return S_OK;
}

void VorlexControl::OnPropertyChanged(std::string_view name) {
  const DISPID dispid = GetIDOfName(name);
  for (IUnknown* sink : propertyNotify_.Sinks()) {
    IPropertyNotifySink* notify = nullptr;
    if (SUCCEEDED(sink->QueryInterface(IID_IPropertyNotifySink, reinterpret_cast<void**>(&notify)))) {
      notify->OnChanged(dispid);
      notify->Release();
    }
    sink->Release();
  }
}

void VorlexControl::FireEvent(DISPID dispid, VARIANT* args, UINT count) {
  // A container that froze events does not want them now.
  if (frozenEvents_ > 0) return;
  // The object stays alive while a handler runs, whatever the handler does.
  AddRef();
  for (IUnknown* sink : events_.Sinks()) {
    IDispatch* dispatch = nullptr;
    if (SUCCEEDED(sink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch)))) {
      DISPPARAMS params{args, nullptr, count, 0};
      dispatch->Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr);
      dispatch->Release();
    }
    sink->Release();
  }
  Release();
}

void VorlexControl::BlockClicked(int16_t& iBlock) {
  // By reference: a handler may change the index.
  SHORT value = iBlock;
  VARIANT arg;
  VariantInit(&arg);
  V_VT(&arg) = VT_I2 | VT_BYREF;
  V_I2REF(&arg) = &value;
  FireEvent(1, &arg, 1);
  iBlock = value;
}

void VorlexControl::Click() { FireEvent(DISPID_CLICK, nullptr, 0); }
void VorlexControl::DblClick() { FireEvent(DISPID_DBLCLICK, nullptr, 0); }
void VorlexControl::TimerTime() { FireEvent(2, nullptr, 0); }
void VorlexControl::TimerDisk() { FireEvent(3, nullptr, 0); }

}  // namespace vorlex::activex
