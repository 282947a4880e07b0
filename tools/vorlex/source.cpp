// The control a command works on, placed in a headless container.

#include "source.h"

namespace vorlex::cli {

PlacedControl PlaceNewControl(const Options& options) {
  PlacedControl placed;
  placed.site = std::make_unique<HeadlessSite>(options.widthPixels, options.heightPixels);
  placed.site->SetUserMode(!options.design);
  placed.control = std::make_unique<Vorlex>(*placed.site);
  placed.control->InitProperties();
  return placed;
}

}  // namespace vorlex::cli
