#include <gtest/gtest.h>

#include <vector>

#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

using namespace vorlex;

namespace {
// A 200 x 100 bar without a border after one redraw: 2 pixels a unit across, 1 down.
class MouseTest : public ::testing::Test {
 protected:
  MouseTest() : site(200, 100) {
    control.InitProperties();
    control.put_BorderStyle(vxNoneBorder);
    control.put_BorderWidth(0);  // the unit sizes subtract the width even without a border
  }
  void AddBlock(int16_t left, int16_t right, int16_t top, int16_t bottom) {
    control.AddBlock();
    const Variant b(control.get_Blocks());
    control.put_BlockBarLeft(left, b);
    control.put_BlockBarRight(right, b);
    control.put_BlockBarTop(top, b);
    control.put_BlockBarBottom(bottom, b);
  }
  std::string Release(float x, float y) {
    site.ClearRecords();
    control.UserControl_MouseUp(1, 0, x, y);
    return site.RaisedEvents().empty() ? "" : site.RaisedEvents().back();
  }
  HeadlessSite site;
  Vorlex control{site};
};
}  // namespace

TEST_F(MouseTest, NoBlocksGivesMinusOne) {
  control.Refresh();
  EXPECT_EQ(Release(10, 10), "BlockClicked -1");
}

TEST_F(MouseTest, TheLowestIndexWinsEvenUnderAnOnTopBlock) {
  AddBlock(0, 50, 100, 0);
  AddBlock(0, 50, 100, 0);
  control.put_BlockOnTop(VARIANT_TRUE, Variant(2));
  control.Refresh();
  EXPECT_EQ(Release(20, 50), "BlockClicked 1");
}

TEST_F(MouseTest, BoundsAreInclusive) {
  AddBlock(10, 20, 80, 30);
  control.Refresh();
  EXPECT_EQ(Release(40, 50), "BlockClicked 1");  // exactly on BarRight x 2
  EXPECT_EQ(Release(20, 20), "BlockClicked 1");  // exactly on BarLeft x 2 and (100 - 80) x 1
  EXPECT_EQ(Release(40.01f, 50), "BlockClicked -1");
  EXPECT_EQ(Release(30, 70.01f), "BlockClicked -1");
}

TEST_F(MouseTest, AnInvisibleOrUnclickableBlockIsNeverHit) {
  AddBlock(0, 100, 100, 0);
  control.put_BlockVisible(VARIANT_FALSE, Variant(1));
  control.Refresh();
  EXPECT_EQ(Release(10, 10), "BlockClicked -1");
  control.put_BlockVisible(VARIANT_TRUE, Variant(1));
  control.put_BlockClickable(1, Variant(1));  // not the canonical true
  EXPECT_EQ(Release(10, 10), "BlockClicked -1");
}

TEST_F(MouseTest, BeforeTheFirstRedrawOnlyTheOriginHits) {
  HeadlessSite fresh(200, 100);
  fresh.SetUserMode(true);
  Vorlex unpainted(fresh);
  unpainted.AddBlock();
  unpainted.AddBlock();
  unpainted.put_BlockBarLeft(0, Variant(2));  // block 1 keeps -1: -1 x 0 is still 0
  unpainted.UserControl_MouseUp(0, 0, 0.0f, 0.0f);
  unpainted.UserControl_MouseUp(0, 0, 1.0f, 0.0f);
  EXPECT_EQ(fresh.RaisedEvents(), (std::vector<std::string>{"BlockClicked 1", "BlockClicked -1"}));
}

TEST_F(MouseTest, VerticalOrientationsSwapTheUnitSizes) {
  control.put_Orientation(vxFromTop);
  AddBlock(0, 10, 100, 90);
  control.Refresh();
  // Across uses VUnitSize (1), down uses HUnitSize (2): x 0..10, y 0..20.
  EXPECT_EQ(Release(10, 20), "BlockClicked 1");
  EXPECT_EQ(Release(11, 5), "BlockClicked -1");
}

TEST_F(MouseTest, ClickAndDblClickAreForwarded) {
  site.ClearRecords();
  control.UserControl_Click();
  control.UserControl_DblClick();
  EXPECT_EQ(site.RaisedEvents(), (std::vector<std::string>{"Click", "DblClick"}));
}
