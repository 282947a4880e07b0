#include <vector>

#include "control_fixture.h"

using namespace vorlex;

using BlockListTest = ControlTest;

TEST_F(BlockListTest, NewControlHasNoBlocksAndAnUnsizedList) {
  EXPECT_EQ(control.get_Blocks(), 0);
  EXPECT_EQ(control.get_IndexBlock(), 0);
  // Not even the spare element exists before the first block.
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(Number(0)), kErrSubscript);
}

TEST_F(BlockListTest, AddBlockOnEmptyBarGivesOneBlockWithDefaults) {
  control.AddBlock();
  EXPECT_EQ(control.get_Blocks(), 1);
  EXPECT_EQ(control.get_BlockBarLeft(Number(1)), -1);
  EXPECT_EQ(control.get_BlockBarRight(Number(1)), -1);
  EXPECT_EQ(control.get_BlockBarTop(Number(1)), 100);
  EXPECT_EQ(control.get_BlockBarBottom(Number(1)), 0);
  EXPECT_EQ(control.get_BlockColor(Number(1)), 0x808080u);
}

TEST_F(BlockListTest, NewBlockTakesEveryDefault) {
  control.AddBlock();
  const Variant b = Number(1);
  EXPECT_EQ(control.get_BlockKey(b), "");
  EXPECT_EQ(control.get_BlockBorderStyle(b), vxNoneBorder);
  EXPECT_EQ(control.get_BlockBorderWidth(b), 1);
  EXPECT_EQ(control.get_BlockShapeStyle(b), vxRectangle);
  EXPECT_EQ(control.get_BlockBrushStyle(b), vxNoneBrush);
  EXPECT_EQ(control.get_BlockBrushColor(b), 0u);
  EXPECT_EQ(control.get_BlockVisible(b), VARIANT_TRUE);
  EXPECT_EQ(control.get_BlockHPercentage(b), "0");
  EXPECT_EQ(control.get_BlockVPercentage(b), "0");
  EXPECT_EQ(control.get_BlockOnTop(b), VARIANT_FALSE);
  EXPECT_EQ(control.get_BlockGradientStyle(b), vxNoneGradient);
  EXPECT_EQ(control.get_BlockGradientGranularity(b), vxDefault);
  EXPECT_EQ(control.get_BlockGradientColor(b), 0xFF0000u);
  EXPECT_EQ(control.get_BlockGradientColorEnd(b), 0u);
  EXPECT_EQ(control.get_BlockText(b), "");
  EXPECT_EQ(control.get_BlockTextColor(b), 0u);
  EXPECT_EQ(control.get_BlockTextAlignment(b), vxCenterCenter);
  ASSERT_NE(control.get_BlockTextFont(b), nullptr);
  EXPECT_EQ(control.get_BlockTextFont(b)->Name(), "MS Sans Serif");
  EXPECT_DOUBLE_EQ(control.get_BlockTextFont(b)->Size(), 8.25);
  EXPECT_EQ(control.get_BlockTextFont3D(b), vxNoneFont3D);
  EXPECT_EQ(control.get_BlockTextOffset(b), 3);
  EXPECT_EQ(control.get_BlockTextAngle(b), 0);
  EXPECT_EQ(control.get_BlockTextAutoAngle(b), vxNoneAuto);
  EXPECT_EQ(control.get_BlockRivetsStyle(b), vxNoneRivets);
  EXPECT_EQ(control.get_BlockPicture(b), nullptr);
  EXPECT_EQ(control.get_BlockPictureOffset(b), 3);
  EXPECT_EQ(control.get_BlockPictureAlignment(b), vxCenterCenter);
  EXPECT_EQ(control.get_BlockPictureTile(b), vxNoneTile);
  EXPECT_EQ(control.get_BlockClickable(b), VARIANT_TRUE);
  EXPECT_EQ(control.get_BlockAutoSize(b), VARIANT_TRUE);
}

TEST_F(BlockListTest, EachNewBlockHasAFontOfItsOwn) {
  AddBlocks(2);
  EXPECT_NE(control.get_BlockTextFont(Number(1)), control.get_BlockTextFont(Number(2)));
  EXPECT_NE(control.get_BlockTextFont(Number(1)), site.AmbientFont());
}

