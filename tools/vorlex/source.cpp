// The control a command works on, placed in a headless container.

#include "source.h"

#include <string>
#include <vector>

#include "demo.h"
#include "vorlex/ClockService.h"
#include "vorlex/DiskService.h"
#include "vorlex/FormText.h"

namespace vorlex::cli {

namespace {

// The form's first Vorlex control, loaded into the placed control.
void LoadFirstControl(const std::string& path, PlacedControl& placed) {
  std::vector<FormControl> forms = LoadForm(path);
  if (forms.empty()) throw FormError(path, 0, "the form holds no Vorlex control");
  placed.name = forms.front().name;
  ApplyForm(*placed.control, forms.front(), path);
}

}  // namespace

PlacedControl PlaceControl(const Options& options) {
  PlacedControl placed;
  placed.site = std::make_unique<HeadlessSite>(options.widthPixels.value_or(HeadlessSite::kDefaultWidth),
                                               options.heightPixels.value_or(HeadlessSite::kDefaultHeight));
  HeadlessSite& site = *placed.site;
  site.SetUserMode(!options.design);
  if (options.now) site.SetClock(FixedClock(*options.now));
  if (!options.drives.empty()) site.SetDisks(SystemDisks(options.drives));
  placed.control = std::make_unique<Vorlex>(site);
  if (options.source == SourceKind::New || options.source == SourceKind::None) {
    placed.control->InitProperties();
    return placed;
  }
  if (options.source == SourceKind::Demo) {
    placed.name = "Demo";
    LoadDemo(*placed.control);
  } else {
    LoadFirstControl(options.sourcePath, placed);
  }
  // A form sizes the control with its own Width and Height; --size wins.
  if (options.widthPixels) site.SetClientSize(*options.widthPixels, *options.heightPixels);
  return placed;
}

}  // namespace vorlex::cli
