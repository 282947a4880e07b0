// Saving with the container: a property bag of the container's (the keys and
// values of the form text), a stream and a storage, each loaded back.

#include <map>
#include <string>
#include <vector>

#include "ocx_fixture.h"
#include "vorlex/Automation.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/PropertyBag.h"
#include "vorlex/Vorlex.h"

namespace vorlex::activex::test {
namespace {

// A container's bag: the values by name, and the names in the order written.
class Bag final : public IPropertyBag {
 public:
  ~Bag() {
    for (auto& [name, value] : values) VariantClear(&value);
  }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    *out = nullptr;
    if (iid != IID_IUnknown && iid != IID_IPropertyBag) return E_NOINTERFACE;
    *out = this;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    const auto it = values.find(name);
    if (it == values.end()) return E_INVALIDARG;
    return VariantCopy(value, &it->second);
  }
  HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override {
    VARIANT copy;
    VariantInit(&copy);
    VariantCopy(&copy, value);
    if (values.count(name)) VariantClear(&values[name]);
    values[name] = copy;
    order.emplace_back(name);
    return S_OK;
  }
  std::map<std::wstring, VARIANT> values;
  std::vector<std::wstring> order;
  ULONG refs = 1;
};

std::wstring Wide(const std::string& text) { return std::wstring(text.begin(), text.end()); }

std::string Text(const VARIANT& value) {
  VARIANT converted;
  VariantInit(&converted);
  if (FAILED(VariantChangeType(&converted, const_cast<VARIANT*>(&value), 0, VT_BSTR))) return "?";
  std::string text;
  for (const wchar_t* c = V_BSTR(&converted); *c; ++c) text += static_cast<char>(*c);
  VariantClear(&converted);
  return text;
}

double Number(const VARIANT& value) {
  VARIANT converted;
  VariantInit(&converted);
  if (FAILED(VariantChangeType(&converted, const_cast<VARIANT*>(&value), 0, VT_R8))) return -1e300;
  return V_R8(&converted);
}

class Persistence : public OcxTest {
 protected:
  // Two blocks, a caption, colours and a font: set through IDispatch.
  void SetUpState() {
    ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
    ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
    ASSERT_EQ(Put(L"BlockKey", Str(L"cpu"), {I2(1)}), S_OK);
    ASSERT_EQ(Put(L"BlockBarRight", I2(40), {I2(1)}), S_OK);
    ASSERT_EQ(Put(L"BlockColor", I4(0x00FF80), {I2(2)}), S_OK);
    ASSERT_EQ(Put(L"BlockText", Str(L"%TIME%"), {I2(2)}), S_OK);
    ASSERT_EQ(Put(L"Caption", Str(L"Load")), S_OK);
    ASSERT_EQ(Put(L"BorderStyle", I4(3)), S_OK);
    ASSERT_EQ(Put(L"TimerTimeInterval", I4(500)), S_OK);
  }
  // The same state natively, as the form-text writer saves it.
  MemoryPropertyBag NativeBag() {
    HeadlessSite site;
    Vorlex native(site);
    native.InitProperties();
    Invoke(native, "AddBlock", InvokeKind::Method, {});
    Invoke(native, "AddBlock", InvokeKind::Method, {});
    Invoke(native, "BlockKey", InvokeKind::PropertyPut, {Variant(int16_t{1}), Variant("cpu")});
    Invoke(native, "BlockBarRight", InvokeKind::PropertyPut, {Variant(int16_t{1}), Variant(int16_t{40})});
    Invoke(native, "BlockColor", InvokeKind::PropertyPut, {Variant(int16_t{2}), Variant(int32_t{0x00FF80})});
    Invoke(native, "BlockText", InvokeKind::PropertyPut, {Variant(int16_t{2}), Variant("%TIME%")});
    Invoke(native, "Caption", InvokeKind::PropertyPut, {Variant("Load")});
    Invoke(native, "BorderStyle", InvokeKind::PropertyPut, {Variant(int32_t{3})});
    Invoke(native, "TimerTimeInterval", InvokeKind::PropertyPut, {Variant(int32_t{500})});
    MemoryPropertyBag bag;
    native.UserControl_WriteProperties(bag);
    return bag;
  }
  // A second control, through the same server.
  void ExpectStateIn(IDispatch* other) {
    control.Reset();
    other->AddRef();
    *control.put() = other;
    ASSERT_EQ(Get(L"Blocks"), S_OK);
    EXPECT_EQ(V_I2(&result), 2);
    ASSERT_EQ(Get(L"BlockKey", {I2(1)}), S_OK);
    EXPECT_STREQ(V_BSTR(&result), L"cpu");
    ASSERT_EQ(Get(L"BlockBarRight", {I2(1)}), S_OK);
    EXPECT_EQ(V_I2(&result), 40);
    ASSERT_EQ(Get(L"BlockColor", {I2(2)}), S_OK);
    EXPECT_EQ(V_I4(&result), 0x00FF80);
    ASSERT_EQ(Get(L"BlockText", {I2(2)}), S_OK);
    EXPECT_STREQ(V_BSTR(&result), L"%TIME%");
    ASSERT_EQ(Get(L"Caption"), S_OK);
    EXPECT_STREQ(V_BSTR(&result), L"Load");
    ASSERT_EQ(Get(L"BorderStyle"), S_OK);
    EXPECT_EQ(V_I4(&result), 3);
    ASSERT_EQ(Get(L"TimerTimeInterval"), S_OK);
    EXPECT_EQ(V_I4(&result), 500);
  }
};

TEST_F(Persistence, PropertyBagGetsTheFormTextsKeysAndValuesInOrder) {
  SetUpState();
  Ref<IPersistPropertyBag> persist;
  ASSERT_EQ(control->QueryInterface(IID_IPersistPropertyBag, persist.put_void()), S_OK);
  Bag bag;
  ASSERT_EQ(persist->Save(&bag, TRUE, FALSE), S_OK);
  const std::vector<PropertyEntry> expected = NativeBag().Entries();
  ASSERT_EQ(bag.order.size(), expected.size());
  for (size_t i = 0; i < expected.size(); ++i) {
    SCOPED_TRACE(expected[i].name);
    EXPECT_EQ(bag.order[i], Wide(expected[i].name));
    const VARIANT& saved = bag.values[bag.order[i]];
    const Variant& value = expected[i].value;
    if (value.IsString()) {
      EXPECT_EQ(Text(saved), value.ToString());
    } else if (value.IsObject()) {
      EXPECT_EQ(V_VT(&saved), VT_DISPATCH);
    } else {
      EXPECT_EQ(Number(saved), value.ToDouble());
    }
  }
}

TEST_F(Persistence, PropertyBagLoadsBackToTheSameState) {
  SetUpState();
  Ref<IPersistPropertyBag> persist;
  ASSERT_EQ(control->QueryInterface(IID_IPersistPropertyBag, persist.put_void()), S_OK);
  Bag bag;
  ASSERT_EQ(persist->Save(&bag, TRUE, FALSE), S_OK);
  Ref<IPersistPropertyBag> other;
  ASSERT_EQ(CreateControl(IID_IPersistPropertyBag, other.put_void()), S_OK);
  ASSERT_EQ(other->Load(&bag, nullptr), S_OK);
  EXPECT_EQ(other->Load(&bag, nullptr), E_UNEXPECTED) << "a loaded control is not loaded again";
  Ref<IDispatch> loaded;
  ASSERT_EQ(other->QueryInterface(IID_IDispatch, loaded.put_void()), S_OK);
  ExpectStateIn(loaded.get());
}

TEST_F(Persistence, StreamRoundTripAndDirtyFlag) {
  Ref<IPersistStreamInit> persist;
  ASSERT_EQ(control->QueryInterface(IID_IPersistStreamInit, persist.put_void()), S_OK);
  ASSERT_EQ(persist->InitNew(), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_FALSE);
  SetUpState();
  EXPECT_EQ(persist->IsDirty(), S_OK);
  Ref<IStream> stream;
  ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.put()), S_OK);
  ULARGE_INTEGER size{};
  ASSERT_EQ(persist->GetSizeMax(&size), S_OK);
  ASSERT_EQ(persist->Save(stream.get(), TRUE), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_FALSE);
  LARGE_INTEGER zero{};
  ULARGE_INTEGER end{};
  stream->Seek(zero, STREAM_SEEK_CUR, &end);
  EXPECT_EQ(end.QuadPart, size.QuadPart);
  stream->Seek(zero, STREAM_SEEK_SET, nullptr);
  Ref<IPersistStreamInit> other;
  ASSERT_EQ(CreateControl(IID_IPersistStreamInit, other.put_void()), S_OK);
  ASSERT_EQ(other->Load(stream.get()), S_OK);
  EXPECT_EQ(other->InitNew(), E_UNEXPECTED);
  Ref<IDispatch> loaded;
  ASSERT_EQ(other->QueryInterface(IID_IDispatch, loaded.put_void()), S_OK);
  ExpectStateIn(loaded.get());
}

