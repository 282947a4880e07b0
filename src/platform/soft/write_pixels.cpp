// WritePixels: a decoded picture put into a bitmap.

#include <algorithm>

#include "platform/gdi.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {

bool WritePixels(HDC dc, const Pixels& pixels) {
  const auto lock = soft::LockObjects();
  soft::ObjectTable& table = soft::Objects();
  const soft::DeviceContext* context = soft::FindDc(dc);
  soft::Bitmap* bitmap = context != nullptr ? table.Get<soft::Bitmap>(context->bitmap) : nullptr;
  if (bitmap == nullptr) return false;
  const int width = std::min(pixels.width, bitmap->width);
  const int height = std::min(pixels.height, bitmap->height);
  for (int y = 0; y < height; ++y) {
    const auto from = pixels.argb.begin() + static_cast<ptrdiff_t>(y) * pixels.width;
    std::copy(from, from + width, bitmap->pixels.begin() + static_cast<ptrdiff_t>(y) * bitmap->width);
  }
  return true;
}

}  // namespace vorlex::gdi
