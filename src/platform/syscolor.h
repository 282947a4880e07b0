#pragma once
// OleTranslateColor: a colour value as the platform draws it.

#include "vorlex/Color.h"

namespace vorlex {

// An RGB value stays as it is; a system colour reference (high bit set, index
// in the low byte) becomes that system colour. False for a value the platform
// cannot translate.
bool TranslateColor(OLE_COLOR color, OLE_COLOR& rgb);

}  // namespace vorlex
