#include "vorlex/Automation.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "control_fixture.h"

using namespace vorlex;

namespace {
enum Kinds : unsigned { Get = 1, Put = 2, PutRef = 4, Call = 8 };

struct Expected {
  const char* name;
  int32_t dispid;
  unsigned kinds;
};

// Every member of _Vorlex with its published dispatch identifier.
const std::vector<Expected>& ExpectedMembers() {
  static const std::vector<Expected> members = {
      {"BlockKey", 0x68030027, Get | Put},
      {"BlockBarLeft", 0x68030026, Get | Put},
      {"BlockBarRight", 0x68030025, Get | Put},
      {"BlockBarTop", 0x68030024, Get | Put},
      {"BlockBarBottom", 0x68030023, Get | Put},
      {"BlockBorderStyle", 0x68030022, Get | Put},
      {"BlockBorderWidth", 0x68030021, Get | Put},
      {"BlockShapeStyle", 0x68030020, Get | Put},
      {"BlockBrushStyle", 0x6803001f, Get | Put},
      {"BlockBrushColor", 0x6803001e, Get | Put},
      {"BlockVisible", 0x6803001d, Get | Put},
      {"BlockHPercentage", 0x6803001c, Get | Put},
      {"BlockVPercentage", 0x6803001b, Get | Put},
      {"BlockOnTop", 0x6803001a, Get | Put},
      {"BlockColor", 0x68030019, Get | Put},
      {"BlockGradientStyle", 0x68030018, Get | Put},
      {"BlockGradientGranularity", 0x68030017, Get | Put},
      {"BlockGradientColor", 0x68030016, Get | Put},
      {"BlockGradientColorEnd", 0x68030015, Get | Put},
      {"BlockText", 0x68030014, Get | Put},
      {"BlockTextColor", 0x68030013, Get | Put},
      {"BlockTextAlignment", 0x68030012, Get | Put},
      {"BlockTextFont", 0x68030011, Get | Put},
      {"BlockTextFont3D", 0x68030010, Get | Put},
      {"BlockTextOffset", 0x6803000f, Get | Put},
      {"BlockTextAngle", 0x6803000e, Get | Put},
      {"BlockTextAutoAngle", 0x6803000d, Get | Put},
      {"BlockRivetsStyle", 0x6803000c, Get | Put},
      {"BlockPicture", 0x6803000b, Get | PutRef},
      {"BlockPictureOffset", 0x6803000a, Get | Put},
      {"BlockPictureAlignment", 0x68030009, Get | Put},
      {"BlockPictureTile", 0x68030008, Get | Put},
      {"BlockClickable", 0x68030001, Get | Put},
      {"BlockAutoSize", 0x68030000, Get | Put},
      {"Blocks", 0x68030028, Get | Put},
      {"IndexBlock", 0x68030002, Get | Put},
      {"AddBlock", 0x60030071, Call},
      {"DeleteBlock", 0x60030072, Call},
      {"ClearBlockBar", 0x60030066, Call},
      {"ClearAll", 0x6003006b, Call},
      {"SaveSetting", 0x60030068, Call},
      {"RestoreSetting", 0x60030069, Call},
      {"Refresh", 0x6003004d, Call},
      {"About", -552, Call},
      {"ShowAboutBox", 0x6003006c, Call},
      {"SetBlockShapeStyle", 0x60030056, Call},
      {"SetBlockBorderStyle", 0x60030057, Call},
      {"SetBlockTextOffset", 0x60030058, Call},
      {"SetBlockTextAngle", 0x60030059, Call},
      {"SetBlockTextAutoAngle", 0x6003005a, Call},
      {"SetBlockTextColor", 0x6003005b, Call},
      {"SetBlockBrushColor", 0x6003005c, Call},
      {"SetBlockBrushStyle", 0x6003005d, Call},
      {"SetBlockColor", 0x6003005e, Call},
      {"SetBlockBarTop", 0x6003005f, Call},
      {"SetBlockBarBottom", 0x60030060, Call},
      {"SetBlockVisible", 0x60030061, Call},
      {"SetBlockClickable", 0x60030062, Call},
      {"SetBlockAutoSize", 0x60030063, Call},
      {"SetBlockRivetsStyle", 0x60030064, Call},
      {"SetBlockPicture", 0x60030065, Call},
      {"SetBlockText", 0x60030067, Call},
      {"SetBlockTextAlignment", 0x6003006a, Call},
      {"SetBlockGradientStyle", 0x6003006d, Call},
      {"SetBlockGradientGranularity", 0x6003006e, Call},
      {"SetBlockGradientColor", 0x6003006f, Call},
      {"SetBlockGradientColorEnd", 0x60030070, Call},
      {"BackColor", 0x68030047, Get | Put},
      {"ForeColor", 0x68030046, Get | Put},
      {"Enabled", -514, Get | Put},
      {"Font", -512, Get | PutRef},
      {"hWnd", 0x68030045, Get},
      {"BorderWidth", 0x68030044, Get | Put},
      {"BorderStyle", 0x68030043, Get | Put},
      {"HMinValue", 0x68030042, Get | Put},
      {"HMaxValue", 0x68030041, Get | Put},
      {"VMinValue", 0x68030040, Get | Put},
      {"VMaxValue", 0x6803003f, Get | Put},
      {"BrushStyle", 0x6803003e, Get | Put},
      {"BrushColor", 0x6803003d, Get | Put},
      {"Caption", 0x6803003c, Get | Put},
      {"CaptionAlignment", 0x6803003b, Get | Put},
      {"DisabledColor", 0x6803003a, Get | Put},
      {"SpecialClearAllBlock", 0x68030039, Get | Put},
      {"Orientation", 0x68030038, Get | Put},
      {"CaptionOffset", 0x68030037, Get | Put},
      {"CaptionAngle", 0x68030036, Get | Put},
      {"CaptionAutoAngle", 0x68030035, Get | Put},
      {"DontRefreshAfterPropertyPage", 0x68030034, Get | Put},
      {"CaptionFont3D", 0x68030033, Get | Put},
      {"Redraw", 0x68030032, Get | Put},
      {"TimerTimeInterval", 0x68030031, Get | Put},
      {"TimerTimeEnabled", 0x68030030, Get | Put},
      {"TimerDiskInterval", 0x6803002f, Get | Put},
      {"TimerDiskEnabled", 0x6803002e, Get | Put},
      {"RivetsStyle", 0x6803002d, Get | Put},
      {"GradientStyle", 0x6803002c, Get | Put},
      {"GradientColor", 0x6803002b, Get | Put},
      {"GradientColorEnd", 0x6803002a, Get | Put},
      {"GradientGranularity", 0x68030029, Get | Put},
      {"Picture", 0x68030007, Get | PutRef},
      {"PictureAutoSize", 0x68030006, Get | Put},
      {"PictureTile", 0x68030005, Get | Put},
      {"PictureOffset", 0x68030004, Get | Put},
      {"PictureAlignment", 0x68030003, Get | Put},
  };
  return members;
}

InvokeKind KindOf(unsigned bit) {
  switch (bit) {
    case Get:
      return InvokeKind::PropertyGet;
    case Put:
      return InvokeKind::PropertyPut;
    case PutRef:
      return InvokeKind::PropertyPutRef;
    default:
      return InvokeKind::Method;
  }
}
}  // namespace

