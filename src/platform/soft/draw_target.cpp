#include "platform/soft/draw_target.h"

#include "platform/soft/object_table.h"

namespace vorlex::gdi::soft {

Surface SurfaceOf(Bitmap& bitmap) {
  if (bitmap.pixels.empty()) return {};
  return {bitmap.width, bitmap.height, bitmap.pixels.data()};
}

std::optional<DrawTarget> FindTarget(HDC dc) {
  ObjectTable& table = Objects();
  DeviceContext* context = table.Get<DeviceContext>(ValueOf(dc));
  if (context == nullptr) return std::nullopt;
  DrawTarget target{context, {}};
  if (Bitmap* bitmap = table.Get<Bitmap>(context->bitmap)) target.surface = SurfaceOf(*bitmap);
  return target;
}

const Pen* SelectedPen(const DeviceContext& dc) { return Objects().Get<Pen>(dc.pen); }

const Brush* SelectedBrush(const DeviceContext& dc) { return Objects().Get<Brush>(dc.brush); }

}  // namespace vorlex::gdi::soft
