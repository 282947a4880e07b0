// The control a command works on, placed in a headless container.

#include "source.h"

#include "demo.h"
#include "vorlex/ClockService.h"
#include "vorlex/DiskService.h"

namespace vorlex::cli {

namespace {

struct ClientSize {
  int width;
  int height;
};

ClientSize SourceSize(const Options& options) {
  if (options.source == SourceKind::Demo) return {kDemoWidth, kDemoHeight};
  return {HeadlessSite::kDefaultWidth, HeadlessSite::kDefaultHeight};
}

}  // namespace

PlacedControl PlaceControl(const Options& options) {
  const ClientSize own = SourceSize(options);
  PlacedControl placed;
  placed.site = std::make_unique<HeadlessSite>(options.widthPixels.value_or(own.width),
                                               options.heightPixels.value_or(own.height));
  HeadlessSite& site = *placed.site;
  site.SetUserMode(!options.design);
  if (options.now) site.SetClock(FixedClock(*options.now));
  if (!options.drives.empty()) site.SetDisks(SystemDisks(options.drives));
  placed.control = std::make_unique<Vorlex>(site);
  placed.control->InitProperties();
  if (options.source == SourceKind::Demo) BuildDemo(*placed.control);
  return placed;
}

}  // namespace vorlex::cli