TEST_F(BlockListTest, AddBlockNeitherNotifiesNorRedraws) {
  control.AddBlock();
  EXPECT_TRUE(site.Notifications().empty());
  EXPECT_EQ(site.Paints(), 0);
}

TEST_F(BlockListTest, SpareElementZeroIsABlankRecord) {
  control.AddBlock();
  EXPECT_EQ(control.get_BlockColor(Number(0)), 0u);
  EXPECT_EQ(control.get_BlockVisible(Number(0)), VARIANT_FALSE);
  EXPECT_EQ(control.get_BlockTextFont(Number(0)), nullptr);
  EXPECT_EQ(control.get_BlockHPercentage(Number(0)), "");
}

class DeleteBlockTest : public ControlTest {
 protected:
  // Three blocks told apart by key, colour and GradientColorEnd.
  DeleteBlockTest() {
    AddBlocks(3);
    for (int i = 1; i <= 3; ++i) {
      control.put_BlockKey("k" + std::to_string(i), Number(i));
      control.put_BlockColor(static_cast<OLE_COLOR>(i), Number(i));
      control.put_BlockGradientColorEnd(static_cast<OLE_COLOR>(0x100 * i), Number(i));
    }
    site.ClearRecords();
  }
  std::vector<std::string> Keys() {
    std::vector<std::string> keys;
    for (int i = 1; i <= control.get_Blocks(); ++i) keys.push_back(control.get_BlockKey(Number(i)));
    return keys;
  }
};

TEST_F(DeleteBlockTest, DeletingBlock2KeepsGradientColorEndWithTheElement) {
  control.DeleteBlock(Number(2));
  EXPECT_EQ(control.get_Blocks(), 2);
  EXPECT_EQ(control.get_BlockKey(Number(2)), "k3");
  EXPECT_EQ(control.get_BlockColor(Number(2)), 3u);
  EXPECT_EQ(control.get_BlockGradientColorEnd(Number(2)), 0x200u);  // old block 2's
  EXPECT_EQ(control.get_BlockGradientColorEnd(Number(1)), 0x100u);
  EXPECT_EQ(Keys(), (std::vector<std::string>{"k1", "k3"}));
}

TEST_F(DeleteBlockTest, NonNumericKeyRemovesTheLastBlock) {
  control.DeleteBlock(Key("abc"));
  EXPECT_EQ(Keys(), (std::vector<std::string>{"k1", "k2"}));
}

TEST_F(DeleteBlockTest, AKeyOfABlockStillRemovesTheLastBlock) {
  control.DeleteBlock(Key("k1"));
  EXPECT_EQ(Keys(), (std::vector<std::string>{"k1", "k2"}));
}

TEST_F(DeleteBlockTest, ANumericStringIsStillAStringAndRemovesTheLastBlock) {
  control.DeleteBlock(Key("1"));
  EXPECT_EQ(Keys(), (std::vector<std::string>{"k1", "k2"}));
}

TEST_F(DeleteBlockTest, ZeroOrLessRemovesBlock1) {
  control.DeleteBlock(Number(0));
  EXPECT_EQ(Keys(), (std::vector<std::string>{"k2", "k3"}));
  control.DeleteBlock(Number(-5));
  EXPECT_EQ(Keys(), (std::vector<std::string>{"k3"}));
}

TEST_F(DeleteBlockTest, BeyondTheCountRemovesTheLastBlock) {
  control.DeleteBlock(Number(99));
  EXPECT_EQ(Keys(), (std::vector<std::string>{"k1", "k2"}));
}

TEST_F(DeleteBlockTest, FractionalNumbersCompareUnrounded) {
  // Every block above 1.5 moves down one place, so block 1 goes.
  control.DeleteBlock(Variant(1.5));
  EXPECT_EQ(Keys(), (std::vector<std::string>{"k2", "k3"}));
}

TEST_F(DeleteBlockTest, RedrawsButNotifiesNothing) {
  control.DeleteBlock(Number(1));
  EXPECT_EQ(site.Paints(), 1);
  EXPECT_TRUE(site.Notifications().empty());
}

TEST_F(DeleteBlockTest, DoesNotAdjustIndexBlock) {
  control.put_IndexBlock(3);
  control.DeleteBlock(Number(1));
  EXPECT_EQ(control.get_IndexBlock(), 3);
}

