#pragma once
// The Vorlex coclass: one object holding the control, its site and the COM
// interfaces a host reaches it through.
//   vorlex_control.cpp     IUnknown, creation, the control made on first use
//   control_dispatch.cpp   IDispatch and the dual interface's Call, error info
//   control_events.cpp     IConnectionPointContainer, events and OnChanged
//   control_class_info.cpp IProvideClassInfo2, ISupportErrorInfo, IObjectSafety
//   control_embedding.cpp  IOleObject, IOleInPlaceObject, IOleInPlaceActiveObject,
//                          IOleControl: the client site, ambients, the window
//   control_view.cpp       IViewObject2 and the window's paint and mouse input
//   control_persistence.cpp IPersistStreamInit, IPersistStorage, IPersistPropertyBag
//   control_property_pages.cpp ISpecifyPropertyPages: the Block, Caption and Boundaries pages
//   control_quick_activate.cpp IQuickActivate: site, sinks and status in one call

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "com_includes.h"
#include "com_site.h"
#include "connection_point.h"
#include "control_window.h"
#include "dual_interface.h"
#include "module.h"
#include "vorlex/Vorlex.h"

namespace vorlex::activex {

class VorlexControl final : public DualInterface,
                            public IProvideClassInfo2,
                            public IConnectionPointContainer,
                            public ISupportErrorInfo,
                            public IObjectSafety,
                            public IOleObject,
                            public IOleInPlaceObject,
                            public IOleInPlaceActiveObject,
                            public IOleControl,
                            public IViewObject2,
                            public IPersistStreamInit,
                            public IPersistStorage,
                            public IPersistPropertyBag,
                            public ISpecifyPropertyPages,
                            public IQuickActivate,
                            private SiteOwner,
                            private VorlexEvents,
                            private WindowOwner {
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

  // IOleObject
  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) override;
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR app, LPCOLESTR object) override;
  HRESULT STDMETHODCALLTYPE Close(DWORD saveOption) override;
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD which, IMoniker* moniker) override;
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* data, BOOL creation, DWORD reserved) override;
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) override;
  HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG msg, IOleClientSite* site, LONG index, HWND parent,
                                   LPCRECT position) override;
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) override;
  HRESULT STDMETHODCALLTYPE Update() override;
  HRESULT STDMETHODCALLTYPE IsUpToDate() override;
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* clsid) override;
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* name) override;
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* size) override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) override;
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* connection) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD connection) override;
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** advises) override;
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) override;
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* palette) override;

  // IOleWindow, IOleInPlaceObject, IOleInPlaceActiveObject
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;
  HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
  HRESULT STDMETHODCALLTYPE UIDeactivate() override;
  HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT position, LPCRECT clip) override;
  HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG msg) override;
  HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL activate) override;
  HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL activate) override;
  HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frame) override;
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) override;

  // IOleControl
  HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) override;
  HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* msg) override;
  HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID dispid) override;
  HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) override;

  // IViewObject2
  HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device, HDC targetInfo,
                                 HDC draw, LPCRECTL bounds, LPCRECTL wBounds, BOOL(STDMETHODCALLTYPE* cont)(ULONG_PTR),
                                 ULONG_PTR contArg) override;
  HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* device,
                                        HDC targetInfo, LOGPALETTE** colors) override;
  HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* freeze) override;
  HRESULT STDMETHODCALLTYPE Unfreeze(DWORD freeze) override;
  HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, LPSIZEL size) override;

  // IPersist and its three kinds
  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* clsid) override;
  HRESULT STDMETHODCALLTYPE IsDirty() override;
  HRESULT STDMETHODCALLTYPE InitNew() override;
  HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
  HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) override;
  HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) override;
  HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE Load(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL sameAsLoad) override;
  HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE HandsOffStorage() override;
  HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) override;
  HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) override;

  // ISpecifyPropertyPages
  HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) override;

  // IQuickActivate
  HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) override;
  HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL size) override;
  HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL size) override;

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

  // VorlexEvents: raised to the connected __Vorlex sinks.
  void BlockClicked(int16_t& iBlock) override;
  void Click() override;
  void DblClick() override;
  void TimerTime() override;
  void TimerDisk() override;
  void FireEvent(DISPID dispid, VARIANT* args, UINT count);

  // WindowOwner
  void OnWindowPaint() override;
  void OnWindowPrint(HDC target) override;
  void OnWindowSize(int width, int height) override;
  void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;
  void OnClick() override;
  void OnDblClick() override;

  HRESULT InPlaceActivate(LONG verb, HWND parent, LPCRECT position);
  // Paints the bar and copies it into another context.
  void CopyPicture(HDC target, int x, int y, int width, int height);
  void ReadAmbients();

  long refs_ = 1;
  ModuleReference module_;
  ComSite site_;
  std::unique_ptr<Vorlex> control_;
  bool initialised_ = false;
  ConnectionPoint events_;
  ConnectionPoint propertyNotify_;
  DWORD safety_ = 0;
  IOleClientSite* clientSite_ = nullptr;
  IOleInPlaceSite* inPlaceSite_ = nullptr;
  IOleAdviseHolder* adviseHolder_ = nullptr;
  IAdviseSink* viewSink_ = nullptr;
  DWORD viewAspects_ = 0;
  DWORD viewFlags_ = 0;
  SIZEL extent_{};  // HIMETRIC
  LONG frozenEvents_ = 0;
  bool initialisedByContainer_ = false;
  bool dirty_ = false;
  // After a load: the window, if any, shows the loaded state.
  void Loaded();
};

}  // namespace vorlex::activex
