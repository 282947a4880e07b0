// DrawBitmap: a picture into the current rectangle, placed or tiled.

#include <algorithm>
#include <cstdlib>

#include "surface/alignment.h"
#include "surface/offscreen_dc.h"
#include "vorlex/Enums.h"
#include "vorlex/Numeric.h"

namespace vorlex {

namespace {

int32_t Extent(int32_t from, int32_t to) { return NarrowToLong(std::abs(static_cast<int64_t>(to) - from)); }

// The last piece of a row or column is cut to the area.
int32_t Piece(int32_t d, int32_t size, int32_t extent) {
  return static_cast<int64_t>(d) + size > extent ? extent - d : size;
}

}  // namespace

void OffScreenDC::DrawBitmap(const DrawingTarget& oPicture) {
  const Area a = ClearOfRivets();
  const int32_t aw = Extent(a.l, a.r);
  const int32_t ah = Extent(a.t, a.b);
  // A picture larger than the area is cropped to its top-left part.
  const int32_t pw = std::min(ToLong(oPicture.ScaleWidth()), aw);
  const int32_t ph = std::min(ToLong(oPicture.ScaleHeight()), ah);
  auto copy = [&](int32_t x, int32_t y, int32_t w, int32_t h) {
    gdi::BitBlt(memoryDC_, x, y, w, h, oPicture.hDC(), 0, 0, gdi::SRCCOPY);
  };
  switch (PictureTile) {
    case vxNoneTile: {
      const gdi::POINT p = AlignIn(a, PictureAlignment, PictureOffset, pw, ph);
      copy(p.x, p.y, pw, ph);
      break;
    }
    case vxHorizontalTile: {
      const int32_t y = CheckedAdd(a.t, CheckedSub(CheckedSub(a.b, a.t), ph) / 2);
      if (pw < 1) break;
      for (int64_t d = 0; d <= aw; d += pw)
        copy(CheckedAdd(a.l, static_cast<int32_t>(d)), y, Piece(static_cast<int32_t>(d), pw, aw), ph);
      break;
    }
    case vxVerticalTile: {
      const int32_t x = CheckedAdd(a.l, CheckedSub(CheckedSub(a.r, a.l), pw) / 2);
      if (ph < 1) break;
      for (int64_t d = 0; d <= ah; d += ph)
        copy(x, CheckedAdd(a.t, static_cast<int32_t>(d)), pw, Piece(static_cast<int32_t>(d), ph, ah));
      break;
    }
    case vxBothTile:
      if (pw < 1 || ph < 1) break;
      for (int64_t dx = 0; dx <= aw; dx += pw) {
        for (int64_t dy = 0; dy <= ah; dy += ph) {
          copy(CheckedAdd(a.l, static_cast<int32_t>(dx)), CheckedAdd(a.t, static_cast<int32_t>(dy)),
               Piece(static_cast<int32_t>(dx), pw, aw), Piece(static_cast<int32_t>(dy), ph, ah));
        }
      }
      break;
    default:  // above 3 (or below 0): nothing
      break;
  }
}

}  // namespace vorlex
