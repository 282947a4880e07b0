// The Block page hosted through IPropertyPage over a control of the server:
// its controls worked with window messages, the control read back through
// IDispatch after Apply.

#include "page_host.h"
#include "page_resources.h"
#include "property_page_object.h"
#include "reference_gradient.h"

namespace vorlex::activex::test {
namespace {

class BlockPageTest : public PageTest {
 protected:
  // Blocks with keys and tops of their own: "a" 10, "b" 20, "c" 30...
  void AddBlocks(int count) {
    for (int i = 1; i <= count; ++i) {
      ASSERT_EQ(Call(L"AddBlock", DISPATCH_METHOD), S_OK);
      const wchar_t key[] = {static_cast<wchar_t>(L'a' + i - 1), 0};
      ASSERT_EQ(Put(L"BlockKey", Str(key), {I2(static_cast<short>(i))}), S_OK);
      ASSERT_EQ(Put(L"BlockBarTop", I2(static_cast<short>(10 * i)), {I2(static_cast<short>(i))}), S_OK);
    }
  }
  void HostBlockPage() { Host(PageClassId(PageKind::Block)); }
};

TEST_F(BlockPageTest, ShowsTheFirstBlockOfTheControl) {
  AddBlocks(2);
  HostBlockPage();
  EXPECT_EQ(TextOf(IDC_txtIndex), L"1");
  EXPECT_EQ(TextOf(IDC_txtBlockKey), L"a");
  EXPECT_EQ(TextOf(IDC_txtBlockBarTop), L"10");
  EXPECT_EQ(TextOf(IDC_txtTextColor), L"This text is colored");
  EXPECT_EQ(TextOf(IDC_lblColor0), L"Start Red = 0");
  EXPECT_EQ(TextOf(IDC_lblColorEnd2), L"End Blue = 0");
  EXPECT_EQ(SendMessageW(Item(IDC_cbxGradientStyle), CB_GETLBTEXTLEN, 12, 0), 29);
  EXPECT_EQ(page->IsPageDirty(), S_FALSE);
  EXPECT_TRUE(site.statusChanges.empty()) << "filling the page is no edit";
}

TEST_F(BlockPageTest, AnEditMarksThePageDirtyAndApplyWritesTheBlock) {
  AddBlocks(2);
  HostBlockPage();
  Type(IDC_txtBlockBarTop, L"42abc");
  Type(IDC_txtBlockKey, L"first");
  Click(IDC_chkBlockOnTop);
  Choose(IDC_cbxShapeStyle, 1);
  EXPECT_EQ(page->IsPageDirty(), S_OK);
  ASSERT_FALSE(site.statusChanges.empty());
  EXPECT_EQ(site.statusChanges.back(), static_cast<DWORD>(PROPPAGESTATUS_DIRTY));
  EXPECT_EQ(LongOf(L"BlockBarTop", {I2(1)}), 10) << "nothing reaches the control before Apply";

  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(page->IsPageDirty(), S_FALSE);
  EXPECT_EQ(LongOf(L"BlockBarTop", {I2(1)}), 42);
  EXPECT_EQ(StringOf(L"BlockKey", {I2(1)}), L"first");
  EXPECT_EQ(LongOf(L"BlockOnTop", {I2(1)}), -1);
  EXPECT_EQ(LongOf(L"BlockShapeStyle", {I2(1)}), 1);
  EXPECT_EQ(StringOf(L"BlockKey", {I2(2)}), L"b");
  EXPECT_TRUE(errors.texts.empty());
}

TEST_F(BlockPageTest, ThePercentageBoxesMarkThePageButAreNeverWritten) {
  AddBlocks(1);
  HostBlockPage();
  const std::wstring before = StringOf(L"BlockHPercentage", {I2(1)});
  Type(IDC_txtBlockHPercentage, L"77");
  EXPECT_EQ(page->IsPageDirty(), S_OK);
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(StringOf(L"BlockHPercentage", {I2(1)}), before);
}

TEST_F(BlockPageTest, TheScrollBarNavigatesBetweenBlocks) {
  AddBlocks(3);
  HostBlockPage();
  ScrollTo(IDC_HScroll1, 3);
  EXPECT_EQ(TextOf(IDC_txtIndex), L"3");
  EXPECT_EQ(TextOf(IDC_txtBlockKey), L"c");
  EXPECT_EQ(TextOf(IDC_txtBlockBarTop), L"30");
  SendMessageW(GetParent(Item(IDC_HScroll1)), WM_HSCROLL, MAKEWPARAM(SB_LINELEFT, 0),
               reinterpret_cast<LPARAM>(Item(IDC_HScroll1)));
  EXPECT_EQ(GetScrollPos(Item(IDC_HScroll1), SB_CTL), 2);
  EXPECT_EQ(TextOf(IDC_txtBlockKey), L"b");
}

TEST_F(BlockPageTest, AddAndRemoveChangeTheControlAtOnce) {
  AddBlocks(2);
  HostBlockPage();
  Click(IDC_cmdAddBlock);
  EXPECT_EQ(LongOf(L"Blocks"), 3);
  EXPECT_EQ(TextOf(IDC_txtIndex), L"3");
  EXPECT_EQ(TextOf(IDC_txtBlockBarTop), L"100");
  EXPECT_EQ(TextOf(IDC_txtBlockBarLeft), L"-1");
  EXPECT_EQ(GetScrollPos(Item(IDC_HScroll1), SB_CTL), 3);
  Click(IDC_cmdRemoveBlock);
  EXPECT_EQ(LongOf(L"Blocks"), 2);
  EXPECT_EQ(page->IsPageDirty(), S_OK);
}

TEST_F(BlockPageTest, ARemovedBlocksSettingsComeBackAtItsOldIndexAfterApply) {
  AddBlocks(3);
  HostBlockPage();
  ScrollTo(IDC_HScroll1, 2);
  Click(IDC_cmdRemoveBlock);
  ASSERT_EQ(LongOf(L"Blocks"), 2);
  EXPECT_EQ(StringOf(L"BlockKey", {I2(2)}), L"c");
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(StringOf(L"BlockKey", {I2(2)}), L"b");
  EXPECT_EQ(LongOf(L"BlockBarTop", {I2(2)}), 20);
  EXPECT_EQ(StringOf(L"BlockKey", {I2(1)}), L"a");
}

TEST_F(BlockPageTest, WithoutBlocksTheTabsStayDisabledUntilAdd) {
  HostBlockPage();
  EXPECT_EQ(TextOf(IDC_txtIndex), L"");
  EXPECT_FALSE(Enabled(IDC_SSTab1));
  EXPECT_FALSE(Enabled(IDC_txtBlockBarLeft));
  EXPECT_FALSE(Enabled(IDC_SSTab3));
  EXPECT_FALSE(Enabled(IDC_hslColor0));
  EXPECT_TRUE(Enabled(IDC_cmdAddBlock));
  Click(IDC_cmdAddBlock);
  EXPECT_EQ(LongOf(L"Blocks"), 1);
  EXPECT_TRUE(Enabled(IDC_SSTab1));
  EXPECT_TRUE(Enabled(IDC_txtBlockBarLeft));
  EXPECT_TRUE(Enabled(IDC_hslColor0));
  EXPECT_EQ(TextOf(IDC_txtIndex), L"1");
}

TEST_F(BlockPageTest, TabsShowOnlyTheControlsOfTheSelectedTab) {
  AddBlocks(1);
  HostBlockPage();
  EXPECT_TRUE(Visible(IDC_txtBlockBarLeft));
  EXPECT_FALSE(Visible(IDC_SSTab2));
  EXPECT_FALSE(Visible(IDC_txtBlockText));
  SelectTab(IDC_SSTab1, 1);
  EXPECT_FALSE(Visible(IDC_txtBlockBarLeft));
  EXPECT_TRUE(Visible(IDC_SSTab2));
  EXPECT_TRUE(Visible(IDC_txtBlockText));
  EXPECT_FALSE(Visible(IDC_cbxFont3D));
  SelectTab(IDC_SSTab2, 1);
  EXPECT_FALSE(Visible(IDC_txtBlockText));
  EXPECT_TRUE(Visible(IDC_cbxFont3D));
  SelectTab(IDC_SSTab1, 2);
  EXPECT_FALSE(Visible(IDC_cbxFont3D)) << "hidden with its parent tab";
  EXPECT_FALSE(Visible(IDC_SSTab2));
  EXPECT_TRUE(Visible(IDC_cbxShapeStyle));
  SelectTab(IDC_SSTab3, 2);
  EXPECT_TRUE(Visible(IDC_hslColorEnd2));
  EXPECT_TRUE(Visible(IDC_pctResult));
  EXPECT_FALSE(Visible(IDC_cbxShapeStyle));
}

TEST_F(BlockPageTest, TheColourButtonShowsTheDialogFromTheBlockColourAndStoresTheChoice) {
  AddBlocks(1);
  ASSERT_EQ(Put(L"BlockColor", I4(0x112233), {I2(1)}), S_OK);
  HostBlockPage();
  dialogs.Script("color", [](editors::CommonDialog& d) {
    d.Color = 0x123456;
    return true;
  });
  Click(IDC_cmdColorSelection);
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].flags & editors::kColorInitialColor, editors::kColorInitialColor);
  EXPECT_EQ(dialogs.shown[0].color, 0x112233u);
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(LongOf(L"BlockColor", {I2(1)}), 0x123456);

