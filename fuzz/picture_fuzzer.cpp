// LoadPictureFromMemory on arbitrary bytes, and each picture it loads drawn
// into a small memory device context at an offset, so that cutting at the
// edges and transparency run too.

#include "platform/gdi.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Picture.h"

namespace {

void Draw(const vorlex::Picture& picture, int32_t x, int32_t y) {
  namespace gdi = vorlex::gdi;
  const gdi::HDC screen = gdi::GetDC(nullptr);
  const gdi::HDC dc = gdi::CreateCompatibleDC(screen);
  const gdi::HBITMAP bitmap = gdi::CreateCompatibleBitmap(screen, 24, 16);
  const gdi::HGDIOBJ previous = gdi::SelectObject(dc, bitmap);
  if (!picture.Render(reinterpret_cast<uintptr_t>(dc), x, y)) __builtin_trap();
  gdi::SelectObject(dc, previous);
  gdi::DeleteObject(bitmap);
  gdi::DeleteDC(dc);
  gdi::ReleaseDC(nullptr, screen);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  try {
    const vorlex::PicturePtr picture = vorlex::LoadPictureFromMemory(data, size);
    if (picture->Handle() == 0 || picture->PixelWidth() <= 0 || picture->PixelHeight() <= 0) __builtin_trap();
    const int32_t shift = size > 0 ? static_cast<int32_t>(data[0] % 8) - 4 : 0;
    Draw(*picture, shift, -shift);
  } catch (const vorlex::AutomationError& error) {
    if (error.Number() != vorlex::kErrInvalidPicture) __builtin_trap();
  }
  return 0;
}
