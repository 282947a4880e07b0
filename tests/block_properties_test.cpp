#include <vector>

#include "control_fixture.h"

using namespace vorlex;

class BlockPropertiesTest : public ControlTest {
 protected:
  BlockPropertiesTest() {
    AddBlocks(3);
    site.ClearRecords();
  }
};

TEST_F(BlockPropertiesTest, OmittedBlockArgumentAddressesIndexBlock) {
  control.put_IndexBlock(2);
  control.put_BlockColor(0x0000FF);
  EXPECT_EQ(control.get_BlockColor(Number(2)), 0x0000FFu);
  EXPECT_EQ(control.get_BlockColor(Number(1)), 0x808080u);
  EXPECT_EQ(control.get_BlockColor(), 0x0000FFu);
}

TEST_F(BlockPropertiesTest, ExplicitlyMissingArgumentActsAsOmitted) {
  control.put_IndexBlock(3);
  control.put_BlockText("third", Variant::Missing());
  EXPECT_EQ(control.get_BlockText(Number(3)), "third");
}

TEST_F(BlockPropertiesTest, IndexBlockIsUsedUncheckedWhenOmitted) {
  control.put_IndexBlock(7);
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(), kErrSubscript);
  control.put_IndexBlock(0);
  EXPECT_EQ(control.get_BlockColor(), 0u);  // the spare element
}

TEST_F(BlockPropertiesTest, MinusOneIsTheSameAsOmitted) {
  control.put_IndexBlock(1);
  control.put_BlockTextOffset(9, Variant(-1));
  EXPECT_EQ(control.get_BlockTextOffset(Number(1)), 9);
}

TEST_F(BlockPropertiesTest, UnknownKeyWritesTheSpareElementAndStillRedraws) {
  control.put_BlockColor(0x00FF00, Key("nobody"));
  EXPECT_EQ(site.Paints(), 1);
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(control.get_BlockColor(Number(i)), 0x808080u);
  EXPECT_EQ(control.get_BlockColor(Number(0)), 0x00FF00u);
  EXPECT_EQ(control.get_BlockColor(Key("also unknown")), 0x00FF00u);
}

TEST_F(BlockPropertiesTest, KeyFindsTheFirstBlockWithThatKeyCaseSensitively) {
  control.put_BlockKey("disk", Number(2));
  control.put_BlockKey("disk", Number(3));
  control.put_BlockColor(0x111111, Key("disk"));
  EXPECT_EQ(control.get_BlockColor(Number(2)), 0x111111u);
  EXPECT_EQ(control.get_BlockColor(Number(3)), 0x808080u);
  control.put_BlockColor(0x222222, Key("DISK"));
  EXPECT_EQ(control.get_BlockColor(Number(0)), 0x222222u);
}

TEST_F(BlockPropertiesTest, EmptyKeyFindsTheFirstBlockWithAnEmptyKey) {
  control.put_BlockKey("a", Number(1));
  control.put_BlockText("found", Key(""));
  EXPECT_EQ(control.get_BlockText(Number(2)), "found");
}

TEST_F(BlockPropertiesTest, NumericStringAddressesByNumberEvenIfAKeyMatches) {
  control.put_BlockKey("3", Number(1));
  control.put_BlockText("third", Key("3"));
  EXPECT_EQ(control.get_BlockText(Number(3)), "third");
  EXPECT_EQ(control.get_BlockText(Number(1)), "");
}

TEST_F(BlockPropertiesTest, NumbersRoundHalfToEven) {
  control.put_BlockText("two", Variant(2.5));
  EXPECT_EQ(control.get_BlockText(Number(2)), "two");
  control.put_BlockText("two too", Key("2.5"));
  EXPECT_EQ(control.get_BlockText(Number(2)), "two too");
  EXPECT_AUTOMATION_ERROR(control.put_BlockText("four", Variant(3.5)), kErrSubscript);  // 4, not 3
}

TEST_F(BlockPropertiesTest, BlockArgumentBeyondSixteenBitsOverflows) {
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(Variant(32767.5)), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(Variant(int32_t{40000})), kErrOverflow);
}

TEST_F(BlockPropertiesTest, EmptyBlockArgumentIsElementZero) {
  control.put_BlockText("spare", Variant());
  EXPECT_EQ(control.get_BlockText(Number(0)), "spare");
}

TEST_F(BlockPropertiesTest, BooleanBlockArgumentTrueIsIndexBlock) {
  control.put_IndexBlock(1);
  control.put_BlockText("via true", Variant::Boolean(true));
  EXPECT_EQ(control.get_BlockText(Number(1)), "via true");
}

