// The product icon, drawn by the control in a headless container: a bar with
// a gradient block, a hatched block and a round one.

#include <QIcon>
#include <QImage>
#include <QPixmap>

#include "about_dialog.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::qt {

QIcon VorlexIcon() {
  constexpr int kSize = 32;
  HeadlessSite site(kSize, kSize);
  site.SetUserMode(false);
  vorlex::Vorlex control(site);
  control.InitProperties();
  control.put_Redraw(VARIANT_FALSE);
  control.put_BackColor(0x303030);
  control.put_BorderStyle(vxRaised);
  struct Bar {
    int16_t left, right;
    OLE_COLOR color, end;
    int32_t gradient, brush;
  };
  const Bar bars[] = {{6, 36, 0x00C000, 0x0000E0, vxBottomVGradient, vxNoneBrush},
                      {36, 66, 0xFFC040, 0x402010, vxInnerHGradient, vxNoneBrush},
                      {66, 94, 0x3060E0, 0, vxNoneGradient, vxCross}};
  const int16_t heights[] = {85, 60, 40};
  for (int i = 0; i < 3; ++i) {
    control.AddBlock();
    const Variant block(static_cast<int16_t>(i + 1));
    control.put_BlockBarLeft(bars[i].left, block);
    control.put_BlockBarRight(bars[i].right, block);
    control.put_BlockBarBottom(0, block);
    control.put_BlockBarTop(heights[i], block);
    control.put_BlockColor(bars[i].color, block);
    control.put_BlockGradientStyle(bars[i].gradient, block);
    control.put_BlockGradientColor(bars[i].color, block);
    control.put_BlockGradientColorEnd(bars[i].end, block);
    control.put_BlockBrushStyle(bars[i].brush, block);
    control.put_BlockBrushColor(0xFFFFFF, block);
    control.put_BlockBorderStyle(vxFlat, block);
  }
  control.put_Redraw(VARIANT_TRUE);
  const WindowImage window = site.Snapshot();
  QImage image(window.width, window.height, QImage::Format_RGB32);
  for (int y = 0; y < window.height; ++y)
    for (int x = 0; x < window.width; ++x) image.setPixel(x, y, 0xFF000000u | window.At(x, y));
  return QIcon(QPixmap::fromImage(image));
}

}  // namespace vorlex::qt
