#pragma once
// The built-in demo: a dashboard that shows what a bar can do, kept as form
// text (demo.frm) and compiled into the tool.

#include "vorlex/Vorlex.h"

namespace vorlex::cli {

// The text of demo.frm.
extern const char* const kDemoFormText;

// Loads the dashboard into a control that has not been initialised: clock and
// date panels, a disk gauge of drive D, gradients, hatches, borders, rivets,
// rotated and 3-D text, circles and on-top blocks; 480 x 120 pixels.
void LoadDemo(Vorlex& control);

}  // namespace vorlex::cli