TEST_F(BlockPropertiesTest, ObjectAsBlockArgumentIsTypeMismatch) {
  const Variant font(std::static_pointer_cast<Object>(std::make_shared<Font>()));
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(font), kErrTypeMismatch);
}

TEST_F(BlockPropertiesTest, OutOfRangeNumberIsSubscriptError) {
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(Number(4)), kErrSubscript);
  EXPECT_AUTOMATION_ERROR(control.put_BlockColor(1, Number(-2)), kErrSubscript);
  EXPECT_EQ(site.Paints(), 0);
}

TEST_F(BlockPropertiesTest, BlockKeyWithoutBlockArgumentIsOutOfRange) {
  EXPECT_AUTOMATION_ERROR(control.get_BlockKey(), kErrSubscript);
  EXPECT_AUTOMATION_ERROR(control.put_BlockKey("x"), kErrSubscript);
}

TEST_F(BlockPropertiesTest, BlockKeyWithNonNumericKeyIsTypeMismatch) {
  EXPECT_AUTOMATION_ERROR(control.get_BlockKey(Key("abc")), kErrTypeMismatch);
}

TEST_F(BlockPropertiesTest, BlockKeyTakesNumbersAndNumericStrings) {
  control.put_BlockKey("second", Key("2"));
  EXPECT_EQ(control.get_BlockKey(Variant(int32_t{2})), "second");
  EXPECT_EQ(control.get_BlockKey(Number(0)), "");
}

TEST_F(BlockPropertiesTest, BlockKeySetterDoesNotRedraw) {
  control.put_BlockKey("k", Number(1));
  EXPECT_EQ(site.Paints(), 0);
  EXPECT_TRUE(site.Notifications().empty());
}

TEST_F(BlockPropertiesTest, SettersRedrawAndNotifyNothing) {
  control.put_BlockBarLeft(10, Number(1));
  control.put_BlockVisible(VARIANT_FALSE, Number(1));
  control.put_BlockHPercentage("50", Number(1));
  EXPECT_EQ(site.Paints(), 3);
  EXPECT_TRUE(site.Notifications().empty());
}

TEST_F(BlockPropertiesTest, BorderStyle70000OverflowsAnd99IsStored) {
  EXPECT_AUTOMATION_ERROR(control.put_BlockBorderStyle(70000, Number(1)), kErrOverflow);
  EXPECT_EQ(control.get_BlockBorderStyle(Number(1)), vxNoneBorder);
  control.put_BlockBorderStyle(99, Number(1));
  EXPECT_EQ(control.get_BlockBorderStyle(Number(1)), 99);
}

TEST_F(BlockPropertiesTest, EnumerationsWidenWithTheirSign) {
  control.put_BlockGradientStyle(-3, Number(1));
  EXPECT_EQ(control.get_BlockGradientStyle(Number(1)), -3);
  control.put_BlockTextAlignment(-32768, Number(1));
  EXPECT_EQ(control.get_BlockTextAlignment(Number(1)), -32768);
}

TEST_F(BlockPropertiesTest, ResolvingComesBeforeNarrowing) {
  EXPECT_AUTOMATION_ERROR(control.put_BlockRivetsStyle(70000, Number(9)), kErrSubscript);
}

TEST_F(BlockPropertiesTest, NoRangeChecksOnPlainValues) {
  control.put_BlockBarLeft(-32768, Number(1));
  control.put_BlockTextAngle(1000, Number(1));
  control.put_BlockVisible(1, Number(1));  // stored as passed, not canonical
  EXPECT_EQ(control.get_BlockBarLeft(Number(1)), -32768);
  EXPECT_EQ(control.get_BlockTextAngle(Number(1)), 1000);  // no folding for blocks
  EXPECT_EQ(control.get_BlockVisible(Number(1)), 1);
}

TEST_F(BlockPropertiesTest, FontsAreSharedReferences) {
  auto font = std::make_shared<Font>("Arial", 12);
  control.put_BlockTextFont(font, Number(1));
  control.put_BlockTextFont(font, Number(2));
  font->SetBold(true);
  EXPECT_TRUE(control.get_BlockTextFont(Number(1))->Bold());
  EXPECT_EQ(control.get_BlockTextFont(Number(2)), font);
}

TEST_F(BlockPropertiesTest, PicturesAreSharedReferences) {
  const PicturePtr picture = EmptyPicture();
  control.putref_BlockPicture(picture, Number(3));
  EXPECT_EQ(control.get_BlockPicture(Number(3)), picture);
  control.putref_BlockPicture(nullptr, Number(3));
  EXPECT_EQ(control.get_BlockPicture(Number(3)), nullptr);
}

TEST_F(BlockPropertiesTest, StringsAreCopies) {
  std::string text = "before";
  control.put_BlockText(text, Number(1));
  text = "after";
  EXPECT_EQ(control.get_BlockText(Number(1)), "before");
}

