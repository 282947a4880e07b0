#include <functional>
#include <vector>

#include "control_fixture.h"

using namespace vorlex;

using ControlPropertiesTest = ControlTest;

TEST(ControlDefaults, NewControlReportsItsDefaults) {
  HeadlessSite site;
  Vorlex control(site);
  control.InitProperties();
  EXPECT_EQ(control.get_BorderStyle(), vxInset);
  EXPECT_EQ(control.get_HMaxValue(), 100);
  EXPECT_EQ(control.get_TimerTimeInterval(), 1000);
  EXPECT_EQ(control.get_TimerDiskInterval(), 60000);
  EXPECT_EQ(control.get_Redraw(), VARIANT_TRUE);
  EXPECT_EQ(control.get_Blocks(), 0);
  EXPECT_EQ(control.get_BackColor(), 0xC0C0C0u);
  EXPECT_EQ(control.get_BorderWidth(), 1);
  EXPECT_EQ(control.get_HMinValue(), 0);
  EXPECT_EQ(control.get_VMinValue(), 0);
  EXPECT_EQ(control.get_VMaxValue(), 100);
  EXPECT_EQ(control.get_BrushStyle(), vxNoneBrush);
  EXPECT_EQ(control.get_BrushColor(), 0u);
  EXPECT_EQ(control.get_Caption(), "");
  EXPECT_EQ(control.get_CaptionAlignment(), vxCenterCenter);
  EXPECT_EQ(control.get_DisabledColor(), 0x808080u);
  EXPECT_EQ(control.get_Orientation(), vxFromLeft);
  EXPECT_EQ(control.get_CaptionOffset(), 3);
  EXPECT_EQ(control.get_CaptionAngle(), 0);
  EXPECT_EQ(control.get_CaptionAutoAngle(), vxNoneAuto);
  EXPECT_EQ(control.get_CaptionFont3D(), vxNoneFont3D);
  EXPECT_EQ(control.get_TimerTimeEnabled(), VARIANT_FALSE);
  EXPECT_EQ(control.get_TimerDiskEnabled(), VARIANT_FALSE);
  EXPECT_EQ(control.get_RivetsStyle(), vxNoneRivets);
  EXPECT_EQ(control.get_GradientStyle(), vxNoneGradient);
  EXPECT_EQ(control.get_GradientColor(), 0xFF0000u);
  EXPECT_EQ(control.get_GradientColorEnd(), 0u);
  EXPECT_EQ(control.get_GradientGranularity(), vxDefault);
  ASSERT_NE(control.get_Picture(), nullptr);
  EXPECT_EQ(control.get_Picture()->Type(), kPicTypeNone);
  EXPECT_EQ(control.get_PictureOffset(), 3);
  EXPECT_EQ(control.get_PictureAlignment(), vxCenterCenter);
  EXPECT_EQ(control.get_PictureTile(), vxNoneTile);
  EXPECT_EQ(control.get_PictureAutoSize(), vxNoneAutoSize);
  EXPECT_EQ(control.get_IndexBlock(), 0);
  EXPECT_EQ(control.get_Font(), site.AmbientFont());
}

TEST(ControlDefaults, TakingDefaultsNotifiesOnlyFontAndPaintsNothing) {
  HeadlessSite site;
  Vorlex control(site);
  control.InitProperties();
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{"Font"});
  EXPECT_EQ(site.Paints(), 0);
}

TEST(ControlDefaults, DesignTimePropertiesReadAtDesignTime) {
  HeadlessSite site;
  site.SetUserMode(false);
  Vorlex control(site);
  control.InitProperties();
  EXPECT_EQ(control.get_SpecialClearAllBlock(), vxDontClear);
  EXPECT_EQ(control.get_DontRefreshAfterPropertyPage(), VARIANT_FALSE);
}