  dialogs.Script("color", [](editors::CommonDialog&) { return false; });
  Click(IDC_cmdColorSelection);
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(LongOf(L"BlockColor", {I2(1)}), 0x123456) << "a cancelled dialog changes nothing";
  EXPECT_TRUE(errors.texts.empty()) << "the page absorbs the cancel";
}

TEST_F(BlockPageTest, ChoosingATextFormatInsertsItsTokenAtTheCaret) {
  AddBlocks(1);
  ASSERT_EQ(Put(L"BlockText", Str(L"ab"), {I2(1)}), S_OK);
  HostBlockPage();
  SendMessageW(Item(IDC_txtBlockText), EM_SETSEL, 1, 1);
  Choose(IDC_cbxTextFormat, 0);
  EXPECT_EQ(TextOf(IDC_txtBlockText), L"a!short time!ab");
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(StringOf(L"BlockText", {I2(1)}), L"a!short time!ab");
}

// What modGradient paints for these colours into a memory context of the size.
std::vector<uint32_t> ExpectedGradient(HWND like, int width, int height, int16_t style, int16_t granularity,
                                       OLE_COLOR color, OLE_COLOR colorEnd) {
  HDC dc = GetDC(like);
  HDC memory = CreateCompatibleDC(dc);
  HBITMAP bitmap = CreateCompatibleBitmap(dc, width, height);
  HGDIOBJ old = SelectObject(memory, bitmap);
  PaintReferenceGradient(reinterpret_cast<uintptr_t>(memory), width, height, style, granularity, color, colorEnd);
  SelectObject(memory, old);
  std::vector<uint32_t> pixels = BitmapPixels(memory, bitmap, width, height);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(like, dc);
  return pixels;
}

