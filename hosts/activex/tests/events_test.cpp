// Events and change notifications reach sinks connected through the control's
// connection points.

#include <vector>

#include "ocx_fixture.h"

namespace vorlex::activex::test {
namespace {

// A sink for __Vorlex, as a container's event handler table answers it.
class EventSink final : public IDispatch {
 public:
  std::vector<DISPID> calls;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch && iid != DIID___Vorlex) return E_NOINTERFACE;
    *out = this;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override {
    *n = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    calls.push_back(id);
    return S_OK;
  }
  ULONG refs = 1;
};

class PropertySink final : public IPropertyNotifySink {
 public:
  std::vector<DISPID> changed;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IPropertyNotifySink) return E_NOINTERFACE;
    *out = this;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  HRESULT STDMETHODCALLTYPE OnChanged(DISPID id) override {
    changed.push_back(id);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }
  ULONG refs = 1;
};

class Events : public OcxTest {
 protected:
  DWORD Connect(REFIID iid, IUnknown* target) {
    Ref<IConnectionPointContainer> container;
    EXPECT_EQ(control->QueryInterface(IID_IConnectionPointContainer, container.put_void()), S_OK);
    EXPECT_EQ(container->FindConnectionPoint(iid, point.put()), S_OK);
    DWORD cookie = 0;
    EXPECT_EQ(point->Advise(target, &cookie), S_OK);
    return cookie;
  }
  // The sinks outlive the control, which the fixture releases first.
  EventSink sink;
  PropertySink notifications;
  Ref<IConnectionPoint> point;
};

TEST_F(Events, TimeTimerTicksThroughTheMessageLoopAndRaisesTimerTime) {
  const DWORD cookie = Connect(DIID___Vorlex, &sink);
  ASSERT_EQ(Put(L"TimerTimeInterval", I4(20)), S_OK);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(true)), S_OK);
  PumpMessages(300);
  ASSERT_FALSE(sink.calls.empty());
  EXPECT_EQ(sink.calls.front(), 2);
  ASSERT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_EQ(sink.refs, 1u) << "the connection point let go of the sink";
}

TEST_F(Events, NoTickArrivesAfterTheControlIsReleased) {
  Connect(DIID___Vorlex, &sink);
  ASSERT_EQ(Put(L"TimerTimeInterval", I4(10)), S_OK);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(true)), S_OK);
  point.Reset();
  control.Reset();
  const size_t before = sink.calls.size();
  PumpMessages(150);
  EXPECT_EQ(sink.calls.size(), before);
  EXPECT_EQ(sink.refs, 1u) << "the control released its sinks when it went";
}

TEST_F(Events, ChangeNotificationArrivesAsOnChangedWithTheDispatchId) {
  Connect(IID_IPropertyNotifySink, &notifications);
  ASSERT_EQ(Put(L"BackColor", I4(0xFF)), S_OK);
  ASSERT_EQ(Put(L"Enabled", Bool(false)), S_OK);
  ASSERT_EQ(notifications.changed.size(), 2u);
  EXPECT_EQ(notifications.changed[0], 0x68030047);
  EXPECT_EQ(notifications.changed[1], DISPID_ENABLED);
}

TEST_F(Events, UnknownOutgoingInterfaceHasNoConnectionPoint) {
  Ref<IConnectionPointContainer> container;
  ASSERT_EQ(control->QueryInterface(IID_IConnectionPointContainer, container.put_void()), S_OK);
  Ref<IConnectionPoint> other;
  EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, other.put()), CONNECT_E_NOCONNECTION);
}

TEST_F(Events, ClassInformationNamesTheEventInterface) {
  Ref<IProvideClassInfo2> info;
  ASSERT_EQ(control->QueryInterface(IID_IProvideClassInfo2, info.put_void()), S_OK);
  GUID events{};
  ASSERT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_TRUE(IsEqualGUID(events, DIID___Vorlex));
  Ref<ITypeInfo> coclass;
  ASSERT_EQ(info->GetClassInfo(coclass.put()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(coclass->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  EXPECT_TRUE(IsEqualGUID(attributes->guid, CLSID_Vorlex));
  coclass->ReleaseTypeAttr(attributes);
}

}  // namespace
}  // namespace vorlex::activex::test
