#include "control/block_keys.h"

#include <memory>

#include "control/automation_convert.h"

namespace vorlex {

using B = BlockDefinition;
using K = BagKind;

const std::array<BlockKey, kBlockKeyCount> kBlockKeys = {{
    {"Block.Key(", K::Text, 0, &B::Key},
    {"Block.BarLeft(", K::Integer, -1, &B::BarLeft},
    {"Block.BarRight(", K::Integer, -1, &B::BarRight},
    {"Block.BarTop(", K::Integer, 100, &B::BarTop},
    {"Block.BarBottom(", K::Integer, 0, &B::BarBottom},
    {"Block.ShapeStyle(", K::Integer, 0, &B::ShapeStyle},
    {"Block.BorderStyle(", K::Integer, 0, &B::BorderStyle},
    {"Block.BorderWidth(", K::Integer, 1, &B::BorderWidth},
    {"Block.BrushStyle(", K::Integer, 0, &B::BrushStyle},
    {"Block.BrushColor(", K::Long, 0, &B::BrushColor},
    {"Block.Visible(", K::Boolean, VARIANT_TRUE, &B::Visible},
    // Text fields whose default is the number 0: a missing key loads as "0".
    {"Block.HPercentage(", K::Text, 0, &B::HPercentage},
    {"Block.VPercentage(", K::Text, 0, &B::VPercentage},
    {"Block.OnTop(", K::Boolean, VARIANT_FALSE, &B::OnTop},
    {"Block.Color(", K::Long, 0x808080, &B::Color},
    {"Block.GradientStyle(", K::Integer, 0, &B::GradientStyle},
    {"Block.GradientGranularity(", K::Integer, 0, &B::GradientGranularity},
    {"Block.GradientColor(", K::Long, 0xFF0000, &B::GradientColor},
    {"Block.GradientColorEnd(", K::Long, 0, &B::GradientColorEnd},
    {"Block.Text(", K::Text, 0, &B::Text},
    {"Block.TextColor(", K::Long, 0, &B::TextColor},
    {"Block.TextAlignment(", K::Integer, 0, &B::TextAlignment},
    {"Block.TextFont(", K::Font, 0, &B::TextFont},
    {"Block.TextFont3D(", K::Integer, 0, &B::TextFont3D},
    {"Block.TextOffset(", K::Integer, 3, &B::TextOffset},
    {"Block.TextAngle(", K::Integer, 0, &B::TextAngle},
    {"Block.TextAutoAngle(", K::Integer, 0, &B::TextAutoAngle},
    {"Block.RivetsStyle(", K::Integer, 0, &B::RivetsStyle},
    {"Block.Picture(", K::Picture, 0, &B::Picture},
    {"Block.PictureAlignment(", K::Integer, 0, &B::PictureAlignment},
    {"Block.PictureOffset(", K::Integer, 3, &B::PictureOffset},
    {"Block.PictureTile(", K::Integer, 0, &B::PictureTile},
    {"Block.Clickable(", K::Boolean, VARIANT_TRUE, &B::Clickable},
    {"Block.AutoSize(", K::Boolean, VARIANT_TRUE, &B::AutoSize},
}};

std::string BlockKeyName(std::string_view prefix, int32_t index) {
  std::string name(prefix);
  name += std::to_string(index);
  name += ')';
  return name;
}

Variant BlockKeyDefault(const BlockKey& key, const FontPtr& ambientFont) {
  switch (key.kind) {
    case K::Text:
      // "" for the texts, the number 0 for the two percentages.
      if (key.prefix == "Block.HPercentage(" || key.prefix == "Block.VPercentage(") return Variant(int16_t{0});
      return Variant(std::string());
    case K::Integer:
      return Variant(static_cast<int16_t>(key.defaultValue));
    case K::Long:
      return Variant(key.defaultValue);
    case K::Boolean:
      return Variant::Boolean(static_cast<VARIANT_BOOL>(key.defaultValue));
    case K::Font:
      return Variant(std::shared_ptr<Object>(ambientFont));
    case K::Picture:
      return Variant(std::shared_ptr<Object>());
  }
  return {};
}

Variant BlockFieldValue(const BlockKey& key, const BlockDefinition& block) {
  switch (key.kind) {
    case K::Text:
      return Variant(block.*std::get<std::string B::*>(key.field));
    case K::Integer:
      return Variant(block.*std::get<int16_t B::*>(key.field));
    case K::Long:
      return Variant(static_cast<int32_t>(block.*std::get<OLE_COLOR B::*>(key.field)));
    case K::Boolean:
      return Variant::Boolean(block.*std::get<int16_t B::*>(key.field));
    case K::Font:
      return Variant(std::shared_ptr<Object>(block.*std::get<FontPtr B::*>(key.field)));
    case K::Picture:
      return Variant(std::shared_ptr<Object>(block.*std::get<PicturePtr B::*>(key.field)));
  }
  return {};
}

void StoreBlockField(const BlockKey& key, BlockDefinition& block, const Variant& value) {
  switch (key.kind) {
    case K::Text:
      block.*std::get<std::string B::*>(key.field) = value.ToString();
      return;
    case K::Integer:
      block.*std::get<int16_t B::*>(key.field) = value.ToInteger();
      return;
    case K::Long:
      block.*std::get<OLE_COLOR B::*>(key.field) = static_cast<OLE_COLOR>(value.ToLong());
      return;
    case K::Boolean:
      block.*std::get<int16_t B::*>(key.field) = value.ToBoolean();
      return;
    case K::Font:
      block.*std::get<FontPtr B::*>(key.field) = ObjectFrom<vorlex::Font>(value);
      return;
    case K::Picture:
      block.*std::get<PicturePtr B::*>(key.field) = ObjectFrom<vorlex::Picture>(value);
      return;
  }
}

}  // namespace vorlex
