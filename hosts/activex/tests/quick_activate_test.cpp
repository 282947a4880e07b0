// A container that activates the control in one call (IQuickActivate), as
// Visual Basic's forms do: the site is set, both sinks are connected, and the
// control's status comes back.

#include <vector>

#include "ocx_fixture.h"
#include "test_sinks.h"

namespace vorlex::activex::test {
namespace {

class QuickActivation : public OcxTest {
 protected:
  void TearDown() override {
    if (ole) ole->SetClientSite(nullptr);
    ole.Reset();
    OcxTest::TearDown();
  }
  AmbientSite site{true};  // the site and sinks outlive the control
  RecordingChanges changes;
  RecordingEvents events;
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
