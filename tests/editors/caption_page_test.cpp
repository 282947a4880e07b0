// The Caption page: loading from the control, the font button, Apply.

#include "editors/caption_page.h"

#include "page_fixture.h"
#include "vorlex/Font.h"

namespace vorlex::testing {
namespace {

class CaptionPageTest : public ::testing::Test, protected DesignTimeControl {
 protected:
  void Open() {
    page.SetSelectedControls({&object});
    page.SelectionChanged();
  }
  FontPtr ControlFont() { return std::dynamic_pointer_cast<Font>(object.Get("Font").ToObject()); }

  FakeView view;
  FakeDialogs dialogs;
  editors::CaptionPage page{view, dialogs};
};

TEST_F(CaptionPageTest, CaptionIsCaption) { EXPECT_EQ(page.Caption(), "&Caption"); }

TEST_F(CaptionPageTest, ListsHoldTheirEnumerations) {
  EXPECT_EQ(view.lists["cbxCaptionAlignment"].front(), "0 - vxCenterCenter");
  EXPECT_EQ(view.lists["cbxCaptionAutoAngle"].at(1), "1 - vxUp");
  EXPECT_EQ(view.lists["cbxCaptionFont3D"].at(4), "4 - vxInsetShadow");
}

TEST_F(CaptionPageTest, LoadingFillsEveryControlAndPresetsTheFontDialog) {
  object.Let("Caption", {}, "Load");
  object.Let("CaptionAngle", {}, Variant(int16_t{-30}));
  object.Let("CaptionAlignment", {}, Variant(int32_t{4}));
  object.Let("CaptionFont3D", {}, Variant(int32_t{2}));
  object.Let("CaptionAutoAngle", {}, Variant(int32_t{1}));
  ControlFont()->SetBold(true);
  Open();
  EXPECT_EQ(view.texts["txtCaption"], "Load");
  EXPECT_EQ(view.texts["txtCaptionAngle"], "30");
  EXPECT_EQ(view.texts["txtCaptionFont"], "MS Sans Serif");
  EXPECT_EQ(view.listIndexes["cbxCaptionAlignment"], 4);
  EXPECT_EQ(view.listIndexes["cbxCaptionFont3D"], 2);
  EXPECT_EQ(view.listIndexes["cbxCaptionAutoAngle"], 1);
  EXPECT_EQ(page.Dialog().Flags, 259);
  EXPECT_EQ(page.Dialog().FontName, "MS Sans Serif");
  EXPECT_FLOAT_EQ(page.Dialog().FontSize, 8.25f);
  EXPECT_TRUE(page.Dialog().FontBold);
  EXPECT_FALSE(page.Dialog().FontItalic);
}

TEST_F(CaptionPageTest, ApplyWithoutTheFontButtonLeavesTheFontAsItWas) {
  const FontPtr font = ControlFont();
  font->SetItalic(true);
  font->SetSize(10);
  Open();
  page.ApplyChanges();
  EXPECT_EQ(ControlFont(), font);
  EXPECT_EQ(font->Name(), "MS Sans Serif");
  EXPECT_EQ(font->Size(), 10);
  EXPECT_TRUE(font->Italic());
  EXPECT_FALSE(font->Bold());
}

TEST_F(CaptionPageTest, ApplyWritesEveryFieldIntoTheControl) {
  Open();
  view.SetText("txtCaption", "Disk");
  view.SetListIndex("cbxCaptionFont3D", 3);
  view.SetListIndex("cbxCaptionAlignment", 7);
  view.SetText("txtCaptionAngle", "400 degrees");
  view.SetListIndex("cbxCaptionAutoAngle", 1);
  page.ControlEvent("txtCaption");
  EXPECT_TRUE(page.Changed());
  page.ApplyChanges();
  EXPECT_EQ(object.Get("Caption").ToString(), "Disk");
  EXPECT_EQ(object.Get("CaptionFont3D").ToLong(), 3);
  EXPECT_EQ(object.Get("CaptionAlignment").ToLong(), 7);
  EXPECT_EQ(object.Get("CaptionAngle").ToInteger(), 40) << "folded by the property";
  EXPECT_EQ(object.Get("CaptionAutoAngle").ToLong(), 1);
}

TEST_F(CaptionPageTest, EveryOtherControlOnlyMarksThePage) {
  Open();
  for (const char* box : {"cbxCaptionFont3D", "cbxCaptionAlignment", "txtCaptionAngle", "cbxCaptionAutoAngle"}) {
    page.SetChanged(false);
    page.ControlEvent(box);
    EXPECT_TRUE(page.Changed()) << box;
  }
  EXPECT_EQ(object.Get("Caption").ToString(), "");
}

TEST_F(CaptionPageTest, AChosenFontShowsTheOldNameUntilTheControlHasIt) {
  Open();
  dialogs.Confirm([](editors::CommonDialog& d) {
    d.FontName = "Arial";
    d.FontSize = 14;
    d.FontUnderline = true;
  });
  page.ControlEvent("cmdFontSelection");
  EXPECT_TRUE(page.Changed());
  EXPECT_EQ(view.texts["txtCaptionFont"], "MS Sans Serif");
  EXPECT_EQ(ControlFont()->Name(), "MS Sans Serif") << "nothing reaches the control before Apply";
  page.ApplyChanges();
  EXPECT_EQ(ControlFont()->Name(), "Arial");
  EXPECT_EQ(ControlFont()->Size(), 14);
  EXPECT_TRUE(ControlFont()->Underline());
  page.SelectionChanged();
  EXPECT_EQ(view.texts["txtCaptionFont"], "Arial");
}

TEST_F(CaptionPageTest, ACancelledFontDialogIsAnErrorAndLeavesThePageUnchanged) {
  Open();
  dialogs.Cancel();
  EXPECT_AUTOMATION_ERROR(page.ControlEvent("cmdFontSelection"), 32755);
  EXPECT_FALSE(page.Changed());
}

TEST_F(CaptionPageTest, WithSeveralControlsSelectedOnlyTheFirstChanges) {
  DesignTimeControl other;
  page.SetSelectedControls({&object, &other.object});
  page.SelectionChanged();
  view.SetText("txtCaption", "first only");
  page.ApplyChanges();
  EXPECT_EQ(object.Get("Caption").ToString(), "first only");
  EXPECT_EQ(other.object.Get("Caption").ToString(), "");
}

TEST_F(CaptionPageTest, AnAngleBeyondSixteenBitsEndsApplyAtThatField) {
  Open();
  view.SetText("txtCaption", "written");
  view.SetText("txtCaptionAngle", "40000");
  view.SetListIndex("cbxCaptionAutoAngle", 1);
  EXPECT_AUTOMATION_ERROR(page.ApplyChanges(), 6);
  EXPECT_EQ(object.Get("Caption").ToString(), "written");
  EXPECT_EQ(object.Get("CaptionAutoAngle").ToLong(), 0);
}

}  // namespace
}  // namespace vorlex::testing
