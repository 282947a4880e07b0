#pragma once
// What softgdi's handles stand for: device contexts, bitmaps, brushes, pens
// and fonts.

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

#include "platform/gdi.h"

namespace vorlex::gdi::soft {

// A handle's value; 0 is never a live object.
using Handle = uintptr_t;

inline constexpr BOOL kTrue = 1;
inline constexpr BOOL kFalse = 0;

struct DeviceContext {
  bool screen = false;  // the screen has no pixels of its own
  Handle pen = 0;
  Handle brush = 0;
  Handle bitmap = 0;  // 0 on the screen
  Handle font = 0;
  int bkMode = OPAQUE;
  COLORREF bkColor = RGB(255, 255, 255);
  COLORREF textColor = RGB(0, 0, 0);
  POINT position{0, 0};
  POINT brushOrigin{0, 0};
};

// Pixels 0x00RRGGBB, top row first. A monochrome bitmap keeps the format it
// was made with (it decides what CreateCompatibleBitmap makes from its DC) but
// stores colours as given.
struct Bitmap {
  int32_t width = 0;
  int32_t height = 0;
  int bitsPerPixel = 32;
  std::vector<uint32_t> pixels;
  Handle selectedInto = 0;  // the DC holding it; stock bitmaps are not tracked
};

struct Brush {
  COLORREF color = 0;
  int hatch = -1;  // a hatch style, or -1 for a solid brush
  bool Hatched() const { return hatch >= 0; }
};

struct Pen {
  int style = PS_SOLID;
  int32_t width = 0;  // 0 and 1 are both one pixel
  COLORREF color = 0;
};

namespace text {
class RealizedFont;
}

// A logical font, made real (face, size, glyphs) when first drawn or measured.
struct Font {
  LOGFONTA logFont{};
  std::shared_ptr<text::RealizedFont> realized;
};

using ObjectData = std::variant<std::monostate, DeviceContext, Bitmap, Brush, Pen, Font>;

}  // namespace vorlex::gdi::soft
