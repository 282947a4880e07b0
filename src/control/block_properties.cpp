// Per-block properties: one field of one block, named by number or key.

#include "control/vorlex_impl.h"
#include "vorlex/AutomationError.h"

namespace vorlex {

// The key is addressed by number only, without ResolveBlockIndex: a key string
// is a type mismatch and the omitted argument (-1) is out of range.
std::string Vorlex::get_BlockKey(const Variant& iBlock) const {
  return d->Element(EffectiveBlockArgument(iBlock).ToLong()).Key;
}
void Vorlex::put_BlockKey(const std::string& value, const Variant& iBlock) {
  d->Element(EffectiveBlockArgument(iBlock).ToLong()).Key = value;
}

int16_t Vorlex::get_BlockBarLeft(const Variant& iBlock) const { return d->Block(iBlock).BarLeft; }
void Vorlex::put_BlockBarLeft(int16_t value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::BarLeft, value);
}
int16_t Vorlex::get_BlockBarRight(const Variant& iBlock) const { return d->Block(iBlock).BarRight; }
void Vorlex::put_BlockBarRight(int16_t value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::BarRight, value);
}
int16_t Vorlex::get_BlockBarTop(const Variant& iBlock) const { return d->Block(iBlock).BarTop; }
void Vorlex::put_BlockBarTop(int16_t value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::BarTop, value);
}
int16_t Vorlex::get_BlockBarBottom(const Variant& iBlock) const { return d->Block(iBlock).BarBottom; }
void Vorlex::put_BlockBarBottom(int16_t value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::BarBottom, value);
}
int32_t Vorlex::get_BlockBorderStyle(const Variant& iBlock) const { return d->Block(iBlock).BorderStyle; }
void Vorlex::put_BlockBorderStyle(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::BorderStyle, value);
}
int16_t Vorlex::get_BlockBorderWidth(const Variant& iBlock) const { return d->Block(iBlock).BorderWidth; }
void Vorlex::put_BlockBorderWidth(int16_t value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::BorderWidth, value);
}
int32_t Vorlex::get_BlockShapeStyle(const Variant& iBlock) const { return d->Block(iBlock).ShapeStyle; }
void Vorlex::put_BlockShapeStyle(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::ShapeStyle, value);
}
int32_t Vorlex::get_BlockBrushStyle(const Variant& iBlock) const { return d->Block(iBlock).BrushStyle; }
void Vorlex::put_BlockBrushStyle(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::BrushStyle, value);
}
OLE_COLOR Vorlex::get_BlockBrushColor(const Variant& iBlock) const { return d->Block(iBlock).BrushColor; }
void Vorlex::put_BlockBrushColor(OLE_COLOR value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::BrushColor, value);
}
VARIANT_BOOL Vorlex::get_BlockVisible(const Variant& iBlock) const { return d->Block(iBlock).Visible; }
void Vorlex::put_BlockVisible(VARIANT_BOOL value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::Visible, value);
}
std::string Vorlex::get_BlockHPercentage(const Variant& iBlock) const { return d->Block(iBlock).HPercentage; }
void Vorlex::put_BlockHPercentage(const std::string& value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::HPercentage, value);
}
std::string Vorlex::get_BlockVPercentage(const Variant& iBlock) const { return d->Block(iBlock).VPercentage; }
void Vorlex::put_BlockVPercentage(const std::string& value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::VPercentage, value);
}
VARIANT_BOOL Vorlex::get_BlockOnTop(const Variant& iBlock) const { return d->Block(iBlock).OnTop; }
void Vorlex::put_BlockOnTop(VARIANT_BOOL value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::OnTop, value);
}
OLE_COLOR Vorlex::get_BlockColor(const Variant& iBlock) const { return d->Block(iBlock).Color; }
void Vorlex::put_BlockColor(OLE_COLOR value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::Color, value);
}
int32_t Vorlex::get_BlockGradientStyle(const Variant& iBlock) const { return d->Block(iBlock).GradientStyle; }
void Vorlex::put_BlockGradientStyle(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::GradientStyle, value);
}
int32_t Vorlex::get_BlockGradientGranularity(const Variant& iBlock) const {
  return d->Block(iBlock).GradientGranularity;
}
void Vorlex::put_BlockGradientGranularity(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::GradientGranularity, value);
}
OLE_COLOR Vorlex::get_BlockGradientColor(const Variant& iBlock) const { return d->Block(iBlock).GradientColor; }
void Vorlex::put_BlockGradientColor(OLE_COLOR value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::GradientColor, value);
}
OLE_COLOR Vorlex::get_BlockGradientColorEnd(const Variant& iBlock) const { return d->Block(iBlock).GradientColorEnd; }
void Vorlex::put_BlockGradientColorEnd(OLE_COLOR value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::GradientColorEnd, value);
}
std::string Vorlex::get_BlockText(const Variant& iBlock) const { return d->Block(iBlock).Text; }
void Vorlex::put_BlockText(const std::string& value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::Text, value);
}
OLE_COLOR Vorlex::get_BlockTextColor(const Variant& iBlock) const { return d->Block(iBlock).TextColor; }
void Vorlex::put_BlockTextColor(OLE_COLOR value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::TextColor, value);
}
int32_t Vorlex::get_BlockTextAlignment(const Variant& iBlock) const { return d->Block(iBlock).TextAlignment; }
void Vorlex::put_BlockTextAlignment(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::TextAlignment, value);
}
FontPtr Vorlex::get_BlockTextFont(const Variant& iBlock) const { return d->Block(iBlock).TextFont; }
void Vorlex::put_BlockTextFont(const FontPtr& value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::TextFont, value);
}
int32_t Vorlex::get_BlockTextFont3D(const Variant& iBlock) const { return d->Block(iBlock).TextFont3D; }
void Vorlex::put_BlockTextFont3D(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::TextFont3D, value);
}
int16_t Vorlex::get_BlockTextOffset(const Variant& iBlock) const { return d->Block(iBlock).TextOffset; }
void Vorlex::put_BlockTextOffset(int16_t value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::TextOffset, value);
}
int16_t Vorlex::get_BlockTextAngle(const Variant& iBlock) const { return d->Block(iBlock).TextAngle; }
void Vorlex::put_BlockTextAngle(int16_t value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::TextAngle, value);
}
int32_t Vorlex::get_BlockTextAutoAngle(const Variant& iBlock) const { return d->Block(iBlock).TextAutoAngle; }
void Vorlex::put_BlockTextAutoAngle(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::TextAutoAngle, value);
}
int32_t Vorlex::get_BlockRivetsStyle(const Variant& iBlock) const { return d->Block(iBlock).RivetsStyle; }
void Vorlex::put_BlockRivetsStyle(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::RivetsStyle, value);
}
PicturePtr Vorlex::get_BlockPicture(const Variant& iBlock) const { return d->Block(iBlock).Picture; }
void Vorlex::putref_BlockPicture(const PicturePtr& value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::Picture, value);
}
int16_t Vorlex::get_BlockPictureOffset(const Variant& iBlock) const { return d->Block(iBlock).PictureOffset; }
void Vorlex::put_BlockPictureOffset(int16_t value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::PictureOffset, value);
}
int32_t Vorlex::get_BlockPictureAlignment(const Variant& iBlock) const { return d->Block(iBlock).PictureAlignment; }
void Vorlex::put_BlockPictureAlignment(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::PictureAlignment, value);
}
int32_t Vorlex::get_BlockPictureTile(const Variant& iBlock) const { return d->Block(iBlock).PictureTile; }
void Vorlex::put_BlockPictureTile(int32_t value, const Variant& iBlock) {
  d->StoreEnumeration(iBlock, &BlockDefinition::PictureTile, value);
}
VARIANT_BOOL Vorlex::get_BlockClickable(const Variant& iBlock) const { return d->Block(iBlock).Clickable; }
void Vorlex::put_BlockClickable(VARIANT_BOOL value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::Clickable, value);
}
VARIANT_BOOL Vorlex::get_BlockAutoSize(const Variant& iBlock) const { return d->Block(iBlock).AutoSize; }
void Vorlex::put_BlockAutoSize(VARIANT_BOOL value, const Variant& iBlock) {
  d->Store(iBlock, &BlockDefinition::AutoSize, value);
}

}  // namespace vorlex
