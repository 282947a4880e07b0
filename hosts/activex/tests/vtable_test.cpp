// The dual interface's vtable, as a C++ or early-bound Basic client calls it.

#include "ocx_fixture.h"

namespace vorlex::activex::test {
namespace {

class Vtable : public ::testing::Test {
 protected:
  void SetUp() override {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    ASSERT_EQ(CreateControl(IID__Vorlex, vorlex.put_void()), S_OK);
  }
  void TearDown() override {
    vorlex.Reset();
    CoUninitialize();
  }
  Ref<_Vorlex> vorlex;
};

TEST_F(Vtable, PropertyPutAndGetThroughTheInterface) {
  VARIANT added;
  VariantInit(&added);
  ASSERT_EQ(vorlex->AddBlock(&added), S_OK);
  VARIANT block;
  VariantInit(&block);
  V_VT(&block) = VT_I2;
  V_I2(&block) = 1;
  ASSERT_EQ(vorlex->put_BlockColor(&block, 0x00FF00), S_OK);
  ::OLE_COLOR color = 0;
  ASSERT_EQ(vorlex->get_BlockColor(&block, &color), S_OK);
  EXPECT_EQ(color, 0x00FF00u);
  short blocks = 0;
  ASSERT_EQ(vorlex->get_Blocks(&blocks), S_OK);
  EXPECT_EQ(blocks, 1);
}

TEST_F(Vtable, NullBlockArgumentMeansOmitted) {
  VARIANT added;
  VariantInit(&added);
  ASSERT_EQ(vorlex->AddBlock(&added), S_OK);
  ASSERT_EQ(vorlex->put_BlockBarRight(nullptr, 33), S_OK);
  short right = 0;
  ASSERT_EQ(vorlex->get_BlockBarRight(nullptr, &right), S_OK);
  EXPECT_EQ(right, 33);
}

TEST_F(Vtable, AutomationErrorIsTheHresultBasicReads) {
  VARIANT block;
  VariantInit(&block);
  V_VT(&block) = VT_I2;
  V_I2(&block) = 7;
  short right = 0;
  EXPECT_EQ(static_cast<unsigned>(vorlex->get_BlockBarRight(&block, &right)), 0x800A0009u);
}

TEST_F(Vtable, CaptionAngleIsFoldedAsThroughDispatch) {
  ASSERT_EQ(vorlex->put_CaptionAngle(400), S_OK);
  short angle = 0;
  ASSERT_EQ(vorlex->get_CaptionAngle(&angle), S_OK);
  EXPECT_EQ(angle, 40);
}

TEST_F(Vtable, NullResultPointerIsEPointer) { EXPECT_EQ(vorlex->get_Blocks(nullptr), E_POINTER); }

TEST_F(Vtable, EnumerationPropertiesUseTheLibrarysTypes) {
  ASSERT_EQ(vorlex->put_Orientation(vxFromTop), S_OK);
  vxOrientationEnum orientation = vxFromLeft;
  ASSERT_EQ(vorlex->get_Orientation(&orientation), S_OK);
  EXPECT_EQ(orientation, vxFromTop);
}

}  // namespace
}  // namespace vorlex::activex::test