TEST_F(Persistence, StorageRoundTrip) {
  SetUpState();
  Ref<ILockBytes> bytes;
  ASSERT_EQ(CreateILockBytesOnHGlobal(nullptr, TRUE, bytes.put()), S_OK);
  Ref<IStorage> storage;
  ASSERT_EQ(
      StgCreateDocfileOnILockBytes(bytes.get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, storage.put()),
      S_OK);
  Ref<IPersistStorage> persist;
  ASSERT_EQ(control->QueryInterface(IID_IPersistStorage, persist.put_void()), S_OK);
  ASSERT_EQ(persist->Save(storage.get(), FALSE), S_OK);
  ASSERT_EQ(persist->SaveCompleted(nullptr), S_OK);
  Ref<IPersistStorage> other;
  ASSERT_EQ(CreateControl(IID_IPersistStorage, other.put_void()), S_OK);
  ASSERT_EQ(other->Load(storage.get()), S_OK);
  Ref<IDispatch> loaded;
  ASSERT_EQ(other->QueryInterface(IID_IDispatch, loaded.put_void()), S_OK);
  ExpectStateIn(loaded.get());
}

TEST_F(Persistence, StreamThatIsNoSavedControlIsRefusedWith321) {
  Ref<IStream> stream;
  ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.put()), S_OK);
  const char junk[] = "not a saved control at all";
  stream->Write(junk, sizeof junk, nullptr);
  LARGE_INTEGER zero{};
  stream->Seek(zero, STREAM_SEEK_SET, nullptr);
  Ref<IPersistStreamInit> persist;
  ASSERT_EQ(control->QueryInterface(IID_IPersistStreamInit, persist.put_void()), S_OK);
  EXPECT_EQ(static_cast<unsigned>(persist->Load(stream.get())), 0x800A0141u);
}

}  // namespace
}  // namespace vorlex::activex::test
