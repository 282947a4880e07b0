#pragma once
// The logical font DisplayText makes for text at an angle other than 0.

#include "platform/gdi.h"
#include "vorlex/Font.h"

namespace vorlex {

// The font object's face, weight and styles at the height its point size has
// on the screen, with the escapement of `angle` degrees; proof quality,
// variable pitch, ANSI character set.
gdi::LOGFONTA RotatedFont(const Font& font, float angle, float twipsPerPixel);

}  // namespace vorlex