TEST(AutomationTable, EveryMemberIsReachableByNameAndByIdWithItsKinds) {
  for (const Expected& e : ExpectedMembers()) {
    EXPECT_EQ(GetIDOfName(e.name), e.dispid) << e.name;
    for (unsigned bit : {Get, Put, PutRef, Call}) {
      const MemberInfo* byName = FindMember(e.name, KindOf(bit));
      const MemberInfo* byId = FindMember(e.dispid, KindOf(bit));
      if (e.kinds & bit) {
        ASSERT_NE(byName, nullptr) << e.name << " kind " << bit;
        EXPECT_EQ(byName, byId) << e.name;
        EXPECT_EQ(byName->dispid, e.dispid) << e.name;
      } else {
        EXPECT_EQ(byName, nullptr) << e.name << " has unexpected kind " << bit;
      }
    }
  }
}

TEST(AutomationTable, HoldsNothingElse) {
  size_t entries = 0;
  for (const Expected& e : ExpectedMembers()) {
    for (unsigned bit : {Get, Put, PutRef, Call}) entries += (e.kinds & bit) ? 1 : 0;
  }
  EXPECT_EQ(AutomationTable().size(), entries);
  std::set<std::pair<int32_t, InvokeKind>> seen;
  for (const MemberInfo& m : AutomationTable()) {
    EXPECT_TRUE(seen.insert({m.dispid, m.kind}).second) << m.name << " appears twice";
  }
}

