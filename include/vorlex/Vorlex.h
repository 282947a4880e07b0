#pragma once
// The Vorlex bar control: an ordered list of blocks painted on a bar, driven by
// properties and methods named as its automation interface names them.

#include <cstdint>
#include <memory>
#include <string>

#include "vorlex/Color.h"
#include "vorlex/ControlSite.h"
#include "vorlex/Enums.h"
#include "vorlex/Font.h"
#include "vorlex/Numeric.h"
#include "vorlex/Picture.h"
#include "vorlex/Variant.h"

namespace vorlex {

// The block argument's default: -1, the current block (IndexBlock).
inline Variant DefaultBlock() { return Variant(static_cast<int16_t>(-1)); }

class PropertyBag;

class Vorlex {
 public:
  // Creates the control in its container: the off-screen surface and the two
  // timers. A new control then takes InitProperties; a saved one is loaded.
  explicit Vorlex(ControlSite& site);
  ~Vorlex();
  Vorlex(const Vorlex&) = delete;
  Vorlex& operator=(const Vorlex&) = delete;

  // The defaults of a newly placed control.
  void InitProperties();
  // Saving to and loading from the container's property bag. Loading stores
  // the values read straight into the control (no setters, no notifications,
  // no redraw of its own; the font goes through its setter); an error stops it
  // with the values read so far kept.
  void UserControl_WriteProperties(PropertyBag& PropBag) const;
  void UserControl_ReadProperties(PropertyBag& PropBag);

  // Block list.
  int16_t get_Blocks() const;
  void put_Blocks(int16_t value);
  int16_t get_IndexBlock() const;
  void put_IndexBlock(int16_t value);
  Variant AddBlock();
  Variant DeleteBlock(const Variant& iBlock);
  Variant ClearBlockBar();
  Variant ClearAll(int32_t bClear = vxSoft);
  Variant SaveSetting();
  Variant RestoreSetting();

