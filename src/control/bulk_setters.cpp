// Bulk setters: one field of every block at once.

#include "control/vorlex_impl.h"

namespace vorlex {

namespace {
constexpr bool kNotifies = true;
constexpr bool kSilent = false;
}  // namespace

// Enumerations are narrowed per block, so a bar without blocks accepts any value.
Variant Vorlex::SetBlockShapeStyle(int32_t iShapeStyle) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.ShapeStyle = NarrowToInteger(iShapeStyle); }, kNotifies);
}
Variant Vorlex::SetBlockBorderStyle(int32_t iBorderStyle) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.BorderStyle = NarrowToInteger(iBorderStyle); }, kNotifies);
}
Variant Vorlex::SetBlockTextOffset(const Variant& iTextOffset) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.TextOffset = iTextOffset.ToInteger(); }, kNotifies);
}
Variant Vorlex::SetBlockTextAngle(const Variant& iTextAngle) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.TextAngle = iTextAngle.ToInteger(); }, kNotifies);
}
Variant Vorlex::SetBlockTextAutoAngle(const Variant& iTextAutoAngle) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.TextAutoAngle = iTextAutoAngle.ToInteger(); }, kNotifies);
}
Variant Vorlex::SetBlockTextColor(OLE_COLOR lTextColor) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.TextColor = lTextColor; }, kNotifies);
}
Variant Vorlex::SetBlockBrushColor(OLE_COLOR iBlockBrushColor) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.BrushColor = iBlockBrushColor; }, kNotifies);
}
Variant Vorlex::SetBlockBrushStyle(int32_t iBrushStyle) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.BrushStyle = NarrowToInteger(iBrushStyle); }, kNotifies);
}
Variant Vorlex::SetBlockColor(OLE_COLOR iBlockColor) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.Color = iBlockColor; }, kNotifies);
}
// Twips to pixels. The bottom edge is divided by the horizontal factor: kept as
// the control has always done it; on square pixels the factors are equal.
Variant Vorlex::SetBlockBarTop(int16_t iBlockBarTop) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.BarTop = IntegerDivide(iBlockBarTop, d->twipsPerPixelY); },
                         kNotifies);
}
Variant Vorlex::SetBlockBarBottom(int16_t iBlockBarBottom) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.BarBottom = IntegerDivide(iBlockBarBottom, d->twipsPerPixelX); },
                         kNotifies);
}
Variant Vorlex::SetBlockVisible(VARIANT_BOOL iVisible) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.Visible = iVisible; }, kNotifies);
}
Variant Vorlex::SetBlockClickable(VARIANT_BOOL iClickable) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.Clickable = iClickable; }, kNotifies);
}
Variant Vorlex::SetBlockAutoSize(VARIANT_BOOL iAutoSize) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.AutoSize = iAutoSize; }, kNotifies);
}
Variant Vorlex::SetBlockRivetsStyle(int32_t iRivetsStyle) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.RivetsStyle = NarrowToInteger(iRivetsStyle); }, kNotifies);
}
Variant Vorlex::SetBlockPicture(const PicturePtr& pPicture) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.Picture = pPicture; }, kNotifies);
}
Variant Vorlex::SetBlockText(const std::string& iBlockText) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.Text = iBlockText; }, kNotifies);
}
Variant Vorlex::SetBlockTextAlignment(int32_t iTextAlignment) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.TextAlignment = NarrowToInteger(iTextAlignment); }, kSilent);
}
Variant Vorlex::SetBlockGradientStyle(int32_t iGradientStyle) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.GradientStyle = NarrowToInteger(iGradientStyle); }, kSilent);
}
Variant Vorlex::SetBlockGradientGranularity(int32_t iGradientGranularity) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.GradientGranularity = NarrowToInteger(iGradientGranularity); },
                         kSilent);
}
Variant Vorlex::SetBlockGradientColor(OLE_COLOR lGradientColor) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.GradientColor = lGradientColor; }, kSilent);
}
Variant Vorlex::SetBlockGradientColorEnd(OLE_COLOR lGradientColorEnd) {
  return d->ForEachBlock([&](BlockDefinition& b) { b.GradientColorEnd = lGradientColorEnd; }, kSilent);
}

}  // namespace vorlex
