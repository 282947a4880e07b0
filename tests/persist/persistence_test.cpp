// Saving to and loading from a property bag: keys, order, kinds, defaults,
// what loading stores and how, and the kept asymmetries.

#include <gtest/gtest.h>

#include <memory>

#include "control_fixture.h"
#include "recording_bag.h"
#include "vorlex/PropertyBag.h"

using vorlex::FontPtr;
using vorlex::MemoryPropertyBag;
using vorlex::Variant;
using vorlex::VarType;
using vorlex::persist_test::RecordingBag;

namespace {

std::vector<std::string> BlockKeyNames(int index) {
  const char* prefixes[] = {"Block.Key(",
                            "Block.BarLeft(",
                            "Block.BarRight(",
                            "Block.BarTop(",
                            "Block.BarBottom(",
                            "Block.ShapeStyle(",
                            "Block.BorderStyle(",
                            "Block.BorderWidth(",
                            "Block.BrushStyle(",
                            "Block.BrushColor(",
                            "Block.Visible(",
                            "Block.HPercentage(",
                            "Block.VPercentage(",
                            "Block.OnTop(",
                            "Block.Color(",
                            "Block.GradientStyle(",
                            "Block.GradientGranularity(",
                            "Block.GradientColor(",
                            "Block.GradientColorEnd(",
                            "Block.Text(",
                            "Block.TextColor(",
                            "Block.TextAlignment(",
                            "Block.TextFont(",
                            "Block.TextFont3D(",
                            "Block.TextOffset(",
                            "Block.TextAngle(",
                            "Block.TextAutoAngle(",
                            "Block.RivetsStyle(",
                            "Block.Picture(",
                            "Block.PictureAlignment(",
                            "Block.PictureOffset(",
                            "Block.PictureTile(",
                            "Block.Clickable(",
                            "Block.AutoSize("};
  std::vector<std::string> names;
  for (const char* p : prefixes) names.push_back(std::string(p) + std::to_string(index) + ")");
  return names;
}

const std::vector<std::string> kControlWriteOrder = {"Height",
                                                     "Width",
                                                     "BackColor",
                                                     "ForeColor",
                                                     "Enabled",
                                                     "Font",
                                                     "IndexBlock",
                                                     "BorderStyle",
                                                     "BorderWidth",
                                                     "BrushStyle",
                                                     "BrushColor",
                                                     "HMinValue",
                                                     "HMaxValue",
                                                     "VMinValue",
                                                     "VMaxValue",
                                                     "Caption",
                                                     "CaptionAlignment",
                                                     "CaptionOffset",
                                                     "CaptionAngle",
                                                     "CaptionAutoAngle",
                                                     "CaptionFont3D",
                                                     "DisabledColor",
                                                     "SpecialClearAllBlock",
                                                     "Orientation",
                                                     "DontRefreshAfterPropertyPage",
                                                     "Redraw",
                                                     "TimerTimeInterval",
                                                     "TimerTimeEnabled",
                                                     "TimerDiskInterval",
                                                     "TimerDiskEnabled",
                                                     "RivetsStyle",
                                                     "GradientStyle",
                                                     "GradientGranularity",
                                                     "GradientColor",
                                                     "GradientColorEnd",
                                                     "Picture",
                                                     "PictureAutoSize",
                                                     "PictureTile",
                                                     "PictureOffset",
                                                     "PictureAlignment"};

const std::vector<std::string> kControlReadOrder = {"Height",
                                                    "Width",
                                                    "BackColor",
                                                    "ForeColor",
                                                    "Enabled",
                                                    "Font",
                                                    "IndexBlock",
                                                    "BorderStyle",
                                                    "BorderWidth",
                                                    "BrushStyle",
                                                    "BrushColor",
                                                    "HMinValue",
                                                    "HMaxValue",
                                                    "VMinValue",
                                                    "VMaxValue",
                                                    "Caption",
                                                    "CaptionAlignment",
                                                    "DisabledColor",
                                                    "SpecialClearAllBlock",
                                                    "Orientation",
                                                    "CaptionOffset",
                                                    "CaptionAngle",
                                                    "CaptionAutoAngle",
                                                    "CaptionFont3D",
                                                    "Redraw",
                                                    "TimerTimeInterval",
                                                    "TimerTimeEnabled",
                                                    "TimerDiskInterval",
                                                    "TimerDiskEnabled",
                                                    "RivetsStyle",
                                                    "GradientStyle",
                                                    "GradientGranularity",
                                                    "GradientColor",
                                                    "GradientColorEnd",
                                                    "Picture",
                                                    "PictureAutoSize",
                                                    "PictureTile",
                                                    "PictureOffset",
                                                    "PictureAlignment"};

bool HasBlockKey(const MemoryPropertyBag& bag) {
  for (const auto& entry : bag.Entries()) {
    if (entry.name.rfind("Block.", 0) == 0) return true;
  }
  return false;
}

class PersistenceTest : public ControlTest {
 protected:
  MemoryPropertyBag Saved() {
    MemoryPropertyBag bag;
    control.UserControl_WriteProperties(bag);
    return bag;
  }
  // A second container with a control that was never initialised.
  vorlex::HeadlessSite freshSite;
  vorlex::Vorlex fresh{freshSite};
};

TEST_F(PersistenceTest, EmptyControlSavesNoBlockKeysAndLoadsWithAnEmptyList) {
  MemoryPropertyBag bag = Saved();
  EXPECT_EQ(bag.Find("Blocks"), nullptr);
  EXPECT_FALSE(HasBlockKey(bag));
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(fresh.get_Blocks(), 0);
  EXPECT_AUTOMATION_ERROR(fresh.get_BlockColor(Number(1)), vorlex::kErrSubscript);
}

TEST_F(PersistenceTest, BlockWithEveryFieldAtItsDefaultAddsNothingAndLoadsFromDefaults) {
  AddBlocks(1);
  control.ClearAll(vorlex::vxSoft);  // every field to its default, the font the ambient one
  MemoryPropertyBag bag = Saved();
  ASSERT_NE(bag.Find("Blocks"), nullptr);
  EXPECT_EQ(bag.Find("Blocks")->value.ToLong(), 1);
  EXPECT_FALSE(HasBlockKey(bag));

  fresh.UserControl_ReadProperties(bag);
  ASSERT_EQ(fresh.get_Blocks(), 1);
  const Variant b = Number(1);
  EXPECT_EQ(fresh.get_BlockKey(b), "");
  EXPECT_EQ(fresh.get_BlockBarLeft(b), -1);
  EXPECT_EQ(fresh.get_BlockBarRight(b), -1);
  EXPECT_EQ(fresh.get_BlockBarTop(b), 100);
  EXPECT_EQ(fresh.get_BlockBarBottom(b), 0);
  EXPECT_EQ(fresh.get_BlockBorderWidth(b), 1);
  EXPECT_EQ(fresh.get_BlockColor(b), 0x808080u);
  EXPECT_EQ(fresh.get_BlockGradientColor(b), 0xFF0000u);
  EXPECT_EQ(fresh.get_BlockVisible(b), vorlex::VARIANT_TRUE);
  EXPECT_EQ(fresh.get_BlockClickable(b), vorlex::VARIANT_TRUE);
  EXPECT_EQ(fresh.get_BlockAutoSize(b), vorlex::VARIANT_TRUE);
  EXPECT_EQ(fresh.get_BlockOnTop(b), vorlex::VARIANT_FALSE);
  EXPECT_EQ(fresh.get_BlockTextOffset(b), 3);
  EXPECT_EQ(fresh.get_BlockPictureOffset(b), 3);
  EXPECT_EQ(fresh.get_BlockHPercentage(b), "0");
  EXPECT_EQ(fresh.get_BlockVPercentage(b), "0");
  EXPECT_EQ(fresh.get_BlockTextFont(b), freshSite.AmbientFont());
  EXPECT_EQ(fresh.get_BlockPicture(b), nullptr);
}

TEST_F(PersistenceTest, KeysOfBlocksAboveTheSavedCountAreIgnored) {
  RecordingBag bag;
  bag.Put("Blocks", Variant(int16_t{1}));
  bag.Put("Block.Key(1)", Variant("one"));
  bag.Put("Block.Key(2)", Variant("two"));
  bag.Put("Block.Color(2)", Variant(int32_t{255}));
  control.AddBlock();
  control.AddBlock();
  control.AddBlock();
  control.UserControl_ReadProperties(bag);
  EXPECT_EQ(control.get_Blocks(), 1);
  EXPECT_EQ(control.get_BlockKey(Number(1)), "one");
  for (const std::string& name : bag.reads) EXPECT_EQ(name.find("(2)"), std::string::npos) << name;
}

TEST_F(PersistenceTest, MissingPercentageKeyLoadsTheTextZero) {
  AddBlocks(2);
  control.put_BlockHPercentage("25", Number(1));
  control.put_BlockHPercentage("40", Number(2));
  control.put_BlockVPercentage("x", Number(2));
  MemoryPropertyBag bag = Saved();
  ASSERT_NE(bag.Find("Block.HPercentage(2)"), nullptr);
  bag.Erase("Block.HPercentage(2)");
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(fresh.get_BlockHPercentage(Number(1)), "25");
  EXPECT_EQ(fresh.get_BlockHPercentage(Number(2)), "0");
  EXPECT_EQ(fresh.get_BlockVPercentage(Number(2)), "x");
}

TEST_F(PersistenceTest, PercentageTextZeroIsNotSavedButOtherTextsAre) {
  AddBlocks(1);
  control.put_BlockHPercentage("0", Number(1));
  control.put_BlockVPercentage("00", Number(1));
  MemoryPropertyBag bag = Saved();
  EXPECT_EQ(bag.Find("Block.HPercentage(1)"), nullptr);
  ASSERT_NE(bag.Find("Block.VPercentage(1)"), nullptr);
  EXPECT_EQ(bag.Find("Block.VPercentage(1)")->value, Variant("00"));
}

TEST_F(PersistenceTest, ControlSaved900WideReloads315Wide) {
  ASSERT_EQ(site.OuterWidthTwips(), 900);
  MemoryPropertyBag bag = Saved();
  EXPECT_EQ(bag.Find("Width"), nullptr);
  freshSite.SetClientSize(100, 30);
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(freshSite.OuterWidthTwips(), 315);
}

TEST_F(PersistenceTest, SavedSizeIsAppliedToTheControl) {
  site.SetClientSize(200, 40);  // 3000 x 600 twips
  MemoryPropertyBag bag = Saved();
  EXPECT_EQ(bag.Find("Width")->value, Variant(3000.0f));
  EXPECT_EQ(bag.Find("Height")->value, Variant(600.0f));
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(freshSite.OuterWidthTwips(), 3000);
  EXPECT_EQ(freshSite.OuterHeightTwips(), 600);
  EXPECT_EQ(freshSite.ScaleWidth(), 200);
}

TEST_F(PersistenceTest, DontRefreshAfterPropertyPageIsSavedButNeverRestored) {
  site.SetUserMode(false);
  control.put_DontRefreshAfterPropertyPage(vorlex::VARIANT_TRUE);
  RecordingBag bag;
  control.UserControl_WriteProperties(bag);
  ASSERT_NE(bag.Find("DontRefreshAfterPropertyPage"), nullptr);
  EXPECT_EQ(bag.Find("DontRefreshAfterPropertyPage")->value.ToBoolean(), vorlex::VARIANT_TRUE);

  freshSite.SetUserMode(false);
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(fresh.get_DontRefreshAfterPropertyPage(), vorlex::VARIANT_FALSE);
  for (const std::string& name : bag.reads) EXPECT_NE(name, "DontRefreshAfterPropertyPage");

  // A control that had it set keeps it over a load of a bag that says False.
  MemoryPropertyBag cleared;
  control.UserControl_ReadProperties(cleared);
  EXPECT_EQ(control.get_DontRefreshAfterPropertyPage(), vorlex::VARIANT_TRUE);
}

TEST_F(PersistenceTest, KeysAreWrittenBlocksFirstInTableOrder) {
  AddBlocks(2);
  RecordingBag bag;
  control.UserControl_WriteProperties(bag);
  std::vector<std::string> expected = {"Blocks"};
  for (int i = 1; i <= 2; ++i) {
    for (const std::string& name : BlockKeyNames(i)) expected.push_back(name);
  }
  expected.insert(expected.end(), kControlWriteOrder.begin(), kControlWriteOrder.end());
  std::vector<std::string> written;
  for (const auto& w : bag.writes) written.push_back(w.name);
  EXPECT_EQ(written, expected);
}

TEST_F(PersistenceTest, KeysAreReadInLoadOrderWithTheSameBlockDefaults) {
  AddBlocks(1);
  RecordingBag saved;
  control.UserControl_WriteProperties(saved);
  RecordingBag bag;
  bag.Put("Blocks", Variant(int16_t{1}));
  fresh.UserControl_ReadProperties(bag);
  std::vector<std::string> expected = {"Blocks"};
  for (const std::string& name : BlockKeyNames(1)) expected.push_back(name);
  expected.insert(expected.end(), kControlReadOrder.begin(), kControlReadOrder.end());
  EXPECT_EQ(bag.reads, expected);
  // Each block key is read with the default it is written with.
  for (size_t i = 1; i <= 34; ++i) {
    const RecordingBag::Write* w = saved.Written(bag.reads[i]);
    ASSERT_NE(w, nullptr) << bag.reads[i];
    if (w->defaultValue.IsObject()) continue;  // the ambient fonts of two containers differ
    EXPECT_TRUE(vorlex::EqualsDefault(bag.readDefaults[i], w->defaultValue)) << bag.reads[i];
    EXPECT_EQ(bag.readDefaults[i].Type(), w->defaultValue.Type()) << bag.reads[i];
  }
}

TEST_F(PersistenceTest, ValuesAndDefaultsHaveTheirKinds) {
  AddBlocks(1);
  RecordingBag bag;
  control.UserControl_WriteProperties(bag);
  auto kinds = [&](const std::string& name) {
    const RecordingBag::Write* w = bag.Written(name);
    return std::pair{w->value.Type(), w->defaultValue.Type()};
  };
  EXPECT_EQ(kinds("Blocks"), std::pair(VarType::Long, VarType::Long));
  EXPECT_EQ(kinds("Block.Key(1)"), std::pair(VarType::String, VarType::String));
  EXPECT_EQ(kinds("Block.BarLeft(1)"), std::pair(VarType::Integer, VarType::Integer));
  EXPECT_EQ(kinds("Block.ShapeStyle(1)"), std::pair(VarType::Integer, VarType::Integer));
  EXPECT_EQ(kinds("Block.BrushColor(1)"), std::pair(VarType::Long, VarType::Long));
  EXPECT_EQ(kinds("Block.Visible(1)"), std::pair(VarType::Boolean, VarType::Boolean));
  EXPECT_EQ(kinds("Block.HPercentage(1)"), std::pair(VarType::String, VarType::Integer));
  EXPECT_EQ(kinds("Block.TextFont(1)"), std::pair(VarType::Object, VarType::Object));
  EXPECT_EQ(kinds("Block.Picture(1)"), std::pair(VarType::Object, VarType::Object));
  EXPECT_EQ(kinds("Height"), std::pair(VarType::Single, VarType::Single));
  EXPECT_EQ(kinds("IndexBlock"), std::pair(VarType::Integer, VarType::Integer));
  EXPECT_EQ(kinds("BorderStyle"), std::pair(VarType::Long, VarType::Long));
  EXPECT_EQ(kinds("CaptionOffset"), std::pair(VarType::Integer, VarType::Integer));
  EXPECT_EQ(kinds("Redraw"), std::pair(VarType::Boolean, VarType::Boolean));
  EXPECT_EQ(bag.Written("Width")->defaultValue, Variant(900.0f));
  EXPECT_EQ(bag.Written("ForeColor")->defaultValue, Variant(static_cast<int32_t>(0x80000012)));
  EXPECT_EQ(bag.Written("Block.Color(1)")->defaultValue, Variant(int32_t{0x808080}));
  EXPECT_EQ(bag.Written("Font")->defaultValue.ToObject(), site.AmbientFont());
  EXPECT_EQ(bag.Written("Picture")->defaultValue.ToObject(), nullptr);
}

TEST_F(PersistenceTest, WidthIsReadWith315AsItsDefault) {
  RecordingBag bag;
  fresh.UserControl_ReadProperties(bag);
  ASSERT_EQ(bag.reads[2], "Width");
  EXPECT_EQ(bag.readDefaults[2], Variant(315.0f));
}

TEST_F(PersistenceTest, NewControlSavesAnEmptyBag) {
  // 900 x 315, the container's colours and font, an empty picture: every
  // value is the default it is written with.
  MemoryPropertyBag bag = Saved();
  std::vector<std::string> names;
  for (const auto& entry : bag.Entries()) names.push_back(entry.name);
  EXPECT_EQ(names, std::vector<std::string>{});
}

TEST_F(PersistenceTest, LoadingCachesTwipsPerPixelRoundedHalfToEven) {
  freshSite.SetTwipsPerPixel(12.5f, 10.5f);
  MemoryPropertyBag bag;
  bag.Put("Blocks", Variant(int16_t{1}));
  fresh.UserControl_ReadProperties(bag);
  // The bulk bar setters divide by the cached factors: 120 / 12 and 120 / 10.
  fresh.SetBlockBarBottom(120);
  fresh.SetBlockBarTop(120);
  EXPECT_EQ(fresh.get_BlockBarBottom(Number(1)), 10);
  EXPECT_EQ(fresh.get_BlockBarTop(Number(1)), 12);
}

TEST_F(PersistenceTest, LoadingNotifiesOnlyTheFontSetterAndPaintsNothingOfItsOwn) {
  AddBlocks(3);
  control.put_Caption("saved");
  control.put_BackColor(0x123456);
  MemoryPropertyBag bag = Saved();
  freshSite.ClearRecords();
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(freshSite.Notifications(), std::vector<std::string>{"Font"});
  EXPECT_EQ(freshSite.Paints(), 0);
  EXPECT_EQ(fresh.get_Caption(), "saved");
  EXPECT_EQ(fresh.get_BackColor(), 0x123456u);
  // Stored in the field only: the container's own background is left alone.
  EXPECT_NE(freshSite.BackColor(), 0x123456u);
}

TEST_F(PersistenceTest, ForeColorEnabledAndFontGoToTheContainer) {
  control.put_ForeColor(0x00FF00);
  control.put_Enabled(vorlex::VARIANT_FALSE);
  auto font = std::make_shared<vorlex::Font>("Arial", 12);
  control.putref_Font(font);
  MemoryPropertyBag bag = Saved();
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(freshSite.ForeColor(), 0x00FF00u);
  EXPECT_EQ(freshSite.Enabled(), vorlex::VARIANT_FALSE);
  EXPECT_EQ(freshSite.Font(), font);  // the bag's object, shared
}

TEST_F(PersistenceTest, MissingFontKeysLoadTheAmbientFont) {
  MemoryPropertyBag bag;
  bag.Put("Blocks", Variant(int16_t{1}));
  auto ambient = std::make_shared<vorlex::Font>("Tahoma", 9);
  freshSite.SetAmbientFont(ambient);
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(freshSite.Font(), ambient);
  EXPECT_EQ(fresh.get_BlockTextFont(Number(1)), ambient);
}

TEST_F(PersistenceTest, TimersAreArmedFromTheValuesRead) {
  MemoryPropertyBag bag;
  bag.Put("TimerTimeInterval", Variant(int16_t{250}));
  bag.Put("TimerTimeEnabled", Variant::Boolean(true));
  bag.Put("TimerDiskInterval", Variant(int16_t{400}));
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(fresh.get_TimerTimeInterval(), 250);
  EXPECT_EQ(fresh.get_TimerTimeEnabled(), vorlex::VARIANT_TRUE);
  EXPECT_EQ(freshSite.TimerClock().ActiveTimers(), 1u);
  freshSite.ClearRecords();
  freshSite.TimerClock().Advance(249);
  EXPECT_TRUE(freshSite.RaisedEvents().empty());
  freshSite.TimerClock().Advance(1);
  EXPECT_EQ(freshSite.RaisedEvents(), std::vector<std::string>{"TimerTime"});
  freshSite.TimerClock().Advance(400);  // the disk timer stays off
  EXPECT_EQ(freshSite.RaisedEvents(), (std::vector<std::string>{"TimerTime", "TimerTime"}));
}

TEST_F(PersistenceTest, LoadingDisabledTimersStopsRunningOnes) {
  control.put_TimerDiskInterval(100);
  control.put_TimerDiskEnabled(vorlex::VARIANT_TRUE);
  ASSERT_EQ(site.TimerClock().ActiveTimers(), 1u);
  MemoryPropertyBag empty;
  control.UserControl_ReadProperties(empty);
  EXPECT_EQ(site.TimerClock().ActiveTimers(), 0u);
  EXPECT_EQ(control.get_TimerDiskInterval(), 60000);
}

TEST_F(PersistenceTest, ValueThatCannotBeConvertedStopsTheLoadKeepingWhatWasRead) {
  control.put_BrushStyle(5);
  MemoryPropertyBag bag;
  bag.Put("IndexBlock", Variant(int16_t{4}));
  bag.Put("BorderStyle", Variant(int32_t{6}));
  bag.Put("BorderWidth", Variant("wide"));
  bag.Put("BrushStyle", Variant(int32_t{2}));
  EXPECT_AUTOMATION_ERROR(control.UserControl_ReadProperties(bag), vorlex::kErrTypeMismatch);
  EXPECT_EQ(control.get_IndexBlock(), 4);
  EXPECT_EQ(control.get_BorderStyle(), 6);
  EXPECT_EQ(control.get_BorderWidth(), 1);
  EXPECT_EQ(control.get_BrushStyle(), 5);
}

TEST_F(PersistenceTest, NumberTooWideForItsFieldOverflows) {
  MemoryPropertyBag bag;
  bag.Put("HMaxValue", Variant(int32_t{40000}));
  EXPECT_AUTOMATION_ERROR(control.UserControl_ReadProperties(bag), vorlex::kErrOverflow);
}

TEST_F(PersistenceTest, BlockCountAbove32767OverflowsBeforeTheFirstBlockKeyOnLoad) {
  RecordingBag bag;
  bag.Put("Blocks", Variant(int32_t{32768}));
  EXPECT_AUTOMATION_ERROR(fresh.UserControl_ReadProperties(bag), vorlex::kErrOverflow);
  EXPECT_EQ(bag.reads, std::vector<std::string>{"Blocks"});
}

TEST_F(PersistenceTest, BlockCountAbove32767OverflowsBeforeTheFirstBlockKeyOnSave) {
  AddBlocks(32768);
  RecordingBag bag;
  EXPECT_AUTOMATION_ERROR(control.UserControl_WriteProperties(bag), vorlex::kErrOverflow);
  ASSERT_EQ(bag.writes.size(), 1u);
  EXPECT_EQ(bag.writes[0].name, "Blocks");
  EXPECT_EQ(bag.writes[0].value, Variant(int32_t{32768}));
}

TEST_F(PersistenceTest, LoadedFontsAndPicturesAreTheBagsObjects) {
  auto font = std::make_shared<vorlex::Font>("Courier New", 10);
  vorlex::PicturePtr picture = vorlex::EmptyPicture();
  MemoryPropertyBag bag;
  bag.Put("Blocks", Variant(int16_t{1}));
  bag.Put("Block.TextFont(1)", Variant(std::shared_ptr<vorlex::Object>(font)));
  bag.Put("Block.Picture(1)", Variant(std::shared_ptr<vorlex::Object>(picture)));
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(fresh.get_BlockTextFont(Number(1)), font);
  EXPECT_EQ(fresh.get_BlockPicture(Number(1)), picture);
}

TEST_F(PersistenceTest, PictureWhereAFontBelongsIsTypeMismatch) {
  MemoryPropertyBag bag;
  bag.Put("Font", Variant(std::shared_ptr<vorlex::Object>(vorlex::EmptyPicture())));
  EXPECT_AUTOMATION_ERROR(fresh.UserControl_ReadProperties(bag), vorlex::kErrTypeMismatch);
}

TEST_F(PersistenceTest, EmptyPictureIsSavedAsNoPicture) {
  ASSERT_NE(control.get_Picture(), nullptr);  // a new control holds an empty picture
  MemoryPropertyBag bag = Saved();
  EXPECT_EQ(bag.Find("Picture"), nullptr);
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(fresh.get_Picture(), nullptr);
}

TEST_F(PersistenceTest, SystemColoursKeepTheirHighBit) {
  control.put_BackColor(0x8000000F);
  control.put_ForeColor(0x80000008);
  MemoryPropertyBag bag = Saved();
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(fresh.get_BackColor(), 0x8000000Fu);
  EXPECT_EQ(fresh.get_ForeColor(), 0x80000008u);
}

TEST_F(PersistenceTest, NonCanonicalTrueIsSavedAndLoadsAsTrue) {
  AddBlocks(1);
  control.put_BlockVisible(1, Number(1));
  MemoryPropertyBag bag = Saved();
  ASSERT_NE(bag.Find("Block.Visible(1)"), nullptr);
  fresh.UserControl_ReadProperties(bag);
  EXPECT_EQ(fresh.get_BlockVisible(Number(1)), vorlex::VARIANT_TRUE);
}

TEST_F(PersistenceTest, LoadingFewerBlocksKeepsTheRecordsBelowTheCount) {
  AddBlocks(3);
  control.put_BlockKey("kept", Number(1));
  MemoryPropertyBag bag;
  bag.Put("Blocks", Variant(int16_t{2}));
  bag.Put("Block.Key(1)", Variant("loaded"));
  control.UserControl_ReadProperties(bag);
  EXPECT_EQ(control.get_Blocks(), 2);
  EXPECT_EQ(control.get_BlockKey(Number(1)), "loaded");
  EXPECT_AUTOMATION_ERROR(control.get_BlockColor(Number(3)), vorlex::kErrSubscript);
}

}  // namespace