TEST_F(BlockListTest, DeleteBlockOnEmptyBarRaisesNothing) {
  control.DeleteBlock(Number(1));
  EXPECT_EQ(control.get_Blocks(), 0);
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(BlockListTest, DeletingTheLastBlockKeepsTheListSized) {
  control.AddBlock();
  control.DeleteBlock(Number(1));
  EXPECT_EQ(control.get_Blocks(), 0);
  EXPECT_EQ(control.get_BlockColor(Number(0)), 0u);  // spare element still there
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(Number(1)), kErrSubscript);
}

TEST_F(BlockListTest, BlocksLetGrowsWithDefaultBlocksAndRedrawsOnce) {
  control.put_Blocks(4);
  EXPECT_EQ(control.get_Blocks(), 4);
  EXPECT_EQ(control.get_BlockBarTop(Number(4)), 100);
  EXPECT_EQ(site.Paints(), 1);
  EXPECT_TRUE(site.Notifications().empty());
}

TEST_F(BlockListTest, BlocksLetShrinksFromTheEnd) {
  AddBlocks(5);
  for (int i = 1; i <= 5; ++i) control.put_BlockKey(std::to_string(i * 11), Number(i));
  control.put_Blocks(2);
  EXPECT_EQ(control.get_Blocks(), 2);
  EXPECT_EQ(control.get_BlockKey(Number(1)), "11");
  EXPECT_EQ(control.get_BlockKey(Number(2)), "22");
}

TEST_F(BlockListTest, SettingBlocksTo0On300BlocksOverflowsWithAllBlocksIntact) {
  AddBlocks(300);
  site.ClearRecords();
  EXPECT_AUTOMATION_ERROR(control.put_Blocks(0), kErrOverflow);
  EXPECT_EQ(control.get_Blocks(), 300);
  EXPECT_EQ(site.Paints(), 0);
}

TEST_F(BlockListTest, ShrinkingFrom255BlocksWorks) {
  AddBlocks(255);
  control.put_Blocks(0);
  EXPECT_EQ(control.get_Blocks(), 0);
}

TEST_F(BlockListTest, BlocksMinusOneRemovesEveryBlockWithoutError) {
  AddBlocks(3);
  control.put_Blocks(-1);
  EXPECT_EQ(control.get_Blocks(), 0);
}

TEST_F(BlockListTest, BlocksBelowMinusOneRemovesEveryBlockThenOverflows) {
  AddBlocks(3);
  EXPECT_AUTOMATION_ERROR(control.put_Blocks(-2), kErrOverflow);
  EXPECT_EQ(control.get_Blocks(), 0);
}

TEST_F(BlockListTest, ReadingBlocksOverflowsBeyond32767) {
  AddBlocks(32767);
  EXPECT_EQ(control.get_Blocks(), 32767);
  control.AddBlock();
  EXPECT_AUTOMATION_ERROR(control.get_Blocks(), kErrOverflow);
  // The key lookup counts blocks in 16 bits too.
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(Key("k")), kErrOverflow);
  // Numbers still reach every block.
  EXPECT_EQ(control.get_BlockColor(Variant(int32_t{32767})), 0x808080u);
}

TEST_F(BlockListTest, IndexBlockLetStoresUncheckedNotifiesAndRedraws) {
  control.put_IndexBlock(500);
  EXPECT_EQ(control.get_IndexBlock(), 500);
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{"IndexBlock"});
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(BlockListTest, ClearBlockBarUnplacesEveryBlockAndNotifiesBlock) {
  AddBlocks(2);
  control.put_BlockBarLeft(10, Number(1));
  control.put_BlockBarRight(20, Number(2));
  site.ClearRecords();
  control.ClearBlockBar();
  for (int i = 1; i <= 2; ++i) {
    EXPECT_EQ(control.get_BlockBarLeft(Number(i)), -1);
    EXPECT_EQ(control.get_BlockBarRight(Number(i)), -1);
  }
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{"Block"});
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(BlockListTest, ClearAllResetsFieldsKeepsCountAndUsesTheAmbientFont) {
  AddBlocks(2);
  control.put_BlockKey("gauge", Number(2));
  control.put_BlockColor(0xFF, Number(2));
  control.put_BlockText("x", Number(2));
  site.ClearRecords();
  control.ClearAll();
  EXPECT_EQ(control.get_Blocks(), 2);
  EXPECT_EQ(control.get_BlockKey(Number(2)), "");
  EXPECT_EQ(control.get_BlockColor(Number(2)), 0x808080u);
  EXPECT_EQ(control.get_BlockText(Number(2)), "");
  EXPECT_EQ(control.get_BlockTextFont(Number(2)), site.AmbientFont());
  EXPECT_EQ(site.Paints(), 1);
  EXPECT_TRUE(site.Notifications().empty());
}

