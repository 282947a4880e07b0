// The control through IDispatch, as a script host calls it.

#include "ocx_fixture.h"

namespace vorlex::activex::test {
namespace {

using Dispatch = OcxTest;

TEST_F(Dispatch, NewControlAnswersWithTheDefaultsOfAPlacedControl) {
  ASSERT_EQ(Get(L"Blocks"), S_OK);
  EXPECT_EQ(V_VT(&result), VT_I2);
  EXPECT_EQ(V_I2(&result), 0);
  ASSERT_EQ(Get(L"TimerDiskInterval"), S_OK);
  EXPECT_EQ(V_VT(&result), VT_I4);
  EXPECT_EQ(V_I4(&result), 60000);
}

TEST_F(Dispatch, NamesAreFoundWhateverTheirCase) {
  DISPID lower = 0;
  DISPID mixed = 0;
  LPOLESTR a[] = {const_cast<LPOLESTR>(L"blockcolor")};
  LPOLESTR b[] = {const_cast<LPOLESTR>(L"BlockColor")};
  ASSERT_EQ(control->GetIDsOfNames(IID_NULL, a, 1, 0, &lower), S_OK);
  ASSERT_EQ(control->GetIDsOfNames(IID_NULL, b, 1, 0, &mixed), S_OK);
  EXPECT_EQ(lower, mixed);
  EXPECT_EQ(lower, 0x68030019);
}

TEST_F(Dispatch, UnknownNameIsDispEUnknownName) {
  DISPID id = 0;
  LPOLESTR name[] = {const_cast<LPOLESTR>(L"NoSuchMember")};
  EXPECT_EQ(control->GetIDsOfNames(IID_NULL, name, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(Dispatch, PerBlockPropertyPutAndGetWithTheBlockArgument) {
  ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
  ASSERT_EQ(Put(L"BlockColor", I4(255), {I2(1)}), S_OK);
  ASSERT_EQ(Get(L"BlockColor", {I2(1)}), S_OK);
  EXPECT_EQ(V_VT(&result), VT_I4);
  EXPECT_EQ(V_I4(&result), 255);
}

TEST_F(Dispatch, OmittedBlockArgumentMeansTheCurrentBlock) {
  ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
  ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
  ASSERT_EQ(Put(L"IndexBlock", I2(2)), S_OK);
  ASSERT_EQ(Put(L"BlockText", Str(L"second")), S_OK);
  ASSERT_EQ(Get(L"BlockText", {I2(2)}), S_OK);
  ASSERT_EQ(V_VT(&result), VT_BSTR);
  EXPECT_STREQ(V_BSTR(&result), L"second");
}

TEST_F(Dispatch, BlockArgumentPassedByReferenceAsBasicDoes) {
  ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
  short index = 1;
  VARIANT byRef;
  VariantInit(&byRef);
  V_VT(&byRef) = VT_I2 | VT_BYREF;
  V_I2REF(&byRef) = &index;
  ASSERT_EQ(Put(L"BlockBarRight", I2(40), {byRef}), S_OK);
  ASSERT_EQ(Get(L"BlockBarRight", {I2(1)}), S_OK);
  EXPECT_EQ(V_I2(&result), 40);
}

TEST_F(Dispatch, TextCrossesAsUtf8AndBack) {
  ASSERT_EQ(Put(L"Caption", Str(L"Gr\u00fc\u00dfe \u20ac")), S_OK);
  ASSERT_EQ(Get(L"Caption"), S_OK);
  ASSERT_EQ(V_VT(&result), VT_BSTR);
  EXPECT_STREQ(V_BSTR(&result), L"Gr\u00fc\u00dfe \u20ac");
}

// Basic's Err.Number is the low word of the scode 0x800A0000 + N.
void ExpectError(HRESULT hr, const EXCEPINFO& exception, int number, const wchar_t* text) {
  ASSERT_EQ(hr, DISP_E_EXCEPTION);
  EXPECT_EQ(static_cast<unsigned>(exception.scode), 0x800A0000u + static_cast<unsigned>(number));
  ASSERT_NE(exception.bstrDescription, nullptr);
  EXPECT_STREQ(exception.bstrDescription, text);
}

TEST_F(Dispatch, BlockIndexOutOfRangeIsError9) {
  ExpectError(Get(L"BlockColor", {I2(3)}), exception, 9, L"Subscript out of range");
}

TEST_F(Dispatch, ValueTooLargeIsError6) { ExpectError(Put(L"CaptionAngle", I4(40000)), exception, 6, L"Overflow"); }

TEST_F(Dispatch, TextThatIsNoNumberIsError13) {
  ExpectError(Put(L"CaptionAngle", Str(L"steep")), exception, 13, L"Type mismatch");
}

TEST_F(Dispatch, DesignTimeOnlyMemberAtRunTimeIsError393) {
  ExpectError(Get(L"SpecialClearAllBlock"), exception, 393, L"Get not supported at run time");
}

TEST_F(Dispatch, NullWhereAValueIsNeededIsError94) {
  VARIANT null;
  VariantInit(&null);
  V_VT(&null) = VT_NULL;
  const HRESULT hr = Put(L"Caption", null);
  ASSERT_EQ(hr, DISP_E_EXCEPTION);
  EXPECT_EQ(static_cast<unsigned>(exception.scode), 0x800A005Eu);
}

TEST_F(Dispatch, AnErrorAlsoSetsTheThreadsErrorInformation) {
  ASSERT_EQ(Get(L"BlockColor", {I2(3)}), DISP_E_EXCEPTION);
  Ref<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.put()), S_OK);
  BSTR description = nullptr;
  ASSERT_EQ(info->GetDescription(&description), S_OK);
  EXPECT_STREQ(description, L"Subscript out of range");
  SysFreeString(description);
}

TEST_F(Dispatch, AssigningAReadOnlyPropertyIsMemberNotFound) { EXPECT_EQ(Put(L"hWnd", I4(5)), DISP_E_MEMBERNOTFOUND); }

TEST_F(Dispatch, MethodWithAnOptionalArgumentTakesItsDefault) {
  ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
  ASSERT_EQ(Put(L"BlockTextOffset", I2(9), {I2(1)}), S_OK);
  ASSERT_EQ(Call(L"SetBlockTextOffset", DISPATCH_METHOD), S_OK);
  ASSERT_EQ(Get(L"BlockTextOffset", {I2(1)}), S_OK);
  EXPECT_EQ(V_I2(&result), 3);
}

TEST_F(Dispatch, TheControlsFontIsOneSharedObject) {
  ASSERT_EQ(Get(L"Font"), S_OK);
  ASSERT_EQ(V_VT(&result), VT_DISPATCH);
  Ref<IFontDisp> font;
  ASSERT_EQ(V_DISPATCH(&result)->QueryInterface(IID_IFontDisp, font.put_void()), S_OK);
  // A script writes ctl.Font.Name = "Arial": the control's own font changes.
  DISPID named = DISPID_PROPERTYPUT;
  VARIANT name = Str(L"Arial");
  DISPPARAMS params{&name, &named, 1, 1};
  ASSERT_EQ(font->Invoke(DISPID_FONT_NAME, IID_NULL, 0, DISPATCH_PROPERTYPUT, &params, nullptr, nullptr, nullptr),
            S_OK);
  VariantClear(&name);
  ASSERT_EQ(Get(L"Font"), S_OK);
  DISPPARAMS none{nullptr, nullptr, 0, 0};
  VARIANT read;
  VariantInit(&read);
  ASSERT_EQ(
      V_DISPATCH(&result)->Invoke(DISPID_FONT_NAME, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &read, nullptr, nullptr),
      S_OK);
  ASSERT_EQ(V_VT(&read), VT_BSTR);
  EXPECT_STREQ(V_BSTR(&read), L"Arial");
  VariantClear(&read);
}

TEST_F(Dispatch, APictureGivenToABlockComesBackAsTheCallersObject) {
  // A 1 by 1 bitmap file, as LoadPicture reads one.
  const unsigned char bmp[] = {'B', 'M', 58, 0, 0, 0, 0, 0, 0,  0, 54, 0, 0, 0, 40, 0, 0,   0, 1, 0,
                               0,   0,   1,  0, 0, 0, 1, 0, 24, 0, 0,  0, 0, 0, 4,  0, 0,   0, 0, 0,
                               0,   0,   0,  0, 0, 0, 0, 0, 0,  0, 0,  0, 0, 0, 0,  0, 255, 0};
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof bmp);
  memcpy(GlobalLock(memory), bmp, sizeof bmp);
  GlobalUnlock(memory);
  Ref<IStream> stream;
  ASSERT_EQ(CreateStreamOnHGlobal(memory, TRUE, stream.put()), S_OK);
  Ref<IPictureDisp> picture;
  ASSERT_EQ(OleLoadPicture(stream.get(), sizeof bmp, FALSE, IID_IPictureDisp, picture.put_void()), S_OK);
  ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_DISPATCH;
  V_DISPATCH(&value) = picture.get();
  picture->AddRef();
  ASSERT_EQ(Put(L"BlockPicture", value, {I2(1)}), S_OK);
  ASSERT_EQ(Get(L"BlockPicture", {I2(1)}), S_OK);
  ASSERT_EQ(V_VT(&result), VT_DISPATCH);
  Ref<IUnknown> given;
  Ref<IUnknown> returned;
  picture->QueryInterface(IID_IUnknown, given.put_void());
  V_DISPATCH(&result)->QueryInterface(IID_IUnknown, returned.put_void());
  EXPECT_EQ(given.get(), returned.get());
}

}  // namespace
}  // namespace vorlex::activex::test