TEST_F(BlockPageTest, APreviewBoxShowsWhatTheGradientModulePaints) {
  AddBlocks(1);
  HostBlockPage();
  SelectTab(IDC_SSTab1, 2);
  SelectTab(IDC_SSTab3, 2);
  Choose(IDC_cbxGradientStyle, 1);
  ScrollTo(IDC_hslColor0, 200);
  ScrollTo(IDC_hslColorEnd1, 90);
  EXPECT_EQ(TextOf(IDC_lblColor0), L"Start Red = 200");
  EXPECT_EQ(TextOf(IDC_lblColorEnd1), L"End Green = 90");
  UpdateWindow(host);
  PumpMessages(20);

  int width = 0, height = 0;
  std::vector<uint32_t> shown = ClientPixels(Item(IDC_pctColor0), &width, &height);
  ASSERT_GT(width, 0);
  EXPECT_EQ(shown, ExpectedGradient(Item(IDC_pctColor0), width, height, 1, 0, 200, 0));

  // The result joins the three bars of each row: the block's colours with
  // the scrolled channels replaced.
  const auto startBefore = static_cast<OLE_COLOR>(LongOf(L"BlockGradientColor", {I2(1)}));
  const auto endBefore = static_cast<OLE_COLOR>(LongOf(L"BlockGradientColorEnd", {I2(1)}));
  const OLE_COLOR start = (startBefore & 0xFFFF00u) | 200u;
  const OLE_COLOR end = (endBefore & 0xFF00FFu) | (90u << 8);
  shown = ClientPixels(Item(IDC_pctResult), &width, &height);
  EXPECT_EQ(shown, ExpectedGradient(Item(IDC_pctResult), width, height, 1, 0, start, end));
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(static_cast<OLE_COLOR>(LongOf(L"BlockGradientColor", {I2(1)})), start);
  EXPECT_EQ(static_cast<OLE_COLOR>(LongOf(L"BlockGradientColorEnd", {I2(1)})), end);
  EXPECT_EQ(LongOf(L"BlockGradientStyle", {I2(1)}), 1);
}

TEST_F(BlockPageTest, TheWorkingCopySurvivesDeactivation) {
  AddBlocks(2);
  HostBlockPage();
  Type(IDC_txtBlockKey, L"kept");
  ASSERT_EQ(page->Deactivate(), S_OK);
  RECT area{0, 0, 400, 300};
  ASSERT_EQ(page->Activate(host, &area, FALSE), S_OK);
  EXPECT_EQ(TextOf(IDC_txtBlockKey), L"kept");
  EXPECT_EQ(TextOf(IDC_txtTextColor), L"This text is colored");
  EXPECT_EQ(SendMessageW(Item(IDC_cbxShapeStyle), CB_GETCOUNT, 0, 0), 2);
  ASSERT_EQ(page->Apply(), S_OK) << (errors.texts.empty() ? std::string() : errors.texts.back());
  EXPECT_EQ(StringOf(L"BlockKey", {I2(1)}), L"kept");
}

}  // namespace
}  // namespace vorlex::activex::test
