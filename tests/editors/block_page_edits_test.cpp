// Each edit handler of the Block page: what it stores, how it converts, and
// the changed flag; the dialogs and the live-text token insertion.

#include <vector>

#include "block_page_fixture.h"
#include "picture/temp_folder.h"
#include "solid_bmp.h"

namespace vorlex::testing {
namespace {

TEST_F(BlockPageEdit, KeyAndTextAreStoredAsTyped) {
  Type("txtBlockKey", " disk C ");
  Type("txtBlockText", "Free: !disk free:C!");
  EXPECT_EQ(Record().Key, " disk C ");
  EXPECT_EQ(Record().Text, "Free: !disk free:C!");
  EXPECT_TRUE(page.Changed());
  EXPECT_EQ(view.changedReports.back(), true) << "the host hears of it";
}

TEST_F(BlockPageEdit, EveryNumberBoxStoresItsField) {
  struct Box {
    const char* control;
    int16_t BlockDefinition::*field;
    const char* property;
  };
  const std::vector<Box> boxes = {
      {"txtBlockBarLeft", &BlockDefinition::BarLeft, "BlockBarLeft"},
      {"txtBlockBarRight", &BlockDefinition::BarRight, "BlockBarRight"},
      {"txtBlockBarTop", &BlockDefinition::BarTop, "BlockBarTop"},
      {"txtBlockBarBottom", &BlockDefinition::BarBottom, "BlockBarBottom"},
      {"txtBlockBorderWidth", &BlockDefinition::BorderWidth, "BlockBorderWidth"},
      {"txtBlockTextOffset", &BlockDefinition::TextOffset, "BlockTextOffset"},
      {"txtBlockTextAngle", &BlockDefinition::TextAngle, "BlockTextAngle"},
      {"txtBlockPictureOffset", &BlockDefinition::PictureOffset, "BlockPictureOffset"},
  };
  int16_t value = 11;
  for (const Box& box : boxes) {
    Type(box.control, std::to_string(value));
    EXPECT_EQ(Record().*box.field, value) << box.control;
    ++value;
  }
  page.ApplyChanges();
  value = 11;
  for (const Box& box : boxes) EXPECT_EQ(BlockValue(box.property).ToInteger(), value++) << box.property;
}

TEST_F(BlockPageEdit, NumberBoxesTakeTheLeadingNumberRoundedHalfToEven) {
  Type("txtBlockBarRight", "42 percent");
  EXPECT_EQ(Record().BarRight, 42);
  Type("txtBlockBarRight", "2.5");
  EXPECT_EQ(Record().BarRight, 2);
  Type("txtBlockBarRight", "3.5");
  EXPECT_EQ(Record().BarRight, 4);
  Type("txtBlockBarRight", "-7.5e0");
  EXPECT_EQ(Record().BarRight, -8);
  Type("txtBlockBarRight", "&H10");
  EXPECT_EQ(Record().BarRight, 16);
}

TEST_F(BlockPageEdit, TextThatIsNoNumberStoresZero) {
  Type("txtBlockBarTop", "top");
  EXPECT_EQ(Record().BarTop, 0);
  Type("txtBlockBarTop", "");
  EXPECT_EQ(Record().BarTop, 0);
}

TEST_F(BlockPageEdit, ANumberBeyondSixteenBitsIsAnOverflowOfTheHandler) {
  Type("txtBlockBarTop", "12");
  view.Type("txtBlockBarTop", "32768");
  EXPECT_AUTOMATION_ERROR(page.ControlEvent("txtBlockBarTop"), 6);
  EXPECT_EQ(Record().BarTop, 12);
  Type("txtBlockBarTop", "-32768");
  EXPECT_EQ(Record().BarTop, -32768);
}

TEST_F(BlockPageEdit, CheckBoxesStoreTrueWhenChecked) {
  Check("chkBlockOnTop", true);
  Check("chkBlockVisible", false);
  Check("chkBlockClickable", false);
  Check("chkBlockAutoSize", false);
  EXPECT_EQ(Record().OnTop, VARIANT_TRUE);
  EXPECT_EQ(Record().Visible, VARIANT_FALSE);
  EXPECT_EQ(Record().Clickable, VARIANT_FALSE);
  EXPECT_EQ(Record().AutoSize, VARIANT_FALSE);
  page.ApplyChanges();
  EXPECT_EQ(BlockValue("BlockOnTop").ToBoolean(), VARIANT_TRUE);
  EXPECT_EQ(BlockValue("BlockVisible").ToBoolean(), VARIANT_FALSE);
}

TEST_F(BlockPageEdit, EveryListStoresItsIndex) {
  struct List {
    const char* control;
    int16_t BlockDefinition::*field;
    int index;
  };
  const std::vector<List> lists = {
      {"cbxShapeStyle", &BlockDefinition::ShapeStyle, 1},
      {"cbxBorderStyle", &BlockDefinition::BorderStyle, 5},
      {"cbxBrushStyle", &BlockDefinition::BrushStyle, 3},
      {"cbxGradientStyle", &BlockDefinition::GradientStyle, 7},
      {"cbxGradientGranularity", &BlockDefinition::GradientGranularity, 2},
      {"cbxRivetsStyle", &BlockDefinition::RivetsStyle, 2},
      {"cbxTextAlignment", &BlockDefinition::TextAlignment, 8},
      {"cbxPictureAlignment", &BlockDefinition::PictureAlignment, 4},
      {"cbxAutoAngle", &BlockDefinition::TextAutoAngle, 1},
      {"cbxFont3D", &BlockDefinition::TextFont3D, 3},
      {"cbxPictureTile", &BlockDefinition::PictureTile, 1},
  };
  for (const List& list : lists) {
    Choose(list.control, list.index);
    EXPECT_EQ(Record().*list.field, list.index) << list.control;
  }
  page.ApplyChanges();
  EXPECT_EQ(BlockValue("BlockBorderStyle").ToLong(), 5);
  EXPECT_EQ(BlockValue("BlockTextAlignment").ToLong(), 8);
  EXPECT_EQ(BlockValue("BlockPictureTile").ToLong(), 1);
}

TEST_F(BlockPageEdit, EditingTheHorizontalPercentageMarksThePageButIsNeverWritten) {
  const std::string before = BlockValue("BlockHPercentage").ToString();
  EXPECT_FALSE(page.Changed());
  Type("txtBlockHPercentage", "77");
  EXPECT_TRUE(page.Changed());
  EXPECT_EQ(Record().HPercentage, before);
  page.ApplyChanges();
  EXPECT_EQ(BlockValue("BlockHPercentage").ToString(), before);
  Type("txtBlockVPercentage", "12");
  EXPECT_EQ(Record().VPercentage, BlockValue("BlockVPercentage").ToString());
}

TEST_F(BlockPageEdit, ATokenGoesInAtTheCaretWithTheCharacterBeforeItTwice) {
  view.SetText("txtBlockText", "ab");
  view.carets["txtBlockText"] = 1;
  Choose("cbxTextFormat", 0);
  EXPECT_EQ(view.texts["txtBlockText"], "a!short time!ab");
  EXPECT_EQ(Record().Text, "a!short time!ab") << "stored as the text box's change stores it";
  EXPECT_TRUE(page.Changed());
}

TEST_F(BlockPageEdit, TheLongDateTokenAtTheVeryStartGoesBeforeTheWholeText) {
  view.SetText("txtBlockText", "Today");
  view.carets["txtBlockText"] = 0;
  Choose("cbxTextFormat", 6);
  EXPECT_EQ(Record().Text, "!long date!Today");
}

TEST_F(BlockPageEdit, ATokenAtTheEndRepeatsTheLastCharacter) {
  view.Type("txtBlockText", "Free ");
  Choose("cbxTextFormat", 7);
  EXPECT_EQ(Record().Text, "Free !disk free:?! ");
}

TEST_F(BlockPageEdit, TheCaretCountsCharactersNotBytes) {
  view.SetText("txtBlockText", "\xC3\xA9t\xC3\xA9");  // "été"
  view.carets["txtBlockText"] = 1;
  Choose("cbxTextFormat", 0);
  EXPECT_EQ(Record().Text, "\xC3\xA9!short time!\xC3\xA9t\xC3\xA9");
}

TEST_F(BlockPageEdit, ColourButtonsStoreTheChosenColourAndShowItOnTheSwatch) {
  dialogs.Confirm([](editors::CommonDialog& d) { d.Color = 0x00AA55; });
  page.ControlEvent("cmdColorSelection");
  EXPECT_EQ(Record().Color, 0x00AA55u);
  EXPECT_EQ(view.backColors["txtColor"], 0x00AA55u);
  EXPECT_EQ(dialogs.lastFlags, editors::kColorInitialColor);
  dialogs.Confirm([](editors::CommonDialog& d) { d.Color = 0x111111; });
  page.ControlEvent("cmdBrushColor");
  EXPECT_EQ(Record().BrushColor, 0x111111u);
  EXPECT_EQ(view.backColors["txtBrushColor"], 0x111111u);
  dialogs.Confirm([](editors::CommonDialog& d) { d.Color = 0x0000FF; });
  page.ControlEvent("cmdTextColorSelection");
  EXPECT_EQ(Record().TextColor, 0x0000FFu);
  EXPECT_EQ(view.foreColors["txtTextColor"], 0x0000FFu);
  EXPECT_TRUE(page.Changed());
  page.ApplyChanges();
  EXPECT_EQ(BlockValue("BlockColor").ToLong(), 0x00AA55);
  EXPECT_EQ(BlockValue("BlockBrushColor").ToLong(), 0x111111);
  EXPECT_EQ(BlockValue("BlockTextColor").ToLong(), 0x0000FF);
}

TEST_F(BlockPageEdit, TheColourDialogStartsFromTheFieldsColour) {
  Type("txtBlockKey", "x");
  OLE_COLOR seen = 1;
  dialogs.answer = [&seen](editors::CommonDialog& d) {
    seen = d.Color;
    return false;
  };
  page.ControlEvent("cmdColorSelection");
  EXPECT_EQ(seen, Record().Color);
}

TEST_F(BlockPageEdit, ACancelledColourDialogChangesNothing) {
  const OLE_COLOR before = Record().Color;
  dialogs.Cancel();
  page.ControlEvent("cmdColorSelection");
  page.ControlEvent("cmdBrushColor");
  page.ControlEvent("cmdTextColorSelection");
  EXPECT_EQ(dialogs.shown.size(), 3u);
  EXPECT_EQ(Record().Color, before);
  EXPECT_FALSE(page.Changed());
}

TEST_F(BlockPageEdit, TheFontButtonCopiesTheSixValuesIntoTheBlocksFontObject) {
  const FontPtr font = Record().TextFont;
  ASSERT_TRUE(font);
  std::string presetName;
  dialogs.Confirm([&presetName](editors::CommonDialog& d) {
    presetName = d.FontName;
    d.FontName = "Arial";
    d.FontSize = 12;
    d.FontBold = true;
    d.FontItalic = true;
    d.FontUnderline = true;
    d.FontStrikethru = true;
  });
  page.ControlEvent("cmdFontSelection");
  EXPECT_EQ(presetName, "MS Sans Serif");
  EXPECT_EQ(dialogs.lastFlags, 259);
  EXPECT_EQ(Record().TextFont, font) << "the same object, changed";
  EXPECT_EQ(font->Name(), "Arial");
  EXPECT_EQ(font->Size(), 12);
  EXPECT_TRUE(font->Bold() && font->Italic() && font->Underline() && font->Strikethrough());
  EXPECT_EQ(view.texts["txtTextFont"], "Arial");
  EXPECT_TRUE(page.Changed());
}

TEST_F(BlockPageEdit, ACancelledFontDialogLeavesTheFont) {
  dialogs.Cancel();
  page.ControlEvent("cmdFontSelection");
  EXPECT_EQ(Record().TextFont->Name(), "MS Sans Serif");
  EXPECT_FALSE(page.Changed());
}

TEST_F(BlockPageEdit, BrowseLoadsThePictureIntoThePreviewAndTheBlock) {
  picture_test::TempFolder folder;
  const std::string path = folder.Write("red.bmp", SolidBmp(4, 3, 0xFF0000));
  dialogs.Confirm([path](editors::CommonDialog& d) { d.FileName = path; });
  page.ControlEvent("cmdBrowse");
  EXPECT_EQ(dialogs.lastFilter, editors::BlockPage::kPictureFilter);
  ASSERT_TRUE(Record().Picture);
  EXPECT_EQ(Record().Picture->PixelWidth(), 4);
  EXPECT_EQ(view.pictures["Picture1"], Record().Picture);
  EXPECT_TRUE(page.Changed());
  page.ApplyChanges();
  EXPECT_EQ(BlockValue("BlockPicture").ToObject(), std::shared_ptr<Object>(Record().Picture));
}

TEST_F(BlockPageEdit, ACancelledBrowseKeepsThePicture) {
  const PicturePtr before = Record().Picture;
  dialogs.Cancel();
  page.ControlEvent("cmdBrowse");
  EXPECT_EQ(Record().Picture, before);
  EXPECT_FALSE(page.Changed());
}

TEST_F(BlockPageEdit, BrowsingToAFileThatIsNoPictureIsError481) {
  picture_test::TempFolder folder;
  const std::string path = folder.Write("notes.txt", std::vector<uint8_t>{'h', 'i'});
  dialogs.Confirm([path](editors::CommonDialog& d) { d.FileName = path; });
  EXPECT_AUTOMATION_ERROR(page.ControlEvent("cmdBrowse"), 481);
}

TEST_F(BlockPageEdit, RemoveStoresAnEmptyPicture) {
  page.ControlEvent("cmdRemove");
  ASSERT_TRUE(Record().Picture);
  EXPECT_EQ(Record().Picture->Type(), kPicTypeNone);
  EXPECT_EQ(view.pictures["Picture1"], Record().Picture);
  EXPECT_TRUE(page.Changed());
}

TEST_F(BlockPageEdit, GradientBarsSetTheirLabelAndTheRowsColour) {
  Scroll("hslColor(0)", 128);
  EXPECT_EQ(view.texts["lblColor(0)"], "Start Red = 128");
  Scroll("hslColor(2)", 255);
  EXPECT_EQ(Record().GradientColor, 0xFF0080u);
  Scroll("hslColorEnd(1)", 16);
  EXPECT_EQ(view.texts["lblColorEnd(1)"], "End Green = 16");
  EXPECT_EQ(Record().GradientColorEnd, 0x001000u);
  EXPECT_TRUE(page.Changed());
  page.ApplyChanges();
  EXPECT_EQ(BlockValue("BlockGradientColor").ToLong(), 0xFF0080);
  EXPECT_EQ(BlockValue("BlockGradientColorEnd").ToLong(), 0x001000);
}

TEST_F(BlockPageEdit, EditsGoToTheCurrentBlockOnly) {
  object.Call("AddBlock");
  page.ControlEvent("cmdAddBlock");
  Type("txtBlockKey", "third");
  view.SetScrollValue("HScroll1", 1);
  page.ControlEvent("HScroll1");
  EXPECT_EQ(view.texts["txtBlockKey"], "");
  EXPECT_EQ(page.WorkingCopy().at(3).Key, "third");
}

TEST_F(BlockPageEdit, ApplyWritesThePageFontAndPictureAsReferences) {
  page.ControlEvent("cmdRemove");
  page.ApplyChanges();
  EXPECT_EQ(BlockValue("BlockTextFont").ToObject(), std::shared_ptr<Object>(Record().TextFont));
  EXPECT_EQ(BlockValue("BlockPicture").ToObject(), std::shared_ptr<Object>(Record().Picture));
}

}  // namespace
}  // namespace vorlex::testing
