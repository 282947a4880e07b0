#pragma once
// The built-in demo: a dashboard that shows what a bar can do.

#include "vorlex/Vorlex.h"

namespace vorlex::cli {

constexpr int kDemoWidth = 480;  // pixels
constexpr int kDemoHeight = 120;

// Turns a freshly initialised control into the dashboard: clock and date
// panels, a disk gauge of drive D, gradients, hatches, borders, rivets,
// rotated and 3-D text, circles and on-top blocks.
void BuildDemo(Vorlex& control);

}  // namespace vorlex::cli
