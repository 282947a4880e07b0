// What a container asks of the object about itself: its class description,
// its event interface, which interfaces set error information, and whether it
// is safe for scripting.

#include "type_library.h"
#include "vorlex_control.h"

namespace vorlex::activex {

HRESULT VorlexControl::GetClassInfo(ITypeInfo** info) { return TypeInfoOf(CLSID_Vorlex, info); }

HRESULT VorlexControl::GetGUID(DWORD kind, GUID* guid) {
  if (!guid) return E_POINTER;
  *guid = GUID_NULL;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *guid = DIID___Vorlex;
  return S_OK;
}

HRESULT VorlexControl::InterfaceSupportsErrorInfo(REFIID iid) {
  return (iid == IID__Vorlex || iid == IID_IDispatch) ? S_OK : S_FALSE;
}

namespace {

constexpr DWORD kSafeOptions = INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA;

bool IsSafeInterface(REFIID iid) { return iid == IID_IDispatch || iid == IID__Vorlex; }

}  // namespace

HRESULT VorlexControl::GetInterfaceSafetyOptions(REFIID iid, DWORD* supported, DWORD* enabled) {
  if (!supported || !enabled) return E_POINTER;
  if (!IsSafeInterface(iid)) return E_NOINTERFACE;
  *supported = kSafeOptions;
  *enabled = safety_;
  return S_OK;
}

HRESULT VorlexControl::SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled) {
  if (!IsSafeInterface(iid)) return E_NOINTERFACE;
  if (mask & ~kSafeOptions) return E_FAIL;
  safety_ = (safety_ & ~mask) | (enabled & mask);
  return S_OK;
}

}  // namespace vorlex::activex