TEST_F(BlockListTest, VxHardIsMinusOne) { EXPECT_EQ(static_cast<int32_t>(vxHard), -1); }

TEST_F(BlockListTest, ClearAllSoftAfterSaveSettingLeavesTheSnapshotForRestore) {
  AddBlocks(2);
  control.put_BlockKey("first", Number(1));
  control.put_BlockColor(0x123456, Number(2));
  control.SaveSetting();
  control.ClearAll(vxSoft);
  EXPECT_EQ(control.get_BlockKey(Number(1)), "");
  control.RestoreSetting();
  EXPECT_EQ(control.get_BlockKey(Number(1)), "first");
  EXPECT_EQ(control.get_BlockColor(Number(2)), 0x123456u);
}

TEST_F(BlockListTest, ClearAllHardAlsoResetsTheSnapshot) {
  AddBlocks(1);
  control.put_BlockKey("first", Number(1));
  control.SaveSetting();
  control.ClearAll(vxHard);
  control.RestoreSetting();
  EXPECT_EQ(control.get_BlockKey(Number(1)), "");
}

TEST_F(BlockListTest, ClearAllHardWithoutSnapshotIsOutOfRange) {
  AddBlocks(1);
  EXPECT_AUTOMATION_ERROR(control.ClearAll(vxHard), kErrSubscript);
}

TEST_F(BlockListTest, ClearAllWithAnotherValueIsSoft) {
  AddBlocks(1);
  control.put_BlockKey("first", Number(1));
  control.SaveSetting();
  control.ClearAll(1);  // only -1 is hard
  control.RestoreSetting();
  EXPECT_EQ(control.get_BlockKey(Number(1)), "first");
}

TEST_F(BlockListTest, SaveSettingNeitherRedrawsNorNotifies) {
  AddBlocks(1);
  control.SaveSetting();
  EXPECT_EQ(site.Paints(), 0);
  EXPECT_TRUE(site.Notifications().empty());
}

TEST_F(BlockListTest, SaveSettingKeepsGradientColorEndAndSharesObjects) {
  AddBlocks(1);
  control.put_BlockGradientColorEnd(0xABCDEF, Number(1));
  control.SaveSetting();
  const FontPtr font = control.get_BlockTextFont(Number(1));
  control.put_BlockGradientColorEnd(0, Number(1));
  control.RestoreSetting();
  EXPECT_EQ(control.get_BlockGradientColorEnd(Number(1)), 0xABCDEFu);
  EXPECT_EQ(control.get_BlockTextFont(Number(1)), font);
}

TEST_F(BlockListTest, RestoreBeforeAnySaveIsOutOfRange) {
  AddBlocks(1);
  EXPECT_AUTOMATION_ERROR(control.RestoreSetting(), kErrSubscript);
}

TEST_F(BlockListTest, RestoreWithBlocksAddedSinceTheSaveIsOutOfRange) {
  AddBlocks(1);
  control.put_BlockKey("a", Number(1));
  control.SaveSetting();
  control.put_BlockKey("b", Number(1));
  AddBlocks(1);
  EXPECT_AUTOMATION_ERROR(control.RestoreSetting(), kErrSubscript);
  EXPECT_EQ(control.get_BlockKey(Number(1)), "a");  // restored before the failure
}

TEST_F(BlockListTest, RestoreDoesNotRestoreTheCount) {
  AddBlocks(3);
  control.SaveSetting();
  control.DeleteBlock(Number(3));
  control.RestoreSetting();
  EXPECT_EQ(control.get_Blocks(), 2);
}

TEST_F(BlockListTest, RestoreOnEmptyBarOnlyRedraws) {
  control.RestoreSetting();
  EXPECT_EQ(site.Paints(), 1);
}
