// The Caption and Boundaries pages hosted through IPropertyPage: what Apply
// writes into the first selected control, and nothing into the others.

#include "page_host.h"
#include "page_resources.h"
#include "property_page_object.h"

namespace vorlex::activex::test {
namespace {

class CaptionBoundariesTest : public PageTest {
 protected:
  std::wstring FontMember(const wchar_t* member) {
    VARIANT font = Property(control.get(), L"Font");
    EXPECT_EQ(V_VT(&font), VT_DISPATCH);
    VARIANT value = Property(V_DISPATCH(&font), member);
    VARIANT text;
    VariantInit(&text);
    VariantChangeType(&text, &value, VARIANT_ALPHABOOL, VT_BSTR);
    std::wstring shown = V_BSTR(&text) ? V_BSTR(&text) : L"";
    VariantClear(&text);
    VariantClear(&value);
    VariantClear(&font);
    return shown;
  }
};

TEST_F(CaptionBoundariesTest, CaptionPageShowsAndAppliesTextAlignmentAngleAndAutoAngle) {
  ASSERT_EQ(Put(L"Caption", Str(L"old")), S_OK);
  Host(PageClassId(PageKind::Caption));
  EXPECT_EQ(TextOf(IDC_txtCaption), L"old");
  EXPECT_EQ(TextOf(IDC_txtCaptionFont), FontMember(L"Name"));
  const std::wstring fontName = FontMember(L"Name");
  const std::wstring fontSize = FontMember(L"Size");

  Type(IDC_txtCaption, L"Hello");
  Choose(IDC_cbxCaptionAlignment, 2);
  Type(IDC_txtCaptionAngle, L"45 degrees");
  Choose(IDC_cbxCaptionAutoAngle, 1);
  Choose(IDC_cbxCaptionFont3D, 3);
  EXPECT_EQ(page->IsPageDirty(), S_OK);
  ASSERT_FALSE(site.statusChanges.empty());
  EXPECT_EQ(site.statusChanges.back(), static_cast<DWORD>(PROPPAGESTATUS_DIRTY));
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(page->IsPageDirty(), S_FALSE);

  EXPECT_EQ(StringOf(L"Caption"), L"Hello");
  EXPECT_EQ(LongOf(L"CaptionAlignment"), 2);
  EXPECT_EQ(LongOf(L"CaptionAngle"), 45);
  EXPECT_EQ(LongOf(L"CaptionAutoAngle"), 1);
  EXPECT_EQ(LongOf(L"CaptionFont3D"), 3);
  EXPECT_EQ(FontMember(L"Name"), fontName) << "the font stays without the font button";
  EXPECT_EQ(FontMember(L"Size"), fontSize);
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(CaptionBoundariesTest, CaptionFontChosenReachesTheControlOnApplyOnly) {
  Host(PageClassId(PageKind::Caption));
  const std::wstring oldName = FontMember(L"Name");
  dialogs.Script("font", [](editors::CommonDialog& d) {
    d.FontName = "Courier New";
    d.FontSize = 14;
    d.FontBold = true;
    return true;
  });
  Click(IDC_cmdCaptionFontSelection);
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].flags, editors::kFontScreenPrinterEffects);
  EXPECT_EQ(TextOf(IDC_txtCaptionFont), oldName) << "the box shows the control's font until reloaded";
  EXPECT_EQ(FontMember(L"Name"), oldName);
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(FontMember(L"Name"), L"Courier New");
  EXPECT_EQ(FontMember(L"Size"), L"14");
  EXPECT_EQ(FontMember(L"Bold"), L"True");
}

TEST_F(CaptionBoundariesTest, CaptionFontDialogCancelledShowsTheCancelErrorAndLeavesThePageClean) {
  Host(PageClassId(PageKind::Caption));
  dialogs.Script("font", [](editors::CommonDialog&) { return false; });
  Click(IDC_cmdCaptionFontSelection);
  ASSERT_EQ(errors.texts.size(), 1u);
  EXPECT_EQ(errors.texts[0], "Cancel was selected.");
  EXPECT_EQ(page->IsPageDirty(), S_FALSE);
}

TEST_F(CaptionBoundariesTest, BoundariesPageAppliesTheLeadingNumberOfEachBox) {
  Host(PageClassId(PageKind::Boundaries));
  EXPECT_EQ(TextOf(IDC_txtHMinValue), std::to_wstring(LongOf(L"HMinValue")));
  EXPECT_EQ(TextOf(IDC_txtVMaxValue), std::to_wstring(LongOf(L"VMaxValue")));
  Type(IDC_txtHMaxValue, L"12abc");
  Type(IDC_txtHMinValue, L"abc");
  Type(IDC_txtVMaxValue, L"250");
  Type(IDC_txtVMinValue, L"-5");
  EXPECT_EQ(page->IsPageDirty(), S_OK);
  ASSERT_FALSE(site.statusChanges.empty());
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(LongOf(L"HMaxValue"), 12);
  EXPECT_EQ(LongOf(L"HMinValue"), 0);
  EXPECT_EQ(LongOf(L"VMaxValue"), 250);
  EXPECT_EQ(LongOf(L"VMinValue"), -5);
}

TEST_F(CaptionBoundariesTest, BoundariesPageChangesOnlyTheFirstOfTwoSelectedControls) {
  Ref<IDispatch> second;
  ASSERT_EQ(CreateControl(IID_IDispatch, second.put_void()), S_OK);
  VARIANT before = Property(second.get(), L"HMaxValue");
  Host(PageClassId(PageKind::Boundaries), {control.get(), second.get()});
  Type(IDC_txtHMaxValue, L"77");
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(LongOf(L"HMaxValue"), 77);
  VARIANT after = Property(second.get(), L"HMaxValue");
  EXPECT_EQ(VarCmp(&before, &after, LOCALE_USER_DEFAULT, 0), static_cast<HRESULT>(VARCMP_EQ));
  page->Deactivate();
  page->SetObjects(0, nullptr);
}

TEST_F(CaptionBoundariesTest, AnOverflowingBoundaryIsShownAndStopsApplyAtItsField) {
  Host(PageClassId(PageKind::Boundaries));
  Type(IDC_txtHMinValue, L"3");
  Type(IDC_txtHMaxValue, L"99999");
  Type(IDC_txtVMinValue, L"4");
  EXPECT_EQ(page->Apply(), E_FAIL);
  ASSERT_EQ(errors.texts.size(), 1u);
  EXPECT_EQ(errors.texts[0], "Overflow");
  EXPECT_EQ(LongOf(L"HMinValue"), 3);
  EXPECT_NE(LongOf(L"VMinValue"), 4);
  EXPECT_EQ(page->IsPageDirty(), S_OK);
}

}  // namespace
}  // namespace vorlex::activex::test
