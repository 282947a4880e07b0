#include "surface/rotated_font.h"

#include <cstring>

#include "vorlex/Numeric.h"

namespace vorlex {

gdi::LOGFONTA RotatedFont(const Font& font, float angle, float twipsPerPixel) {
  gdi::LOGFONTA lf{};
  // Negative: the character height (em) in pixels, not the cell's.
  lf.lfHeight = ToLong(-20 * font.Size() / twipsPerPixel);
  lf.lfEscapement = ToLong(static_cast<double>(angle) * 10);
  lf.lfWeight = font.Bold() ? gdi::FW_BOLD : gdi::FW_NORMAL;
  lf.lfItalic = font.Italic() ? 1 : 0;
  lf.lfUnderline = font.Underline() ? 1 : 0;
  lf.lfStrikeOut = font.Strikethrough() ? 1 : 0;
  lf.lfQuality = gdi::PROOF_QUALITY;
  lf.lfPitchAndFamily = gdi::VARIABLE_PITCH;
  std::strncpy(lf.lfFaceName, font.Name().c_str(), sizeof lf.lfFaceName - 1);
  return lf;
}

}  // namespace vorlex
