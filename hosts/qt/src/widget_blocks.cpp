// The per-block members as the widget's invokable methods, each forwarding
// to the control's member with the block argument converted.

#include "qt_convert.h"
#include "vorlex/Picture.h"
#include "vorlex_widget_private.h"

namespace vorlex::qt {

#define VORLEX_BLOCK_INT(getter, setter, Name)                                                                  \
  int VorlexWidget::getter(const QVariant& block) const { return d->control.get_##Name(BlockArgument(block)); } \
  void VorlexWidget::setter(int value, const QVariant& block) {                                                 \
    d->control.put_##Name(static_cast<int16_t>(value), BlockArgument(block));                                   \
  }

#define VORLEX_BLOCK_ENUM(getter, setter, Name, Enum)                         \
  VorlexWidget::Enum VorlexWidget::getter(const QVariant& block) const {      \
    return static_cast<Enum>(d->control.get_##Name(BlockArgument(block)));    \
  }                                                                           \
  void VorlexWidget::setter(Enum value, const QVariant& block) {              \
    d->control.put_##Name(static_cast<int32_t>(value), BlockArgument(block)); \
  }

#define VORLEX_BLOCK_COLOR(getter, setter, Name)                          \
  QColor VorlexWidget::getter(const QVariant& block) const {              \
    return ToQColor(d->control.get_##Name(BlockArgument(block)));         \
  }                                                                       \
  void VorlexWidget::setter(const QColor& color, const QVariant& block) { \
    d->control.put_##Name(ToOleColor(color), BlockArgument(block));       \
  }

#define VORLEX_BLOCK_BOOL(getter, setter, Name)                          \
  bool VorlexWidget::getter(const QVariant& block) const {               \
    return d->control.get_##Name(BlockArgument(block)) != VARIANT_FALSE; \
  }                                                                      \
  void VorlexWidget::setter(bool value, const QVariant& block) {         \
    d->control.put_##Name(ToVariantBool(value), BlockArgument(block));   \
  }

VORLEX_BLOCK_INT(blockBarLeft, setBlockBarLeft, BlockBarLeft)
VORLEX_BLOCK_INT(blockBarRight, setBlockBarRight, BlockBarRight)
VORLEX_BLOCK_INT(blockBarTop, setBlockBarTop, BlockBarTop)
VORLEX_BLOCK_INT(blockBarBottom, setBlockBarBottom, BlockBarBottom)
VORLEX_BLOCK_ENUM(blockBorderStyle, setBlockBorderStyle, BlockBorderStyle, vxBorderStyleEnum)
VORLEX_BLOCK_INT(blockBorderWidth, setBlockBorderWidth, BlockBorderWidth)
VORLEX_BLOCK_ENUM(blockShapeStyle, setBlockShapeStyle, BlockShapeStyle, vxShapeStyleEnum)
VORLEX_BLOCK_ENUM(blockBrushStyle, setBlockBrushStyle, BlockBrushStyle, vxBrushStyleEnum)
VORLEX_BLOCK_COLOR(blockBrushColor, setBlockBrushColor, BlockBrushColor)
VORLEX_BLOCK_BOOL(blockVisible, setBlockVisible, BlockVisible)
VORLEX_BLOCK_BOOL(blockOnTop, setBlockOnTop, BlockOnTop)
VORLEX_BLOCK_COLOR(blockColor, setBlockColor, BlockColor)
VORLEX_BLOCK_ENUM(blockGradientStyle, setBlockGradientStyle, BlockGradientStyle, vxGradientStyleEnum)
VORLEX_BLOCK_ENUM(blockGradientGranularity, setBlockGradientGranularity, BlockGradientGranularity,
                  vxGradientGranularityEnum)
VORLEX_BLOCK_COLOR(blockGradientColor, setBlockGradientColor, BlockGradientColor)
VORLEX_BLOCK_COLOR(blockGradientColorEnd, setBlockGradientColorEnd, BlockGradientColorEnd)
VORLEX_BLOCK_COLOR(blockTextColor, setBlockTextColor, BlockTextColor)
VORLEX_BLOCK_ENUM(blockTextAlignment, setBlockTextAlignment, BlockTextAlignment, vxAlignmentEnum)
VORLEX_BLOCK_ENUM(blockTextFont3D, setBlockTextFont3D, BlockTextFont3D, vxFont3DEnum)
VORLEX_BLOCK_INT(blockTextOffset, setBlockTextOffset, BlockTextOffset)
VORLEX_BLOCK_INT(blockTextAngle, setBlockTextAngle, BlockTextAngle)
VORLEX_BLOCK_ENUM(blockTextAutoAngle, setBlockTextAutoAngle, BlockTextAutoAngle, vxAutoAngleEnum)
VORLEX_BLOCK_ENUM(blockRivetsStyle, setBlockRivetsStyle, BlockRivetsStyle, vxRivetsStyleEnum)
VORLEX_BLOCK_INT(blockPictureOffset, setBlockPictureOffset, BlockPictureOffset)
VORLEX_BLOCK_ENUM(blockPictureAlignment, setBlockPictureAlignment, BlockPictureAlignment, vxAlignmentEnum)
VORLEX_BLOCK_ENUM(blockPictureTile, setBlockPictureTile, BlockPictureTile, vxTileEnum)
VORLEX_BLOCK_BOOL(blockClickable, setBlockClickable, BlockClickable)
VORLEX_BLOCK_BOOL(blockAutoSize, setBlockAutoSize, BlockAutoSize)

QString VorlexWidget::blockKey(const QVariant& block) const {
  return ToQString(d->control.get_BlockKey(BlockArgument(block)));
}
void VorlexWidget::setBlockKey(const QString& key, const QVariant& block) {
  d->control.put_BlockKey(ToStd(key), BlockArgument(block));
}
QString VorlexWidget::blockText(const QVariant& block) const {
  return ToQString(d->control.get_BlockText(BlockArgument(block)));
}
void VorlexWidget::setBlockText(const QString& text, const QVariant& block) {
  d->control.put_BlockText(ToStd(text), BlockArgument(block));
}
QString VorlexWidget::blockHPercentage(const QVariant& block) const {
  return ToQString(d->control.get_BlockHPercentage(BlockArgument(block)));
}
QString VorlexWidget::blockVPercentage(const QVariant& block) const {
  return ToQString(d->control.get_BlockVPercentage(BlockArgument(block)));
}
QFont VorlexWidget::blockTextFont(const QVariant& block) const {
  const FontPtr font = d->control.get_BlockTextFont(BlockArgument(block));
  return font ? ToQFont(*font) : QFont();
}
void VorlexWidget::setBlockTextFont(const QFont& font, const QVariant& block) {
  d->control.put_BlockTextFont(ToVorlexFont(font), BlockArgument(block));
}
void VorlexWidget::setBlockPicture(const QString& path, const QVariant& block) {
  d->control.putref_BlockPicture(LoadPicture(ToStd(path)), BlockArgument(block));
}
bool VorlexWidget::blockHasPicture(const QVariant& block) const {
  const PicturePtr picture = d->control.get_BlockPicture(BlockArgument(block));
  return picture && picture->Handle() != 0;
}

}  // namespace vorlex::qt
