#pragma once
// Everything a control holds, read through its public properties, as lines of
// text: two controls hold the same state when their lines are equal, and a
// difference shows by name. Fonts compare by their members, pictures by type,
// size and file bytes.

#include <string>
#include <vector>

#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::persist_test {

std::string DescribeFont(const FontPtr& font);
std::string DescribePicture(const PicturePtr& picture);

// The control's properties and every field of blocks 1..Blocks. The site is
// switched to design mode for the two design-time properties and back.
std::vector<std::string> ControlState(Vorlex& control, HeadlessSite& site);

}  // namespace vorlex::persist_test
