// The module tells the truth about whether it may be unloaded.

#include "ocx_fixture.h"

namespace vorlex::activex::test {
namespace {

TEST(Module, CanUnloadOnlyWhenNoObjectOrLockIsLeft) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  ASSERT_EQ(CanUnloadNow(), S_OK);
  {
    Ref<IDispatch> control;
    ASSERT_EQ(CreateControl(IID_IDispatch, control.put_void()), S_OK);
    EXPECT_EQ(CanUnloadNow(), S_FALSE);
    DISPID id = 0;
    LPOLESTR name[] = {const_cast<LPOLESTR>(L"Font")};
    ASSERT_EQ(control->GetIDsOfNames(IID_NULL, name, 1, 0, &id), S_OK);
    DISPPARAMS none{nullptr, nullptr, 0, 0};
    VARIANT font;
    VariantInit(&font);
    ASSERT_EQ(control->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &font, nullptr, nullptr), S_OK);
    control.Reset();
    EXPECT_EQ(CanUnloadNow(), S_FALSE) << "the font object the caller still holds keeps the module";
    VariantClear(&font);
  }
  EXPECT_EQ(CanUnloadNow(), S_OK);
  CoUninitialize();
}

TEST(Module, LockServerHoldsTheModule) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto get =
      reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllGetClassObject")));
  ASSERT_NE(get, nullptr);
  Ref<IClassFactory> factory;
  ASSERT_EQ(get(CLSID_Vorlex, IID_IClassFactory, factory.put_void()), S_OK);
  ASSERT_EQ(factory->LockServer(TRUE), S_OK);
  factory.Reset();
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  ASSERT_EQ(get(CLSID_Vorlex, IID_IClassFactory, factory.put_void()), S_OK);
  ASSERT_EQ(factory->LockServer(FALSE), S_OK);
  factory.Reset();
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

TEST(Module, OtherClassesAreNotAvailable) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto get =
      reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllGetClassObject")));
  void* out = nullptr;
  EXPECT_EQ(get(IID_IDispatch, IID_IClassFactory, &out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(out, nullptr);
}

TEST(Module, AggregationIsRefused) {
  Ref<IUnknown> outer;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  ASSERT_EQ(CreateControl(IID_IUnknown, outer.put_void()), S_OK);
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto get =
      reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(GetProcAddress(Server(), "DllGetClassObject")));
  Ref<IClassFactory> factory;
  ASSERT_EQ(get(CLSID_Vorlex, IID_IClassFactory, factory.put_void()), S_OK);
  void* out = nullptr;
  EXPECT_EQ(factory->CreateInstance(outer.get(), IID_IUnknown, &out), CLASS_E_NOAGGREGATION);
  factory.Reset();
  outer.Reset();
  CoUninitialize();
}

}  // namespace
}  // namespace vorlex::activex::test
