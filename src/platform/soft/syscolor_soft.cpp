// System colours without a window system: the classic Windows scheme, so that
// forms designed on Windows look the same.

#include <array>

#include "platform/syscolor.h"

namespace vorlex {

namespace {
// By system colour index (COLOR_SCROLLBAR = 0 .. COLOR_MENUBAR = 30), 0x00BBGGRR.
constexpr std::array<OLE_COLOR, 31> kClassicScheme = {
    0xC8D0D4, 0xA56E3A, 0x6A240A, 0x808080, 0xC8D0D4, 0xFFFFFF, 0x000000, 0x000000, 0x000000, 0xFFFFFF, 0xC8D0D4,
    0xC8D0D4, 0x808080, 0x6A240A, 0xFFFFFF, 0xC8D0D4, 0x808080, 0x808080, 0x000000, 0xC8D0D4, 0xFFFFFF, 0x404040,
    0xC8D0D4, 0x000000, 0xE1FFFF, 0xB5B5B5, 0x800000, 0xF0CAA6, 0xC0C0C0, 0x6A240A, 0xC8D0D4};
}  // namespace

bool TranslateColor(OLE_COLOR color, OLE_COLOR& rgb) {
  switch (color >> 24) {
    case 0x00:  // an RGB value
      rgb = color;
      return true;
    case 0x80: {  // a system colour
      const OLE_COLOR index = color & 0x00FFFFFF;
      if (index >= kClassicScheme.size()) return false;
      rgb = kClassicScheme[index];
      return true;
    }
    default:
      return false;
  }
}

}  // namespace vorlex
