// Events and change notifications reach sinks connected through the control's
// connection points.

#include <vector>

#include "ocx_fixture.h"
#include "test_sinks.h"

namespace vorlex::activex::test {
namespace {

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
  RecordingEvents sink;
  RecordingChanges notifications;
  Ref<IConnectionPoint> point;
};

TEST_F(Events, TimeTimerTicksThroughTheMessageLoopAndRaisesTimerTime) {
  const DWORD cookie = Connect(DIID___Vorlex, &sink);
  ASSERT_EQ(Put(L"TimerTimeInterval", I4(20)), S_OK);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(true)), S_OK);
  PumpMessages(300);
  ASSERT_FALSE(sink.raised.empty());
  EXPECT_EQ(sink.raised.front(), 2);
  ASSERT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_EQ(sink.refs, 1u) << "the connection point let go of the sink";
}

TEST_F(Events, NoTickArrivesAfterTheControlIsReleased) {
  Connect(DIID___Vorlex, &sink);
  ASSERT_EQ(Put(L"TimerTimeInterval", I4(10)), S_OK);
  ASSERT_EQ(Put(L"TimerTimeEnabled", Bool(true)), S_OK);
  point.Reset();
  control.Reset();
  const size_t before = sink.raised.size();
  PumpMessages(150);
  EXPECT_EQ(sink.raised.size(), before);
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
