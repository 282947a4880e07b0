#include "picture_canvas.h"

#include <cstdio>

namespace vorlex::picture_test {

PictureCanvas::PictureCanvas(int width, int height, uint32_t paper) : bitmap_(width, height) {
  const gdi::HBRUSH brush = gdi::CreateSolidBrush(
      gdi::RGB(static_cast<uint8_t>(paper >> 16), static_cast<uint8_t>(paper >> 8), static_cast<uint8_t>(paper)));
  const gdi::RECT all{0, 0, width, height};
  gdi::FillRect(dc(), &all, brush);
  gdi::DeleteObject(brush);
}

bool PictureCanvas::Draw(const Picture& picture, int32_t x, int32_t y) const {
  stale_ = true;
  return picture.Render(reinterpret_cast<uintptr_t>(dc()), x, y);
}

uint32_t PictureCanvas::At(int x, int y) const {
  if (stale_) {
    if (!gdi::ReadPixels(dc(), pixels_)) return 0xFFFFFFFFu;
    stale_ = false;
  }
  if (x < 0 || y < 0 || x >= pixels_.width || y >= pixels_.height) return 0xFFFFFFFFu;
  return pixels_.At(x, y);
}

std::string PictureCanvas::Row(int y) const {
  std::string text;
  for (int x = 0; At(x, y) != 0xFFFFFFFFu; ++x) {
    char cell[8];
    std::snprintf(cell, sizeof cell, "%06X", static_cast<unsigned>(At(x, y)));
    text += (x > 0 ? " " : "") + std::string(cell);
  }
  return text;
}

}  // namespace vorlex::picture_test
