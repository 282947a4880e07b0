#pragma once
// What a drawing call finds behind its HDC: the context's state and the pixels
// of the bitmap selected into it (none on the screen).

#include <optional>

#include "platform/gdi.h"
#include "platform/soft/objects.h"
#include "platform/soft/surface.h"

namespace vorlex::gdi::soft {

struct DrawTarget {
  DeviceContext* dc = nullptr;
  Surface surface;  // empty when the DC has no pixels
};

Surface SurfaceOf(Bitmap& bitmap);
// nullptr or nullopt for anything but a live DC.
DeviceContext* FindDc(HDC dc);
std::optional<DrawTarget> FindTarget(HDC dc);
// The objects selected into a DC (never null for a live DC).
const Pen* SelectedPen(const DeviceContext& dc);
const Brush* SelectedBrush(const DeviceContext& dc);

}  // namespace vorlex::gdi::soft
