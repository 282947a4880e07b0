// The members of _Vorlex with their dispatch identifiers.

#include "control/automation_convert.h"
#include "vorlex/Vorlex.h"

namespace vorlex {

namespace {

using Table = std::vector<MemberInfo>;

template <TypeKind K>
constexpr TypeRef Ref(std::string_view enumName = {}) {
  return TypeRef{K, enumName};
}

ParamInfo BlockArgument() { return ParamInfo{"iBlock", Ref<TypeKind::Variant>(), true, true, DefaultBlock()}; }

// A per-block property: get and put (or putref) with the optional block argument.
template <TypeKind K, class Getter, class Setter>
void BlockProperty(Table& t, std::string_view name, int32_t dispid, std::string_view enumName, Getter get, Setter put) {
  constexpr bool byReference = K == TypeKind::Picture;
  t.push_back({name,
               dispid,
               InvokeKind::PropertyGet,
               {BlockArgument()},
               Ref<K>(enumName),
               [get](Vorlex& v, const std::vector<Variant>& a) { return Convert<K>::To((v.*get)(a[0])); }});
  t.push_back({name,
               dispid,
               byReference ? InvokeKind::PropertyPutRef : InvokeKind::PropertyPut,
               {BlockArgument()},
               Ref<K>(enumName),
               [put](Vorlex& v, const std::vector<Variant>& a) {
                 (v.*put)(Convert<K>::From(a[1]), a[0]);
                 return Variant();
               }});
}

template <TypeKind K, class Getter>
void ReadOnlyProperty(Table& t, std::string_view name, int32_t dispid, std::string_view enumName, Getter get) {
  t.push_back(
      {name, dispid, InvokeKind::PropertyGet, {}, Ref<K>(enumName), [get](Vorlex& v, const std::vector<Variant>&) {
         return Convert<K>::To((v.*get)());
       }});
}

// A control property: get and put, or putref for objects.
template <TypeKind K, class Getter, class Setter>
void Property(Table& t, std::string_view name, int32_t dispid, std::string_view enumName, Getter get, Setter put) {
  constexpr bool byReference = K == TypeKind::Picture || K == TypeKind::Font;
  ReadOnlyProperty<K>(t, name, dispid, enumName, get);
  t.push_back({name,
               dispid,
               byReference ? InvokeKind::PropertyPutRef : InvokeKind::PropertyPut,
               {},
               Ref<K>(enumName),
               [put](Vorlex& v, const std::vector<Variant>& a) {
                 (v.*put)(Convert<K>::From(a[0]));
                 return Variant();
               }});
}

void Method(Table& t, std::string_view name, int32_t dispid, Variant (Vorlex::*method)()) {
  t.push_back({name,
               dispid,
               InvokeKind::Method,
               {},
               Ref<TypeKind::Variant>(),
               [method](Vorlex& v, const std::vector<Variant>&) { return (v.*method)(); }});
}

// A method of one argument, optional with a default unless the default is Missing.
template <TypeKind K, class M>
void Method(Table& t, std::string_view name, int32_t dispid, ParamInfo param, M method) {
  param.type.kind = K;
  param.optional = !param.defaultValue.IsMissing();
  t.push_back({name,
               dispid,
               InvokeKind::Method,
               {param},
               Ref<TypeKind::Variant>(),
               [method](Vorlex& v, const std::vector<Variant>& a) { return (v.*method)(Convert<K>::From(a[0])); }});
}

ParamInfo Arg(std::string_view name, Variant defaultValue, std::string_view enumName = {}) {
  return ParamInfo{name, Ref<TypeKind::Variant>(enumName), true, false, std::move(defaultValue)};
}
Variant I2(int v) { return Variant(static_cast<int16_t>(v)); }
Variant I4(int32_t v) { return Variant(v); }

void AddBlockProperties(Table& t) {
  BlockProperty<TypeKind::String>(t, "BlockKey", 0x68030027, {}, &Vorlex::get_BlockKey, &Vorlex::put_BlockKey);
  BlockProperty<TypeKind::Integer>(t, "BlockBarLeft", 0x68030026, {}, &Vorlex::get_BlockBarLeft,
                                   &Vorlex::put_BlockBarLeft);
  BlockProperty<TypeKind::Integer>(t, "BlockBarRight", 0x68030025, {}, &Vorlex::get_BlockBarRight,
                                   &Vorlex::put_BlockBarRight);
  BlockProperty<TypeKind::Integer>(t, "BlockBarTop", 0x68030024, {}, &Vorlex::get_BlockBarTop,
                                   &Vorlex::put_BlockBarTop);
  BlockProperty<TypeKind::Integer>(t, "BlockBarBottom", 0x68030023, {}, &Vorlex::get_BlockBarBottom,
                                   &Vorlex::put_BlockBarBottom);
  BlockProperty<TypeKind::Enum>(t, "BlockBorderStyle", 0x68030022, "vxBorderStyleEnum", &Vorlex::get_BlockBorderStyle,
                                &Vorlex::put_BlockBorderStyle);
  BlockProperty<TypeKind::Integer>(t, "BlockBorderWidth", 0x68030021, {}, &Vorlex::get_BlockBorderWidth,
                                   &Vorlex::put_BlockBorderWidth);
  BlockProperty<TypeKind::Enum>(t, "BlockShapeStyle", 0x68030020, "vxShapeStyleEnum", &Vorlex::get_BlockShapeStyle,
                                &Vorlex::put_BlockShapeStyle);
  BlockProperty<TypeKind::Enum>(t, "BlockBrushStyle", 0x6803001f, "vxBrushStyleEnum", &Vorlex::get_BlockBrushStyle,
                                &Vorlex::put_BlockBrushStyle);
  BlockProperty<TypeKind::Color>(t, "BlockBrushColor", 0x6803001e, {}, &Vorlex::get_BlockBrushColor,
                                 &Vorlex::put_BlockBrushColor);
  BlockProperty<TypeKind::Boolean>(t, "BlockVisible", 0x6803001d, {}, &Vorlex::get_BlockVisible,
                                   &Vorlex::put_BlockVisible);
  BlockProperty<TypeKind::String>(t, "BlockHPercentage", 0x6803001c, {}, &Vorlex::get_BlockHPercentage,
                                  &Vorlex::put_BlockHPercentage);
  BlockProperty<TypeKind::String>(t, "BlockVPercentage", 0x6803001b, {}, &Vorlex::get_BlockVPercentage,
                                  &Vorlex::put_BlockVPercentage);
  BlockProperty<TypeKind::Boolean>(t, "BlockOnTop", 0x6803001a, {}, &Vorlex::get_BlockOnTop, &Vorlex::put_BlockOnTop);
  BlockProperty<TypeKind::Color>(t, "BlockColor", 0x68030019, {}, &Vorlex::get_BlockColor, &Vorlex::put_BlockColor);
  BlockProperty<TypeKind::Enum>(t, "BlockGradientStyle", 0x68030018, "vxGradientStyleEnum",
                                &Vorlex::get_BlockGradientStyle, &Vorlex::put_BlockGradientStyle);
  BlockProperty<TypeKind::Enum>(t, "BlockGradientGranularity", 0x68030017, "vxGradientGranularityEnum",
                                &Vorlex::get_BlockGradientGranularity, &Vorlex::put_BlockGradientGranularity);
  BlockProperty<TypeKind::Color>(t, "BlockGradientColor", 0x68030016, {}, &Vorlex::get_BlockGradientColor,
                                 &Vorlex::put_BlockGradientColor);
  BlockProperty<TypeKind::Color>(t, "BlockGradientColorEnd", 0x68030015, {}, &Vorlex::get_BlockGradientColorEnd,
                                 &Vorlex::put_BlockGradientColorEnd);
  BlockProperty<TypeKind::String>(t, "BlockText", 0x68030014, {}, &Vorlex::get_BlockText, &Vorlex::put_BlockText);
  BlockProperty<TypeKind::Color>(t, "BlockTextColor", 0x68030013, {}, &Vorlex::get_BlockTextColor,
                                 &Vorlex::put_BlockTextColor);
  BlockProperty<TypeKind::Enum>(t, "BlockTextAlignment", 0x68030012, "vxAlignmentEnum", &Vorlex::get_BlockTextAlignment,
                                &Vorlex::put_BlockTextAlignment);
  BlockProperty<TypeKind::Font>(t, "BlockTextFont", 0x68030011, {}, &Vorlex::get_BlockTextFont,
                                &Vorlex::put_BlockTextFont);
  BlockProperty<TypeKind::Enum>(t, "BlockTextFont3D", 0x68030010, "vxFont3DEnum", &Vorlex::get_BlockTextFont3D,
                                &Vorlex::put_BlockTextFont3D);
  BlockProperty<TypeKind::Integer>(t, "BlockTextOffset", 0x6803000f, {}, &Vorlex::get_BlockTextOffset,
                                   &Vorlex::put_BlockTextOffset);
  BlockProperty<TypeKind::Integer>(t, "BlockTextAngle", 0x6803000e, {}, &Vorlex::get_BlockTextAngle,
                                   &Vorlex::put_BlockTextAngle);
  BlockProperty<TypeKind::Enum>(t, "BlockTextAutoAngle", 0x6803000d, "vxAutoAngleEnum", &Vorlex::get_BlockTextAutoAngle,
                                &Vorlex::put_BlockTextAutoAngle);
  BlockProperty<TypeKind::Enum>(t, "BlockRivetsStyle", 0x6803000c, "vxRivetsStyleEnum", &Vorlex::get_BlockRivetsStyle,
                                &Vorlex::put_BlockRivetsStyle);
  BlockProperty<TypeKind::Picture>(t, "BlockPicture", 0x6803000b, {}, &Vorlex::get_BlockPicture,
                                   &Vorlex::putref_BlockPicture);
  BlockProperty<TypeKind::Integer>(t, "BlockPictureOffset", 0x6803000a, {}, &Vorlex::get_BlockPictureOffset,
                                   &Vorlex::put_BlockPictureOffset);
  BlockProperty<TypeKind::Enum>(t, "BlockPictureAlignment", 0x68030009, "vxAlignmentEnum",
                                &Vorlex::get_BlockPictureAlignment, &Vorlex::put_BlockPictureAlignment);
  BlockProperty<TypeKind::Enum>(t, "BlockPictureTile", 0x68030008, "vxTileEnum", &Vorlex::get_BlockPictureTile,
                                &Vorlex::put_BlockPictureTile);
  BlockProperty<TypeKind::Boolean>(t, "BlockClickable", 0x68030001, {}, &Vorlex::get_BlockClickable,
                                   &Vorlex::put_BlockClickable);
  BlockProperty<TypeKind::Boolean>(t, "BlockAutoSize", 0x68030000, {}, &Vorlex::get_BlockAutoSize,
                                   &Vorlex::put_BlockAutoSize);
}

void AddBlockListMembers(Table& t) {
  Property<TypeKind::Integer>(t, "Blocks", 0x68030028, {}, &Vorlex::get_Blocks, &Vorlex::put_Blocks);
  Property<TypeKind::Integer>(t, "IndexBlock", 0x68030002, {}, &Vorlex::get_IndexBlock, &Vorlex::put_IndexBlock);
  Method(t, "AddBlock", 0x60030071, &Vorlex::AddBlock);
  ParamInfo deleted{"iBlock", {}, false, true, Variant::Missing()};
  Method<TypeKind::Variant>(t, "DeleteBlock", 0x60030072, deleted, &Vorlex::DeleteBlock);
  Method(t, "ClearBlockBar", 0x60030066, &Vorlex::ClearBlockBar);
  Method<TypeKind::Enum>(t, "ClearAll", 0x6003006b, Arg("bClear", I4(vxSoft), "vxClearAllEnum"), &Vorlex::ClearAll);
  Method(t, "SaveSetting", 0x60030068, &Vorlex::SaveSetting);
  Method(t, "RestoreSetting", 0x60030069, &Vorlex::RestoreSetting);
  Method(t, "Refresh", 0x6003004d, &Vorlex::Refresh);
  Method(t, "About", -552, &Vorlex::About);
  Method(t, "ShowAboutBox", 0x6003006c, &Vorlex::ShowAboutBox);
}

void AddBulkSetters(Table& t) {
  using K = TypeKind;
  Method<K::Enum>(t, "SetBlockShapeStyle", 0x60030056, Arg("iShapeStyle", I4(0), "vxShapeStyleEnum"),
                  &Vorlex::SetBlockShapeStyle);
  Method<K::Enum>(t, "SetBlockBorderStyle", 0x60030057, Arg("iBorderStyle", I4(0), "vxBorderStyleEnum"),
                  &Vorlex::SetBlockBorderStyle);
  Method<K::Variant>(t, "SetBlockTextOffset", 0x60030058, Arg("iTextOffset", I2(3)), &Vorlex::SetBlockTextOffset);
  Method<K::Variant>(t, "SetBlockTextAngle", 0x60030059, Arg("iTextAngle", I2(0)), &Vorlex::SetBlockTextAngle);
  Method<K::Variant>(t, "SetBlockTextAutoAngle", 0x6003005a, Arg("iTextAutoAngle", I2(0)),
                     &Vorlex::SetBlockTextAutoAngle);
  Method<K::Color>(t, "SetBlockTextColor", 0x6003005b, Arg("lTextColor", I4(0)), &Vorlex::SetBlockTextColor);
  Method<K::Color>(t, "SetBlockBrushColor", 0x6003005c, Arg("iBlockBrushColor", I4(0x808080)),
                   &Vorlex::SetBlockBrushColor);
  Method<K::Enum>(t, "SetBlockBrushStyle", 0x6003005d, Arg("iBrushStyle", I4(0), "vxBrushStyleEnum"),
                  &Vorlex::SetBlockBrushStyle);
  Method<K::Color>(t, "SetBlockColor", 0x6003005e, Arg("iBlockColor", I4(0x808080)), &Vorlex::SetBlockColor);
  Method<K::Integer>(t, "SetBlockBarTop", 0x6003005f, Arg("iBlockBarTop", I2(0)), &Vorlex::SetBlockBarTop);
  Method<K::Integer>(t, "SetBlockBarBottom", 0x60030060, Arg("iBlockBarBottom", I2(0)), &Vorlex::SetBlockBarBottom);
  Method<K::Boolean>(t, "SetBlockVisible", 0x60030061, Arg("iVisible", Variant::Boolean(true)),
                     &Vorlex::SetBlockVisible);
  Method<K::Boolean>(t, "SetBlockClickable", 0x60030062, Arg("iClickable", Variant::Boolean(true)),
                     &Vorlex::SetBlockClickable);
  Method<K::Boolean>(t, "SetBlockAutoSize", 0x60030063, Arg("iAutoSize", Variant::Boolean(true)),
                     &Vorlex::SetBlockAutoSize);
  Method<K::Enum>(t, "SetBlockRivetsStyle", 0x60030064, Arg("iRivetsStyle", I4(0), "vxRivetsStyleEnum"),
                  &Vorlex::SetBlockRivetsStyle);
  Method<K::Picture>(t, "SetBlockPicture", 0x60030065, Arg("pPicture", Variant(std::shared_ptr<Object>())),
                     &Vorlex::SetBlockPicture);
  Method<K::String>(t, "SetBlockText", 0x60030067, Arg("iBlockText", Variant("")), &Vorlex::SetBlockText);
  Method<K::Enum>(t, "SetBlockTextAlignment", 0x6003006a, Arg("iTextAlignment", I4(0), "vxAlignmentEnum"),
                  &Vorlex::SetBlockTextAlignment);
  Method<K::Enum>(t, "SetBlockGradientStyle", 0x6003006d, Arg("iGradientStyle", I4(0), "vxGradientStyleEnum"),
                  &Vorlex::SetBlockGradientStyle);
  Method<K::Enum>(t, "SetBlockGradientGranularity", 0x6003006e,
                  Arg("iGradientGranularity", I4(0), "vxGradientGranularityEnum"),
                  &Vorlex::SetBlockGradientGranularity);
  Method<K::Color>(t, "SetBlockGradientColor", 0x6003006f, Arg("lGradientColor", I4(0xFF0000)),
                   &Vorlex::SetBlockGradientColor);
  Method<K::Color>(t, "SetBlockGradientColorEnd", 0x60030070, Arg("lGradientColorEnd", I4(0)),
                   &Vorlex::SetBlockGradientColorEnd);
}

void AddControlProperties(Table& t) {
  using K = TypeKind;
  using V = Vorlex;
  Property<K::Color>(t, "BackColor", 0x68030047, {}, &V::get_BackColor, &V::put_BackColor);
  Property<K::Color>(t, "ForeColor", 0x68030046, {}, &V::get_ForeColor, &V::put_ForeColor);
  Property<K::Boolean>(t, "Enabled", -514, {}, &V::get_Enabled, &V::put_Enabled);
  Property<K::Font>(t, "Font", -512, {}, &V::get_Font, &V::putref_Font);
  ReadOnlyProperty<K::Long>(t, "hWnd", 0x68030045, {}, &V::get_hWnd);
  Property<K::Integer>(t, "BorderWidth", 0x68030044, {}, &V::get_BorderWidth, &V::put_BorderWidth);
  Property<K::Enum>(t, "BorderStyle", 0x68030043, "vxBorderStyleEnum", &V::get_BorderStyle, &V::put_BorderStyle);
  Property<K::Integer>(t, "HMinValue", 0x68030042, {}, &V::get_HMinValue, &V::put_HMinValue);
  Property<K::Integer>(t, "HMaxValue", 0x68030041, {}, &V::get_HMaxValue, &V::put_HMaxValue);
  Property<K::Integer>(t, "VMinValue", 0x68030040, {}, &V::get_VMinValue, &V::put_VMinValue);
  Property<K::Integer>(t, "VMaxValue", 0x6803003f, {}, &V::get_VMaxValue, &V::put_VMaxValue);
  Property<K::Enum>(t, "BrushStyle", 0x6803003e, "vxBrushStyleEnum", &V::get_BrushStyle, &V::put_BrushStyle);
  Property<K::Color>(t, "BrushColor", 0x6803003d, {}, &V::get_BrushColor, &V::put_BrushColor);
  Property<K::String>(t, "Caption", 0x6803003c, {}, &V::get_Caption, &V::put_Caption);
  Property<K::Enum>(t, "CaptionAlignment", 0x6803003b, "vxAlignmentEnum", &V::get_CaptionAlignment,
                    &V::put_CaptionAlignment);
  Property<K::Color>(t, "DisabledColor", 0x6803003a, {}, &V::get_DisabledColor, &V::put_DisabledColor);
  Property<K::Enum>(t, "SpecialClearAllBlock", 0x68030039, "vxSpecialClearAllBlockEnum", &V::get_SpecialClearAllBlock,
                    &V::put_SpecialClearAllBlock);
  Property<K::Enum>(t, "Orientation", 0x68030038, "vxOrientationEnum", &V::get_Orientation, &V::put_Orientation);
  Property<K::Integer>(t, "CaptionOffset", 0x68030037, {}, &V::get_CaptionOffset, &V::put_CaptionOffset);
  Property<K::Integer>(t, "CaptionAngle", 0x68030036, {}, &V::get_CaptionAngle, &V::put_CaptionAngle);
  Property<K::Enum>(t, "CaptionAutoAngle", 0x68030035, "vxAutoAngleEnum", &V::get_CaptionAutoAngle,
                    &V::put_CaptionAutoAngle);
  Property<K::Boolean>(t, "DontRefreshAfterPropertyPage", 0x68030034, {}, &V::get_DontRefreshAfterPropertyPage,
                       &V::put_DontRefreshAfterPropertyPage);
  Property<K::Enum>(t, "CaptionFont3D", 0x68030033, "vxFont3DEnum", &V::get_CaptionFont3D, &V::put_CaptionFont3D);
  Property<K::Boolean>(t, "Redraw", 0x68030032, {}, &V::get_Redraw, &V::put_Redraw);
  Property<K::Long>(t, "TimerTimeInterval", 0x68030031, {}, &V::get_TimerTimeInterval, &V::put_TimerTimeInterval);
  Property<K::Boolean>(t, "TimerTimeEnabled", 0x68030030, {}, &V::get_TimerTimeEnabled, &V::put_TimerTimeEnabled);
  Property<K::Long>(t, "TimerDiskInterval", 0x6803002f, {}, &V::get_TimerDiskInterval, &V::put_TimerDiskInterval);
  Property<K::Boolean>(t, "TimerDiskEnabled", 0x6803002e, {}, &V::get_TimerDiskEnabled, &V::put_TimerDiskEnabled);
  Property<K::Enum>(t, "RivetsStyle", 0x6803002d, "vxRivetsStyleEnum", &V::get_RivetsStyle, &V::put_RivetsStyle);
  Property<K::Enum>(t, "GradientStyle", 0x6803002c, "vxGradientStyleEnum", &V::get_GradientStyle,
                    &V::put_GradientStyle);
  Property<K::Color>(t, "GradientColor", 0x6803002b, {}, &V::get_GradientColor, &V::put_GradientColor);
  Property<K::Color>(t, "GradientColorEnd", 0x6803002a, {}, &V::get_GradientColorEnd, &V::put_GradientColorEnd);
  Property<K::Enum>(t, "GradientGranularity", 0x68030029, "vxGradientGranularityEnum", &V::get_GradientGranularity,
                    &V::put_GradientGranularity);
  Property<K::Picture>(t, "Picture", 0x68030007, {}, &V::get_Picture, &V::putref_Picture);
  Property<K::Enum>(t, "PictureAutoSize", 0x68030006, "vxAutoSizeEnum", &V::get_PictureAutoSize,
                    &V::put_PictureAutoSize);
  Property<K::Enum>(t, "PictureTile", 0x68030005, "vxTileEnum", &V::get_PictureTile, &V::put_PictureTile);
  Property<K::Integer>(t, "PictureOffset", 0x68030004, {}, &V::get_PictureOffset, &V::put_PictureOffset);
  Property<K::Enum>(t, "PictureAlignment", 0x68030003, "vxAlignmentEnum", &V::get_PictureAlignment,
                    &V::put_PictureAlignment);
}

Table BuildTable() {
  Table t;
  AddBlockListMembers(t);
  AddBlockProperties(t);
  AddBulkSetters(t);
  AddControlProperties(t);
  return t;
}

}  // namespace

const std::vector<MemberInfo>& AutomationTable() {
  static const Table table = BuildTable();
  return table;
}

}  // namespace vorlex
