#pragma once
// The Vorlex coclass: one object holding the control, its site and the COM
// interfaces a host reaches it through.
//   vorlex_control.cpp     IUnknown, creation, the control made on first use
//   control_dispatch.cpp   IDispatch and the dual interface's Call, error info
//   control_events.cpp     IConnectionPointContainer, events and OnChanged
//   control_class_info.cpp IProvideClassInfo2, ISupportErrorInfo, IObjectSafety

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "com_includes.h"
#include "com_site.h"
#include "connection_point.h"
#include "dual_interface.h"
#include "module.h"
#include "vorlex/Vorlex.h"

namespace vorlex::activex {

class VorlexControl final : public DualInterface,
                            public IProvideClassInfo2,
                            public IConnectionPointContainer,
                            public ISupportErrorInfo,
                            public IObjectSafety,
                            private SiteOwner,
                            private VorlexEvents {
 public:
  // A new object with one reference.
  static HRESULT Create(IUnknown* outer, REFIID iid, void** out);

  // IUnknown
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IDispatch
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispid, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* params,
                                   VARIANT* result, EXCEPINFO* exception, UINT* argError) override;

  // IProvideClassInfo2
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) override;

  // IConnectionPointContainer
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

  // ISupportErrorInfo
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;

  // IObjectSafety
  HRESULT STDMETHODCALLTYPE GetInterfaceSafetyOptions(REFIID iid, DWORD* supported, DWORD* enabled) override;
  HRESULT STDMETHODCALLTYPE SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled) override;

  // The control, made and given the defaults of a newly placed one on first use
  // when no container initialised it.
  Vorlex& Control();
  ComSite& Site() { return site_; }

 private:
  VorlexControl();
  ~VorlexControl() override;

  // DualInterface
  Variant Call(int32_t dispid, InvokeKind kind, std::vector<Variant> args) override;
  HRESULT ReportError(int32_t number, const std::string& description) override;

  // SiteOwner
  VorlexEvents& EventSink() override { return *this; }
  void OnPropertyChanged(std::string_view name) override;
  void OnShowAboutBox() override {}

  // VorlexEvents: raised to the connected __Vorlex sinks.
  void BlockClicked(int16_t& iBlock) override;
  void Click() override;
  void DblClick() override;
  void TimerTime() override;
  void TimerDisk() override;
  void FireEvent(DISPID dispid, VARIANT* args, UINT count);

  long refs_ = 1;
  ModuleReference module_;
  ComSite site_;
  std::unique_ptr<Vorlex> control_;
  bool initialised_ = false;
  ConnectionPoint events_;
  ConnectionPoint propertyNotify_;
  DWORD safety_ = 0;
};

}  // namespace vorlex::activex