TEST(AutomationTable, NamesAreCaseInsensitive) {
  EXPECT_EQ(GetIDOfName("blockcolor"), 0x68030019);
  EXPECT_EQ(GetIDOfName("HWND"), 0x68030045);
  EXPECT_EQ(GetIDOfName("NoSuchMember"), DISPID_UNKNOWN);
}

TEST(AutomationTable, PerBlockPropertiesTakeAnOptionalByRefBlockArgumentDefaultingToMinusOne) {
  const MemberInfo* m = FindMember("BlockText", InvokeKind::PropertyGet);
  ASSERT_NE(m, nullptr);
  ASSERT_EQ(m->params.size(), 1u);
  EXPECT_EQ(m->params[0].name, "iBlock");
  EXPECT_TRUE(m->params[0].optional);
  EXPECT_TRUE(m->params[0].byRef);
  EXPECT_EQ(m->params[0].defaultValue.ToInteger(), -1);
  EXPECT_EQ(m->type.kind, TypeKind::String);
}

TEST(AutomationTable, EnumerationTypedMembersNameTheirEnumeration) {
  EXPECT_EQ(FindMember("BorderStyle", InvokeKind::PropertyGet)->type.enumName, "vxBorderStyleEnum");
  EXPECT_EQ(FindMember("BlockTextAlignment", InvokeKind::PropertyPut)->type.enumName, "vxAlignmentEnum");
  EXPECT_EQ(FindMember("ClearAll", InvokeKind::Method)->params[0].type.enumName, "vxClearAllEnum");
  EXPECT_EQ(FindMember("PictureAutoSize", InvokeKind::PropertyGet)->type.enumName, "vxAutoSizeEnum");
}

TEST(AutomationTable, DeleteBlockRequiresItsArgument) {
  const MemberInfo* m = FindMember("DeleteBlock", InvokeKind::Method);
  ASSERT_EQ(m->params.size(), 1u);
  EXPECT_FALSE(m->params[0].optional);
  EXPECT_TRUE(m->params[0].byRef);
}

using AutomationInvokeTest = ControlTest;

TEST_F(AutomationInvokeTest, CallsByNameAndByIdReachTheSameControl) {
  Invoke(control, "AddBlock", InvokeKind::Method, {});
  Invoke(control, 0x60030071, InvokeKind::Method, {});
  EXPECT_EQ(Invoke(control, "Blocks", InvokeKind::PropertyGet, {}).ToInteger(), 2);
  Invoke(control, 0x68030019, InvokeKind::PropertyPut, {Variant(2), Variant(255)});
  EXPECT_EQ(control.get_BlockColor(Number(2)), 255u);
  const Variant color = Invoke(control, "BlockColor", InvokeKind::PropertyGet, {Variant(2)});
  EXPECT_EQ(color.Type(), VarType::Long);
  EXPECT_EQ(color.ToLong(), 255);
}

TEST_F(AutomationInvokeTest, ResultsCarryTheirInterfaceTypes) {
  control.AddBlock();
  EXPECT_EQ(Invoke(control, "Blocks", InvokeKind::PropertyGet, {}).Type(), VarType::Integer);
  EXPECT_EQ(Invoke(control, "Redraw", InvokeKind::PropertyGet, {}).Type(), VarType::Boolean);
  EXPECT_EQ(Invoke(control, "BorderStyle", InvokeKind::PropertyGet, {}).Type(), VarType::Long);
  EXPECT_EQ(Invoke(control, "Caption", InvokeKind::PropertyGet, {}).Type(), VarType::String);
  EXPECT_EQ(Invoke(control, "Font", InvokeKind::PropertyGet, {}).Type(), VarType::Object);
  EXPECT_TRUE(Invoke(control, "AddBlock", InvokeKind::Method, {}).IsEmpty());
}