TEST_F(BlockPropertiesTest, EveryFieldReadsBackWhatWasWritten) {
  const Variant b = Number(2);
  control.put_BlockBarLeft(1, b);
  control.put_BlockBarRight(2, b);
  control.put_BlockBarTop(3, b);
  control.put_BlockBarBottom(4, b);
  control.put_BlockBorderStyle(vxBump, b);
  control.put_BlockBorderWidth(5, b);
  control.put_BlockShapeStyle(vxCircle, b);
  control.put_BlockBrushStyle(vxCross, b);
  control.put_BlockBrushColor(6, b);
  control.put_BlockVisible(VARIANT_FALSE, b);
  control.put_BlockHPercentage("h", b);
  control.put_BlockVPercentage("v", b);
  control.put_BlockOnTop(VARIANT_TRUE, b);
  control.put_BlockColor(7, b);
  control.put_BlockGradientStyle(vxOuterRectangleGradient, b);
  control.put_BlockGradientGranularity(vxVeryLow, b);
  control.put_BlockGradientColor(8, b);
  control.put_BlockGradientColorEnd(9, b);
  control.put_BlockText("t", b);
  control.put_BlockTextColor(10, b);
  control.put_BlockTextAlignment(vxBottomRight, b);
  control.put_BlockTextFont3D(vxInsetShadow, b);
  control.put_BlockTextOffset(11, b);
  control.put_BlockTextAngle(12, b);
  control.put_BlockTextAutoAngle(vxDown, b);
  control.put_BlockRivetsStyle(vxInsetRivetsExt, b);
  control.put_BlockPictureOffset(13, b);
  control.put_BlockPictureAlignment(vxTopRight, b);
  control.put_BlockPictureTile(vxBothTile, b);
  control.put_BlockClickable(VARIANT_FALSE, b);
  control.put_BlockAutoSize(VARIANT_FALSE, b);
  EXPECT_EQ(control.get_BlockBarLeft(b), 1);
  EXPECT_EQ(control.get_BlockBarRight(b), 2);
  EXPECT_EQ(control.get_BlockBarTop(b), 3);
  EXPECT_EQ(control.get_BlockBarBottom(b), 4);
  EXPECT_EQ(control.get_BlockBorderStyle(b), vxBump);
  EXPECT_EQ(control.get_BlockBorderWidth(b), 5);
  EXPECT_EQ(control.get_BlockShapeStyle(b), vxCircle);
  EXPECT_EQ(control.get_BlockBrushStyle(b), vxCross);
  EXPECT_EQ(control.get_BlockBrushColor(b), 6u);
  EXPECT_EQ(control.get_BlockVisible(b), VARIANT_FALSE);
  EXPECT_EQ(control.get_BlockHPercentage(b), "h");
  EXPECT_EQ(control.get_BlockVPercentage(b), "v");
  EXPECT_EQ(control.get_BlockOnTop(b), VARIANT_TRUE);
  EXPECT_EQ(control.get_BlockColor(b), 7u);
  EXPECT_EQ(control.get_BlockGradientStyle(b), vxOuterRectangleGradient);
  EXPECT_EQ(control.get_BlockGradientGranularity(b), vxVeryLow);
  EXPECT_EQ(control.get_BlockGradientColor(b), 8u);
  EXPECT_EQ(control.get_BlockGradientColorEnd(b), 9u);
  EXPECT_EQ(control.get_BlockText(b), "t");
  EXPECT_EQ(control.get_BlockTextColor(b), 10u);
  EXPECT_EQ(control.get_BlockTextAlignment(b), vxBottomRight);
  EXPECT_EQ(control.get_BlockTextFont3D(b), vxInsetShadow);
  EXPECT_EQ(control.get_BlockTextOffset(b), 11);
  EXPECT_EQ(control.get_BlockTextAngle(b), 12);
  EXPECT_EQ(control.get_BlockTextAutoAngle(b), vxDown);
  EXPECT_EQ(control.get_BlockRivetsStyle(b), vxInsetRivetsExt);
  EXPECT_EQ(control.get_BlockPictureOffset(b), 13);
  EXPECT_EQ(control.get_BlockPictureAlignment(b), vxTopRight);
  EXPECT_EQ(control.get_BlockPictureTile(b), vxBothTile);
  EXPECT_EQ(control.get_BlockClickable(b), VARIANT_FALSE);
  EXPECT_EQ(control.get_BlockAutoSize(b), VARIANT_FALSE);
  // Neighbours are untouched.
  EXPECT_EQ(control.get_BlockColor(Number(1)), 0x808080u);
  EXPECT_EQ(control.get_BlockColor(Number(3)), 0x808080u);
}
