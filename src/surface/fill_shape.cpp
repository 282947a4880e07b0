#include "surface/fill_shape.h"

#include "surface/gdi_object.h"

namespace vorlex {

gdi::HBRUSH CreateFillBrush(int32_t brushStyle, OLE_COLOR hatchColor, OLE_COLOR color) {
  if (brushStyle == 0) return gdi::CreateSolidBrush(color);
  return gdi::CreateHatchBrush(brushStyle - 1, hatchColor);
}

void FillShape(gdi::HDC dc, bool isEllipse, const gdi::RECT& rect, int32_t brushStyle, OLE_COLOR hatchColor,
               OLE_COLOR color, bool outlined) {
  GdiObject<gdi::HBRUSH> brush(CreateFillBrush(brushStyle, hatchColor, color));
  GdiObject<gdi::HPEN> pen(outlined ? gdi::CreatePen(gdi::PS_SOLID, 1, color) : gdi::CreatePen(gdi::PS_NULL, 0, color));
  if (!pen) return;
  Selection penSelected(dc, pen.get());
  if (!penSelected || !brush) return;
  BackgroundMode opaque(dc, gdi::OPAQUE);
  gdi::SetBkColor(dc, color);
  Selection brushSelected(dc, brush.get());
  if (isEllipse) {
    gdi::Ellipse(dc, rect.left, rect.top, rect.right, rect.bottom);
  } else {
    gdi::FillRect(dc, &rect, brush.get());
  }
}

}  // namespace vorlex
