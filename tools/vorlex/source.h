#pragma once
// The control a command works on, placed in a headless container: a freshly
// placed control (--new), the built-in demo (--demo) or the first Vorlex
// control of a form file.

#include <memory>
#include <string>

#include "options.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

namespace vorlex::cli {

struct PlacedControl {
  std::unique_ptr<HeadlessSite> site;
  std::unique_ptr<Vorlex> control;  // declared after site: goes first
  std::string name = "Vorlex1";     // the control's name on its form
};

// The control of options' source in a container of the requested client size
// (or the source's own: 60 x 21 pixels, 900 x 315 twips, for --new), in user
// mode unless options.design, with the clock stopped at options.now when given
// and the drive letters of options.drives. A form's control is loaded from its
// bag (its own Width and Height size it) instead of initialised; --size still
// wins. Raises FormError for a form that cannot be read.
PlacedControl PlaceControl(const Options& options);

}  // namespace vorlex::cli
