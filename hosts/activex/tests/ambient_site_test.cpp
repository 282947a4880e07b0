// A container of our own with ambient properties: design mode opens the
// design-time members, a change of ambient is re-read when the container says
// so, and frozen events are held back.

#include <string>
#include <vector>

#include "ocx_fixture.h"
#include "test_sinks.h"
#include "vorlex/Automation.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::activex::test {
namespace {

class AmbientContainer : public OcxTest {
 protected:
  void SetUp() override {
    OcxTest::SetUp();
    ASSERT_EQ(control->QueryInterface(IID_IOleObject, object.put_void()), S_OK);
    ASSERT_EQ(object->SetClientSite(&site), S_OK);
  }
  void TearDown() override {
    if (object) object->SetClientSite(nullptr);
    object.Reset();
    OcxTest::TearDown();
  }
  AmbientSite site;  // outlives the control
  Ref<IOleObject> object;
};

TEST_F(AmbientContainer, DesignModeMakesTheDesignTimeMembersUsable) {
  ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
  ASSERT_EQ(Put(L"BlockKey", Str(L"kept?"), {I2(1)}), S_OK);
  ASSERT_EQ(Put(L"SpecialClearAllBlock", I4(1)), S_OK);
  ASSERT_EQ(Get(L"SpecialClearAllBlock"), S_OK);
  EXPECT_EQ(V_I4(&result), 0) << "the command sets itself back";
  ASSERT_EQ(Get(L"BlockKey", {I2(1)}), S_OK);
  EXPECT_EQ(SysStringLen(V_BSTR(&result)), 0u) << "every block was reset";
  VariantClear(&result);
  ASSERT_EQ(Put(L"DontRefreshAfterPropertyPage", Bool(true)), S_OK);
  ASSERT_EQ(Get(L"DontRefreshAfterPropertyPage"), S_OK);
  EXPECT_EQ(V_BOOL(&result), VARIANT_TRUE);
}

TEST_F(AmbientContainer, ChangedAmbientIsReadWhenTheContainerSaysSo) {
  site.userMode = true;
  ASSERT_EQ(Get(L"SpecialClearAllBlock"), S_OK) << "not re-read until the container tells";
  Ref<IOleControl> ole;
  ASSERT_EQ(control->QueryInterface(IID_IOleControl, ole.put_void()), S_OK);
  ASSERT_EQ(ole->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
  const HRESULT hr = Get(L"SpecialClearAllBlock");
  ASSERT_EQ(hr, DISP_E_EXCEPTION);
  EXPECT_EQ(static_cast<unsigned>(exception.scode), 0x800A0000u + 393u);
}

TEST_F(AmbientContainer, ClientSiteIsHeldAndGivenBack) {
  Ref<IOleClientSite> held;
  ASSERT_EQ(object->GetClientSite(held.put()), S_OK);
  EXPECT_EQ(held.get(), static_cast<IOleClientSite*>(&site));
  held.Reset();
  ASSERT_EQ(object->SetClientSite(nullptr), S_OK);
  EXPECT_EQ(site.refs, 1u) << "the control let go of its site";
}

TEST_F(AmbientContainer, MiscStatusAndExtentAreThoseOfAnInsideOutControl) {
  DWORD status = 0;
  ASSERT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
  EXPECT_TRUE(status & OLEMISC_ACTIVATEWHENVISIBLE);
  EXPECT_TRUE(status & OLEMISC_SETCLIENTSITEFIRST);
  EXPECT_TRUE(status & OLEMISC_INSIDEOUT);
  SIZEL extent{};
  ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
  // A new control is 900 by 315 twips: 1588 by 556 HIMETRIC.
  EXPECT_EQ(extent.cx, 1588);
  EXPECT_EQ(extent.cy, 556);
}

TEST_F(AmbientContainer, FrozenEventsAreHeldBack) {
  Ref<IOleControl> ole;
  ASSERT_EQ(control->QueryInterface(IID_IOleControl, ole.put_void()), S_OK);
  static RecordingEvents counter;  // outlives the control
  Ref<IConnectionPointContainer> container;
  ASSERT_EQ(control->QueryInterface(IID_IConnectionPointContainer, container.put_void()), S_OK);
  Ref<IConnectionPoint> point;
  ASSERT_EQ(container->FindConnectionPoint(DIID___Vorlex, point.put()), S_OK);
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&counter, &cookie), S_OK);
  ASSERT_EQ(ole->FreezeEvents(TRUE), S_OK);
  ASSERT_EQ(Put(L"TimerTimeInterval", I4(10)), S_OK);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(true)), S_OK);
  PumpMessages(120);
  EXPECT_EQ(counter.raised.size(), 0u);
  ASSERT_EQ(ole->FreezeEvents(FALSE), S_OK);
  PumpMessages(120);
  EXPECT_GT(counter.raised.size(), 0u);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(false)), S_OK);
  point->Unadvise(cookie);
}

// The dispatch ids of the names the library's own control notifies when the
// property is given its current value again.
std::vector<DISPID> NotifiedByTheLibrary(const MemberInfo& put) {
  HeadlessSite site;
  site.SetUserMode(false);
  Vorlex native(site);
  native.InitProperties();
  site.ClearRecords();
  Variant value = Invoke(native, put.dispid, InvokeKind::PropertyGet, {});
  Invoke(native, put.dispid, put.kind, {value});
  std::vector<DISPID> ids;
  for (const std::string& name : site.Notifications()) ids.push_back(GetIDOfName(name));
  return ids;
}

TEST_F(AmbientContainer, EveryNotifiedPropertyArrivesAsOnChangedWithItsDispatchId) {
  static RecordingChanges sink;  // outlives the control
  Ref<IConnectionPointContainer> container;
  ASSERT_EQ(control->QueryInterface(IID_IConnectionPointContainer, container.put_void()), S_OK);
  Ref<IConnectionPoint> point;
  ASSERT_EQ(container->FindConnectionPoint(IID_IPropertyNotifySink, point.put()), S_OK);
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
  int checked = 0;
  for (const MemberInfo& member : AutomationTable()) {
    const bool put = member.kind == InvokeKind::PropertyPut || member.kind == InvokeKind::PropertyPutRef;
    if (!put || !member.params.empty()) continue;
    const std::vector<DISPID> expected = NotifiedByTheLibrary(member);
    sink.changed.clear();
    DISPPARAMS none{};
    VARIANT value;
    VariantInit(&value);
    ASSERT_EQ(control->Invoke(member.dispid, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr), S_OK)
        << member.name;
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS params{&value, &named, 1, 1};
    const WORD flags = member.kind == InvokeKind::PropertyPutRef ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
    ASSERT_EQ(control->Invoke(member.dispid, IID_NULL, 0, flags, &params, nullptr, nullptr, nullptr), S_OK)
        << member.name;
    VariantClear(&value);
    EXPECT_EQ(sink.changed, expected) << member.name;
    if (!expected.empty()) ++checked;
  }
  EXPECT_GT(checked, 30) << "most control properties notify";
  point->Unadvise(cookie);
}

}  // namespace
}  // namespace vorlex::activex::test