TEST(ControlDefaults, PassThroughPropertiesComeFromTheHostWindow) {
  HeadlessSite site;
  Vorlex control(site);
  control.InitProperties();
  EXPECT_EQ(control.get_ForeColor(), site.ForeColor());
  EXPECT_EQ(control.get_Enabled(), VARIANT_TRUE);
  EXPECT_EQ(control.get_hWnd(), static_cast<int32_t>(site.hWnd()));
  EXPECT_NE(control.get_hWnd(), 0);
}

// Every plain control property: store, notify its own name, redraw once.
struct PlainProperty {
  const char* name;
  std::function<void(Vorlex&)> set;
  std::function<int64_t(Vorlex&)> get;
  int64_t expected;
};

class PlainPropertyTest : public ControlTest, public ::testing::WithParamInterface<PlainProperty> {};

TEST_P(PlainPropertyTest, StoresNotifiesItsNameAndRedrawsOnce) {
  const PlainProperty& p = GetParam();
  p.set(control);
  EXPECT_EQ(p.get(control), p.expected);
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{p.name});
  EXPECT_EQ(site.Paints(), 1);
}

#define PLAIN(Name, value)                                                                                        \
  PlainProperty {                                                                                                 \
#Name, [](Vorlex & c) { c.put_##Name(value); }, [](Vorlex &                                                   \
                                                       c) { return static_cast<int64_t>(c.get_##Name()); }, value \
  }

INSTANTIATE_TEST_SUITE_P(AllPlainProperties, PlainPropertyTest,
                         ::testing::Values(PLAIN(BackColor, 0x123456u), PLAIN(ForeColor, 0x00FF00u),
                                           PLAIN(BorderWidth, 7), PLAIN(BorderStyle, 9), PLAIN(HMinValue, -50),
                                           PLAIN(HMaxValue, 200), PLAIN(VMinValue, 10), PLAIN(VMaxValue, 90),
                                           PLAIN(BrushStyle, vxDiagonalCross), PLAIN(BrushColor, 0xFFu),
                                           PLAIN(CaptionAlignment, vxBottomLeft), PLAIN(DisabledColor, 0x404040u),
                                           PLAIN(Orientation, vxFromBottom), PLAIN(CaptionOffset, -4),
                                           PLAIN(CaptionAutoAngle, vxUp), PLAIN(CaptionFont3D, vxRaisedShadow),
                                           PLAIN(RivetsStyle, vxInsetRivets), PLAIN(GradientStyle, vxOuterHGradient),
                                           PLAIN(GradientColor, 0x1u), PLAIN(GradientColorEnd, 0x2u),
                                           PLAIN(GradientGranularity, vxMedium), PLAIN(PictureAutoSize, vxBothAutoSize),
                                           PLAIN(PictureTile, vxVerticalTile), PLAIN(PictureOffset, 12),
                                           PLAIN(PictureAlignment, vxTopLeft), PLAIN(IndexBlock, 4)),
                         [](const ::testing::TestParamInfo<PlainProperty>& p) { return std::string(p.param.name); });

TEST_F(ControlPropertiesTest, BorderStyle9IsStoredAsPassed) {
  control.put_BorderStyle(9);
  EXPECT_EQ(control.get_BorderStyle(), 9);
}

TEST_F(ControlPropertiesTest, BackColorAlsoSetsTheHostWindowBackground) {
  control.put_BackColor(0x80000005);
  EXPECT_EQ(site.BackColor(), 0x80000005u);
  EXPECT_EQ(control.get_BackColor(), 0x80000005u);
}

TEST_F(ControlPropertiesTest, CaptionIsStoredNotifiedAndRedrawn) {
  control.put_Caption("Disk C:");
  EXPECT_EQ(control.get_Caption(), "Disk C:");
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{"Caption"});
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(ControlPropertiesTest, EnabledPassesThroughToTheHostWindow) {
  control.put_Enabled(VARIANT_FALSE);
  EXPECT_EQ(site.Enabled(), VARIANT_FALSE);
  EXPECT_EQ(control.get_Enabled(), VARIANT_FALSE);
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{"Enabled"});
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(ControlPropertiesTest, FontIsASharedReferenceInTheHostWindow) {
  auto font = std::make_shared<Font>("Arial", 10);
  control.putref_Font(font);
  EXPECT_EQ(site.Font(), font);
  EXPECT_EQ(control.get_Font(), font);
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{"Font"});
}

