#pragma once
// Generated from the automation table by vorlex_idlgen: do not edit.
// clang-format off
// The dual interface's vtable: each method forwards to the automation table
// through Call, which the control object implements.

#include <cstdint>
#include <string>
#include <vector>

#include "com_includes.h"
#include "vorlex/Variant.h"

namespace vorlex::activex {

class DualInterface : public _Vorlex {
 public:
  HRESULT STDMETHODCALLTYPE get_Blocks(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_Blocks(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_IndexBlock(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_IndexBlock(short newValue) override;
  HRESULT STDMETHODCALLTYPE AddBlock(VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE DeleteBlock(VARIANT* iBlock, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE ClearBlockBar(VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE ClearAll(::vxClearAllEnum bClear, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SaveSetting(VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE RestoreSetting(VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE Refresh(VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE About(VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE ShowAboutBox(VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE get_BlockKey(VARIANT* iBlock, BSTR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockKey(VARIANT* iBlock, BSTR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockBarLeft(VARIANT* iBlock, short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockBarLeft(VARIANT* iBlock, short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockBarRight(VARIANT* iBlock, short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockBarRight(VARIANT* iBlock, short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockBarTop(VARIANT* iBlock, short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockBarTop(VARIANT* iBlock, short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockBarBottom(VARIANT* iBlock, short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockBarBottom(VARIANT* iBlock, short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockBorderStyle(VARIANT* iBlock, ::vxBorderStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockBorderStyle(VARIANT* iBlock, ::vxBorderStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockBorderWidth(VARIANT* iBlock, short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockBorderWidth(VARIANT* iBlock, short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockShapeStyle(VARIANT* iBlock, ::vxShapeStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockShapeStyle(VARIANT* iBlock, ::vxShapeStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockBrushStyle(VARIANT* iBlock, ::vxBrushStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockBrushStyle(VARIANT* iBlock, ::vxBrushStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockBrushColor(VARIANT* iBlock, ::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockBrushColor(VARIANT* iBlock, ::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockVisible(VARIANT* iBlock, ::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockVisible(VARIANT* iBlock, ::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockHPercentage(VARIANT* iBlock, BSTR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockHPercentage(VARIANT* iBlock, BSTR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockVPercentage(VARIANT* iBlock, BSTR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockVPercentage(VARIANT* iBlock, BSTR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockOnTop(VARIANT* iBlock, ::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockOnTop(VARIANT* iBlock, ::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockColor(VARIANT* iBlock, ::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockColor(VARIANT* iBlock, ::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockGradientStyle(VARIANT* iBlock, ::vxGradientStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockGradientStyle(VARIANT* iBlock, ::vxGradientStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockGradientGranularity(VARIANT* iBlock, ::vxGradientGranularityEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockGradientGranularity(VARIANT* iBlock, ::vxGradientGranularityEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockGradientColor(VARIANT* iBlock, ::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockGradientColor(VARIANT* iBlock, ::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockGradientColorEnd(VARIANT* iBlock, ::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockGradientColorEnd(VARIANT* iBlock, ::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockText(VARIANT* iBlock, BSTR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockText(VARIANT* iBlock, BSTR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockTextColor(VARIANT* iBlock, ::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockTextColor(VARIANT* iBlock, ::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockTextAlignment(VARIANT* iBlock, ::vxAlignmentEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockTextAlignment(VARIANT* iBlock, ::vxAlignmentEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockTextFont(VARIANT* iBlock, IFontDisp** pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockTextFont(VARIANT* iBlock, IFontDisp* newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockTextFont3D(VARIANT* iBlock, ::vxFont3DEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockTextFont3D(VARIANT* iBlock, ::vxFont3DEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockTextOffset(VARIANT* iBlock, short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockTextOffset(VARIANT* iBlock, short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockTextAngle(VARIANT* iBlock, short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockTextAngle(VARIANT* iBlock, short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockTextAutoAngle(VARIANT* iBlock, ::vxAutoAngleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockTextAutoAngle(VARIANT* iBlock, ::vxAutoAngleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockRivetsStyle(VARIANT* iBlock, ::vxRivetsStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockRivetsStyle(VARIANT* iBlock, ::vxRivetsStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockPicture(VARIANT* iBlock, IPictureDisp** pRetVal) override;
  HRESULT STDMETHODCALLTYPE putref_BlockPicture(VARIANT* iBlock, IPictureDisp* newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockPictureOffset(VARIANT* iBlock, short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockPictureOffset(VARIANT* iBlock, short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockPictureAlignment(VARIANT* iBlock, ::vxAlignmentEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockPictureAlignment(VARIANT* iBlock, ::vxAlignmentEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockPictureTile(VARIANT* iBlock, ::vxTileEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockPictureTile(VARIANT* iBlock, ::vxTileEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockClickable(VARIANT* iBlock, ::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockClickable(VARIANT* iBlock, ::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE get_BlockAutoSize(VARIANT* iBlock, ::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BlockAutoSize(VARIANT* iBlock, ::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE SetBlockShapeStyle(::vxShapeStyleEnum iShapeStyle, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockBorderStyle(::vxBorderStyleEnum iBorderStyle, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockTextOffset(VARIANT iTextOffset, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockTextAngle(VARIANT iTextAngle, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockTextAutoAngle(VARIANT iTextAutoAngle, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockTextColor(::OLE_COLOR lTextColor, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockBrushColor(::OLE_COLOR iBlockBrushColor, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockBrushStyle(::vxBrushStyleEnum iBrushStyle, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockColor(::OLE_COLOR iBlockColor, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockBarTop(short iBlockBarTop, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockBarBottom(short iBlockBarBottom, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockVisible(::VARIANT_BOOL iVisible, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockClickable(::VARIANT_BOOL iClickable, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockAutoSize(::VARIANT_BOOL iAutoSize, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockRivetsStyle(::vxRivetsStyleEnum iRivetsStyle, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockPicture(IPictureDisp* pPicture, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockText(BSTR iBlockText, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockTextAlignment(::vxAlignmentEnum iTextAlignment, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockGradientStyle(::vxGradientStyleEnum iGradientStyle, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockGradientGranularity(::vxGradientGranularityEnum iGradientGranularity, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockGradientColor(::OLE_COLOR lGradientColor, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE SetBlockGradientColorEnd(::OLE_COLOR lGradientColorEnd, VARIANT* pRetVal) override;
  HRESULT STDMETHODCALLTYPE get_BackColor(::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BackColor(::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_ForeColor(::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_ForeColor(::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_Enabled(::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_Enabled(::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE get_Font(IFontDisp** pRetVal) override;
  HRESULT STDMETHODCALLTYPE putref_Font(IFontDisp* newValue) override;
  HRESULT STDMETHODCALLTYPE get_hWnd(long* pRetVal) override;
  HRESULT STDMETHODCALLTYPE get_BorderWidth(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BorderWidth(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BorderStyle(::vxBorderStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BorderStyle(::vxBorderStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_HMinValue(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_HMinValue(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_HMaxValue(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_HMaxValue(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_VMinValue(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_VMinValue(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_VMaxValue(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_VMaxValue(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_BrushStyle(::vxBrushStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BrushStyle(::vxBrushStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_BrushColor(::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_BrushColor(::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_Caption(BSTR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_Caption(BSTR newValue) override;
  HRESULT STDMETHODCALLTYPE get_CaptionAlignment(::vxAlignmentEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_CaptionAlignment(::vxAlignmentEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_DisabledColor(::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_DisabledColor(::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_SpecialClearAllBlock(::vxSpecialClearAllBlockEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_SpecialClearAllBlock(::vxSpecialClearAllBlockEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_Orientation(::vxOrientationEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_Orientation(::vxOrientationEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_CaptionOffset(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_CaptionOffset(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_CaptionAngle(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_CaptionAngle(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_CaptionAutoAngle(::vxAutoAngleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_CaptionAutoAngle(::vxAutoAngleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_DontRefreshAfterPropertyPage(::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_DontRefreshAfterPropertyPage(::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE get_CaptionFont3D(::vxFont3DEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_CaptionFont3D(::vxFont3DEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_Redraw(::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_Redraw(::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE get_TimerTimeInterval(long* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_TimerTimeInterval(long newValue) override;
  HRESULT STDMETHODCALLTYPE get_TimerTimeEnabled(::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_TimerTimeEnabled(::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE get_TimerDiskInterval(long* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_TimerDiskInterval(long newValue) override;
  HRESULT STDMETHODCALLTYPE get_TimerDiskEnabled(::VARIANT_BOOL* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_TimerDiskEnabled(::VARIANT_BOOL newValue) override;
  HRESULT STDMETHODCALLTYPE get_RivetsStyle(::vxRivetsStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_RivetsStyle(::vxRivetsStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_GradientStyle(::vxGradientStyleEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_GradientStyle(::vxGradientStyleEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_GradientColor(::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_GradientColor(::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_GradientColorEnd(::OLE_COLOR* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_GradientColorEnd(::OLE_COLOR newValue) override;
  HRESULT STDMETHODCALLTYPE get_GradientGranularity(::vxGradientGranularityEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_GradientGranularity(::vxGradientGranularityEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_Picture(IPictureDisp** pRetVal) override;
  HRESULT STDMETHODCALLTYPE putref_Picture(IPictureDisp* newValue) override;
  HRESULT STDMETHODCALLTYPE get_PictureAutoSize(::vxAutoSizeEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_PictureAutoSize(::vxAutoSizeEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_PictureTile(::vxTileEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_PictureTile(::vxTileEnum newValue) override;
  HRESULT STDMETHODCALLTYPE get_PictureOffset(short* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_PictureOffset(short newValue) override;
  HRESULT STDMETHODCALLTYPE get_PictureAlignment(::vxAlignmentEnum* pRetVal) override;
  HRESULT STDMETHODCALLTYPE put_PictureAlignment(::vxAlignmentEnum newValue) override;

 protected:
  virtual ~DualInterface() = default;
  // Calls the member with its arguments in call order; raises AutomationError.
  virtual Variant Call(int32_t dispid, InvokeKind kind, std::vector<Variant> args) = 0;
  // Runs one vtable call: an automation error becomes its HRESULT and the
  // thread's error information.
  template <class Body>
  HRESULT Guard(Body body);
  virtual HRESULT ReportError(int32_t number, const std::string& description) = 0;
};

}  // namespace vorlex::activex
