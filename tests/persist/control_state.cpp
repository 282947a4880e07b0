#include "control_state.h"

#include <functional>

namespace vorlex::persist_test {

std::string DescribeFont(const FontPtr& font) {
  if (!font) return "no font";
  return font->Name() + " " + FormatNumber(font->Size()) + " w" + std::to_string(font->Weight()) + " c" +
         std::to_string(font->Charset()) + (font->Italic() ? " italic" : "") + (font->Underline() ? " underline" : "") +
         (font->Strikethrough() ? " strikethrough" : "");
}

std::string DescribePicture(const PicturePtr& picture) {
  if (!picture || picture->Type() == kPicTypeNone) return "no picture";
  const std::vector<uint8_t> bytes = picture->SaveAsFile();
  return "type " + std::to_string(picture->Type()) + " " + std::to_string(picture->PixelWidth()) + "x" +
         std::to_string(picture->PixelHeight()) + " bytes " +
         std::to_string(std::hash<std::string>()(std::string(bytes.begin(), bytes.end())));
}

namespace {

void Add(std::vector<std::string>& lines, const std::string& name, const std::string& value) {
  lines.push_back(name + " = " + value);
}
template <class T>
void Add(std::vector<std::string>& lines, const std::string& name, T value) {
  Add(lines, name, std::to_string(value));
}

void AddBlock(std::vector<std::string>& lines, Vorlex& c, int16_t index) {
  const Variant i(index);
  const std::string n = "(" + std::to_string(index) + ")";
  Add(lines, "Key" + n, c.get_BlockKey(i));
  Add(lines, "BarLeft" + n, c.get_BlockBarLeft(i));
  Add(lines, "BarRight" + n, c.get_BlockBarRight(i));
  Add(lines, "BarTop" + n, c.get_BlockBarTop(i));
  Add(lines, "BarBottom" + n, c.get_BlockBarBottom(i));
  Add(lines, "ShapeStyle" + n, c.get_BlockShapeStyle(i));
  Add(lines, "BorderStyle" + n, c.get_BlockBorderStyle(i));
  Add(lines, "BorderWidth" + n, c.get_BlockBorderWidth(i));
  Add(lines, "BrushStyle" + n, c.get_BlockBrushStyle(i));
  Add(lines, "BrushColor" + n, c.get_BlockBrushColor(i));
  Add(lines, "Visible" + n, c.get_BlockVisible(i));
  Add(lines, "HPercentage" + n, c.get_BlockHPercentage(i));
  Add(lines, "VPercentage" + n, c.get_BlockVPercentage(i));
  Add(lines, "OnTop" + n, c.get_BlockOnTop(i));
  Add(lines, "Color" + n, c.get_BlockColor(i));
  Add(lines, "GradientStyle" + n, c.get_BlockGradientStyle(i));
  Add(lines, "GradientGranularity" + n, c.get_BlockGradientGranularity(i));
  Add(lines, "GradientColor" + n, c.get_BlockGradientColor(i));
  Add(lines, "GradientColorEnd" + n, c.get_BlockGradientColorEnd(i));
  Add(lines, "Text" + n, c.get_BlockText(i));
  Add(lines, "TextColor" + n, c.get_BlockTextColor(i));
  Add(lines, "TextAlignment" + n, c.get_BlockTextAlignment(i));
  Add(lines, "TextFont" + n, DescribeFont(c.get_BlockTextFont(i)));
  Add(lines, "TextFont3D" + n, c.get_BlockTextFont3D(i));
  Add(lines, "TextOffset" + n, c.get_BlockTextOffset(i));
  Add(lines, "TextAngle" + n, c.get_BlockTextAngle(i));
  Add(lines, "TextAutoAngle" + n, c.get_BlockTextAutoAngle(i));
  Add(lines, "RivetsStyle" + n, c.get_BlockRivetsStyle(i));
  Add(lines, "Picture" + n, DescribePicture(c.get_BlockPicture(i)));
  Add(lines, "PictureOffset" + n, c.get_BlockPictureOffset(i));
  Add(lines, "PictureAlignment" + n, c.get_BlockPictureAlignment(i));
  Add(lines, "PictureTile" + n, c.get_BlockPictureTile(i));
  Add(lines, "Clickable" + n, c.get_BlockClickable(i));
  Add(lines, "AutoSize" + n, c.get_BlockAutoSize(i));
}

}  // namespace

std::vector<std::string> ControlState(Vorlex& c, HeadlessSite& site) {
  std::vector<std::string> lines;
  Add(lines, "Blocks", c.get_Blocks());
  Add(lines, "IndexBlock", c.get_IndexBlock());
  Add(lines, "OuterWidth", site.OuterWidthTwips());
  Add(lines, "OuterHeight", site.OuterHeightTwips());
  Add(lines, "BackColor", c.get_BackColor());
  Add(lines, "ForeColor", c.get_ForeColor());
  Add(lines, "Enabled", c.get_Enabled());
  Add(lines, "Font", DescribeFont(c.get_Font()));
  Add(lines, "BorderWidth", c.get_BorderWidth());
  Add(lines, "BorderStyle", c.get_BorderStyle());
  Add(lines, "HMinValue", c.get_HMinValue());
  Add(lines, "HMaxValue", c.get_HMaxValue());
  Add(lines, "VMinValue", c.get_VMinValue());
  Add(lines, "VMaxValue", c.get_VMaxValue());
  Add(lines, "BrushStyle", c.get_BrushStyle());
  Add(lines, "BrushColor", c.get_BrushColor());
  Add(lines, "Caption", c.get_Caption());
  Add(lines, "CaptionAlignment", c.get_CaptionAlignment());
  Add(lines, "DisabledColor", c.get_DisabledColor());
  Add(lines, "Orientation", c.get_Orientation());
  Add(lines, "CaptionOffset", c.get_CaptionOffset());
  Add(lines, "CaptionAngle", c.get_CaptionAngle());
  Add(lines, "CaptionAutoAngle", c.get_CaptionAutoAngle());
  Add(lines, "CaptionFont3D", c.get_CaptionFont3D());
  Add(lines, "Redraw", c.get_Redraw());
  Add(lines, "TimerTimeInterval", c.get_TimerTimeInterval());
  Add(lines, "TimerTimeEnabled", c.get_TimerTimeEnabled());
  Add(lines, "TimerDiskInterval", c.get_TimerDiskInterval());
  Add(lines, "TimerDiskEnabled", c.get_TimerDiskEnabled());
  Add(lines, "RivetsStyle", c.get_RivetsStyle());
  Add(lines, "GradientStyle", c.get_GradientStyle());
  Add(lines, "GradientColor", c.get_GradientColor());
  Add(lines, "GradientColorEnd", c.get_GradientColorEnd());
  Add(lines, "GradientGranularity", c.get_GradientGranularity());
  Add(lines, "Picture", DescribePicture(c.get_Picture()));
  Add(lines, "PictureAutoSize", c.get_PictureAutoSize());
  Add(lines, "PictureTile", c.get_PictureTile());
  Add(lines, "PictureOffset", c.get_PictureOffset());
  Add(lines, "PictureAlignment", c.get_PictureAlignment());
  const bool userMode = site.AmbientUserMode();
  site.SetUserMode(false);
  Add(lines, "SpecialClearAllBlock", c.get_SpecialClearAllBlock());
  Add(lines, "DontRefreshAfterPropertyPage", c.get_DontRefreshAfterPropertyPage());
  site.SetUserMode(userMode);
  for (int16_t i = 1; i <= c.get_Blocks(); ++i) AddBlock(lines, c, i);
  return lines;
}

}  // namespace vorlex::persist_test