TEST_F(ControlPropertiesTest, PictureIsASharedReference) {
  const PicturePtr picture = EmptyPicture();
  control.putref_Picture(picture);
  EXPECT_EQ(control.get_Picture(), picture);
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{"Picture"});
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(ControlPropertiesTest, CaptionAngleIsFolded) {
  const std::pair<int16_t, int16_t> cases[] = {{-30, 30},  {400, 40}, {370, 10},  {-90, 90},
                                               {-450, 90}, {720, 0},  {359, 359}, {-32768, 8}};
  for (const auto& [in, out] : cases) {
    control.put_CaptionAngle(in);
    EXPECT_EQ(control.get_CaptionAngle(), out) << in;
  }
}

TEST_F(ControlPropertiesTest, RedrawFalseSuspendsPaintingAndTrueRepaintsOnce) {
  control.put_Redraw(VARIANT_FALSE);
  site.ClearRecords();
  control.put_BorderWidth(2);
  control.put_BackColor(1);
  control.put_Caption("a");
  control.put_HMaxValue(50);
  control.put_VMaxValue(60);
  control.put_GradientStyle(1);
  control.put_BrushStyle(1);
  control.put_RivetsStyle(1);
  control.put_Orientation(1);
  control.put_PictureOffset(1);
  EXPECT_EQ(site.Paints(), 0);
  EXPECT_EQ(site.Notifications().size(), 10u);
  control.put_Redraw(VARIANT_TRUE);
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(ControlPropertiesTest, EqualRangeEndsPaintNothingUntilTheyDiffer) {
  control.put_HMaxValue(0);
  EXPECT_EQ(site.Paints(), 0);
  control.Refresh();
  control.UserControl_Paint();
  control.put_Caption("x");
  EXPECT_EQ(site.Paints(), 0);
  control.put_HMaxValue(1);
  EXPECT_EQ(site.Paints(), 1);
  control.put_VMinValue(100);
  control.Refresh();
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(ControlPropertiesTest, RangeBeyondSixteenBitsOverflowsTheRedraw) {
  control.put_HMaxValue(1);
  EXPECT_AUTOMATION_ERROR(control.put_HMinValue(-32768), kErrOverflow);
  EXPECT_EQ(control.get_HMinValue(), -32768);  // stored before the redraw failed
}

TEST_F(ControlPropertiesTest, RefreshAndPaintRequestsRedraw) {
  control.Refresh();
  control.UserControl_Paint();
  EXPECT_EQ(site.Paints(), 2);
  EXPECT_TRUE(site.Notifications().empty());
}

TEST_F(ControlPropertiesTest, SpecialClearAllBlockAtRunTimeRaises393) {
  AddBlocks(1);
  control.put_BlockKey("k", Number(1));
  EXPECT_AUTOMATION_ERROR(control.get_SpecialClearAllBlock(), kErrGetNotAtRunTime);
  EXPECT_AUTOMATION_ERROR(control.put_SpecialClearAllBlock(vxClear), kErrGetNotAtRunTime);
  EXPECT_EQ(control.get_BlockKey(Number(1)), "k");
  EXPECT_TRUE(site.Notifications().empty());
}

TEST_F(ControlPropertiesTest, DontRefreshAfterPropertyPageAtRunTimeRaises393) {
  EXPECT_AUTOMATION_ERROR(control.get_DontRefreshAfterPropertyPage(), kErrGetNotAtRunTime);
  EXPECT_AUTOMATION_ERROR(control.put_DontRefreshAfterPropertyPage(VARIANT_TRUE), kErrGetNotAtRunTime);
}

class DesignTimeTest : public ::testing::Test {
 protected:
  DesignTimeTest() {
    site.SetUserMode(false);
    control.InitProperties();
    site.ClearRecords();
  }
  HeadlessSite site;
  Vorlex control{site};
};

TEST_F(DesignTimeTest, SpecialClearAllBlockDontClearStillResetsEveryBlock) {
  control.put_Blocks(2);
  control.put_BlockKey("a", Variant(1));
  control.put_BlockColor(0xFF, Variant(2));
  site.ClearRecords();
  control.put_SpecialClearAllBlock(vxDontClear);
  EXPECT_EQ(control.get_Blocks(), 2);
  EXPECT_EQ(control.get_BlockKey(Variant(1)), "");
  EXPECT_EQ(control.get_BlockColor(Variant(2)), 0x808080u);
  EXPECT_EQ(control.get_SpecialClearAllBlock(), vxDontClear);
  EXPECT_EQ(site.Notifications(), (std::vector<std::string>{"SpecialClearAllBlock", "SpecialClearAllBlock"}));
  EXPECT_EQ(site.Paints(), 2);  // ClearAll's redraw, then its own
}

TEST_F(DesignTimeTest, SpecialClearAllBlockReadsZeroAfterAnySet) {
  control.put_SpecialClearAllBlock(vxClear);
  EXPECT_EQ(control.get_SpecialClearAllBlock(), 0);
}

TEST_F(DesignTimeTest, DontRefreshAfterPropertyPageSuspendsAndFalseRepaints) {
  control.put_DontRefreshAfterPropertyPage(VARIANT_TRUE);
  EXPECT_EQ(site.Paints(), 0);
  EXPECT_EQ(site.Notifications(), std::vector<std::string>{"DontRefreshAfterPropertyPage"});
  control.put_Caption("a");
  control.Refresh();
  EXPECT_EQ(site.Paints(), 0);
  EXPECT_EQ(control.get_DontRefreshAfterPropertyPage(), VARIANT_TRUE);
  control.put_DontRefreshAfterPropertyPage(VARIANT_FALSE);
  EXPECT_EQ(site.Paints(), 1);
}

TEST_F(ControlPropertiesTest, TimerSettingsNotifyWithoutRedrawing) {
  control.put_TimerTimeInterval(500);
  control.put_TimerDiskInterval(2000);
  control.put_TimerTimeEnabled(VARIANT_TRUE);
  control.put_TimerDiskEnabled(VARIANT_TRUE);
  EXPECT_EQ(site.Notifications(), (std::vector<std::string>{"TimerTimeInterval", "TimerDiskInterval",
                                                            "TimerTimeEnabled", "TimerDiskEnabled"}));
  EXPECT_EQ(site.Paints(), 0);
  EXPECT_EQ(control.get_TimerTimeInterval(), 500);
  EXPECT_EQ(control.get_TimerDiskInterval(), 2000);
  EXPECT_EQ(control.get_TimerTimeEnabled(), VARIANT_TRUE);
  EXPECT_EQ(control.get_TimerDiskEnabled(), VARIANT_TRUE);
}

namespace {
// A host window that refuses a foreground colour.
class RefusingSite : public HeadlessSite {
 public:
  void SetForeColor(OLE_COLOR) override { throw AutomationError(kErrInvalidPropertyValue); }
};
}  // namespace

TEST(ControlHostWindow, AFailingHostCallReachesTheCallerUnchanged) {
  RefusingSite site;
  Vorlex control(site);
  control.InitProperties();
  site.ClearRecords();
  EXPECT_AUTOMATION_ERROR(control.put_ForeColor(0xFF), kErrInvalidPropertyValue);
  EXPECT_TRUE(site.Notifications().empty());
  EXPECT_EQ(site.Paints(), 0);
}
