// BitBlt with SRCCOPY.

#include "platform/gdi.h"
#include "platform/soft/blit.h"
#include "platform/soft/draw_target.h"
#include "platform/soft/object_table.h"

namespace vorlex::gdi {

BOOL BitBlt(HDC dest, int x, int y, int width, int height, HDC src, int srcX, int srcY, DWORD rop) {
  const auto lock = soft::LockObjects();
  if (rop != SRCCOPY) return soft::kFalse;  // the only raster operation softgdi does
  const auto to = soft::FindTarget(dest);
  const auto from = soft::FindTarget(src);
  if (!to || !from || from->surface.Empty()) return soft::kFalse;  // the screen has nothing to read
  soft::Blit(to->surface, x, y, width, height, from->surface, srcX, srcY);
  return soft::kTrue;
}

}  // namespace vorlex::gdi
