#include <vector>

#include "control_fixture.h"

using namespace vorlex;

class BulkSettersTest : public ControlTest {
 protected:
  BulkSettersTest() {
    AddBlocks(3);
    site.ClearRecords();
  }
  const std::vector<std::string> kBlock{"Block"};
};

TEST_F(BulkSettersTest, SetBlockColorWritesEveryBlockNotifiesBlockAndRedraws) {
  control.SetBlockColor(0x0000FF);
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(control.get_BlockColor(Number(i)), 0x0000FFu);
  EXPECT_EQ(site.Notifications(), kBlock);
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(BulkSettersTest, SpareElementIsNotTouched) {
  control.SetBlockText("all");
  EXPECT_EQ(control.get_BlockText(Number(0)), "");
}

TEST_F(BulkSettersTest, OmittedArgumentsTakeTheirDefaults) {
  control.SetBlockColor(1);
  control.SetBlockColor();
  control.SetBlockVisible(VARIANT_FALSE);
  control.SetBlockVisible();
  control.SetBlockBrushColor();
  control.SetBlockTextOffset();
  control.SetBlockGradientColor();
  control.SetBlockClickable();
  control.SetBlockAutoSize();
  EXPECT_EQ(control.get_BlockColor(Number(2)), 0x808080u);
  EXPECT_EQ(control.get_BlockVisible(Number(2)), VARIANT_TRUE);
  EXPECT_EQ(control.get_BlockBrushColor(Number(2)), 0x808080u);  // not the block default 0
  EXPECT_EQ(control.get_BlockTextOffset(Number(2)), 3);
  EXPECT_EQ(control.get_BlockGradientColor(Number(2)), 0xFF0000u);
  EXPECT_EQ(control.get_BlockClickable(Number(2)), VARIANT_TRUE);
  EXPECT_EQ(control.get_BlockAutoSize(Number(2)), VARIANT_TRUE);
}

TEST_F(BulkSettersTest, WithNoBlocksStillNotifiesAndRedraws) {
  control.put_Blocks(0);
  site.ClearRecords();
  control.SetBlockBorderStyle(vxRaised);
  EXPECT_EQ(site.Notifications(), kBlock);
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(BulkSettersTest, EnumerationsOverflowAtTheFirstBlock) {
  EXPECT_AUTOMATION_ERROR(control.SetBlockShapeStyle(70000), kErrOverflow);
  EXPECT_TRUE(site.Notifications().empty());
  EXPECT_EQ(site.Paints(), 0);
  control.SetBlockShapeStyle(99);
  EXPECT_EQ(control.get_BlockShapeStyle(Number(3)), 99);
}

TEST_F(BulkSettersTest, TaggedValuesConvertForEveryBlock) {
  control.SetBlockTextAngle(Variant("45"));
  control.SetBlockTextOffset(Variant(2.5));
  control.SetBlockTextAutoAngle(Variant::Boolean(true));
  EXPECT_EQ(control.get_BlockTextAngle(Number(1)), 45);
  EXPECT_EQ(control.get_BlockTextOffset(Number(3)), 2);
  EXPECT_EQ(control.get_BlockTextAutoAngle(Number(2)), -1);
  EXPECT_AUTOMATION_ERROR(control.SetBlockTextAngle(Variant("steep")), kErrTypeMismatch);
  EXPECT_AUTOMATION_ERROR(control.SetBlockTextOffset(Variant(int32_t{40000})), kErrOverflow);
}

TEST_F(BulkSettersTest, SetBlockBarTopDividesTwipsByTheVerticalFactor) {
  control.SetBlockBarTop(300);
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(control.get_BlockBarTop(Number(i)), 20);
  control.SetBlockBarTop(-7);
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(control.get_BlockBarTop(Number(i)), 0);
  control.SetBlockBarTop(-31);
  EXPECT_EQ(control.get_BlockBarTop(Number(1)), -2);
}

TEST(BulkSetterFactors, BarTopUsesTheVerticalFactorAndBarBottomTheHorizontal) {
  HeadlessSite site;
  site.SetTwipsPerPixel(10.0f, 20.0f);
  Vorlex control(site);
  control.InitProperties();
  control.AddBlock();
  control.SetBlockBarTop(300);
  control.SetBlockBarBottom(300);
  EXPECT_EQ(control.get_BlockBarTop(Variant(1)), 15);
  EXPECT_EQ(control.get_BlockBarBottom(Variant(1)), 30);
}

TEST(BulkSetterFactors, AZeroFactorIsDivisionByZero) {
  HeadlessSite site;
  site.SetTwipsPerPixel(0.4f, 0.4f);  // rounds to 0
  Vorlex control(site);
  control.InitProperties();
  control.AddBlock();
  EXPECT_AUTOMATION_ERROR(control.SetBlockBarTop(300), kErrDivisionByZero);
  EXPECT_AUTOMATION_ERROR(control.SetBlockBarBottom(300), kErrDivisionByZero);
}

TEST(BulkSetterFactors, FactorsAreCapturedWithTheDefaults) {
  HeadlessSite site;
  Vorlex control(site);
  control.InitProperties();
  site.SetTwipsPerPixel(1.0f, 1.0f);  // a later change of display is not seen
  control.AddBlock();
  control.SetBlockBarTop(300);
  EXPECT_EQ(control.get_BlockBarTop(Variant(1)), 20);
}

TEST_F(BulkSettersTest, GradientAndAlignmentSettersDoNotNotify) {
  control.SetBlockTextAlignment(vxTopLeft);
  control.SetBlockGradientStyle(vxInnerCircleGradient);
  control.SetBlockGradientGranularity(vxLow);
  control.SetBlockGradientColor(1);
  control.SetBlockGradientColorEnd(2);
  EXPECT_TRUE(site.Notifications().empty());
  EXPECT_EQ(site.Paints(), 5);
  EXPECT_EQ(control.get_BlockTextAlignment(Number(3)), vxTopLeft);
  EXPECT_EQ(control.get_BlockGradientStyle(Number(3)), vxInnerCircleGradient);
  EXPECT_EQ(control.get_BlockGradientGranularity(Number(3)), vxLow);
  EXPECT_EQ(control.get_BlockGradientColor(Number(3)), 1u);
  EXPECT_EQ(control.get_BlockGradientColorEnd(Number(3)), 2u);
}

TEST_F(BulkSettersTest, NotifyingSettersEachNotifyBlockOnce) {
  control.SetBlockShapeStyle();
  control.SetBlockBorderStyle();
  control.SetBlockTextOffset();
  control.SetBlockTextAngle();
  control.SetBlockTextAutoAngle();
  control.SetBlockTextColor();
  control.SetBlockBrushColor();
  control.SetBlockBrushStyle();
  control.SetBlockColor();
  control.SetBlockBarTop();
  control.SetBlockBarBottom();
  control.SetBlockVisible();
  control.SetBlockClickable();
  control.SetBlockAutoSize();
  control.SetBlockRivetsStyle();
  control.SetBlockPicture();
  control.SetBlockText();
  EXPECT_EQ(site.Notifications(), std::vector<std::string>(17, "Block"));
  EXPECT_EQ(site.Paints(), 17);
}

TEST_F(BulkSettersTest, SetBlockPictureSharesOnePictureAmongAllBlocks) {
  const PicturePtr picture = EmptyPicture();
  control.SetBlockPicture(picture);
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(control.get_BlockPicture(Number(i)), picture);
}

TEST_F(BulkSettersTest, ChangingASharedFontChangesItForEveryHolder) {
  auto font = std::make_shared<Font>("Courier New", 10);
  for (int i = 1; i <= 3; ++i) control.put_BlockTextFont(font, Number(i));
  control.get_BlockTextFont(Number(1))->SetItalic(true);
  EXPECT_TRUE(control.get_BlockTextFont(Number(3))->Italic());
}

TEST_F(BulkSettersTest, EveryFieldIsWritten) {
  control.SetBlockBorderStyle(vxEtched);
  control.SetBlockTextColor(0x10);
  control.SetBlockBrushStyle(vxVertical);
  control.SetBlockRivetsStyle(vxRaisedRivets);
  control.SetBlockText("t");
  control.SetBlockBarBottom(150);
  EXPECT_EQ(control.get_BlockBorderStyle(Number(2)), vxEtched);
  EXPECT_EQ(control.get_BlockTextColor(Number(2)), 0x10u);
  EXPECT_EQ(control.get_BlockBrushStyle(Number(2)), vxVertical);
  EXPECT_EQ(control.get_BlockRivetsStyle(Number(2)), vxRaisedRivets);
  EXPECT_EQ(control.get_BlockText(Number(2)), "t");
  EXPECT_EQ(control.get_BlockBarBottom(Number(2)), 10);
}