TEST_F(AutomationInvokeTest, OmittedBlockArgumentMeansIndexBlock) {
  control.AddBlock();
  control.put_IndexBlock(1);
  Invoke(control, "BlockText", InvokeKind::PropertyPut, {Variant("hello")});
  EXPECT_EQ(control.get_BlockText(Number(1)), "hello");
  Invoke(control, "BlockText", InvokeKind::PropertyPut, {Variant::Missing(), Variant("again")});
  EXPECT_EQ(Invoke(control, "BlockText", InvokeKind::PropertyGet, {}).ToString(), "again");
}

TEST_F(AutomationInvokeTest, OmittedOptionalArgumentsTakeTheirDefaults) {
  control.AddBlock();
  control.put_BlockColor(1, Number(1));
  Invoke(control, "SetBlockColor", InvokeKind::Method, {});
  EXPECT_EQ(control.get_BlockColor(Number(1)), 0x808080u);
  Invoke(control, "SetBlockVisible", InvokeKind::Method, {Variant(false)});
  EXPECT_EQ(control.get_BlockVisible(Number(1)), VARIANT_FALSE);
  Invoke(control, "SetBlockVisible", InvokeKind::Method, {Variant::Missing()});
  EXPECT_EQ(control.get_BlockVisible(Number(1)), VARIANT_TRUE);
  Invoke(control, "SetBlockTextOffset", InvokeKind::Method, {});
  EXPECT_EQ(control.get_BlockTextOffset(Number(1)), 3);
}

TEST_F(AutomationInvokeTest, ArgumentsConvertWithTheAutomationRules) {
  Invoke(control, "BorderWidth", InvokeKind::PropertyPut, {Variant("2.5")});
  EXPECT_EQ(control.get_BorderWidth(), 2);
  Invoke(control, "Redraw", InvokeKind::PropertyPut, {Variant(int16_t{5})});
  EXPECT_EQ(control.get_Redraw(), VARIANT_TRUE);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "BorderWidth", InvokeKind::PropertyPut, {Variant(32767.5)}), kErrOverflow);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "BorderWidth", InvokeKind::PropertyPut, {Variant("abc")}), kErrTypeMismatch);
  Invoke(control, "BorderWidth", InvokeKind::PropertyPut, {Variant()});
  EXPECT_EQ(control.get_BorderWidth(), 0);
  Invoke(control, "BorderWidth", InvokeKind::PropertyPut, {Variant::Boolean(true)});
  EXPECT_EQ(control.get_BorderWidth(), -1);
}

TEST_F(AutomationInvokeTest, ColoursAcceptSignedAndUnsignedThirtyTwoBitValues) {
  Invoke(control, "BackColor", InvokeKind::PropertyPut, {Variant(int32_t{-2147483643})});
  EXPECT_EQ(control.get_BackColor(), 0x80000005u);
  Invoke(control, "BackColor", InvokeKind::PropertyPut, {Variant(4294967295.0)});
  EXPECT_EQ(control.get_BackColor(), 0xFFFFFFFFu);
  EXPECT_EQ(Invoke(control, "BackColor", InvokeKind::PropertyGet, {}).ToLong(), -1);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "BackColor", InvokeKind::PropertyPut, {Variant(4294967296.0)}), kErrOverflow);
}

TEST_F(AutomationInvokeTest, ObjectsGoThroughPutRef) {
  auto font = std::make_shared<Font>("Tahoma", 9);
  Invoke(control, "Font", InvokeKind::PropertyPutRef, {Variant(std::static_pointer_cast<Object>(font))});
  EXPECT_EQ(control.get_Font(), font);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "Font", InvokeKind::PropertyPutRef, {Variant(1)}), kErrTypeMismatch);
  const PicturePtr picture = EmptyPicture();
  EXPECT_AUTOMATION_ERROR(
      Invoke(control, "Font", InvokeKind::PropertyPutRef, {Variant(std::static_pointer_cast<Object>(picture))}),
      kErrTypeMismatch);
}

TEST_F(AutomationInvokeTest, UnknownMembersAndKindsAreNotSupported) {
  EXPECT_AUTOMATION_ERROR(Invoke(control, "Nonexistent", InvokeKind::PropertyGet, {}), kErrNotSupported);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "hWnd", InvokeKind::PropertyPut, {Variant(1)}), kErrNotSupported);
  EXPECT_AUTOMATION_ERROR(Invoke(control, 0x12345, InvokeKind::Method, {}), kErrNotSupported);
}

