// RedrawBar: the one painting path of the control. Background, border,
// caption, picture, then the blocks in two passes, into the off-screen surface,
// and one copy to the window.

#include <utility>

#include "compose/geometry.h"
#include "compose/live_text.h"
#include "control/vorlex_impl.h"
#include "platform/syscolor.h"
#include "vorlex/Enums.h"

namespace vorlex {

namespace {
constexpr OLE_COLOR kPictureBoxBackground = 0x8000000F;  // a picture box's default BackColor

OLE_COLOR Translated(OLE_COLOR color) {
  OLE_COLOR rgb = 0;
  return TranslateColor(color, rgb) ? rgb : kBlack;
}
}  // namespace

// Every colour but BackColor is DisabledColor while the control is disabled.
OLE_COLOR Vorlex::Impl::Shown(OLE_COLOR color) const { return site.Enabled() != VARIANT_FALSE ? color : disabledColor; }

void Vorlex::Impl::AutoSizeToPicture(int16_t border) {
  picture1.Set(*picture, offScreen->MemoryDC(), Translated(kPictureBoxBackground));
  if (pictureAutoSize != vxNoneAutoSize) {
    const int32_t width = ToLong((picture1.ScaleWidth() + 2.0 * border) * site.TwipsPerPixelX());
    const int32_t height = ToLong((picture1.ScaleHeight() + 2.0 * border) * site.TwipsPerPixelY());
    if (pictureAutoSize == vxWidthAutoSize || pictureAutoSize == vxBothAutoSize) site.SetOuterWidthTwips(width);
    if (pictureAutoSize == vxHeightAutoSize || pictureAutoSize == vxBothAutoSize) site.SetOuterHeightTwips(height);
  }
  picture1.Clear();
}

void Vorlex::Impl::PaintBackground(const Layout& layout) {
  OffScreenDC& s = *offScreen;
  s.Left = 0;
  s.Top = 0;
  s.Right = ToLong(layout.scaleWidth);
  s.Bottom = ToLong(layout.scaleHeight);
  s.BorderStyle = borderStyle;
  s.BorderWidth = layout.border;
  s.BackgroundColor = Translated(backColor);
  s.BrushStyle = brushStyle;
  s.BrushColor = Shown(brushColor);
  s.GradientStyle = gradientStyle;
  s.GradientGranularity = gradientGranularity;
  s.GradientColor = Shown(gradientColor);
  s.GradientColorEnd = Shown(gradientColorEnd);
  s.RivetsStyle = NarrowToInteger(rivetsStyle);
  s.FillRectangle();
}

// The control's frame and every rectangular block's: no style leaves the width
// at 0, and a zero width draws as no style.
void Vorlex::Impl::PaintBorder(int32_t style, int16_t width) {
  OffScreenDC& s = *offScreen;
  if (style == vxNoneBorder) {
    s.BorderWidth = 0;
    return;
  }
  if (width == 0) s.BorderStyle = vxNoneBorder;
  s.BorderWidth = width;
  s.DrawBorder();
}

// On the full background rectangle, so that the picture and blocks cover it.
void Vorlex::Impl::PaintCaption() {
  if (caption.empty()) return;
  OffScreenDC& s = *offScreen;
  s.Text = caption;
  s.TextAlignment = captionAlignment;
  s.TextOffset = captionOffset;
  s.TextColor = Shown(site.ForeColor());
  s.TextFont = site.Font();
  s.Font3D = captionFont3D;
  s.TextAngle = captionAngle;
  s.TextAutoAngle = captionAutoAngle;
  s.DisplayText();
}

void Vorlex::Impl::PaintPicture(const PicturePtr& shown, int16_t offset, int32_t tile, int32_t alignment) {
  OffScreenDC& s = *offScreen;
  s.PictureOffset = offset;
  s.PictureTile = tile;
  s.PictureAlignment = alignment;
  picture1.Set(*shown, s.MemoryDC(), Translated(kPictureBoxBackground));
  s.DrawBitmap(picture1);
  picture1.Clear();
}

void Vorlex::Impl::PaintBlocks(const Layout& layout) {
  gdi::RECT rect{0, 0, 0, 0};  // an orientation outside the table keeps the last one
  for (int64_t counter = 1; counter <= 2 * static_cast<int64_t>(blockCount); ++counter) {
    const auto index = static_cast<int32_t>((counter - 1) % blockCount + 1);
    const VARIANT_BOOL pass = counter <= blockCount ? VARIANT_FALSE : VARIANT_TRUE;
    PaintBlock(Element(index), pass, layout, rect);
  }
}

void Vorlex::Impl::PaintBlock(BlockDefinition& block, VARIANT_BOOL pass, const Layout& layout, gdi::RECT& rect) {
  // Only the canonical true counts; a BlockOnTop of neither 0 nor -1 matches no pass.
  if (block.OnTop != pass || !IsCanonicalTrue(block.Visible)) return;
  if (block.BarLeft < 0 || block.BarRight < 0 || block.BarTop < 0 || block.BarBottom < 0) return;
  const BlockScale scale = UpdatePercentages(block, layout);
  LiveTextContext live{site.Disks(), site.Clock(), block, layout.hRange, layout.vRange};
  std::string text = ExpandLiveText(block.Text, live);
  BlockRectangle(block, layout, scale, rect);

  OffScreenDC& s = *offScreen;
  s.Left = rect.left;
  s.Top = rect.top;
  s.Right = rect.right;
  s.Bottom = rect.bottom;
  s.BorderStyle = block.BorderStyle;
  s.BorderWidth = 0;
  s.BackgroundColor = Shown(block.Color);
  s.BrushStyle = block.BrushStyle;
  s.BrushColor = Shown(block.BrushColor);
  s.GradientStyle = block.GradientStyle;
  s.GradientGranularity = block.GradientGranularity;
  s.GradientColor = Shown(block.GradientColor);
  s.GradientColorEnd = Shown(block.GradientColorEnd);
  s.RivetsStyle = block.RivetsStyle;
  PaintBlockShape(block);
  if (block.Picture && block.Picture->Handle() != 0) {
    PaintPicture(block.Picture, block.PictureOffset, block.PictureTile, block.PictureAlignment);
  }
  if (!text.empty()) {
    s.Text = std::move(text);
    s.TextAlignment = block.TextAlignment;
    s.TextOffset = block.TextOffset;
    s.TextColor = Shown(block.TextColor);
    s.TextFont = block.TextFont;
    s.Font3D = block.TextFont3D;
    s.TextAngle = block.TextAngle;
    s.TextAutoAngle = block.TextAutoAngle;
    s.DisplayText();
  }
}

// A circle has no border; a rectangle's is one pixel for the etched and bump
// looks, as the control's own.
void Vorlex::Impl::PaintBlockShape(const BlockDefinition& block) {
  OffScreenDC& s = *offScreen;
  if (block.ShapeStyle == vxCircle) {
    s.FillEllipse();
    return;
  }
  s.FillRectangle();
  PaintBorder(block.BorderStyle, EffectiveBorderWidth(block.BorderStyle, block.BorderWidth));
}

void Vorlex::Impl::RedrawBar() {
  if (redraw == VARIANT_FALSE || dontRefreshAfterPropertyPage != VARIANT_FALSE) return;
  Layout layout;
  layout.hRange = CheckedSub(hMaxValue, hMinValue);
  layout.vRange = CheckedSub(vMaxValue, vMinValue);
  if (layout.hRange == 0 || layout.vRange == 0) return;
  layout.border = EffectiveBorderWidth(borderStyle, borderWidth);
  if (picture) AutoSizeToPicture(layout.border);
  // The size is read after auto-size, which may have resized the control.
  layout.scaleWidth = site.ScaleWidth();
  layout.scaleHeight = site.ScaleHeight();
  layout.orientation = orientation;
  ComputeUnitSizes(layout);
  hUnitSize = layout.hUnitSize;
  vUnitSize = layout.vUnitSize;

  PaintBackground(layout);
  PaintBorder(borderStyle, layout.border);
  PaintCaption();
  OffScreenDC& s = *offScreen;
  s.Left = layout.border;
  s.Top = layout.border;
  s.Right = ToLong(layout.scaleWidth - layout.border);
  s.Bottom = ToLong(layout.scaleHeight - layout.border);
  if (picture && picture->Type() > kPicTypeNone) PaintPicture(picture, pictureOffset, pictureTile, pictureAlignment);
  PaintBlocks(layout);
  s.BlastToScreen();
  site.BarPainted();
}

}  // namespace vorlex
