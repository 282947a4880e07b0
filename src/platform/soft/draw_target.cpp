#include "platform/soft/draw_target.h"

#include "platform/soft/object_table.h"

namespace vorlex::gdi::soft {

Surface SurfaceOf(Bitmap& bitmap) {
  if (bitmap.pixels.empty()) return {};
  return {bitmap.width, bitmap.height, bitmap.pixels.data()};
}

DeviceContext* FindDc(HDC dc) { return Objects().Get<DeviceContext>(ValueOf(dc)); }

std::optional<DrawTarget> FindTarget(HDC dc) {
  DeviceContext* context = FindDc(dc);
  if (context == nullptr) return std::nullopt;
  DrawTarget target{context, {}};
  if (Bitmap* bitmap = Objects().Get<Bitmap>(context->bitmap)) target.surface = SurfaceOf(*bitmap);
  return target;
}

const Pen* SelectedPen(const DeviceContext& dc) { return Objects().Get<Pen>(dc.pen); }

const Brush* SelectedBrush(const DeviceContext& dc) { return Objects().Get<Brush>(dc.brush); }

}  // namespace vorlex::gdi::soft
