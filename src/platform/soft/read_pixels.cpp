// ReadPixels and the object counts: what tests and exporters see.

#include "platform/gdi.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {

bool ReadPixels(HDC dc, Pixels& out) {
  const auto lock = soft::LockObjects();
  soft::ObjectTable& table = soft::Objects();
  const soft::DeviceContext* context = soft::FindDc(dc);
  const soft::Bitmap* bitmap = context != nullptr ? table.Get<soft::Bitmap>(context->bitmap) : nullptr;
  if (bitmap == nullptr) {
    out = Pixels{};
    return false;
  }
  out.width = bitmap->width;
  out.height = bitmap->height;
  out.argb = bitmap->pixels;
  return true;
}

size_t LiveObjectCount() {
  const auto lock = soft::LockObjects();
  return soft::Objects().LiveCount();
}

size_t CreatedObjectCount() {
  const auto lock = soft::LockObjects();
  return soft::Objects().CreatedCount();
}

}  // namespace vorlex::gdi
