#pragma once
// The dashboard of the reference scenes, built through the control's own
// properties: an 800 x 64 bar of 32 blocks, three units wide each, that go
// through the border, gradient, brush, rivet, shape and text styles.

#include "vorlex/Vorlex.h"

namespace vorlex::bench {

constexpr int kDashboardWidth = 800;
constexpr int kDashboardHeight = 64;

void BuildDashboard(Vorlex& control);

}  // namespace vorlex::bench