  // Per-block properties; the block argument is a number, -1 for IndexBlock,
  // or a key.
  std::string get_BlockKey(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockKey(const std::string& value, const Variant& iBlock = DefaultBlock());
  int16_t get_BlockBarLeft(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockBarLeft(int16_t value, const Variant& iBlock = DefaultBlock());
  int16_t get_BlockBarRight(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockBarRight(int16_t value, const Variant& iBlock = DefaultBlock());
  int16_t get_BlockBarTop(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockBarTop(int16_t value, const Variant& iBlock = DefaultBlock());
  int16_t get_BlockBarBottom(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockBarBottom(int16_t value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockBorderStyle(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockBorderStyle(int32_t value, const Variant& iBlock = DefaultBlock());
  int16_t get_BlockBorderWidth(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockBorderWidth(int16_t value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockShapeStyle(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockShapeStyle(int32_t value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockBrushStyle(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockBrushStyle(int32_t value, const Variant& iBlock = DefaultBlock());
  OLE_COLOR get_BlockBrushColor(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockBrushColor(OLE_COLOR value, const Variant& iBlock = DefaultBlock());
  VARIANT_BOOL get_BlockVisible(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockVisible(VARIANT_BOOL value, const Variant& iBlock = DefaultBlock());
  std::string get_BlockHPercentage(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockHPercentage(const std::string& value, const Variant& iBlock = DefaultBlock());
  std::string get_BlockVPercentage(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockVPercentage(const std::string& value, const Variant& iBlock = DefaultBlock());
  VARIANT_BOOL get_BlockOnTop(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockOnTop(VARIANT_BOOL value, const Variant& iBlock = DefaultBlock());
  OLE_COLOR get_BlockColor(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockColor(OLE_COLOR value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockGradientStyle(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockGradientStyle(int32_t value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockGradientGranularity(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockGradientGranularity(int32_t value, const Variant& iBlock = DefaultBlock());
  OLE_COLOR get_BlockGradientColor(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockGradientColor(OLE_COLOR value, const Variant& iBlock = DefaultBlock());
  OLE_COLOR get_BlockGradientColorEnd(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockGradientColorEnd(OLE_COLOR value, const Variant& iBlock = DefaultBlock());
  std::string get_BlockText(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockText(const std::string& value, const Variant& iBlock = DefaultBlock());
  OLE_COLOR get_BlockTextColor(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockTextColor(OLE_COLOR value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockTextAlignment(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockTextAlignment(int32_t value, const Variant& iBlock = DefaultBlock());
  FontPtr get_BlockTextFont(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockTextFont(const FontPtr& value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockTextFont3D(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockTextFont3D(int32_t value, const Variant& iBlock = DefaultBlock());
  int16_t get_BlockTextOffset(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockTextOffset(int16_t value, const Variant& iBlock = DefaultBlock());
  int16_t get_BlockTextAngle(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockTextAngle(int16_t value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockTextAutoAngle(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockTextAutoAngle(int32_t value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockRivetsStyle(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockRivetsStyle(int32_t value, const Variant& iBlock = DefaultBlock());
  PicturePtr get_BlockPicture(const Variant& iBlock = DefaultBlock()) const;
  void putref_BlockPicture(const PicturePtr& value, const Variant& iBlock = DefaultBlock());
  int16_t get_BlockPictureOffset(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockPictureOffset(int16_t value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockPictureAlignment(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockPictureAlignment(int32_t value, const Variant& iBlock = DefaultBlock());
  int32_t get_BlockPictureTile(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockPictureTile(int32_t value, const Variant& iBlock = DefaultBlock());
  VARIANT_BOOL get_BlockClickable(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockClickable(VARIANT_BOOL value, const Variant& iBlock = DefaultBlock());
  VARIANT_BOOL get_BlockAutoSize(const Variant& iBlock = DefaultBlock()) const;
  void put_BlockAutoSize(VARIANT_BOOL value, const Variant& iBlock = DefaultBlock());

  // Bulk setters: one field of every block.
  Variant SetBlockShapeStyle(int32_t iShapeStyle = vxRectangle);
  Variant SetBlockBorderStyle(int32_t iBorderStyle = vxNoneBorder);
  Variant SetBlockTextOffset(const Variant& iTextOffset = Variant(static_cast<int16_t>(3)));
  Variant SetBlockTextAngle(const Variant& iTextAngle = Variant(static_cast<int16_t>(0)));
  Variant SetBlockTextAutoAngle(const Variant& iTextAutoAngle = Variant(static_cast<int16_t>(0)));
  Variant SetBlockTextColor(OLE_COLOR lTextColor = 0);
  Variant SetBlockBrushColor(OLE_COLOR iBlockBrushColor = 0x808080);
  Variant SetBlockBrushStyle(int32_t iBrushStyle = vxNoneBrush);
  Variant SetBlockColor(OLE_COLOR iBlockColor = 0x808080);
  Variant SetBlockBarTop(int16_t iBlockBarTop = 0);
  Variant SetBlockBarBottom(int16_t iBlockBarBottom = 0);
  Variant SetBlockVisible(VARIANT_BOOL iVisible = VARIANT_TRUE);
  Variant SetBlockClickable(VARIANT_BOOL iClickable = VARIANT_TRUE);
  Variant SetBlockAutoSize(VARIANT_BOOL iAutoSize = VARIANT_TRUE);
  Variant SetBlockRivetsStyle(int32_t iRivetsStyle = vxNoneRivets);
  Variant SetBlockPicture(const PicturePtr& pPicture = nullptr);
  Variant SetBlockText(const std::string& iBlockText = std::string());
  Variant SetBlockTextAlignment(int32_t iTextAlignment = vxCenterCenter);
  Variant SetBlockGradientStyle(int32_t iGradientStyle = vxNoneGradient);
  Variant SetBlockGradientGranularity(int32_t iGradientGranularity = vxDefault);
  Variant SetBlockGradientColor(OLE_COLOR lGradientColor = 0xFF0000);
  Variant SetBlockGradientColorEnd(OLE_COLOR lGradientColorEnd = 0);

  // Control properties.
  OLE_COLOR get_BackColor() const;
  void put_BackColor(OLE_COLOR value);
  OLE_COLOR get_ForeColor() const;
  void put_ForeColor(OLE_COLOR value);
  VARIANT_BOOL get_Enabled() const;
  void put_Enabled(VARIANT_BOOL value);
  FontPtr get_Font() const;
  void putref_Font(const FontPtr& value);
  int32_t get_hWnd() const;
  int16_t get_BorderWidth() const;
  void put_BorderWidth(int16_t value);
  int32_t get_BorderStyle() const;
  void put_BorderStyle(int32_t value);
  int16_t get_HMinValue() const;
  void put_HMinValue(int16_t value);
  int16_t get_HMaxValue() const;
  void put_HMaxValue(int16_t value);
  int16_t get_VMinValue() const;
  void put_VMinValue(int16_t value);
  int16_t get_VMaxValue() const;
  void put_VMaxValue(int16_t value);
  int32_t get_BrushStyle() const;
  void put_BrushStyle(int32_t value);
  OLE_COLOR get_BrushColor() const;
  void put_BrushColor(OLE_COLOR value);
  std::string get_Caption() const;
  void put_Caption(const std::string& value);
  int32_t get_CaptionAlignment() const;
  void put_CaptionAlignment(int32_t value);
  OLE_COLOR get_DisabledColor() const;
  void put_DisabledColor(OLE_COLOR value);
  int32_t get_SpecialClearAllBlock() const;
  void put_SpecialClearAllBlock(int32_t value);
  int32_t get_Orientation() const;
  void put_Orientation(int32_t value);
  int16_t get_CaptionOffset() const;
  void put_CaptionOffset(int16_t value);
  int16_t get_CaptionAngle() const;
  void put_CaptionAngle(int16_t value);
  int32_t get_CaptionAutoAngle() const;
  void put_CaptionAutoAngle(int32_t value);
  VARIANT_BOOL get_DontRefreshAfterPropertyPage() const;
  void put_DontRefreshAfterPropertyPage(VARIANT_BOOL value);
  int32_t get_CaptionFont3D() const;
  void put_CaptionFont3D(int32_t value);
  VARIANT_BOOL get_Redraw() const;
  void put_Redraw(VARIANT_BOOL value);
  int32_t get_TimerTimeInterval() const;
  void put_TimerTimeInterval(int32_t value);
  VARIANT_BOOL get_TimerTimeEnabled() const;
  void put_TimerTimeEnabled(VARIANT_BOOL value);
  int32_t get_TimerDiskInterval() const;
  void put_TimerDiskInterval(int32_t value);
  VARIANT_BOOL get_TimerDiskEnabled() const;
  void put_TimerDiskEnabled(VARIANT_BOOL value);
  int32_t get_RivetsStyle() const;
  void put_RivetsStyle(int32_t value);
  int32_t get_GradientStyle() const;
  void put_GradientStyle(int32_t value);
  OLE_COLOR get_GradientColor() const;
  void put_GradientColor(OLE_COLOR value);
  OLE_COLOR get_GradientColorEnd() const;
  void put_GradientColorEnd(OLE_COLOR value);
  int32_t get_GradientGranularity() const;
  void put_GradientGranularity(int32_t value);
  PicturePtr get_Picture() const;
  void putref_Picture(const PicturePtr& value);
  int32_t get_PictureAutoSize() const;
  void put_PictureAutoSize(int32_t value);
  int32_t get_PictureTile() const;
  void put_PictureTile(int32_t value);
  int16_t get_PictureOffset() const;
  void put_PictureOffset(int16_t value);
  int32_t get_PictureAlignment() const;
  void put_PictureAlignment(int32_t value);

  // Repaints the whole control.
  Variant Refresh();
  // Show the About box modally (the two are the same).
  Variant About();
  Variant ShowAboutBox();

  // Container notifications.
  void UserControl_Paint();
  void UserControl_Resize();
  // Mouse input from the window; a disabled control receives none.
  void UserControl_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
  void UserControl_Click();
  void UserControl_DblClick();

  struct Impl;

 private:
  std::unique_ptr<Impl> d;
};

}  // namespace vorlex
