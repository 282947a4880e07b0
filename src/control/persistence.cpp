// Saving to and loading from the container's property bag. The keys, their
// order, kinds and defaults are the saved format; loading stores straight into
// the fields, without setters or notifications, except where noted.

#include "control/automation_convert.h"
#include "control/block_keys.h"
#include "control/vorlex_impl.h"
#include "vorlex/AutomationError.h"
#include "vorlex/PropertyBag.h"

namespace vorlex {

namespace {

Variant Int(int16_t v) { return Variant(v); }
Variant Lng(int32_t v) { return Variant(v); }
Variant Color(OLE_COLOR c) { return Variant(static_cast<int32_t>(c)); }
Variant Bool(VARIANT_BOOL b) { return Variant::Boolean(b); }
Variant Obj(std::shared_ptr<Object> o) { return Variant(std::move(o)); }

// Width is written with 900 as its default and read with 315: a control
// exactly 900 wide is saved without the key and comes back 315 wide.
constexpr float kWidthWrittenDefault = 900.0f;
constexpr float kWidthReadDefault = 315.0f;
constexpr float kHeightDefault = 315.0f;

void WriteBlocks(const Vorlex::Impl& m, PropertyBag& bag) {
  const FontPtr ambient = m.site.AmbientFont();
  // The block counter is 16-bit: more blocks than it can count overflow here.
  const int16_t last = NarrowToInteger(m.blockCount);
  for (int32_t i = 1; i <= last; ++i) {
    const BlockDefinition& block = m.blocks[static_cast<size_t>(i)];
    for (const BlockKey& key : kBlockKeys) {
      bag.WriteProperty(BlockKeyName(key.prefix, i), BlockFieldValue(key, block), BlockKeyDefault(key, ambient));
    }
  }
}

void ReadBlocks(Vorlex::Impl& m, PropertyBag& bag) {
  const int32_t count = bag.ReadProperty("Blocks", Lng(0)).ToLong();
  // The block counter is 16-bit. Its overflow is raised before the list is
  // sized, so that a count no load can finish allocates nothing.
  const int16_t last = NarrowToInteger(count);
  if (count < 0) RaiseError(kErrSubscript);
  if (count > 0) m.blocks.resize(static_cast<size_t>(count) + 1);
  m.blockCount = count;
  const FontPtr ambient = m.site.AmbientFont();
  for (int32_t i = 1; i <= last; ++i) {
    BlockDefinition& block = m.blocks[static_cast<size_t>(i)];
    for (const BlockKey& key : kBlockKeys) {
      StoreBlockField(key, block, bag.ReadProperty(BlockKeyName(key.prefix, i), BlockKeyDefault(key, ambient)));
    }
  }
}

OLE_COLOR ColorOf(const Variant& value) { return static_cast<OLE_COLOR>(value.ToLong()); }

}  // namespace

void Vorlex::UserControl_WriteProperties(PropertyBag& bag) const {
  const Impl& m = *d;
  bag.WriteProperty("Blocks", Lng(m.blockCount), Lng(0));
  WriteBlocks(m, bag);
  bag.WriteProperty("Height", Variant(static_cast<float>(m.site.OuterHeightTwips())), Variant(kHeightDefault));
  bag.WriteProperty("Width", Variant(static_cast<float>(m.site.OuterWidthTwips())), Variant(kWidthWrittenDefault));
  bag.WriteProperty("BackColor", Color(m.backColor), Color(kLightGrey));
  bag.WriteProperty("ForeColor", Color(m.site.ForeColor()), Color(0x80000012));
  bag.WriteProperty("Enabled", Bool(m.site.Enabled()), Bool(VARIANT_TRUE));
  bag.WriteProperty("Font", Obj(m.site.Font()), Obj(m.site.AmbientFont()));
  bag.WriteProperty("IndexBlock", Int(m.indexBlock), Int(0));
  bag.WriteProperty("BorderStyle", Lng(m.borderStyle), Lng(vxInset));
  bag.WriteProperty("BorderWidth", Int(m.borderWidth), Int(1));
  bag.WriteProperty("BrushStyle", Lng(m.brushStyle), Lng(0));
  bag.WriteProperty("BrushColor", Color(m.brushColor), Color(kBlack));
  bag.WriteProperty("HMinValue", Int(m.hMinValue), Int(0));
  bag.WriteProperty("HMaxValue", Int(m.hMaxValue), Int(100));
  bag.WriteProperty("VMinValue", Int(m.vMinValue), Int(0));
  bag.WriteProperty("VMaxValue", Int(m.vMaxValue), Int(100));
  bag.WriteProperty("Caption", Variant(m.caption), Variant(std::string()));
  bag.WriteProperty("CaptionAlignment", Lng(m.captionAlignment), Lng(0));
  bag.WriteProperty("CaptionOffset", Int(m.captionOffset), Int(3));
  bag.WriteProperty("CaptionAngle", Int(m.captionAngle), Int(0));
  bag.WriteProperty("CaptionAutoAngle", Lng(m.captionAutoAngle), Lng(0));
  bag.WriteProperty("CaptionFont3D", Lng(m.captionFont3D), Lng(0));
  bag.WriteProperty("DisabledColor", Color(m.disabledColor), Color(kDarkGrey));
  bag.WriteProperty("SpecialClearAllBlock", Lng(m.specialClearAllBlock), Lng(0));
  bag.WriteProperty("Orientation", Lng(m.orientation), Lng(0));
  // Written but never read back.
  bag.WriteProperty("DontRefreshAfterPropertyPage", Bool(m.dontRefreshAfterPropertyPage), Bool(VARIANT_FALSE));
  bag.WriteProperty("Redraw", Bool(m.redraw), Bool(VARIANT_TRUE));
  bag.WriteProperty("TimerTimeInterval", Lng(m.timerTimeInterval), Lng(1000));
  bag.WriteProperty("TimerTimeEnabled", Bool(m.timerTimeEnabled), Bool(VARIANT_FALSE));
  bag.WriteProperty("TimerDiskInterval", Lng(m.timerDiskInterval), Lng(60000));
  bag.WriteProperty("TimerDiskEnabled", Bool(m.timerDiskEnabled), Bool(VARIANT_FALSE));
  bag.WriteProperty("RivetsStyle", Lng(m.rivetsStyle), Lng(0));
  bag.WriteProperty("GradientStyle", Lng(m.gradientStyle), Lng(0));
  bag.WriteProperty("GradientGranularity", Lng(m.gradientGranularity), Lng(0));
  bag.WriteProperty("GradientColor", Color(m.gradientColor), Color(0xFF0000));
  bag.WriteProperty("GradientColorEnd", Color(m.gradientColorEnd), Color(kBlack));
  bag.WriteProperty("Picture", Obj(m.picture), Obj(nullptr));
  bag.WriteProperty("PictureAutoSize", Lng(m.pictureAutoSize), Lng(0));
  bag.WriteProperty("PictureTile", Lng(m.pictureTile), Lng(0));
  bag.WriteProperty("PictureOffset", Int(m.pictureOffset), Int(3));
  bag.WriteProperty("PictureAlignment", Lng(m.pictureAlignment), Lng(0));
}

void Vorlex::UserControl_ReadProperties(PropertyBag& bag) {
  Impl& m = *d;
  m.twipsPerPixelX = ToInteger(m.site.TwipsPerPixelX());
  m.twipsPerPixelY = ToInteger(m.site.TwipsPerPixelY());
  ReadBlocks(m, bag);

  // Size is applied at once, each right after it is read.
  m.site.SetOuterHeightTwips(ToLong(bag.ReadProperty("Height", Variant(kHeightDefault)).ToSingle()));
  m.site.SetOuterWidthTwips(ToLong(bag.ReadProperty("Width", Variant(kWidthReadDefault)).ToSingle()));
  m.backColor = ColorOf(bag.ReadProperty("BackColor", Color(kLightGrey)));
  m.site.SetForeColor(ColorOf(bag.ReadProperty("ForeColor", Color(0x80000012))));
  m.site.SetEnabled(bag.ReadProperty("Enabled", Bool(VARIANT_TRUE)).ToBoolean());
  // Through the setter, so that the surface gets the font too.
  putref_Font(ObjectFrom<vorlex::Font>(bag.ReadProperty("Font", Obj(m.site.AmbientFont()))));
  m.indexBlock = bag.ReadProperty("IndexBlock", Int(0)).ToInteger();
  m.borderStyle = bag.ReadProperty("BorderStyle", Lng(vxInset)).ToLong();
  m.borderWidth = bag.ReadProperty("BorderWidth", Int(1)).ToInteger();
  m.brushStyle = bag.ReadProperty("BrushStyle", Lng(0)).ToLong();
  m.brushColor = ColorOf(bag.ReadProperty("BrushColor", Color(kBlack)));
  m.hMinValue = bag.ReadProperty("HMinValue", Int(0)).ToInteger();
  m.hMaxValue = bag.ReadProperty("HMaxValue", Int(100)).ToInteger();
  m.vMinValue = bag.ReadProperty("VMinValue", Int(0)).ToInteger();
  m.vMaxValue = bag.ReadProperty("VMaxValue", Int(100)).ToInteger();
  m.caption = bag.ReadProperty("Caption", Variant(std::string())).ToString();
  m.captionAlignment = bag.ReadProperty("CaptionAlignment", Lng(0)).ToLong();
  m.disabledColor = ColorOf(bag.ReadProperty("DisabledColor", Color(kDarkGrey)));
  m.specialClearAllBlock = bag.ReadProperty("SpecialClearAllBlock", Lng(0)).ToLong();
  m.orientation = bag.ReadProperty("Orientation", Lng(0)).ToLong();
  m.captionOffset = bag.ReadProperty("CaptionOffset", Int(3)).ToInteger();
  m.captionAngle = bag.ReadProperty("CaptionAngle", Int(0)).ToInteger();
  m.captionAutoAngle = bag.ReadProperty("CaptionAutoAngle", Lng(0)).ToLong();
  m.captionFont3D = bag.ReadProperty("CaptionFont3D", Lng(0)).ToLong();
  m.redraw = bag.ReadProperty("Redraw", Bool(VARIANT_TRUE)).ToBoolean();

  // Each timer is armed from the two values just read: first its state, then
  // its interval.
  m.timerTimeInterval = bag.ReadProperty("TimerTimeInterval", Lng(1000)).ToLong();
  m.timerTimeEnabled = bag.ReadProperty("TimerTimeEnabled", Bool(VARIANT_FALSE)).ToBoolean();
  m.timerTimeInformation->SetEnabled(m.timerTimeEnabled);
  m.timerTimeInformation->SetInterval(m.timerTimeInterval);
  m.timerDiskInterval = bag.ReadProperty("TimerDiskInterval", Lng(60000)).ToLong();
  m.timerDiskEnabled = bag.ReadProperty("TimerDiskEnabled", Bool(VARIANT_FALSE)).ToBoolean();
  m.timerDiskInformation->SetEnabled(m.timerDiskEnabled);
  m.timerDiskInformation->SetInterval(m.timerDiskInterval);

  m.rivetsStyle = bag.ReadProperty("RivetsStyle", Lng(0)).ToLong();
  m.gradientStyle = bag.ReadProperty("GradientStyle", Lng(0)).ToLong();
  m.gradientGranularity = bag.ReadProperty("GradientGranularity", Lng(0)).ToLong();
  m.gradientColor = ColorOf(bag.ReadProperty("GradientColor", Color(0xFF0000)));
  m.gradientColorEnd = ColorOf(bag.ReadProperty("GradientColorEnd", Color(kBlack)));
  m.picture = ObjectFrom<vorlex::Picture>(bag.ReadProperty("Picture", Obj(nullptr)));
  m.pictureAutoSize = bag.ReadProperty("PictureAutoSize", Lng(0)).ToLong();
  m.pictureTile = bag.ReadProperty("PictureTile", Lng(0)).ToLong();
  m.pictureOffset = bag.ReadProperty("PictureOffset", Int(3)).ToInteger();
  m.pictureAlignment = bag.ReadProperty("PictureAlignment", Lng(0)).ToLong();
}

}  // namespace vorlex
