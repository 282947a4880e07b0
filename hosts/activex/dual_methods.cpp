// Generated from the automation table by vorlex_idlgen: do not edit.
// clang-format off
// Each vtable method of _Vorlex converts its arguments and calls the member
// through the automation table, as IDispatch::Invoke does.

#include "dual_interface.h"

#include "vtable_call.h"

namespace vorlex::activex {

HRESULT STDMETHODCALLTYPE DualInterface::get_Blocks(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030028, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_Blocks(short newValue) {
  return Guard([&] { Call(0x68030028, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_IndexBlock(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030002, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_IndexBlock(short newValue) {
  return Guard([&] { Call(0x68030002, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::AddBlock(VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030071, InvokeKind::Method, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::DeleteBlock(VARIANT* iBlock, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030072, InvokeKind::Method, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::ClearBlockBar(VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030066, InvokeKind::Method, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::ClearAll(::vxClearAllEnum bClear, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003006b, InvokeKind::Method, {InEnum(bClear)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SaveSetting(VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030068, InvokeKind::Method, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::RestoreSetting(VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030069, InvokeKind::Method, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::Refresh(VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003004d, InvokeKind::Method, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::About(VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(-552, InvokeKind::Method, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::ShowAboutBox(VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003006c, InvokeKind::Method, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockKey(VARIANT* iBlock, BSTR* pRetVal) {
  return Guard([&] { OutBstr(Call(0x68030027, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockKey(VARIANT* iBlock, BSTR newValue) {
  return Guard([&] { Call(0x68030027, InvokeKind::PropertyPut, {InVariantRef(iBlock), InBstr(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockBarLeft(VARIANT* iBlock, short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030026, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockBarLeft(VARIANT* iBlock, short newValue) {
  return Guard([&] { Call(0x68030026, InvokeKind::PropertyPut, {InVariantRef(iBlock), InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockBarRight(VARIANT* iBlock, short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030025, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockBarRight(VARIANT* iBlock, short newValue) {
  return Guard([&] { Call(0x68030025, InvokeKind::PropertyPut, {InVariantRef(iBlock), InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockBarTop(VARIANT* iBlock, short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030024, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockBarTop(VARIANT* iBlock, short newValue) {
  return Guard([&] { Call(0x68030024, InvokeKind::PropertyPut, {InVariantRef(iBlock), InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockBarBottom(VARIANT* iBlock, short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030023, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockBarBottom(VARIANT* iBlock, short newValue) {
  return Guard([&] { Call(0x68030023, InvokeKind::PropertyPut, {InVariantRef(iBlock), InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockBorderStyle(VARIANT* iBlock, ::vxBorderStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030022, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockBorderStyle(VARIANT* iBlock, ::vxBorderStyleEnum newValue) {
  return Guard([&] { Call(0x68030022, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockBorderWidth(VARIANT* iBlock, short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030021, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockBorderWidth(VARIANT* iBlock, short newValue) {
  return Guard([&] { Call(0x68030021, InvokeKind::PropertyPut, {InVariantRef(iBlock), InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockShapeStyle(VARIANT* iBlock, ::vxShapeStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030020, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockShapeStyle(VARIANT* iBlock, ::vxShapeStyleEnum newValue) {
  return Guard([&] { Call(0x68030020, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockBrushStyle(VARIANT* iBlock, ::vxBrushStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x6803001f, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockBrushStyle(VARIANT* iBlock, ::vxBrushStyleEnum newValue) {
  return Guard([&] { Call(0x6803001f, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockBrushColor(VARIANT* iBlock, ::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x6803001e, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockBrushColor(VARIANT* iBlock, ::OLE_COLOR newValue) {
  return Guard([&] { Call(0x6803001e, InvokeKind::PropertyPut, {InVariantRef(iBlock), InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockVisible(VARIANT* iBlock, ::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(0x6803001d, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockVisible(VARIANT* iBlock, ::VARIANT_BOOL newValue) {
  return Guard([&] { Call(0x6803001d, InvokeKind::PropertyPut, {InVariantRef(iBlock), InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockHPercentage(VARIANT* iBlock, BSTR* pRetVal) {
  return Guard([&] { OutBstr(Call(0x6803001c, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockHPercentage(VARIANT* iBlock, BSTR newValue) {
  return Guard([&] { Call(0x6803001c, InvokeKind::PropertyPut, {InVariantRef(iBlock), InBstr(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockVPercentage(VARIANT* iBlock, BSTR* pRetVal) {
  return Guard([&] { OutBstr(Call(0x6803001b, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockVPercentage(VARIANT* iBlock, BSTR newValue) {
  return Guard([&] { Call(0x6803001b, InvokeKind::PropertyPut, {InVariantRef(iBlock), InBstr(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockOnTop(VARIANT* iBlock, ::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(0x6803001a, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockOnTop(VARIANT* iBlock, ::VARIANT_BOOL newValue) {
  return Guard([&] { Call(0x6803001a, InvokeKind::PropertyPut, {InVariantRef(iBlock), InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockColor(VARIANT* iBlock, ::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x68030019, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockColor(VARIANT* iBlock, ::OLE_COLOR newValue) {
  return Guard([&] { Call(0x68030019, InvokeKind::PropertyPut, {InVariantRef(iBlock), InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockGradientStyle(VARIANT* iBlock, ::vxGradientStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030018, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockGradientStyle(VARIANT* iBlock, ::vxGradientStyleEnum newValue) {
  return Guard([&] { Call(0x68030018, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockGradientGranularity(VARIANT* iBlock, ::vxGradientGranularityEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030017, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockGradientGranularity(VARIANT* iBlock, ::vxGradientGranularityEnum newValue) {
  return Guard([&] { Call(0x68030017, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockGradientColor(VARIANT* iBlock, ::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x68030016, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockGradientColor(VARIANT* iBlock, ::OLE_COLOR newValue) {
  return Guard([&] { Call(0x68030016, InvokeKind::PropertyPut, {InVariantRef(iBlock), InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockGradientColorEnd(VARIANT* iBlock, ::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x68030015, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockGradientColorEnd(VARIANT* iBlock, ::OLE_COLOR newValue) {
  return Guard([&] { Call(0x68030015, InvokeKind::PropertyPut, {InVariantRef(iBlock), InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockText(VARIANT* iBlock, BSTR* pRetVal) {
  return Guard([&] { OutBstr(Call(0x68030014, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockText(VARIANT* iBlock, BSTR newValue) {
  return Guard([&] { Call(0x68030014, InvokeKind::PropertyPut, {InVariantRef(iBlock), InBstr(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockTextColor(VARIANT* iBlock, ::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x68030013, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockTextColor(VARIANT* iBlock, ::OLE_COLOR newValue) {
  return Guard([&] { Call(0x68030013, InvokeKind::PropertyPut, {InVariantRef(iBlock), InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockTextAlignment(VARIANT* iBlock, ::vxAlignmentEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030012, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockTextAlignment(VARIANT* iBlock, ::vxAlignmentEnum newValue) {
  return Guard([&] { Call(0x68030012, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockTextFont(VARIANT* iBlock, IFontDisp** pRetVal) {
  return Guard([&] { OutFont(Call(0x68030011, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockTextFont(VARIANT* iBlock, IFontDisp* newValue) {
  return Guard([&] { Call(0x68030011, InvokeKind::PropertyPut, {InVariantRef(iBlock), InFont(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockTextFont3D(VARIANT* iBlock, ::vxFont3DEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030010, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockTextFont3D(VARIANT* iBlock, ::vxFont3DEnum newValue) {
  return Guard([&] { Call(0x68030010, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockTextOffset(VARIANT* iBlock, short* pRetVal) {
  return Guard([&] { OutI2(Call(0x6803000f, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockTextOffset(VARIANT* iBlock, short newValue) {
  return Guard([&] { Call(0x6803000f, InvokeKind::PropertyPut, {InVariantRef(iBlock), InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockTextAngle(VARIANT* iBlock, short* pRetVal) {
  return Guard([&] { OutI2(Call(0x6803000e, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockTextAngle(VARIANT* iBlock, short newValue) {
  return Guard([&] { Call(0x6803000e, InvokeKind::PropertyPut, {InVariantRef(iBlock), InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockTextAutoAngle(VARIANT* iBlock, ::vxAutoAngleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x6803000d, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockTextAutoAngle(VARIANT* iBlock, ::vxAutoAngleEnum newValue) {
  return Guard([&] { Call(0x6803000d, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockRivetsStyle(VARIANT* iBlock, ::vxRivetsStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x6803000c, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockRivetsStyle(VARIANT* iBlock, ::vxRivetsStyleEnum newValue) {
  return Guard([&] { Call(0x6803000c, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockPicture(VARIANT* iBlock, IPictureDisp** pRetVal) {
  return Guard([&] { OutPicture(Call(0x6803000b, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::putref_BlockPicture(VARIANT* iBlock, IPictureDisp* newValue) {
  return Guard([&] { Call(0x6803000b, InvokeKind::PropertyPutRef, {InVariantRef(iBlock), InPicture(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockPictureOffset(VARIANT* iBlock, short* pRetVal) {
  return Guard([&] { OutI2(Call(0x6803000a, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockPictureOffset(VARIANT* iBlock, short newValue) {
  return Guard([&] { Call(0x6803000a, InvokeKind::PropertyPut, {InVariantRef(iBlock), InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockPictureAlignment(VARIANT* iBlock, ::vxAlignmentEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030009, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockPictureAlignment(VARIANT* iBlock, ::vxAlignmentEnum newValue) {
  return Guard([&] { Call(0x68030009, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockPictureTile(VARIANT* iBlock, ::vxTileEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030008, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockPictureTile(VARIANT* iBlock, ::vxTileEnum newValue) {
  return Guard([&] { Call(0x68030008, InvokeKind::PropertyPut, {InVariantRef(iBlock), InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockClickable(VARIANT* iBlock, ::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(0x68030001, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockClickable(VARIANT* iBlock, ::VARIANT_BOOL newValue) {
  return Guard([&] { Call(0x68030001, InvokeKind::PropertyPut, {InVariantRef(iBlock), InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BlockAutoSize(VARIANT* iBlock, ::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(0x68030000, InvokeKind::PropertyGet, {InVariantRef(iBlock)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BlockAutoSize(VARIANT* iBlock, ::VARIANT_BOOL newValue) {
  return Guard([&] { Call(0x68030000, InvokeKind::PropertyPut, {InVariantRef(iBlock), InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockShapeStyle(::vxShapeStyleEnum iShapeStyle, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030056, InvokeKind::Method, {InEnum(iShapeStyle)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockBorderStyle(::vxBorderStyleEnum iBorderStyle, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030057, InvokeKind::Method, {InEnum(iBorderStyle)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockTextOffset(VARIANT iTextOffset, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030058, InvokeKind::Method, {InVariant(iTextOffset)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockTextAngle(VARIANT iTextAngle, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030059, InvokeKind::Method, {InVariant(iTextAngle)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockTextAutoAngle(VARIANT iTextAutoAngle, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003005a, InvokeKind::Method, {InVariant(iTextAutoAngle)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockTextColor(::OLE_COLOR lTextColor, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003005b, InvokeKind::Method, {InColor(lTextColor)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockBrushColor(::OLE_COLOR iBlockBrushColor, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003005c, InvokeKind::Method, {InColor(iBlockBrushColor)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockBrushStyle(::vxBrushStyleEnum iBrushStyle, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003005d, InvokeKind::Method, {InEnum(iBrushStyle)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockColor(::OLE_COLOR iBlockColor, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003005e, InvokeKind::Method, {InColor(iBlockColor)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockBarTop(short iBlockBarTop, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003005f, InvokeKind::Method, {InI2(iBlockBarTop)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockBarBottom(short iBlockBarBottom, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030060, InvokeKind::Method, {InI2(iBlockBarBottom)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockVisible(::VARIANT_BOOL iVisible, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030061, InvokeKind::Method, {InBool(iVisible)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockClickable(::VARIANT_BOOL iClickable, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030062, InvokeKind::Method, {InBool(iClickable)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockAutoSize(::VARIANT_BOOL iAutoSize, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030063, InvokeKind::Method, {InBool(iAutoSize)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockRivetsStyle(::vxRivetsStyleEnum iRivetsStyle, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030064, InvokeKind::Method, {InEnum(iRivetsStyle)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockPicture(IPictureDisp* pPicture, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030065, InvokeKind::Method, {InPicture(pPicture)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockText(BSTR iBlockText, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030067, InvokeKind::Method, {InBstr(iBlockText)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockTextAlignment(::vxAlignmentEnum iTextAlignment, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003006a, InvokeKind::Method, {InEnum(iTextAlignment)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockGradientStyle(::vxGradientStyleEnum iGradientStyle, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003006d, InvokeKind::Method, {InEnum(iGradientStyle)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockGradientGranularity(::vxGradientGranularityEnum iGradientGranularity, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003006e, InvokeKind::Method, {InEnum(iGradientGranularity)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockGradientColor(::OLE_COLOR lGradientColor, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x6003006f, InvokeKind::Method, {InColor(lGradientColor)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::SetBlockGradientColorEnd(::OLE_COLOR lGradientColorEnd, VARIANT* pRetVal) {
  return Guard([&] { OutVariant(Call(0x60030070, InvokeKind::Method, {InColor(lGradientColorEnd)}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BackColor(::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x68030047, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BackColor(::OLE_COLOR newValue) {
  return Guard([&] { Call(0x68030047, InvokeKind::PropertyPut, {InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_ForeColor(::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x68030046, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_ForeColor(::OLE_COLOR newValue) {
  return Guard([&] { Call(0x68030046, InvokeKind::PropertyPut, {InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_Enabled(::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(-514, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_Enabled(::VARIANT_BOOL newValue) {
  return Guard([&] { Call(-514, InvokeKind::PropertyPut, {InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_Font(IFontDisp** pRetVal) {
  return Guard([&] { OutFont(Call(-512, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::putref_Font(IFontDisp* newValue) {
  return Guard([&] { Call(-512, InvokeKind::PropertyPutRef, {InFont(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_hWnd(long* pRetVal) {
  return Guard([&] { OutI4(Call(0x68030045, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BorderWidth(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030044, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BorderWidth(short newValue) {
  return Guard([&] { Call(0x68030044, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BorderStyle(::vxBorderStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030043, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BorderStyle(::vxBorderStyleEnum newValue) {
  return Guard([&] { Call(0x68030043, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_HMinValue(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030042, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_HMinValue(short newValue) {
  return Guard([&] { Call(0x68030042, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_HMaxValue(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030041, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_HMaxValue(short newValue) {
  return Guard([&] { Call(0x68030041, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_VMinValue(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030040, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_VMinValue(short newValue) {
  return Guard([&] { Call(0x68030040, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_VMaxValue(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x6803003f, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_VMaxValue(short newValue) {
  return Guard([&] { Call(0x6803003f, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BrushStyle(::vxBrushStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x6803003e, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BrushStyle(::vxBrushStyleEnum newValue) {
  return Guard([&] { Call(0x6803003e, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_BrushColor(::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x6803003d, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_BrushColor(::OLE_COLOR newValue) {
  return Guard([&] { Call(0x6803003d, InvokeKind::PropertyPut, {InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_Caption(BSTR* pRetVal) {
  return Guard([&] { OutBstr(Call(0x6803003c, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_Caption(BSTR newValue) {
  return Guard([&] { Call(0x6803003c, InvokeKind::PropertyPut, {InBstr(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_CaptionAlignment(::vxAlignmentEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x6803003b, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_CaptionAlignment(::vxAlignmentEnum newValue) {
  return Guard([&] { Call(0x6803003b, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_DisabledColor(::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x6803003a, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_DisabledColor(::OLE_COLOR newValue) {
  return Guard([&] { Call(0x6803003a, InvokeKind::PropertyPut, {InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_SpecialClearAllBlock(::vxSpecialClearAllBlockEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030039, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_SpecialClearAllBlock(::vxSpecialClearAllBlockEnum newValue) {
  return Guard([&] { Call(0x68030039, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_Orientation(::vxOrientationEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030038, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_Orientation(::vxOrientationEnum newValue) {
  return Guard([&] { Call(0x68030038, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_CaptionOffset(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030037, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_CaptionOffset(short newValue) {
  return Guard([&] { Call(0x68030037, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_CaptionAngle(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030036, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_CaptionAngle(short newValue) {
  return Guard([&] { Call(0x68030036, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_CaptionAutoAngle(::vxAutoAngleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030035, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_CaptionAutoAngle(::vxAutoAngleEnum newValue) {
  return Guard([&] { Call(0x68030035, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_DontRefreshAfterPropertyPage(::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(0x68030034, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_DontRefreshAfterPropertyPage(::VARIANT_BOOL newValue) {
  return Guard([&] { Call(0x68030034, InvokeKind::PropertyPut, {InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_CaptionFont3D(::vxFont3DEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030033, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_CaptionFont3D(::vxFont3DEnum newValue) {
  return Guard([&] { Call(0x68030033, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_Redraw(::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(0x68030032, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_Redraw(::VARIANT_BOOL newValue) {
  return Guard([&] { Call(0x68030032, InvokeKind::PropertyPut, {InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_TimerTimeInterval(long* pRetVal) {
  return Guard([&] { OutI4(Call(0x68030031, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_TimerTimeInterval(long newValue) {
  return Guard([&] { Call(0x68030031, InvokeKind::PropertyPut, {InI4(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_TimerTimeEnabled(::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(0x68030030, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_TimerTimeEnabled(::VARIANT_BOOL newValue) {
  return Guard([&] { Call(0x68030030, InvokeKind::PropertyPut, {InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_TimerDiskInterval(long* pRetVal) {
  return Guard([&] { OutI4(Call(0x6803002f, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_TimerDiskInterval(long newValue) {
  return Guard([&] { Call(0x6803002f, InvokeKind::PropertyPut, {InI4(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_TimerDiskEnabled(::VARIANT_BOOL* pRetVal) {
  return Guard([&] { OutBool(Call(0x6803002e, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_TimerDiskEnabled(::VARIANT_BOOL newValue) {
  return Guard([&] { Call(0x6803002e, InvokeKind::PropertyPut, {InBool(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_RivetsStyle(::vxRivetsStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x6803002d, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_RivetsStyle(::vxRivetsStyleEnum newValue) {
  return Guard([&] { Call(0x6803002d, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_GradientStyle(::vxGradientStyleEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x6803002c, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_GradientStyle(::vxGradientStyleEnum newValue) {
  return Guard([&] { Call(0x6803002c, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_GradientColor(::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x6803002b, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_GradientColor(::OLE_COLOR newValue) {
  return Guard([&] { Call(0x6803002b, InvokeKind::PropertyPut, {InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_GradientColorEnd(::OLE_COLOR* pRetVal) {
  return Guard([&] { OutColor(Call(0x6803002a, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_GradientColorEnd(::OLE_COLOR newValue) {
  return Guard([&] { Call(0x6803002a, InvokeKind::PropertyPut, {InColor(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_GradientGranularity(::vxGradientGranularityEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030029, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_GradientGranularity(::vxGradientGranularityEnum newValue) {
  return Guard([&] { Call(0x68030029, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_Picture(IPictureDisp** pRetVal) {
  return Guard([&] { OutPicture(Call(0x68030007, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::putref_Picture(IPictureDisp* newValue) {
  return Guard([&] { Call(0x68030007, InvokeKind::PropertyPutRef, {InPicture(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_PictureAutoSize(::vxAutoSizeEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030006, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_PictureAutoSize(::vxAutoSizeEnum newValue) {
  return Guard([&] { Call(0x68030006, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_PictureTile(::vxTileEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030005, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_PictureTile(::vxTileEnum newValue) {
  return Guard([&] { Call(0x68030005, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_PictureOffset(short* pRetVal) {
  return Guard([&] { OutI2(Call(0x68030004, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_PictureOffset(short newValue) {
  return Guard([&] { Call(0x68030004, InvokeKind::PropertyPut, {InI2(newValue)}); });
}

HRESULT STDMETHODCALLTYPE DualInterface::get_PictureAlignment(::vxAlignmentEnum* pRetVal) {
  return Guard([&] { OutEnum(Call(0x68030003, InvokeKind::PropertyGet, {}), pRetVal); });
}

HRESULT STDMETHODCALLTYPE DualInterface::put_PictureAlignment(::vxAlignmentEnum newValue) {
  return Guard([&] { Call(0x68030003, InvokeKind::PropertyPut, {InEnum(newValue)}); });
}

}  // namespace vorlex::activex
