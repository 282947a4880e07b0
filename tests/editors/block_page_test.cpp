// The Block page's loading, navigation, Add, Remove and Apply.

#include "editors/block_page.h"

#include <algorithm>

#include "page_fixture.h"

namespace vorlex::testing {
namespace {

class BlockPageTest : public ::testing::Test, protected DesignTimeControl {
 protected:
  void AddBlocks(int n) {
    for (int i = 0; i < n; ++i) object.Call("AddBlock");
  }
  void Open() {
    page.SetSelectedControls({&object});
    page.SelectionChanged();
  }
  int16_t BlockNumber(const char* property, int block) { return object.Get(property, {Block(block)}).ToInteger(); }
  std::string BlockText(const char* property, int block) { return object.Get(property, {Block(block)}).ToString(); }
  void Navigate(int value) {
    view.SetScrollValue("HScroll1", value);
    page.ControlEvent("HScroll1");
  }

  FakeView view;
  FakeDialogs dialogs;
  editors::BlockPage page{view, dialogs};
};

TEST_F(BlockPageTest, CaptionIsBlock) { EXPECT_EQ(page.Caption(), "&Block"); }

TEST_F(BlockPageTest, ListsHoldTheirEnumerationsAsValueDashName) {
  EXPECT_EQ(view.lists["cbxTextAlignment"].front(), "0 - vxCenterCenter");
  EXPECT_EQ(view.lists["cbxBorderStyle"].at(3), "3 - vxInset");
  EXPECT_EQ(view.lists["cbxGradientStyle"].at(12), "12 - vxOuterRectangleGradient");
  EXPECT_EQ(view.lists["cbxGradientStyle"].size(), 13u);
  for (const char* list : {"cbxShapeStyle", "cbxBrushStyle", "cbxGradientGranularity", "cbxRivetsStyle",
                           "cbxPictureAlignment", "cbxAutoAngle", "cbxFont3D", "cbxPictureTile"}) {
    const auto& items = view.lists[list];
    ASSERT_FALSE(items.empty()) << list;
    for (size_t i = 0; i < items.size(); ++i) EXPECT_EQ(items[i].rfind(std::to_string(i) + " - vx", 0), 0u) << list;
  }
}

TEST_F(BlockPageTest, TextFormatsAreTheSixteenLiveTextFormatsInOrder) {
  const auto& items = view.lists["cbxTextFormat"];
  ASSERT_EQ(items.size(), 16u);
  EXPECT_EQ(items.front(), "short time");
  EXPECT_EQ(items[6], "long date");
  EXPECT_EQ(items[7], "disk free:?");
  EXPECT_EQ(items.back(), "show horizontal ratio used:?");
}

TEST_F(BlockPageTest, ChannelLabelsStartAtZeroAndBarsRunTo255) {
  EXPECT_EQ(view.texts["lblColor(0)"], "Start Red = 0");
  EXPECT_EQ(view.texts["lblColor(2)"], "Start Blue = 0");
  EXPECT_EQ(view.texts["lblColorEnd(1)"], "End Green = 0");
  EXPECT_EQ(view.scrolls["hslColorEnd(2)"].maximum, 255);
  EXPECT_EQ(view.scrolls["hslColor(0)"].minimum, 0);
}

TEST_F(BlockPageTest, WithNoBlocksTheIndexIsEmptyAndTheTabsDisabledUntilAdd) {
  Open();
  EXPECT_TRUE(page.WorkingCopyLoaded());
  EXPECT_EQ(view.texts["txtIndex"], "");
  EXPECT_FALSE(view.enabled.at("SSTab1"));
  EXPECT_EQ(page.WorkingCopy().size(), 2u);
  page.ControlEvent("cmdAddBlock");
  EXPECT_TRUE(view.enabled.at("SSTab1"));
  EXPECT_EQ(view.texts["txtIndex"], "1");
}

TEST_F(BlockPageTest, LoadingCopiesEveryBlockAndShowsTheFirst) {
  AddBlocks(3);
  object.Let("BlockKey", {Block(1)}, "cpu");
  object.Let("BlockBarRight", {Block(1)}, Variant(int16_t{40}));
  object.Let("BlockColor", {Block(2)}, Variant(int32_t{0x00FF00}));
  Open();
  EXPECT_EQ(page.WorkingCopy().size(), 4u);
  EXPECT_EQ(page.CurrentBlock(), 1);
  EXPECT_EQ(view.texts["txtIndex"], "1");
  EXPECT_EQ(view.texts["txtBlockKey"], "cpu");
  EXPECT_EQ(view.texts["txtBlockBarRight"], "40");
  EXPECT_EQ(view.scrolls["HScroll1"].minimum, 1);
  EXPECT_EQ(view.scrolls["HScroll1"].maximum, 3);
  EXPECT_EQ(view.scrolls["HScroll1"].value, 1);
  EXPECT_EQ(page.WorkingCopy()[2].Color, 0x00FF00u);
  EXPECT_FALSE(page.Changed()) << "showing a block is no edit";
}

TEST_F(BlockPageTest, LoadingKeepsFontsAndPicturesAsReferences) {
  AddBlocks(1);
  Open();
  const Variant font = object.Get("BlockTextFont", {Block(1)});
  EXPECT_EQ(std::shared_ptr<Object>(page.WorkingCopy()[1].TextFont), font.ToObject());
  EXPECT_EQ(std::shared_ptr<Object>(page.WorkingCopy()[1].Picture), object.Get("BlockPicture", {Block(1)}).ToObject());
}

TEST_F(BlockPageTest, ShowingABlockFillsEveryControl) {
  AddBlocks(1);
  object.Let("BlockText", {Block(1)}, "hello");
  object.Let("BlockOnTop", {Block(1)}, Variant::Boolean(true));
  object.Let("BlockBorderStyle", {Block(1)}, Variant(int32_t{4}));
  object.Let("BlockBrushColor", {Block(1)}, Variant(int32_t{0x123456}));
  object.Let("BlockTextColor", {Block(1)}, Variant(int32_t{0x0000FF}));
  object.Let("BlockGradientColor", {Block(1)}, Variant(int32_t{0x102030}));
  object.Let("BlockGradientColorEnd", {Block(1)}, Variant(int32_t{0x405060}));
  Open();
  EXPECT_EQ(view.texts["txtBlockText"], "hello");
  EXPECT_TRUE(view.checks["chkBlockOnTop"]);
  EXPECT_TRUE(view.checks["chkBlockVisible"]);
  EXPECT_EQ(view.listIndexes["cbxBorderStyle"], 4);
  EXPECT_EQ(view.backColors["txtBrushColor"], 0x123456u);
  EXPECT_EQ(view.backColors["txtColor"], page.WorkingCopy()[1].Color);
  EXPECT_EQ(view.foreColors["txtTextColor"], 0x0000FFu);
  EXPECT_EQ(view.texts["txtTextColor"], "This text is colored");
  EXPECT_EQ(view.texts["txtTextFont"], "MS Sans Serif");
  EXPECT_EQ(view.scrolls["hslColor(0)"].value, 0x30);
  EXPECT_EQ(view.scrolls["hslColor(1)"].value, 0x20);
  EXPECT_EQ(view.scrolls["hslColor(2)"].value, 0x10);
  EXPECT_EQ(view.scrolls["hslColorEnd(0)"].value, 0x60);
  EXPECT_EQ(view.texts["lblColor(0)"], "Start Red = 48");
  EXPECT_EQ(view.texts["lblColorEnd(2)"], "End Blue = 64");
  EXPECT_EQ(view.pictures["Picture1"], page.WorkingCopy()[1].Picture);
  EXPECT_EQ(view.texts["txtBlockHPercentage"], BlockText("BlockHPercentage", 1));
}

TEST_F(BlockPageTest, ALaterSelectionChangeDoesNotReload) {
  AddBlocks(2);
  Open();
  object.Let("BlockKey", {Block(1)}, "changed behind the page");
  page.SelectionChanged();
  EXPECT_EQ(view.texts["txtBlockKey"], "");
  EXPECT_EQ(page.WorkingCopy()[1].Key, "");
}

TEST_F(BlockPageTest, AnotherSelectedControlGetsTheFirstControlsWorkingCopy) {
  AddBlocks(1);
  object.Let("BlockKey", {Block(1)}, "first");
  Open();
  DesignTimeControl other;
  other.object.Call("AddBlock");
  other.object.Let("BlockKey", {Block(1)}, "second");
  page.SetSelectedControls({&other.object});
  page.SelectionChanged();
  EXPECT_EQ(view.texts["txtBlockKey"], "first");
  page.ApplyChanges();
  EXPECT_EQ(other.object.Get("BlockKey", {Block(1)}).ToString(), "first");
}

TEST_F(BlockPageTest, OnlyTheFirstOfSeveralSelectedControlsIsReadAndWritten) {
  AddBlocks(1);
  DesignTimeControl other;
  other.object.Call("AddBlock");
  page.SetSelectedControls({&object, &other.object});
  page.SelectionChanged();
  view.Type("txtBlockKey", "only me");
  page.ControlEvent("txtBlockKey");
  page.ApplyChanges();
  EXPECT_EQ(BlockText("BlockKey", 1), "only me");
  EXPECT_EQ(other.object.Get("BlockKey", {Block(1)}).ToString(), "");
}

TEST_F(BlockPageTest, NavigationShowsTheChosenBlock) {
  AddBlocks(3);
  object.Let("BlockKey", {Block(3)}, "third");
  Open();
  Navigate(3);
  EXPECT_EQ(page.CurrentBlock(), 3);
  EXPECT_EQ(view.texts["txtIndex"], "3");
  EXPECT_EQ(view.texts["txtBlockKey"], "third");
}

TEST_F(BlockPageTest, NavigationWithoutBlocksDoesNothing) {
  Open();
  view.SetScrollRange("HScroll1", 1, 5);
  Navigate(4);
  EXPECT_EQ(page.CurrentBlock(), 0);
  EXPECT_EQ(view.texts["txtIndex"], "");
}

TEST_F(BlockPageTest, AddActsOnTheControlAtOnceAndShowsTheNewBlocksDefaults) {
  AddBlocks(1);
  Open();
  page.ControlEvent("cmdAddBlock");
  EXPECT_EQ(object.Get("Blocks").ToInteger(), 2) << "not waiting for Apply";
  EXPECT_EQ(page.CurrentBlock(), 2);
  EXPECT_EQ(view.texts["txtIndex"], "2");
  EXPECT_EQ(view.scrolls["HScroll1"].maximum, 2);
  EXPECT_EQ(view.scrolls["HScroll1"].value, 2);
  const BlockDefinition& b = page.WorkingCopy().at(2);
  EXPECT_EQ(b.BarLeft, -1);
  EXPECT_EQ(b.BarRight, -1);
  EXPECT_EQ(b.BarTop, 100);
  EXPECT_EQ(b.BarBottom, 0);
  EXPECT_EQ(b.BorderWidth, 1);
  EXPECT_EQ(b.HPercentage, "0");
  EXPECT_EQ(b.Visible, VARIANT_TRUE);
  EXPECT_EQ(b.OnTop, VARIANT_FALSE);
  EXPECT_EQ(b.Color, 0x808080u);
  EXPECT_EQ(b.GradientColor, 0xFF0000u);
  EXPECT_EQ(b.GradientColorEnd, 0u);
  EXPECT_EQ(b.TextOffset, 3);
  EXPECT_EQ(b.PictureOffset, 3);
  EXPECT_EQ(b.Clickable, VARIANT_TRUE);
  EXPECT_EQ(b.AutoSize, VARIANT_TRUE);
  ASSERT_TRUE(b.Picture);
  EXPECT_EQ(b.Picture->Type(), kPicTypeNone);
  EXPECT_EQ(std::shared_ptr<Object>(b.TextFont), object.Get("Font").ToObject()) << "the control's own font";
  EXPECT_EQ(view.texts["txtBlockBarTop"], "100");
  EXPECT_FALSE(page.Changed());
}

TEST_F(BlockPageTest, RemoveActsOnTheControlAtOnceAndMarksThePage) {
  AddBlocks(3);
  Open();
  Navigate(2);
  page.ControlEvent("cmdRemoveBlock");
  EXPECT_EQ(object.Get("Blocks").ToInteger(), 2);
  EXPECT_EQ(view.scrolls["HScroll1"].maximum, 2);
  EXPECT_TRUE(page.Changed());
  EXPECT_EQ(page.WorkingCopy().size(), 4u) << "the working copy is not shrunk";
}

TEST_F(BlockPageTest, RemovingTheLastBlockMovesToTheNewLast) {
  AddBlocks(3);
  object.Let("BlockKey", {Block(2)}, "second");
  Open();
  Navigate(3);
  page.ControlEvent("cmdRemoveBlock");
  EXPECT_EQ(page.CurrentBlock(), 2);
  EXPECT_EQ(view.texts["txtIndex"], "2");
  EXPECT_EQ(view.texts["txtBlockKey"], "second");
}

TEST_F(BlockPageTest, RemovingTheOnlyBlockDisablesTheTabs) {
  AddBlocks(1);
  Open();
  page.ControlEvent("cmdRemoveBlock");
  EXPECT_EQ(object.Get("Blocks").ToInteger(), 0);
  EXPECT_FALSE(view.enabled.at("SSTab1"));
  EXPECT_EQ(view.scrolls["HScroll1"].maximum, view.scrolls["HScroll1"].minimum);
}

TEST_F(BlockPageTest, RemovedBlocksSettingsComeBackAtItsOldIndexAfterApply) {
  AddBlocks(3);
  for (int i = 1; i <= 3; ++i) object.Let("BlockKey", {Block(i)}, "block" + std::to_string(i));
  Open();
  Navigate(2);
  page.ControlEvent("cmdRemoveBlock");
  EXPECT_EQ(BlockText("BlockKey", 2), "block3") << "the control moved its blocks down";
  page.ApplyChanges();
  EXPECT_EQ(object.Get("Blocks").ToInteger(), 2);
  EXPECT_EQ(BlockText("BlockKey", 1), "block1");
  EXPECT_EQ(BlockText("BlockKey", 2), "block2") << "the deleted block's settings are back";
}

TEST_F(BlockPageTest, AddAfterRemoveSizesTheWorkingCopyToTheNewCount) {
  AddBlocks(3);
  Open();
  Navigate(1);
  page.ControlEvent("cmdRemoveBlock");
  page.ControlEvent("cmdAddBlock");
  EXPECT_EQ(page.WorkingCopy().size(), 4u);
  EXPECT_EQ(page.WorkingCopy()[3].BarTop, 100) << "the record at the new index starts from the defaults";
}

TEST_F(BlockPageTest, ApplyWritesTheWorkingCopyWithoutPaintingUntilTheEnd) {
  AddBlocks(2);
  Open();
  view.Type("txtBlockBarRight", "55");
  page.ControlEvent("txtBlockBarRight");
  site.ClearRecords();
  page.ApplyChanges();
  EXPECT_EQ(BlockNumber("BlockBarRight", 1), 55);
  EXPECT_EQ(site.Paints(), 1) << "one repaint when DontRefreshAfterPropertyPage goes back to False";
  EXPECT_FALSE(object.Get("DontRefreshAfterPropertyPage").ToBoolean());
  const auto& notes = site.Notifications();
  ASSERT_EQ(notes.size(), 2u);
  EXPECT_EQ(notes.front(), "DontRefreshAfterPropertyPage");
}

TEST_F(BlockPageTest, ApplyWithoutBlocksWritesNothing) {
  Open();
  page.ApplyChanges();
  EXPECT_EQ(object.Get("Blocks").ToInteger(), 0);
  EXPECT_FALSE(object.Get("DontRefreshAfterPropertyPage").ToBoolean());
}

TEST_F(BlockPageTest, ApplyLeavesTheWorkingCopyAndItsFlag) {
  AddBlocks(1);
  Open();
  view.Type("txtBlockKey", "kept");
  page.ControlEvent("txtBlockKey");
  page.ApplyChanges();
  EXPECT_TRUE(page.WorkingCopyLoaded());
  EXPECT_EQ(page.WorkingCopy()[1].Key, "kept");
}

TEST_F(BlockPageTest, AControlWithMoreThan255BlocksCannotBeLoaded) {
  AddBlocks(256);
  page.SetSelectedControls({&object});
  EXPECT_AUTOMATION_ERROR(page.SelectionChanged(), 6);
  EXPECT_FALSE(page.WorkingCopyLoaded());
}

TEST_F(BlockPageTest, AControlWith255BlocksLoadsAndApplies) {
  AddBlocks(255);
  Open();
  EXPECT_EQ(view.scrolls["HScroll1"].maximum, 255);
  page.ApplyChanges();
  EXPECT_EQ(object.Get("Blocks").ToInteger(), 255);
}

TEST_F(BlockPageTest, ApplyToAControlThatGrewPast255FailsAndPaintsAgain) {
  AddBlocks(255);
  Open();
  page.ControlEvent("cmdAddBlock");
  EXPECT_AUTOMATION_ERROR(page.ApplyChanges(), 6);
  EXPECT_FALSE(object.Get("DontRefreshAfterPropertyPage").ToBoolean()) << "the control is left able to paint";
}

TEST_F(BlockPageTest, WithoutASelectedControlLoadingIsError9) { EXPECT_AUTOMATION_ERROR(page.SelectionChanged(), 9); }

TEST_F(BlockPageTest, ControlNamesCoverEveryControlOfThePage) {
  const auto names = page.ControlNames();
  for (const char* name : {"txtIndex",
                           "HScroll1",
                           "txtBlockKey",
                           "cmdAddBlock",
                           "cmdRemoveBlock",
                           "SSTab1",
                           "SSTab4",
                           "txtBlockBarLeft",
                           "chkBlockAutoSize",
                           "txtBlockHPercentage",
                           "cbxTextFormat",
                           "cmdFontSelection",
                           "cbxFont3D",
                           "cmdTextColorSelection",
                           "cbxTextAlignment",
                           "txtBlockTextAngle",
                           "cbxAutoAngle",
                           "txtBlockTextOffset",
                           "cbxShapeStyle",
                           "txtBlockBorderWidth",
                           "cmdColorSelection",
                           "chkBlockOnTop",
                           "cbxBrushStyle",
                           "cmdBrushColor",
                           "cbxGradientGranularity",
                           "hslColor(2)",
                           "pctColorEnd(1)",
                           "lblColorEnd(0)",
                           "pctResult",
                           "cbxRivetsStyle",
                           "cbxPictureAlignment",
                           "txtBlockPictureOffset",
                           "cbxPictureTile",
                           "Picture1",
                           "cmdBrowse",
                           "cmdRemove"})
    EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
}

}  // namespace
}  // namespace vorlex::testing
