#pragma once
// The control a command works on, placed in a headless container: a freshly
// placed control (--new) or the built-in demo (--demo).

#include <memory>

#include "options.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::cli {

struct PlacedControl {
  std::unique_ptr<HeadlessSite> site;
  std::unique_ptr<Vorlex> control;  // declared after site: goes first
};

// The control of options' source in a container of the requested client size
// (or the source's own: 60 x 21 pixels, 900 x 315 twips, for --new), in user
// mode unless options.design, with the clock stopped at options.now when given
// and the drive letters of options.drives.
PlacedControl PlaceControl(const Options& options);

}  // namespace vorlex::cli
