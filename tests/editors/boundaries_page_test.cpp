// The Boundaries page: four boxes, read on selection, written on Apply.

#include "editors/boundaries_page.h"

#include "page_fixture.h"

namespace vorlex::testing {
namespace {

class BoundariesPageTest : public ::testing::Test, protected DesignTimeControl {
 protected:
  void Open() {
    page.SetSelectedControls({&object});
    page.SelectionChanged();
  }
  FakeView view;
  FakeDialogs dialogs;
  editors::BoundariesPage page{view, dialogs};
};

TEST_F(BoundariesPageTest, CaptionIsBoundaries) { EXPECT_EQ(page.Caption(), "&Boundaries"); }

TEST_F(BoundariesPageTest, LoadingShowsTheFourValues) {
  object.Let("HMinValue", {}, Variant(int16_t{-5}));
  object.Let("VMaxValue", {}, Variant(int16_t{250}));
  Open();
  EXPECT_EQ(view.texts["txtHMinValue"], "-5");
  EXPECT_EQ(view.texts["txtHMaxValue"], "100");
  EXPECT_EQ(view.texts["txtVMinValue"], "0");
  EXPECT_EQ(view.texts["txtVMaxValue"], "250");
  EXPECT_FALSE(page.Changed());
}

TEST_F(BoundariesPageTest, EachBoxMarksThePage) {
  Open();
  for (const char* box : {"txtHMinValue", "txtHMaxValue", "txtVMinValue", "txtVMaxValue"}) {
    page.SetChanged(false);
    page.ControlEvent(box);
    EXPECT_TRUE(page.Changed()) << box;
  }
}

TEST_F(BoundariesPageTest, TwelveFollowedByLettersAppliesTwelveAndLettersOnlyApplyZero) {
  Open();
  view.SetText("txtHMaxValue", "12abc");
  view.SetText("txtVMaxValue", "abc");
  page.ApplyChanges();
  EXPECT_EQ(object.Get("HMaxValue").ToInteger(), 12);
  EXPECT_EQ(object.Get("VMaxValue").ToInteger(), 0);
}

TEST_F(BoundariesPageTest, AMinimumAboveItsMaximumIsPassedOnAsItIs) {
  Open();
  view.SetText("txtHMinValue", "50");
  view.SetText("txtHMaxValue", "10");
  page.ApplyChanges();
  EXPECT_EQ(object.Get("HMinValue").ToInteger(), 50);
  EXPECT_EQ(object.Get("HMaxValue").ToInteger(), 10);
}

TEST_F(BoundariesPageTest, FractionsRoundHalfToEven) {
  Open();
  view.SetText("txtVMinValue", "2.5");
  view.SetText("txtVMaxValue", "7.5");
  page.ApplyChanges();
  EXPECT_EQ(object.Get("VMinValue").ToInteger(), 2);
  EXPECT_EQ(object.Get("VMaxValue").ToInteger(), 8);
}

TEST_F(BoundariesPageTest, AnOverflowEndsApplyAndKeepsTheFieldsBeforeIt) {
  Open();
  view.SetText("txtHMinValue", "7");
  view.SetText("txtHMaxValue", "99999");
  view.SetText("txtVMinValue", "3");
  EXPECT_AUTOMATION_ERROR(page.ApplyChanges(), 6);
  EXPECT_EQ(object.Get("HMinValue").ToInteger(), 7);
  EXPECT_EQ(object.Get("HMaxValue").ToInteger(), 100);
  EXPECT_EQ(object.Get("VMinValue").ToInteger(), 0);
}

TEST_F(BoundariesPageTest, WithSeveralControlsSelectedOnlyTheFirstChanges) {
  DesignTimeControl other;
  page.SetSelectedControls({&object, &other.object});
  page.SelectionChanged();
  view.SetText("txtHMaxValue", "60");
  page.ApplyChanges();
  EXPECT_EQ(object.Get("HMaxValue").ToInteger(), 60);
  EXPECT_EQ(other.object.Get("HMaxValue").ToInteger(), 100);
}

}  // namespace
}  // namespace vorlex::testing
