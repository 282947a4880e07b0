#include "editors/block_page.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <string>

#include "control/utf8.h"
#include "editors/preview_painter.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Font.h"
#include "vorlex/Numeric.h"

namespace vorlex::editors {

namespace {
constexpr std::array<const char*, 3> kStartPrefixes = {"Start Red = ", "Start Green = ", "Start Blue = "};
constexpr std::array<const char*, 3> kEndPrefixes = {"End Red = ", "End Green = ", "End Blue = "};

std::string Indexed(std::string_view name, int index) { return std::string(name) + "(" + std::to_string(index) + ")"; }

int Channel(OLE_COLOR color, int channel) { return static_cast<int>((color >> (8 * channel)) & 0xFF); }

// The lists that show an enumeration, with their enumerations and fields.
struct EnumList {
  const char* control;
  const char* enumName;
  int16_t BlockDefinition::*field;
};
constexpr std::array<EnumList, 11> kEnumLists = {{
    {"cbxShapeStyle", "vxShapeStyleEnum", &BlockDefinition::ShapeStyle},
    {"cbxBorderStyle", "vxBorderStyleEnum", &BlockDefinition::BorderStyle},
    {"cbxBrushStyle", "vxBrushStyleEnum", &BlockDefinition::BrushStyle},
    {"cbxGradientStyle", "vxGradientStyleEnum", &BlockDefinition::GradientStyle},
    {"cbxGradientGranularity", "vxGradientGranularityEnum", &BlockDefinition::GradientGranularity},
    {"cbxRivetsStyle", "vxRivetsStyleEnum", &BlockDefinition::RivetsStyle},
    {"cbxTextAlignment", "vxAlignmentEnum", &BlockDefinition::TextAlignment},
    {"cbxPictureAlignment", "vxAlignmentEnum", &BlockDefinition::PictureAlignment},
    {"cbxAutoAngle", "vxAutoAngleEnum", &BlockDefinition::TextAutoAngle},
    {"cbxFont3D", "vxFont3DEnum", &BlockDefinition::TextFont3D},
    {"cbxPictureTile", "vxTileEnum", &BlockDefinition::PictureTile},
}};

// The text boxes that hold a 16-bit field.
struct NumberBox {
  const char* control;
  int16_t BlockDefinition::*field;
};
constexpr std::array<NumberBox, 8> kNumberBoxes = {{
    {"txtBlockBarLeft", &BlockDefinition::BarLeft},
    {"txtBlockBarRight", &BlockDefinition::BarRight},
    {"txtBlockBarTop", &BlockDefinition::BarTop},
    {"txtBlockBarBottom", &BlockDefinition::BarBottom},
    {"txtBlockBorderWidth", &BlockDefinition::BorderWidth},
    {"txtBlockTextOffset", &BlockDefinition::TextOffset},
    {"txtBlockTextAngle", &BlockDefinition::TextAngle},
    {"txtBlockPictureOffset", &BlockDefinition::PictureOffset},
}};

struct FlagBox {
  const char* control;
  VARIANT_BOOL BlockDefinition::*field;
};
constexpr std::array<FlagBox, 4> kFlagBoxes = {{
    {"chkBlockOnTop", &BlockDefinition::OnTop},
    {"chkBlockVisible", &BlockDefinition::Visible},
    {"chkBlockClickable", &BlockDefinition::Clickable},
    {"chkBlockAutoSize", &BlockDefinition::AutoSize},
}};

bool IsCancel(const AutomationError& e) { return e.Number() == kErrCancel; }
}  // namespace

const std::vector<std::string>& BlockPage::TextFormats() {
  static const std::vector<std::string> formats = {"short time",
                                                   "medium time",
                                                   "long time",
                                                   "general date",
                                                   "short date",
                                                   "medium date",
                                                   "long date",
                                                   "disk free:?",
                                                   "disk used:?",
                                                   "disk total:?",
                                                   "ratio free:?",
                                                   "ratio used:?",
                                                   "show vertical ratio free:?",
                                                   "show vertical ratio used:?",
                                                   "show horizontal ratio free:?",
                                                   "show horizontal ratio used:?"};
  return formats;
}

BlockPage::BlockPage(PageView& view, DialogService& dialogs) : PropertyPage(view, dialogs), work_(2) {
  for (const EnumList& list : kEnumLists) view_.SetListItems(list.control, EnumerationItems(list.enumName));
  view_.SetListItems("cbxTextFormat", TextFormats());
  view_.SetText("txtTextColor", "This text is colored");
  for (int i = 0; i < 3; ++i) {
    view_.SetScrollRange(Indexed("hslColor", i), 0, 255);
    view_.SetScrollRange(Indexed("hslColorEnd", i), 0, 255);
    view_.SetText(Indexed("lblColor", i), std::string(kStartPrefixes[static_cast<size_t>(i)]) + "0");
    view_.SetText(Indexed("lblColorEnd", i), std::string(kEndPrefixes[static_cast<size_t>(i)]) + "0");
  }
}

std::vector<std::string> BlockPage::ControlNames() const {
  std::vector<std::string> names = {"txtIndex",
                                    "HScroll1",
                                    "txtBlockKey",
                                    "cmdAddBlock",
                                    "cmdRemoveBlock",
                                    "SSTab1",
                                    "SSTab2",
                                    "SSTab3",
                                    "SSTab4",
                                    "txtBlockHPercentage",
                                    "txtBlockVPercentage",
                                    "txtBlockText",
                                    "cbxTextFormat",
                                    "txtTextFont",
                                    "cmdFontSelection",
                                    "txtTextColor",
                                    "cmdTextColorSelection",
                                    "txtColor",
                                    "cmdColorSelection",
                                    "txtBrushColor",
                                    "cmdBrushColor",
                                    "pctResult",
                                    "Picture1",
                                    "cmdBrowse",
                                    "cmdRemove"};
  for (const NumberBox& box : kNumberBoxes) names.emplace_back(box.control);
  for (const FlagBox& box : kFlagBoxes) names.emplace_back(box.control);
  for (const EnumList& list : kEnumLists) names.emplace_back(list.control);
  for (int i = 0; i < 3; ++i) {
    for (const char* array : {"hslColor", "hslColorEnd", "pctColor", "pctColorEnd", "lblColor", "lblColorEnd"})
      names.push_back(Indexed(array, i));
  }
  return names;
}

BlockDefinition& BlockPage::Record() {
  if (current_ < 0 || static_cast<size_t>(current_) >= work_.size()) RaiseError(kErrSubscript);
  return work_[static_cast<size_t>(current_)];
}

// ---------------------------------------------------------------------------
// Loading, showing, applying.

void BlockPage::SelectionChanged() {
  if (!loaded_) {
    ControlObject& control = FirstSelected();
    const uint8_t count = control.Get("Blocks").ToByte();
    view_.SetScrollRange("HScroll1", 1, count);
    if (count > 0) {
      current_ = 1;
      view_.SetText("txtIndex", "1");
      work_.assign(static_cast<size_t>(count) + 1, BlockDefinition{});
      for (int16_t i = 1; i <= count; ++i) ReadBlock(control, i);
    } else {
      view_.SetText("txtIndex", "");
      view_.SetEnabled("SSTab1", false);
      work_.assign(2, BlockDefinition{});
    }
  }
  loaded_ = true;
  ShowCurrentBlock();
  view_.SetScrollValue("HScroll1", current_);
}

void BlockPage::ReadBlock(ControlObject& control, int16_t index) {
  const std::vector<Variant> at = {Variant(index)};
  auto number = [&](const char* name) { return control.Get(name, at).ToInteger(); };
  auto color = [&](const char* name) { return static_cast<OLE_COLOR>(control.Get(name, at).ToLong()); };
  auto flag = [&](const char* name) { return control.Get(name, at).ToBoolean(); };
  auto text = [&](const char* name) { return control.Get(name, at).ToString(); };
  BlockDefinition& b = work_[static_cast<size_t>(index)];
  b.Key = text("BlockKey");
  b.BarLeft = number("BlockBarLeft");
  b.BarRight = number("BlockBarRight");
  b.BarTop = number("BlockBarTop");
  b.BarBottom = number("BlockBarBottom");
  b.BorderStyle = number("BlockBorderStyle");
  b.BorderWidth = number("BlockBorderWidth");
  b.BrushColor = color("BlockBrushColor");
  b.BrushStyle = number("BlockBrushStyle");
  b.HPercentage = text("BlockHPercentage");
  b.VPercentage = text("BlockVPercentage");
  b.OnTop = flag("BlockOnTop");
  b.ShapeStyle = number("BlockShapeStyle");
  b.Visible = flag("BlockVisible");
  b.Color = color("BlockColor");
  b.GradientStyle = number("BlockGradientStyle");
  b.GradientGranularity = number("BlockGradientGranularity");
  b.GradientColor = color("BlockGradientColor");
  b.GradientColorEnd = color("BlockGradientColorEnd");
  b.Text = text("BlockText");
  b.TextColor = color("BlockTextColor");
  b.TextAlignment = number("BlockTextAlignment");
  b.TextFont = std::dynamic_pointer_cast<Font>(control.Get("BlockTextFont", at).ToObject());
  b.TextFont3D = number("BlockTextFont3D");
  b.TextOffset = number("BlockTextOffset");
  b.TextAngle = number("BlockTextAngle");
  b.TextAutoAngle = number("BlockTextAutoAngle");
  b.RivetsStyle = number("BlockRivetsStyle");
  b.Picture = std::dynamic_pointer_cast<Picture>(control.Get("BlockPicture", at).ToObject());
  b.PictureOffset = number("BlockPictureOffset");
  b.PictureAlignment = number("BlockPictureAlignment");
  b.PictureTile = number("BlockPictureTile");
  b.Clickable = flag("BlockClickable");
  b.AutoSize = flag("BlockAutoSize");
}

void BlockPage::WriteBlock(ControlObject& control, int16_t index) {
  if (static_cast<size_t>(index) >= work_.size()) RaiseError(kErrSubscript);
  const BlockDefinition& b = work_[static_cast<size_t>(index)];
  const std::vector<Variant> at = {Variant(index)};
  auto let = [&](const char* name, Variant value) { control.Let(name, at, std::move(value)); };
  auto color = [](OLE_COLOR c) { return Variant(static_cast<int32_t>(c)); };
  let("BlockKey", b.Key);
  let("BlockBarLeft", b.BarLeft);
  let("BlockBarRight", b.BarRight);
  let("BlockBarTop", b.BarTop);
  let("BlockBarBottom", b.BarBottom);
  let("BlockBorderStyle", b.BorderStyle);
  let("BlockBorderWidth", b.BorderWidth);
  let("BlockBrushColor", color(b.BrushColor));
  let("BlockBrushStyle", b.BrushStyle);
  let("BlockOnTop", Variant::Boolean(b.OnTop));
  let("BlockShapeStyle", b.ShapeStyle);
  let("BlockVisible", Variant::Boolean(b.Visible));
  let("BlockColor", color(b.Color));
  let("BlockGradientStyle", b.GradientStyle);
  let("BlockGradientGranularity", b.GradientGranularity);
  let("BlockGradientColor", color(b.GradientColor));
  let("BlockGradientColorEnd", color(b.GradientColorEnd));
  let("BlockText", b.Text);
  let("BlockTextColor", color(b.TextColor));
  let("BlockTextAlignment", b.TextAlignment);
  let("BlockTextFont", Variant(std::shared_ptr<Object>(b.TextFont)));
  let("BlockTextFont3D", b.TextFont3D);
  let("BlockTextOffset", b.TextOffset);
  let("BlockTextAngle", b.TextAngle);
  let("BlockTextAutoAngle", b.TextAutoAngle);
  let("BlockRivetsStyle", b.RivetsStyle);
  control.Set("BlockPicture", at, Variant(std::shared_ptr<Object>(b.Picture)));
  let("BlockPictureOffset", b.PictureOffset);
  let("BlockPictureAlignment", b.PictureAlignment);
  let("BlockPictureTile", b.PictureTile);
  let("BlockClickable", Variant::Boolean(b.Clickable));
  let("BlockAutoSize", Variant::Boolean(b.AutoSize));
}

void BlockPage::ApplyChanges() {
  ControlObject& control = FirstSelected();
  control.Let("DontRefreshAfterPropertyPage", {}, Variant::Boolean(true));
  try {
    const uint8_t count = control.Get("Blocks").ToByte();
    for (int16_t i = 1; i <= count; ++i) WriteBlock(control, i);
  } catch (...) {
    // A failed Apply must not leave the control unable to paint.
    control.Let("DontRefreshAfterPropertyPage", {}, Variant::Boolean(false));
    throw;
  }
  control.Let("DontRefreshAfterPropertyPage", {}, Variant::Boolean(false));
}

void BlockPage::ShowCurrentBlock() {
  const BlockDefinition& b = Record();
  view_.SetText("txtBlockKey", b.Key);
  view_.SetText("txtBlockText", b.Text);
  view_.SetText("txtBlockHPercentage", b.HPercentage);
  view_.SetText("txtBlockVPercentage", b.VPercentage);
  for (const NumberBox& box : kNumberBoxes) view_.SetText(box.control, std::to_string(b.*box.field));
  for (const FlagBox& box : kFlagBoxes) view_.SetChecked(box.control, b.*box.field != VARIANT_FALSE);
  for (const EnumList& list : kEnumLists) view_.SetListIndex(list.control, b.*list.field);
  view_.SetBackColor("txtColor", b.Color);
  view_.SetBackColor("txtBrushColor", b.BrushColor);
  view_.SetForeColor("txtTextColor", b.TextColor);
  view_.SetText("txtTextFont", b.TextFont ? b.TextFont->Name() : std::string());
  view_.SetPicture("Picture1", b.Picture);
  ShowGradientChannels();
  RefreshPreviews();
}

void BlockPage::ShowGradientChannels() {
  const BlockDefinition& b = Record();
  for (int i = 0; i < 3; ++i) {
    const int start = Channel(b.GradientColor, i);
    const int end = Channel(b.GradientColorEnd, i);
    view_.SetScrollValue(Indexed("hslColor", i), start);
    view_.SetScrollValue(Indexed("hslColorEnd", i), end);
    view_.SetText(Indexed("lblColor", i), kStartPrefixes[static_cast<size_t>(i)] + std::to_string(start));
    view_.SetText(Indexed("lblColorEnd", i), kEndPrefixes[static_cast<size_t>(i)] + std::to_string(end));
  }
}

// ---------------------------------------------------------------------------
// Previews.

void BlockPage::RefreshPreviews() {
  if (Record().GradientStyle == 0) {
    ClearPreviews();
    return;
  }
  for (int i = 0; i < 3; ++i) {
    PaintChannelPreview("pctColor", i, static_cast<OLE_COLOR>(view_.ScrollValue(Indexed("hslColor", i))));
    PaintChannelPreview("pctColorEnd", i, static_cast<OLE_COLOR>(view_.ScrollValue(Indexed("hslColorEnd", i))));
  }
  PaintResultPreview();
}

void BlockPage::ClearPreviews() {
  for (int i = 0; i < 3; ++i) {
    view_.ClearPreview(Indexed("pctColor", i));
    view_.ClearPreview(Indexed("pctColorEnd", i));
  }
  view_.ClearPreview("pctResult");
}

// A channel's preview runs from the pure channel colour at the bar's value to black.
void BlockPage::PaintChannelPreview(std::string_view box, int channel, OLE_COLOR value) {
  PaintPreview(Indexed(box, channel), value << (8 * channel), 0);
}

void BlockPage::PaintResultPreview() { PaintPreview("pctResult", Record().GradientColor, Record().GradientColorEnd); }

void BlockPage::PaintPreview(std::string_view box, OLE_COLOR color, OLE_COLOR colorEnd) {
  const BlockDefinition& b = Record();
  PaintGradientPreview(view_, box, b.GradientStyle, b.GradientGranularity, color, colorEnd);
}

// ---------------------------------------------------------------------------
// The user's actions.

void BlockPage::ControlEvent(std::string_view control) {
  using Handler = std::function<void(BlockPage&)>;
  static const std::map<std::string, Handler, std::less<>> handlers = [] {
    std::map<std::string, Handler, std::less<>> h;
    h["HScroll1"] = &BlockPage::HScroll1_Change;
    h["cmdAddBlock"] = &BlockPage::cmdAddBlock_Click;
    h["cmdRemoveBlock"] = &BlockPage::cmdRemoveBlock_Click;
    h["txtBlockKey"] = [](BlockPage& p) {
      p.Record().Key = p.view_.Text("txtBlockKey");
      p.SetChanged(true);
    };
    h["txtBlockText"] = [](BlockPage& p) {
      p.Record().Text = p.view_.Text("txtBlockText");
      p.SetChanged(true);
    };
    // The percentages are shown, never stored: an edit only marks the page.
    h["txtBlockHPercentage"] = [](BlockPage& p) { p.SetChanged(true); };
    h["txtBlockVPercentage"] = [](BlockPage& p) { p.SetChanged(true); };
    for (const NumberBox& box : kNumberBoxes)
      h[box.control] = [box](BlockPage& p) { p.StoreNumber(box.control, box.field); };
    for (const FlagBox& box : kFlagBoxes) h[box.control] = [box](BlockPage& p) { p.StoreFlag(box.control, box.field); };
    for (const EnumList& list : kEnumLists)
      h[list.control] = [list](BlockPage& p) { p.StoreListIndex(list.control, list.field); };
    h["cbxTextFormat"] = &BlockPage::cbxTextFormat_Click;
    h["cmdColorSelection"] = [](BlockPage& p) { p.ChooseColor("txtColor", &BlockDefinition::Color, false); };
    h["cmdBrushColor"] = [](BlockPage& p) { p.ChooseColor("txtBrushColor", &BlockDefinition::BrushColor, false); };
    h["cmdTextColorSelection"] = [](BlockPage& p) { p.ChooseColor("txtTextColor", &BlockDefinition::TextColor, true); };
    h["cmdFontSelection"] = &BlockPage::cmdFontSelection_Click;
    h["cmdBrowse"] = &BlockPage::cmdBrowse_Click;
    h["cmdRemove"] = &BlockPage::cmdRemove_Click;
    for (int i = 0; i < 3; ++i) {
      h[Indexed("hslColor", i)] = [i](BlockPage& p) { p.GradientBar_Change("hslColor", false, i); };
      h[Indexed("hslColorEnd", i)] = [i](BlockPage& p) { p.GradientBar_Change("hslColorEnd", true, i); };
    }
    return h;
  }();
  const auto found = handlers.find(control);
  if (found != handlers.end()) found->second(*this);
}

void BlockPage::HScroll1_Change() {
  if (FirstSelected().Get("Blocks").ToLong() <= 0) return;
  current_ = static_cast<int16_t>(view_.ScrollValue("HScroll1"));
  view_.SetText("txtIndex", std::to_string(current_));
  if (loaded_) ShowCurrentBlock();
}

void BlockPage::cmdAddBlock_Click() {
  ControlObject& control = FirstSelected();
  view_.SetEnabled("SSTab1", true);
  control.Call("AddBlock");
  const int16_t count = control.Get("Blocks").ToInteger();
  view_.SetText("txtIndex", std::to_string(count));
  current_ = count;
  work_.resize(static_cast<size_t>(count) + 1);  // as ReDim Preserve: to exactly that size
  BlockDefinition& b = Record();
  b = BlockDefinition{};
  b.BarLeft = -1;
  b.BarRight = -1;
  b.BarTop = 100;
  b.BarBottom = 0;
  b.BorderWidth = 1;
  b.HPercentage = "0";
  b.VPercentage = "0";
  b.Visible = VARIANT_TRUE;
  b.Color = 0x808080;
  b.GradientColor = 0xFF0000;
  b.TextFont = std::dynamic_pointer_cast<Font>(control.Get("Font").ToObject());
  b.TextOffset = 3;
  b.Picture = EmptyPicture();
  b.PictureOffset = 3;
  b.Clickable = VARIANT_TRUE;
  b.AutoSize = VARIANT_TRUE;
  ShowCurrentBlock();
  view_.SetScrollRange("HScroll1", 1, count);
  view_.SetScrollValue("HScroll1", count);
}

void BlockPage::cmdRemoveBlock_Click() {
  ControlObject& control = FirstSelected();
  const int16_t index = ToInteger(TextValue(view_, "txtIndex"));
  control.Call("DeleteBlock", {Variant(index)});
  const int32_t count = control.Get("Blocks").ToLong();
  if (count == 0) {
    view_.SetEnabled("SSTab1", false);
    view_.SetScrollRange("HScroll1", 1, 1);
  } else {
    view_.SetScrollRange("HScroll1", 1, count);
  }
  // A scroll bar whose value fell outside its new range moves, and that move
  // navigates as the user's own would.
  if (view_.ScrollValue("HScroll1") != current_) HScroll1_Change();
  SetChanged(true);
}

void BlockPage::StoreNumber(std::string_view control, int16_t BlockDefinition::*field) {
  Record().*field = ToInteger(TextValue(view_, control));
  SetChanged(true);
}

void BlockPage::StoreFlag(std::string_view control, VARIANT_BOOL BlockDefinition::*field) {
  Record().*field = ToVariantBool(view_.Checked(control));
  SetChanged(true);
}

void BlockPage::StoreListIndex(std::string_view control, int16_t BlockDefinition::*field) {
  Record().*field = static_cast<int16_t>(view_.ListIndex(control));
  if (field == &BlockDefinition::GradientStyle || field == &BlockDefinition::GradientGranularity) RefreshPreviews();
  SetChanged(true);
}

// The token goes in at the caret; the character before the caret then stands
// on both sides of it, as the page has always done.
void BlockPage::cbxTextFormat_Click() {
  const int index = view_.ListIndex("cbxTextFormat");
  if (index < 0 || static_cast<size_t>(index) >= TextFormats().size()) return;
  const std::u32string token = DecodeUtf8("!" + TextFormats()[static_cast<size_t>(index)] + "!");
  const std::u32string old = DecodeUtf8(view_.Text("txtBlockText"));
  const size_t caret = static_cast<size_t>(std::max(0, view_.Caret("txtBlockText")));
  std::u32string text;
  if (caret == 0) {
    text = token + old;
  } else {
    text = old.substr(0, std::min(caret, old.size())) + token + (caret - 1 < old.size() ? old.substr(caret - 1) : U"");
  }
  view_.SetText("txtBlockText", EncodeUtf8(text));
  ControlEvent("txtBlockText");
}

void BlockPage::ChooseColor(std::string_view swatch, OLE_COLOR BlockDefinition::*field, bool asForeColor) {
  dialog_.CancelError = true;
  dialog_.Flags = kColorInitialColor;
  dialog_.Color = Record().*field;
  try {
    dialog_.ShowColor();
  } catch (const AutomationError& e) {
    if (IsCancel(e)) return;
    throw;
  }
  if (asForeColor)
    view_.SetForeColor(swatch, dialog_.Color);
  else
    view_.SetBackColor(swatch, dialog_.Color);
  Record().*field = dialog_.Color;
  SetChanged(true);
}

void BlockPage::cmdFontSelection_Click() {
  const FontPtr font = Record().TextFont;
  if (!font) RaiseError(kErrObjectNotSet);
  dialog_.CancelError = true;
  dialog_.Flags = kFontScreenPrinterEffects;
  dialog_.FontName = font->Name();
  dialog_.FontSize = static_cast<float>(font->Size());
  dialog_.FontBold = font->Bold();
  dialog_.FontItalic = font->Italic();
  dialog_.FontUnderline = font->Underline();
  dialog_.FontStrikethru = font->Strikethrough();
  try {
    dialog_.ShowFont();
  } catch (const AutomationError& e) {
    if (IsCancel(e)) return;
    throw;
  }
  font->SetName(dialog_.FontName);
  font->SetSize(dialog_.FontSize);
  font->SetBold(dialog_.FontBold);
  font->SetItalic(dialog_.FontItalic);
  font->SetUnderline(dialog_.FontUnderline);
  font->SetStrikethrough(dialog_.FontStrikethru);
  view_.SetText("txtTextFont", font->Name());
  SetChanged(true);
}

void BlockPage::cmdBrowse_Click() {
  dialog_.CancelError = true;
  dialog_.Filter = std::string(kPictureFilter);
  try {
    dialog_.ShowOpen();
  } catch (const AutomationError& e) {
    if (IsCancel(e)) return;
    throw;
  }
  const PicturePtr picture = LoadPicture(dialog_.FileName);
  view_.SetPicture("Picture1", picture);
  Record().Picture = picture;
  SetChanged(true);
}

void BlockPage::cmdRemove_Click() {
  const PicturePtr picture = EmptyPicture();
  view_.SetPicture("Picture1", picture);
  Record().Picture = picture;
  SetChanged(true);
}

void BlockPage::GradientBar_Change(std::string_view bar, bool endColor, int channel) {
  const auto& prefixes = endColor ? kEndPrefixes : kStartPrefixes;
  const std::string_view label = endColor ? "lblColorEnd" : "lblColor";
  view_.SetText(Indexed(label, channel),
                prefixes[static_cast<size_t>(channel)] + std::to_string(view_.ScrollValue(Indexed(bar, channel))));
  OLE_COLOR color = 0;
  for (int i = 0; i < 3; ++i) color |= static_cast<OLE_COLOR>(view_.ScrollValue(Indexed(bar, i)) & 0xFF) << (8 * i);
  (endColor ? Record().GradientColorEnd : Record().GradientColor) = color;
  PaintChannelPreview(endColor ? "pctColorEnd" : "pctColor", channel,
                      static_cast<OLE_COLOR>(view_.ScrollValue(Indexed(bar, channel))));
  PaintResultPreview();
  SetChanged(true);
}

}  // namespace vorlex::editors