TEST_F(AutomationInvokeTest, MissingRequiredAndSurplusArgumentsAreReported) {
  EXPECT_AUTOMATION_ERROR(Invoke(control, "DeleteBlock", InvokeKind::Method, {}), kErrArgumentNotOptional);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "AddBlock", InvokeKind::Method, {Variant(1)}), kErrWrongArguments);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "Caption", InvokeKind::PropertyPut, {}), kErrWrongArguments);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "BlockText", InvokeKind::PropertyGet, {Variant(1), Variant(2)}),
                          kErrWrongArguments);
  EXPECT_EQ(control.get_Blocks(), 0);
}

TEST_F(AutomationInvokeTest, DeleteBlockGetsItsArgumentUnresolved) {
  control.put_Blocks(3);
  control.put_BlockKey("one", Number(1));
  Invoke(control, "DeleteBlock", InvokeKind::Method, {Variant("one")});
  EXPECT_EQ(control.get_Blocks(), 2);
  EXPECT_EQ(control.get_BlockKey(Number(1)), "one");
}

TEST_F(AutomationInvokeTest, ControlErrorsPassThrough) {
  EXPECT_AUTOMATION_ERROR(Invoke(control, "BlockKey", InvokeKind::PropertyGet, {}), kErrSubscript);
  EXPECT_AUTOMATION_ERROR(Invoke(control, "SpecialClearAllBlock", InvokeKind::PropertyGet, {}), kErrGetNotAtRunTime);
}

TEST_F(AutomationInvokeTest, ClearAllTakesVxHardAsMinusOne) {
  control.AddBlock();
  EXPECT_AUTOMATION_ERROR(Invoke(control, "ClearAll", InvokeKind::Method, {Variant(int32_t{vxHard})}),
                          kErrSubscript);  // no snapshot yet
  Invoke(control, "ClearAll", InvokeKind::Method, {});
}

TEST_F(AutomationInvokeTest, AboutAndShowAboutBoxAskTheContainerForTheAboutBox) {
  Invoke(control, "About", InvokeKind::Method, {});
  EXPECT_EQ(site.AboutBoxRequests(), 1);
  Invoke(control, -552, InvokeKind::Method, {});
  Invoke(control, "showaboutbox", InvokeKind::Method, {});
  EXPECT_EQ(site.AboutBoxRequests(), 3);
  EXPECT_TRUE(site.Notifications().empty());
}

TEST(EnumerationTable, PublishesTheFourteenEnumerationsWithTheirConstants) {
  const auto& table = EnumerationTable();
  ASSERT_EQ(table.size(), 14u);
  size_t constants = 0;
  for (const EnumerationInfo& e : table) {
    EXPECT_TRUE(e.name.starts_with("vx") && e.name.ends_with("Enum")) << e.name;
    for (const EnumConstant& c : e.constants) EXPECT_TRUE(c.name.starts_with("vx")) << c.name;
    constants += e.constants.size();
  }
  EXPECT_EQ(constants, 9u + 3 + 4 + 8 + 7 + 2 + 5 + 5 + 13 + 4 + 5 + 2 + 2 + 4);
  const EnumerationInfo* gradients = FindEnumeration("vxgradientstyleenum");
  ASSERT_NE(gradients, nullptr);
  EXPECT_EQ(gradients->constants.back().name, "vxOuterRectangleGradient");
  EXPECT_EQ(gradients->constants.back().value, 12);
  const EnumerationInfo* clear = FindEnumeration("vxClearAllEnum");
  ASSERT_NE(clear, nullptr);
  EXPECT_EQ(clear->constants.front().name, "vxHard");
  EXPECT_EQ(clear->constants.front().value, -1);
  EXPECT_EQ(FindEnumeration("vxNoSuchEnum"), nullptr);
}

TEST(EnumerationTable, EveryEnumerationTypedMemberNamesAPublishedEnumeration) {
  for (const MemberInfo& m : AutomationTable()) {
    if (m.type.kind == TypeKind::Enum) {
      EXPECT_NE(FindEnumeration(m.type.enumName), nullptr) << m.name;
    }
    for (const ParamInfo& p : m.params) {
      if (!p.type.enumName.empty()) {
        EXPECT_NE(FindEnumeration(p.type.enumName), nullptr) << m.name;
      }
    }
  }
}
