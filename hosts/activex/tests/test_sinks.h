#pragma once
// What a container hands the control in the tests: a client site that answers
// the ambient UserMode, and sinks that record the events and change
// notifications they receive. Each counts its references so that a test can
// see the control let go; each must outlive the control it is given to.

#include <vector>

#include "com_includes.h"

namespace vorlex::activex::test {

// A client site whose IDispatch answers the ambient UserMode (False: a form
// designer's site).
class AmbientSite final : public IOleClientSite, public IDispatch {
 public:
  explicit AmbientSite(bool userModeAnswer = false) : userMode(userModeAnswer) {}
  bool userMode;
  ULONG refs = 1;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
  HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                   UINT*) override;
};

// A sink for __Vorlex, as a container's event handler table answers it: the
// dispatch id of every event raised, and the index each BlockClicked carried.
class RecordingEvents final : public IDispatch {
 public:
  std::vector<DISPID> raised;
  std::vector<short> clicked;
  ULONG refs = 1;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*, EXCEPINFO*,
                                   UINT*) override;
};

// A change sink: the dispatch id of every OnChanged.
class RecordingChanges final : public IPropertyNotifySink {
 public:
  std::vector<DISPID> changed;
  ULONG refs = 1;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  HRESULT STDMETHODCALLTYPE OnChanged(DISPID dispid) override {
    changed.push_back(dispid);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }
};

}  // namespace vorlex::activex::test
