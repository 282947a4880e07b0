// A container that activates the control in one call (IQuickActivate), as
// Visual Basic's forms do: the site is set, both sinks are connected, and the
// control's status comes back.

#include <vector>

#include "ocx_fixture.h"

namespace vorlex::activex::test {
namespace {

class Site final : public IOleClientSite {
 public:
  ULONG refs = 1;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = (iid == IID_IUnknown || iid == IID_IOleClientSite) ? this : nullptr;
    if (!*out) return E_NOINTERFACE;
    ++refs;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** m) override {
    *m = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** c) override {
    *c = nullptr;
    return E_NOINTERFACE;
  }
  HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
};

class Changes final : public IPropertyNotifySink {
 public:
  std::vector<DISPID> changed;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = (iid == IID_IUnknown || iid == IID_IPropertyNotifySink) ? this : nullptr;
    return *out ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE OnChanged(DISPID id) override {
    changed.push_back(id);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }
};

class Events final : public IDispatch {
 public:
  std::vector<DISPID> raised;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = (iid == IID_IUnknown || iid == IID_IDispatch || iid == DIID___Vorlex) ? this : nullptr;
    return *out ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override {
    *n = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    raised.push_back(id);
    return S_OK;
  }
};

class QuickActivation : public OcxTest {
 protected:
  void TearDown() override {
    if (ole) ole->SetClientSite(nullptr);
    ole.Reset();
    OcxTest::TearDown();
  }
  Site site;  // the site and sinks outlive the control
  Changes changes;
  Events events;
  Ref<IOleObject> ole;
};

TEST_F(QuickActivation, SetsTheSiteConnectsBothSinksAndAnswersTheStatus) {
  Ref<IQuickActivate> quick;
  ASSERT_EQ(control->QueryInterface(IID_IQuickActivate, quick.put_void()), S_OK);
  QACONTAINER container{};
  container.cbSize = sizeof container;
  container.pClientSite = &site;
  container.pPropertyNotifySink = &changes;
  container.pUnkEventSink = static_cast<IDispatch*>(&events);
  QACONTROL answer{};
  answer.cbSize = sizeof answer;
  ASSERT_EQ(quick->QuickActivate(&container, &answer), S_OK);
  EXPECT_NE(answer.dwEventCookie, 0u);
  EXPECT_NE(answer.dwPropNotifyCookie, 0u);
  EXPECT_TRUE(answer.dwMiscStatus & OLEMISC_ACTIVATEWHENVISIBLE);
  EXPECT_TRUE(answer.dwMiscStatus & OLEMISC_SETCLIENTSITEFIRST);
  EXPECT_EQ(answer.dwViewStatus, static_cast<DWORD>(VIEWSTATUS_OPAQUE));

  ASSERT_EQ(control->QueryInterface(IID_IOleObject, ole.put_void()), S_OK);
  Ref<IOleClientSite> held;
  ASSERT_EQ(ole->GetClientSite(held.put()), S_OK);
  EXPECT_EQ(held.get(), static_cast<IOleClientSite*>(&site));
  held.Reset();

  ASSERT_EQ(Put(L"Enabled", Bool(false)), S_OK);
  EXPECT_EQ(changes.changed, (std::vector<DISPID>{DISPID_ENABLED}));
  ASSERT_EQ(Put(L"TimerTimeInterval", I4(10)), S_OK);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(true)), S_OK);
  PumpMessages(120);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(false)), S_OK);
  EXPECT_FALSE(events.raised.empty()) << "TimerTime reached the event sink";
}

TEST_F(QuickActivation, ContentExtentIsTheObjectsExtent) {
  Ref<IQuickActivate> quick;
  ASSERT_EQ(control->QueryInterface(IID_IQuickActivate, quick.put_void()), S_OK);
  SIZEL extent{2000, 1000};
  ASSERT_EQ(quick->SetContentExtent(&extent), S_OK);
  SIZEL back{};
  ASSERT_EQ(quick->GetContentExtent(&back), S_OK);
  EXPECT_EQ(back.cx, 2000);
  EXPECT_EQ(back.cy, 1000);
}

TEST_F(QuickActivation, TooSmallAStructureIsRefused) {
  Ref<IQuickActivate> quick;
  ASSERT_EQ(control->QueryInterface(IID_IQuickActivate, quick.put_void()), S_OK);
  QACONTAINER container{};
  container.cbSize = 8;
  QACONTROL answer{};
  answer.cbSize = sizeof answer;
  EXPECT_EQ(quick->QuickActivate(&container, &answer), E_INVALIDARG);
  EXPECT_EQ(quick->QuickActivate(nullptr, &answer), E_POINTER);
}

}  // namespace
}  // namespace vorlex::activex::test
