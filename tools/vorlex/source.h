#pragma once
// The control a command works on, placed in a headless container. Only --new
// so far: a freshly placed control with its defaults.

#include <memory>

#include "options.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::cli {

struct PlacedControl {
  std::unique_ptr<HeadlessSite> site;
  std::unique_ptr<Vorlex> control;  // declared after site: goes first
};

// A new control in a container of the requested client size (60 x 21 pixels,
// 900 x 315 twips, by default), in user mode unless options.design, after
// InitProperties.
PlacedControl PlaceNewControl(const Options& options);

}  // namespace vorlex::cli
