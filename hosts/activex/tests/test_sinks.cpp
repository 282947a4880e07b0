#include "test_sinks.h"

namespace vorlex::activex::test {

HRESULT AmbientSite::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid == IID_IUnknown || iid == IID_IOleClientSite)
    *out = static_cast<IOleClientSite*>(this);
  else if (iid == IID_IDispatch)
    *out = static_cast<IDispatch*>(this);
  else
    return E_NOINTERFACE;
  ++refs;
  return S_OK;
}

HRESULT AmbientSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  if (moniker) *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT AmbientSite::GetContainer(IOleContainer** container) {
  if (container) *container = nullptr;
  return E_NOINTERFACE;
}

HRESULT AmbientSite::GetTypeInfoCount(UINT* count) {
  if (count) *count = 0;
  return S_OK;
}

HRESULT AmbientSite::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info) *info = nullptr;
  return E_NOTIMPL;
}

HRESULT AmbientSite::Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) {
  if (dispid != DISPID_AMBIENT_USERMODE || !result) return DISP_E_MEMBERNOTFOUND;
  VariantInit(result);
  V_VT(result) = VT_BOOL;
  V_BOOL(result) = userMode ? VARIANT_TRUE : VARIANT_FALSE;
  return S_OK;
}

HRESULT RecordingEvents::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid != IID_IUnknown && iid != IID_IDispatch && iid != DIID___Vorlex) return E_NOINTERFACE;
  *out = this;
  ++refs;
  return S_OK;
}

HRESULT RecordingEvents::GetTypeInfoCount(UINT* count) {
  if (count) *count = 0;
  return S_OK;
}

HRESULT RecordingEvents::Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*, EXCEPINFO*, UINT*) {
  raised.push_back(dispid);
  if (dispid == 1 && params && params->cArgs == 1 && V_VT(&params->rgvarg[0]) == (VT_I2 | VT_BYREF))
    clicked.push_back(*V_I2REF(&params->rgvarg[0]));
  return S_OK;
}

HRESULT RecordingChanges::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid != IID_IUnknown && iid != IID_IPropertyNotifySink) return E_NOINTERFACE;
  *out = this;
  ++refs;
  return S_OK;
}

}  // namespace vorlex::activex::test
